#!/usr/bin/env bash
# The desktop's entry and the description for software centres: valid, and at one with each other and the programs.
. "$(dirname "$0")/checks.sh"

id=example.marrowgate.folioscope
entry=$SOURCE/packaging/$id.desktop
description=$BUILD/packaging/$id.metainfo.xml
type_file=$SOURCE/packaging/folioscope.xml

value() { sed -n "s/^$1=//p" "$entry"; }

quiet desktop-file-validate --warn-kde "$entry"

# One remark is as it should be: the domain belongs to nobody else, for its top level is reserved, but the validator
# knows only top levels that are in use.
found=$(appstreamcli validate --pedantic --no-net --no-color "$description") || fail "$found"
same "what the validator found" "cid-maybe-not-rdns" "$(sed -n 's/^[EWIP]: [^ ]* \([^ ]*\).*/\1/p' <<<"$found")"

grep -qF "<id>$id</id>" "$description" || fail "another id"
grep -qF "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$description" || fail "another desktop entry"
grep -qF "<release version=\"$VERSION\" " "$description" || fail "another version"
grep -qF "folioscope ($VERSION-1) " "$SOURCE/packaging/debian/changelog" || fail "another version in the changelog"

types=$(sed -n 's/.*<mime-type type="\(.*\)">/\1/p' "$type_file" | sort)
[ -n "$types" ] || fail "no file types"
same "the file types of the entry" "$types" "$(value MimeType | tr ';' '\n' | grep . | sort)"
same "the file types of the description" "$types" \
    "$(sed -n 's/.*<mediatype>\(.*\)<\/mediatype>/\1/p' "$description" | sort)"

# Texts in three languages.
for key in GenericName Comment Keywords; do
    for language in '' '\[de\]' '\[fr\]'; do
        [ -n "$(value "$key$language")" ] || fail "no $key$language"
    done
done
for tag in summary developer_name p li; do
    count=$(grep -c "<$tag>" "$description") || fail "no <$tag>"
    for language in de fr; do
        same "<$tag xml:lang=\"$language\">" "$count" "$(grep -c "<$tag xml:lang=\"$language\">" "$description")"
    done
done
same "the comment in the description" "$(value Comment)" "$(sed -n 's/.*<summary>\(.*\)<\/summary>/\1/p' "$description")"

# What the entry starts and shows is there, and the windows say that they belong to it.
same "the command" "fsv %f" "$(value Exec)"
[ -f "$BUILD/packaging/icons/48/$(value Icon).png" ] || fail "no icon"
grep -qF "setDesktopFileName(\"$id\")" "$SOURCE/src/shell/main.cpp" || fail "the windows name another entry"
grep -qF "setApplicationName(\"$(value StartupWMClass)\")" "$SOURCE/src/shell/main.cpp" || fail "another window class"

#!/usr/bin/env bash
# The manual pages: clean, and about the options that the programs have.
. "$(dirname "$0")/checks.sh"

for name in fsv fsv-dump; do
    page=$BUILD/packaging/$name.1
    quiet mandoc -T lint -W warning "$page"
    quiet groff -ww -z -man -T utf8 "$page"
    same "the packed page of $name" "$(cat "$page")" "$(gzip -dc "$page.gz")"
    grep -qF "\"Folioscope $VERSION\"" "$page" || fail "$name.1 is about another version"
done

# The heads of the page's paragraphs, and the words that begin a line of the program's help.
told() { mandoc -T ascii "$BUILD/packaging/$1.1" | sed 's/.\x08//g' | grep -oE "^ {5,9}$2" | tr -d ' ' | sort -u; }

help=$("$BUILD/tools/fsv-dump" --help)
same "options of fsv-dump" "$(grep -oE '^ .{5}--[a-z-]+' <<<"$help" | sed 's/^.*--/--/' | sort)" \
    "$(mandoc -T ascii "$BUILD/packaging/fsv-dump.1" | sed 's/.\x08//g' | grep -E '^ {5,9}-' | grep -oE -- '--[a-z-]+' | sort)"
same "short options of fsv-dump" "$(grep -oE '^  -[a-zA-Z]' <<<"$help" | tr -d ' ' | sort)" "$(told fsv-dump '-[a-zA-Z]\b')"
for status in 0 1 2 3 4; do
    grep -qE "^.B $status$" "$BUILD/packaging/fsv-dump.1" || fail "status $status is not told"
done

# One switch is not told by the program: it starts itself with it.
same "switches of fsv" "$({ "$BUILD/src/shell/fsv" --help | grep -oE '^  (/|--)[a-z]+=?' | tr -d ' '; echo /fromFSV; } | sort)" \
    "$(told fsv '(/[a-zA-Z]+=?|--[a-z]+)')"

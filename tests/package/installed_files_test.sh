#!/usr/bin/env bash
# Installs into a folder, uses the programs from there, and removes everything again.
. "$(dirname "$0")/checks.sh"

# The list of what was installed lies in the build; somebody may still need the last one.
manifest=$BUILD/install_manifest.txt
[ ! -f "$manifest" ] || cp -p "$manifest" "$folder/manifest_before"
at_end() {
    rm -f "$manifest"
    [ ! -f "$folder/manifest_before" ] || cp -p "$folder/manifest_before" "$manifest"
    rm -rf "$folder"
}

root=$folder/root
DESTDIR=$root cmake --install "$BUILD" --prefix /usr --strip >"$folder/log" 2>&1 || fail "$(cat "$folder/log")"

files=$(cd "$root" && find . ! -type d -printf '%m %P\n' | LC_ALL=C sort -k 2)
same "the installed files" "$(cat "$SOURCE/tests/package/installed_files.txt")" "$files"

bin=$root/usr/bin
same "the version of fsv" "Folioscope $VERSION" "$("$bin/fsv" --version)"
same "the version of fsv-dump" "fsv-dump $VERSION" "$("$bin/fsv-dump" --version)"
same "the tree of a sample" "$(cat "$SOURCE/tests/golden/statement.tree.txt")" \
    "$("$bin/fsv-dump" --tree "$SOURCE/samples/statement.afp")"

cp "$HELP_OF_PROGRAM" "$bin/help_of_program"
same "where the help is found" "$(printf "$root/usr/share/folioscope/help/help.%s.html\n" en de fr)" \
    "$("$bin/help_of_program")"
rm "$bin/help_of_program"

# The sanitizers put the names of sources into the programs.
if [ -z "$SANITIZE" ] && grep -rlaF -e "$SOURCE/" -e "$BUILD/" "$root"; then
    fail "these files name a folder of the build"
fi

while IFS= read -r file || [ -n "$file" ]; do rm "$root$file"; done <"$manifest"
same "what is left" "" "$(find "$root" ! -type d)"

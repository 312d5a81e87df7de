#!/usr/bin/env bash
# deb_in_clean_root.sh DEB: installs the package into a Debian 12 that has little else, uses it as a user without
# rights, removes it, and looks for what is left behind. Root and debootstrap are needed for that; without them the
# package is only unpacked and used from there. MIRROR names another archive than Debian's own.
. "$(dirname "$0")/checks.sh"

source=$(cd "$(dirname "$0")/../.." && pwd)
deb=$(realpath "${1:?no package named}")
root=$folder/root
nobody=65534

at_end() {
    ! mountpoint -q "$root/proc" || umount "$root/proc"
    rm -rf --one-file-system "$folder"
}

in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }

# as_user: what runs a command as a user of the root, or with what is unpacked there.
home=/home/reader
set_user() {
    if [ "$how" = installed ]; then
        as_user=(chroot "--userspec=$nobody:$nobody" "$root" env -i -C "$home" PATH=/usr/bin:/bin)
    else
        home=$root$home
        as_user=(env -C "$home" "PATH=$root/usr/bin:$PATH")
    fi
    as_user+=(LC_ALL=C.UTF-8 "HOME=$home" QT_QPA_PLATFORM=offscreen)
}

debian() {
    echo "Making a Debian 12 in $root"
    debootstrap --variant=minbase bookworm "$root" "${MIRROR:-http://deb.debian.org/debian}" >"$folder/log" 2>&1 ||
        fail "$(tail -n 20 "$folder/log")"
    mount -t proc proc "$root/proc" || echo "Without /proc"
    # What the package needs, and what takes note of it on a desktop, is no part of it.
    local needs
    needs=$(dpkg-deb -f "$deb" Depends | sed 's/([^)]*)//g; s/,/ /g')
    # shellcheck disable=SC2086
    in_root apt-get install -q -y --no-install-recommends $needs shared-mime-info desktop-file-utils \
        hicolor-icon-theme libglib2.0-bin >"$folder/log" 2>&1 || fail "$(tail -n 20 "$folder/log")"
    in_root update-desktop-database
}

# All files but the records of the package tools, and their caches.
files_of_root() {
    find "$root" -xdev \( -path "$root/proc" -o -path "$root/home" -o -path "$root/tmp" -o -path "$root/var/log" \
        -o -path "$root/var/cache/apt" -o -path "$root/var/lib/apt" -o -path "$root/var/lib/dpkg" \) -prune \
        -o -printf '%y %m %P\n' | sort
}

give_samples() {
    mkdir -p "$root/home/reader/a folder"
    cp "$source"/samples/statement*.afp "$root/home/reader"
    cp "$source/samples/statement.afp" "$root/home/reader/a folder/of two words"
    # Options that were confirmed once, so that no dialog asks for them.
    mkdir -p "$root/home/reader/.config/Marrowgate"
    printf '%s\n' '[HKEY_CURRENT_USER\Software\Marrowgate\Folioscope]' 'Codepage=dword:37' \
        'InitResourcePaths=dword:1' 'TechnicalEnglish=dword:0' >"$root/home/reader/.config/Marrowgate/registry.ini"
    [ "$how" != installed ] || chown -R $nobody:$nobody "$root/home/reader"
}

use_programs() {
    local version
    version=$(dpkg-deb -f "$deb" Version)
    version=${version%-*}
    same "the version of fsv" "Folioscope $version" "$("${as_user[@]}" fsv --version)"
    same "the version of fsv-dump" "fsv-dump $version" "$("${as_user[@]}" fsv-dump --version)"
    for sample in "$root"/home/reader/statement*.afp; do
        sample=$(basename "$sample" .afp)
        same "the tree of $sample" "$(cat "$source/tests/golden/$sample.tree.txt")" \
            "$("${as_user[@]}" fsv-dump --tree "$sample.afp")"
    done

    local file="$home/a folder/of two words" dump="$root/home/reader/a folder/of two words.txt"
    timeout 60 "${as_user[@]}" fsv "$file" /extract 2>"$folder/fsv.log" || fail "fsv: $(cat "$folder/fsv.log")"
    "${as_user[@]}" fsv-dump -o - "$file" | cmp - "$dump" || fail "the dumps of fsv and fsv-dump differ"
}

# How a desktop comes from a file to the program.
ask_desktop() {
    local entry=example.marrowgate.folioscope.desktop type=application/vnd.afpc.modca
    local file found
    for file in statement.afp statement-bare.afp "a folder/of two words"; do
        found=$("${as_user[@]}" gio info -a standard::content-type "$file")
        grep -q "standard::content-type: $type\$" <<<"$found" || fail "$file: $found"
    done
    for type in "$type" "$type-overlay" "$type-pagesegment"; do
        found=$("${as_user[@]}" gio mime "$type")
        grep -qF "$entry" <<<"$found" || fail "$type: $found"
    done
}

installed_and_removed() {
    how=installed
    set_user
    debian
    local before
    before=$(files_of_root)
    cp "$deb" "$root/tmp/package.deb"
    in_root apt-get install -q -y --no-install-recommends /tmp/package.deb >"$folder/log" 2>&1 ||
        fail "$(tail -n 20 "$folder/log")"
    same "files that differ from the package" "" "$(in_root dpkg --verify folioscope)"
    give_samples
    use_programs
    ask_desktop
    in_root apt-get purge -q -y folioscope >"$folder/log" 2>&1 || fail "$(tail -n 20 "$folder/log")"
    same "the files before and after" "$before" "$(files_of_root)"
    echo "The package was installed, used, and removed without a trace."
}

only_unpacked() {
    how=unpacked
    set_user
    mv "$folder/unpacked" "$root"
    give_samples
    use_programs
    echo "The package was unpacked and used. With root and debootstrap it would be installed and removed as well."
}

dpkg-deb -x "$deb" "$folder/unpacked"
! grep -rlaF "$source" "$folder/unpacked" || fail "these files name the folder of the build"
if [ "$(id -u)" -eq 0 ] && command -v debootstrap >/dev/null; then
    installed_and_removed
else
    only_unpacked
fi

# shellcheck shell=bash
# For the scripts of this folder: a folder of their own, and a way to fail.

set -euo pipefail
export LC_ALL=C.UTF-8
unset XDG_DATA_HOME XDG_DATA_DIRS

folder=$(mktemp -d)
at_end() { rm -rf "$folder"; }
trap at_end EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# quiet COMMAND...: succeeds, and has nothing to say.
quiet() {
    local said
    said=$("$@" 2>&1) || fail "$*: $said"
    [ -z "$said" ] || fail "$*: $said"
}

# same WHAT EXPECTED FOUND, two texts.
same() {
    [ "$2" = "$3" ] || fail "$1:"$'\n'"$(diff <(echo "$2") <(echo "$3"))"
}

#!/bin/bash
# Tests of the programs that the measurements stand on:
#
#   bench_programs_test.sh MAKE_AFP BARE_WALKER

set -euo pipefail
export LC_ALL=C

make_afp=$1
bare_walker=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'echo "FAILED: a command in line $LINENO" >&2' ERR
failures=0

fail() {
    echo "FAILED: $*" >&2
    failures=$((failures + 1))
}

expect() {  # WHAT EXPECTED ACTUAL
    [[ $2 == "$3" ]] || fail "$1: expected '$2', got '$3'"
}

expect_status() {  # WHAT STATUS COMMAND...
    local what=$1 expected=$2 status=0
    shift 2
    "$@" >"$work/out" 2>&1 || status=$?
    expect "$what" "$expected" "$status"
}

bytes_of() { stat -c %s "$1"; }

count_of() {  # MODE FILE: records as the walker counts them
    { "$bare_walker" "$1" "$2" >/dev/null; } 2>&1 | sed -E 's/.*: ([0-9]+) records.*/\1/'
}

made() {  # ARGUMENTS...: the line in which make_afp tells what it wrote
    { "$make_afp" "$@" >/dev/null; } 2>&1
}

# Steps through a file by the length fields alone, with fixed widths around each field, and prints how many records
# there are. Says so if a field doesn't begin with x'D3' or if the last one doesn't end with the file.
step_through() {  # FILE PREFIX DELIMITER
    od -An -v -tu1 -w1 "$1" | awk -v prefix="$2" -v delimiter="$3" '
        BEGIN { field = prefix }
        NR - 1 == field { high = $1 }
        NR - 1 == field + 1 { low = $1 }
        NR - 1 == field + 2 {
            if ($1 != 211) { print "no field at " field; bad = 1; exit }
            ++records
            end = field + high * 256 + low + delimiter
            field = end + prefix
        }
        END { if (!bad) print (end == NR ? records : "ends at " end " of " NR) }'
}

# ------------------------------------------------------------------------------------- make_afp

declare -A prefix=([5a]=1 [bare]=0 [rdw2]=3 [rdw4]=5 [crlf]=1 [lf]=1)
declare -A delimiter=([5a]=0 [bare]=0 [rdw2]=0 [rdw4]=0 [crlf]=2 [lf]=1)

for packaging in 5a bare rdw2 rdw4 crlf lf; do
    for kind in --statements --small "--deep 50" "--tiny EPG" "--small --faults"; do
        for size in 300000 299993; do
            what="$kind, $packaging, $size bytes"
            # shellcheck disable=SC2086  # a kind may be two words
            line=$(made $size "$work/a.afp" --packaging $packaging $kind)
            records=$(sed -E 's/.* bytes, ([0-9]+) records.*/\1/' <<<"$line")
            expect "size of $what" $size "$(bytes_of "$work/a.afp")"
            expect "steps through $what" "$records" \
                "$(step_through "$work/a.afp" "${prefix[$packaging]}" "${delimiter[$packaging]}")"
            for mode in read nodes render; do
                expect "$mode of $what" "$records" "$(count_of $mode "$work/a.afp")"
            done
        done
    done
    line=$(made 4M "$work/a.afp" --packaging $packaging --noise)
    expect "size of noise, $packaging" 4000000 "$(bytes_of "$work/a.afp")"
    expect "records in noise, $packaging" "$(sed -E 's/.* bytes, ([0-9]+) records.*/\1/' <<<"$line")" \
        "$(count_of read "$work/a.afp")"
    noise=$(sed -E 's/.*, ([0-9]+) bytes of noise/\1/' <<<"$line")
    ((noise > 1200000 && noise < 2800000)) || fail "$noise bytes of noise in 4000000, $packaging"
done

# Where no whole piece fits, all is filler, and every size must come out that has room for a record.
least=$({ "$make_afp" 1 "$work/a.afp" --small || true; } 2>&1 | sed -E 's/.* are ([0-9]+) and.*/\1/')
for more in 0 9 10 3999 4000 4001 4002 4008 4009 4010 8001 8008; do
    line=$(made $((least + more)) "$work/a.afp" --small)
    expect "size with filler of $more" $((least + more)) "$(bytes_of "$work/a.afp")"
    expect "steps through filler of $more" "$(sed -E 's/.* bytes, ([0-9]+) records.*/\1/' <<<"$line")" \
        "$(step_through "$work/a.afp" 1 0)"
done
for more in -1 1 8; do
    expect_status "room for half a record, $more" 1 "$make_afp" $((least + more)) "$work/no.afp" --small
done

# The walker reads in chunks of 10 MB.
for kind in --small --statements; do
    line=$(made 25M "$work/a.afp" $kind --packaging bare)
    expect "records of several chunks, $kind" "$(sed -E 's/.* bytes, ([0-9]+) records.*/\1/' <<<"$line")" \
        "$(count_of read "$work/a.afp")"
done

for size in "12K 12000" "12KiB 12288" "1M 1000000" "1MiB 1048576"; do
    made "${size% *}" "$work/a.afp" --small >/dev/null
    expect "size $size" "${size#* }" "$(bytes_of "$work/a.afp")"
done

for kind in --statements --small --noise; do
    made 2M "$work/a.afp" $kind --seed 5 >/dev/null
    made 2M "$work/b.afp" --seed 5 $kind >/dev/null
    made 2M "$work/c.afp" $kind --seed 6 >/dev/null
    cmp -s "$work/a.afp" "$work/b.afp" || fail "$kind: the same seed gives other bytes"
    different=$({ cmp -l "$work/a.afp" "$work/c.afp" || true; } | wc -l)
    ((different > 100000)) || fail "$kind: another seed changes only $different bytes"
done

made 2M "$work/a.afp" >/dev/null
"$bare_walker" render "$work/a.afp" 2>/dev/null | sed -nE "s/.*BNG\t.*x'([0-9A-F]+)'.*/\1/p" | sort >"$work/names"
(($(wc -l <"$work/names") > 100)) || fail "hardly any named groups in a run"
expect "names that two groups share" "" "$(uniq -d "$work/names")"

made 800 "$work/a.afp" --packaging bare --tiny EPG >/dev/null
expect "bytes of tiny records" "0008d3a9af000000" "$(od -An -v -tx1 -w8 "$work/a.afp" | tr -d ' ' | sort -u)"
expect "number of tiny records" 100 "$(count_of read "$work/a.afp")"

# BPF and BDT are open around the tower, and the first level has no mark.
made 4K "$work/a.afp" --deep 50 >/dev/null
expect "depth of a tower" 51 "$("$bare_walker" render "$work/a.afp" 2>/dev/null | grep -o '^>*' | awk '
    length > most { most = length } END { print most }')"

line=$(made 2M "$work/a.afp" --faults)
expect "a fault on each page" "$(sed -E 's/.* ([0-9]+) pages.*/\1/' <<<"$line")" \
    "$("$bare_walker" render "$work/a.afp" 2>/dev/null | grep -c "PGD.*x'0909")"
for slot in $'\x7C\xC7\xD9\xD6' $'\x7C\xC1\xC3\xC3' $'\x7C\xC1\xD4\xD6'; do
    grep -qaF "$slot" "$work/a.afp" && fail "a place for a number was left open"
done

expect_status "no arguments" 2 "$make_afp"
expect_status "two kinds" 2 "$make_afp" 1M "$work/no.afp" --small --noise
expect_status "unknown field" 2 "$make_afp" 1M "$work/no.afp" --tiny XYZ
expect_status "unknown packaging" 2 "$make_afp" 1M "$work/no.afp" --packaging tape
expect_status "bad size" 2 "$make_afp" 1X "$work/no.afp"
expect_status "size that overflows" 2 "$make_afp" 99999999999G "$work/no.afp"
expect_status "too small" 1 "$make_afp" 100 "$work/no.afp"
expect_status "no room for the tower" 1 "$make_afp" 10K "$work/no.afp" --deep 1000
[[ -e $work/no.afp ]] && fail "a file was left behind by a refused request"
expect_status "no such folder" 1 "$make_afp" 1M "$work/none/a.afp"

# ---------------------------------------------------------------------------------- bare_walker

walk_bytes() {  # MODE BYTES (as printf takes them)
    # shellcheck disable=SC2059
    printf "$2" >"$work/hand.afp"
    count_of "$1" "$work/hand.afp"
}

expect "empty file" 0 "$(walk_bytes read '')"
expect "seven bytes" 0 "$(walk_bytes read '\x00\x08\xD3\xA8\xA5\x00\x00')"
expect "unknown field" 0 "$(walk_bytes read '\x00\x08\xD3\xA8\x00\x00\x00\x00')"
expect "last record cut" 1 "$(walk_bytes read '\0\x08\xD3\xA8\xA5\0\0\0\0\x0A\xD3\xA9\xA5\0\0\0\0')"
expect "length 0 goes on" 2 "$(walk_bytes read '\0\0\xD3\xA8\xA5\0\0\0\0\x08\xD3\xA9\xA5\0\0\0')"
expect "length 0 behind a control byte" 2 "$(walk_bytes read '\x5A\0\0\xD3\xA8\xA5\0\0\0\0\x08\xD3\xA9\xA5\0\0\0')"
expect "CR LF" 2 "$(walk_bytes nodes '\x5A\0\x08\xD3\xA8\xA5\0\0\0\r\n\x5A\0\x08\xD3\xA9\xA5\0\0\0\r\n')"
# What looks like a field inside a record descriptor word is none, once the framing is known.
expect "descriptor of four bytes" 2 \
    "$(walk_bytes read '\0\x0D\0\0\x5A\0\x08\xD3\xA8\xA5\0\0\0\0\xFF\xD3\xA8\xA5\0\x08\xD3\xA9\xA5\0\0\0')"
expect "noise between" 2 "$(walk_bytes read '\x5A\0\x08\xD3\xA8\xA5\0\0\0\xD3\xA8\xD3\x11\x5A\0\x08\xD3\xA9\xA5\0\0\0')"

# BPF "A", BPG, PTX with position, text, an unknown sequence and the end of the chain, EPG, NOP of two bytes.
{
    printf '\x5A\0\x09\xD3\xA8\xA5\0\0\0\xC1'
    printf '\x5A\0\x08\xD3\xA8\xAF\0\0\0'
    printf '\x5A\0\x17\xD3\xEE\x9B\0\0\0\x2B\xD3\x04\xC7\x01\x02\x04\xDB\xC8\x89\x03\x43\xFF\x02\xF8'
    printf '\x5A\0\x08\xD3\xA9\xAF\0\0\0\x5A\0\x0A\xD3\xEE\xEE\0\0\0\x12\xAB'
} >"$work/hand.afp"
printf '%s\n' '     ---------' $'\tBPF\t00000002 9\tx\'C1\'' \
    '     ---------' $'>\tBPG\t0000000C 8\tx\'\'' \
    '     ---------' $'>\tPTX\t00000015 23' \
    $'>\t\t2\tAMI: Set cursor to X position: 258' $'>\t\t6\tTRN: \t\tHi' \
    $'>\t\t10\tUnknown control sequence x\'43\'' $'>\t\t13\tNOP: Comment: ' \
    '     ---------' $'>\tEPG\t0000002D 8\tx\'\'' \
    '     ---------' $'\tNOP\t00000036 10\tx\'12AB\'' | sed 's/$/\r/' >"$work/expected"
"$bare_walker" render "$work/hand.afp" >"$work/text" 2>/dev/null
cmp -s "$work/expected" "$work/text" || {
    fail "text of a file made by hand"
    diff <(cat -A "$work/expected") <(cat -A "$work/text") >&2 || true
}

expect_status "walker without arguments" 2 "$bare_walker"
expect_status "walker with an unknown mode" 2 "$bare_walker" count "$work/a.afp"
expect_status "walker without a file" 1 "$bare_walker" read "$work/none.afp"
expect_status "walker on a folder" 1 "$bare_walker" read "$work"

((failures == 0)) && echo "all passed"

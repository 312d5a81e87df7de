#!/bin/bash
# Measures whole programs on large files and prints the figures as Markdown tables.
#
#   programs.sh BUILD_DIR [--quick]
#
# Each figure is the median of five pairs of runs, yardstick and candidate in turn; --quick does three pairs on files
# a twentieth of the size, which tells whether all works and little more. The status is 0 if all targets are held,
# 3 if one is missed, 1 if something couldn't be measured, 2 for wrong use.
#
# The candidate is walk_document, which runs and dumps a file as fsv-dump does and tells what it took. The yardsticks are
# bare_walker, hexdump and xxd.
#
#   FOLIOSCOPE_BENCH_DIR  folder for the inputs, best one in memory (/dev/shm); needs 3.5 GB
#   FOLIOSCOPE_YARDSTICK  another walker with the modes and the figures of bare_walker

set -euo pipefail
export LC_ALL=C

die() {
    echo "programs.sh: $*" >&2
    exit 1
}

wrong_use() {
    echo "usage: programs.sh BUILD_DIR [--quick]" >&2
    exit 2
}

pairs=5
divisor=1
(($# == 1)) || [[ $# == 2 && $2 == --quick ]] || wrong_use
build=$1
if (($# == 2)); then
    pairs=3
    divisor=20
fi

make_afp=$build/tests/bench/make_afp
bare_walker=$build/tests/bench/bare_walker
yardstick=${FOLIOSCOPE_YARDSTICK:-$bare_walker}
candidate=("$build/tests/bench/walk_document")

MB=1000000
MiB=1048576

# ------------------------------------------------------------------------------------- arithmetic

calc() {  # EXPRESSION [DECIMALS]
    awk "BEGIN { printf \"%.${2:-6}f\", $1 }"
}

holds() { awk "BEGIN { exit !($1) }"; }

median() {  # VALUES...
    printf '%s\n' "$@" | sort -g | awk '
        { value[NR] = $1 }
        END { printf "%.6f", NR % 2 ? value[(NR + 1) / 2] : (value[NR / 2] + value[NR / 2 + 1]) / 2 }'
}

most() { printf '%s\n' "$@" | sort -g | tail -n 1; }

microseconds() { echo "${EPOCHREALTIME/./}"; }

# ----------------------------------------------------------------------------------------- tables

missed=0
verdict=""

judge() {  # CONDITION: sets `verdict`
    if holds "$1"; then
        verdict=yes
    else
        verdict="**no**"
        missed=1
    fi
}

row() {  # CELLS...
    local IFS='|'
    echo "|$*|" | sed 's/|/ | /g; s/^ //; s/ $//'
}

pace() {  # SECONDS BYTES RECORDS
    echo "$(calc "$1" 3) s, $(calc "$2 / $1 / 1e6" 0) MB/s, $(calc "$3 / $1 / 1e6" 2) M records/s"
}

size_name() {  # BYTES
    if (($1 >= 1000 * MB)); then
        echo "$(calc "$1 / 1e9" 2) GB"
    else
        echo "$(calc "$1 / 1e6" 0) MB"
    fi
}

memory_rows=()

remember_memory() {  # NAME RECORDS BYTES ALLOWED
    judge "$3 <= $4"
    memory_rows+=("$1|$2|$(calc "$3 / $MiB" 1) MiB|$(calc "$4 / $MiB" 1) MiB|$verdict")
}

remember_run_memory() {  # NAME RECORDS BYTES
    remember_memory "$1" "$2" "$3" $((64 * MiB + 48 * $2))
}

# --------------------------------------------------------------------------------------- programs

say() { echo "$*" >&2; }

walker_seconds=0
walker_records=0

walk() {  # WALKER MODE FILE: sets the two above
    local line
    line=$({ "$1" "$2" "$3" >/dev/null; } 2>&1) || die "$1 $2 failed: $line"
    [[ $line =~ \ ([0-9]+)\ records,.*[\ ,]([0-9.]+)\ s, ]] || die "can't read the figures of $1: $line"
    walker_records=${BASH_REMATCH[1]}
    walker_seconds=${BASH_REMATCH[2]}
}

declare -A figures
candidate_wall=0

# Sets `figures` to the pairs of name and number in the line of figures. Status 1 stands for faults in the file, which
# noise has; higher ones for work that wasn't done.
try_candidate() {  # ARGUMENTS...
    local start line words i status=0
    start=$(microseconds)
    line=$({ "${candidate[@]}" "$@" >/dev/null; } 2>&1) || status=$?
    ((status <= 1)) || return 1
    candidate_wall=$(calc "($(microseconds) - $start) / 1e6")
    line=$(grep -a '^run [0-9.]* dump ' <<<"$line" | tail -n 1) || return 1
    read -ra words <<<"$line"
    figures=()
    for ((i = 0; i + 1 < ${#words[@]}; i += 2)); do figures[${words[i]}]=${words[i + 1]}; done
    [[ -n ${figures[text]-} && -n ${figures[records]-} && -n ${figures[anonymous]-} ]]
}

run_candidate() { try_candidate "$@" || die "no figures from ${candidate[*]} $*"; }

input() {  # NAME SIZE ARGUMENTS...: makes a file and prints its path
    local file=$folder/$1.afp size=$2
    shift 2
    "$make_afp" "$size" "$file" "$@" 2>/dev/null || die "can't make $file of $size bytes"
    echo "$file"
}

# ----------------------------------------------------------------------------------- measurements

same_records() {  # NAME
    ((walker_records == figures[records])) && return
    say "programs.sh: $1: the yardstick counts $walker_records records, the candidate ${figures[records]}"
    missed=1
}

# The run on a file against a walker. Without a limit the ratio is only told.
measure_run() {  # NAME FILE WALKER MODE [LIMIT]
    local name=$1 file=$2 walker=$3 mode=$4 limit=${5-} bytes i target=""
    local -a ours=() theirs=() ratios=() memory=()
    bytes=$(stat -c %s "$file")
    say "$name"
    for ((i = 0; i < pairs; ++i)); do
        walk "$walker" "$mode" "$file"
        run_candidate --run-only "$file"
        theirs+=("$walker_seconds")
        ours+=("${figures[run]}")
        ratios+=("$(calc "${figures[run]} / $walker_seconds")")
        memory+=("${figures[anonymous]}")
    done
    same_records "$name"
    local ratio records=${figures[records]} seconds per_record=""
    ratio=$(median "${ratios[@]}")
    seconds=$(median "${ours[@]}")
    verdict=""
    if [[ -n $limit ]]; then
        target="<= $limit"
        judge "$ratio <= $limit"
    else
        per_record=", $(calc "$seconds * 1e9 / $records" 0) ns a record"
    fi
    row "$name against $mode" "$(pace "$seconds" "$bytes" "$records")$per_record" \
        "$(pace "$(median "${theirs[@]}")" "$bytes" "$walker_records")" "$(calc "$ratio" 2)" "$target" "$verdict"
    remember_run_memory "$name" "$records" "$(most "${memory[@]}")"
}

# Time per byte on a large file against that on a smaller one.
measure_growth() {  # NAME SMALLER LARGER LIMIT
    local name=$1 smaller=$2 larger=$3 limit=$4 i less more ratio
    local -a small=() large=() ratios=() memory=()
    less=$(stat -c %s "$smaller")
    more=$(stat -c %s "$larger")
    say "$name"
    for ((i = 0; i < pairs; ++i)); do
        run_candidate --run-only "$smaller"
        small+=("${figures[run]}")
        local small_run=${figures[run]} small_records=${figures[records]}
        run_candidate --run-only "$larger"
        large+=("${figures[run]}")
        ratios+=("$(calc "(${figures[run]} / $more) / ($small_run / $less)")")
        memory+=("${figures[anonymous]}")
    done
    ratio=$(median "${ratios[@]}")
    judge "$ratio <= $limit"
    row "$name, time a byte against the smaller run" \
        "$(pace "$(median "${large[@]}")" "$more" "${figures[records]}")" \
        "$(pace "$(median "${small[@]}")" "$less" "$small_records")" "$(calc "$ratio" 2)" "<= $limit" "$verdict"
    remember_run_memory "$name" "${figures[records]}" "$(most "${memory[@]}")"
}

# Text a second, in bytes, of a program that prints a file as hexadecimal text.
printer_rate() {  # TEXT_BYTES COMMAND...
    local text=$1 start
    shift
    start=$(microseconds)
    "$@" >/dev/null
    calc "$text / (($(microseconds) - $start) / 1e6)" 0
}

rate_row() {  # NAME UNIT OURS THEIRS RATIO [LIMIT]
    local target=""
    verdict=""
    if [[ -n ${6-} ]]; then
        target=">= $6"
        judge "$5 >= $6"
    fi
    row "$1" "$(calc "$3 / 1e6" 0) $2" "$(calc "$4 / 1e6" 0) $2" "$(calc "$5" 2)" "$target" "$verdict"
}

# The dump of a file against hexdump and xxd on the first part of it, in text a second.
measure_dump() {  # NAME FILE
    local name=$1 file=$2 piece=$folder/piece.afp i
    local -a phase=() whole=() hexdump_rates=() xxd_rates=() memory=() without=()
    local -a phase_hexdump=() phase_xxd=() whole_hexdump=() whole_xxd=()
    say "$name"
    head -c $((100 * MB / divisor)) "$file" >"$piece"
    local hexdump_text xxd_text hexdump_rate xxd_rate phase_rate whole_rate
    hexdump_text=$(hexdump -C "$piece" | wc -c)
    xxd_text=$(xxd "$piece" | wc -c)
    for ((i = 0; i < pairs; ++i)); do
        hexdump_rate=$(printer_rate "$hexdump_text" hexdump -C "$piece")
        xxd_rate=$(printer_rate "$xxd_text" xxd "$piece")
        run_candidate --run-only "$file"
        without+=("${figures[anonymous]}")
        run_candidate "$file"
        phase_rate=$(calc "${figures[text]} / ${figures[dump]}" 0)
        whole_rate=$(calc "${figures[text]} / $candidate_wall" 0)
        memory+=("${figures[dumped]:-${figures[anonymous]}}")
        phase+=("$phase_rate") whole+=("$whole_rate")
        hexdump_rates+=("$hexdump_rate") xxd_rates+=("$xxd_rate")
        phase_hexdump+=("$(calc "$phase_rate / $hexdump_rate")") phase_xxd+=("$(calc "$phase_rate / $xxd_rate")")
        whole_hexdump+=("$(calc "$whole_rate / $hexdump_rate")") whole_xxd+=("$(calc "$whole_rate / $xxd_rate")")
    done
    rm "$piece"
    say "$name: $(calc "${figures[text]} / 1e6" 0) MB of text"
    local unit="MB of text/s"
    rate_row "$name against hexdump -C" "$unit" "$(median "${phase[@]}")" "$(median "${hexdump_rates[@]}")" \
        "$(median "${phase_hexdump[@]}")" 9
    rate_row "$name against xxd" "$unit" "$(median "${phase[@]}")" "$(median "${xxd_rates[@]}")" \
        "$(median "${phase_xxd[@]}")" 1.25
    rate_row "$name with its run, against hexdump -C" "$unit" "$(median "${whole[@]}")" \
        "$(median "${hexdump_rates[@]}")" "$(median "${whole_hexdump[@]}")"
    rate_row "$name with its run, against xxd" "$unit" "$(median "${whole[@]}")" "$(median "${xxd_rates[@]}")" \
        "$(median "${whole_xxd[@]}")"
    remember_memory "$name, beyond its run" "${figures[records]}" \
        "$(calc "$(most "${memory[@]}") - $(most "${without[@]}")" 0)" $((64 * MiB))
}

# Texts that the run leaves for later: the dump reads their records once more and decodes them. It is held against a
# run over records that hold the same texts and are decoded at once.
measure_texts() {  # LINES
    local lines=$1 records=$((100000 / divisor)) name texts descriptors i
    local -a dumps=() runs=() ratios=() shares=()
    name="dump, $records texts of $lines lines"
    say "$name"
    texts=$(input texts $((records * (13 + 59 * lines))) --texts "$lines")
    descriptors=$(input descriptors $((records * (27 + 59 * lines))) --descriptors "$lines")
    for ((i = 0; i < pairs; ++i)); do
        run_candidate --run-only "$descriptors"
        local run=${figures[run]}
        run_candidate "$texts"
        runs+=("$run") dumps+=("${figures[dump]}")
        ratios+=("$(calc "${figures[dump]} / $run")")
        shares+=("$(calc "${figures[read]} / $(stat -c %s "$texts")")")
    done
    local ratio share
    ratio=$(median "${ratios[@]}")
    judge "$ratio <= 2"
    row "$name against a run that decodes them" \
        "$(pace "$(median "${dumps[@]}")" "$(stat -c %s "$texts")" "$records")" \
        "$(pace "$(median "${runs[@]}")" "$(stat -c %s "$descriptors")" "$records")" "$(calc "$ratio" 2)" "<= 2" "$verdict"
    share=$(most "${shares[@]}")
    judge "$share <= 1.5"
    row "$name, bytes read a byte of the file" "" "" "$(calc "$share" 2)" "<= 1.5" "$verdict"
    rm "$texts" "$descriptors"
}

# ------------------------------------------------------------------------------------------ window

desktop_rows=()

goal() {  # NAME FIGURE UNIT LIMIT
    judge "$2 <= $4"
    desktop_rows+=("$1|$(calc "$2" 4) $3|<= $4 $3|$verdict")
}

note() {  # NAME FIGURE UNIT
    desktop_rows+=("$1|$(calc "$2" 4) $3||")
}

# Runs a program without a screen and keeps what it printed in `printed`.
printed=""
off_screen() {  # COMMAND...
    printed=$(QT_QPA_PLATFORM=offscreen "$@" 2>"$folder/errors") || die "$1 failed: $(tail -n 3 "$folder/errors")"
}

figure_of() {  # NAME: of window_bench
    awk -v name="$1" '$1 == name { print $2; found = 1 } END { exit !found }' <<<"$printed" || die "no figure $1"
}

# The main window: its run against one without a window, and what a user waits for.
measure_window() {  # FILE
    local file=$1 smaller texts name
    say "window, $(size_name "$(stat -c %s "$file")") of statements"
    smaller=$(input searched $((100 * MB / divisor)))
    texts=$(input longest $((6 * MB)) --texts 500)
    off_screen "$build/tests/bench/window_bench" "$pairs" "$file" "$smaller" "$texts"
    rm "$smaller" "$texts"
    name="run in the window, $(size_name "$(stat -c %s "$file")") of statements"
    local ratio seconds headless
    ratio=$(figure_of run-ratio) seconds=$(figure_of run-window) headless=$(figure_of run-headless)
    judge "$ratio <= 1.25"
    local figure
    figure="$(calc "$ratio" 2) times the run alone ($(calc "$seconds" 2) s, $(calc "$headless" 2) s)"
    desktop_rows+=("$name|$figure|<= 1.25|$verdict")
    goal "from the window's first painting to that of its tree" "$(figure_of first-rows)" s 1
    goal "longest wait of an event in a run" "$(figure_of run-wait)" s 0.1
    goal "longest wait while all is expanded" "$(figure_of expand-wait)" s 0.1
    goal "longest wait in a search that reads" "$(figure_of find-unread-wait)" s 0.1
    goal "longest wait in a search of what was read" "$(figure_of find-read-wait)" s 0.1
    goal "longest wait in a dump" "$(figure_of dump-wait)" s 0.1
    goal "select a record, usual" "$(figure_of select-usual)" s 0.01
    note "the slowest of 200" "$(figure_of select-usual-worst)" s
    goal "select a record with a text of $(calc "$(figure_of select-longest-characters)" 0) characters" \
        "$(figure_of select-longest)" s 0.06
    note "the slowest of them" "$(figure_of select-longest-worst)" s
}

# Seconds, or with $3 megabytes, of a step in the first of the trees.
tree_figure() {  # STEP [MB]
    awk -v step="$1" -v unit="${2-s}" '
        index($0, "  " step "  ") == 1 { for (i = 2; i <= NF; ++i) if ($i == unit) { print $(i - 1); found = 1; exit } }
        END { exit !found }' <<<"$printed" || die "no figure of the tree: $1"
}

measure_tree() {
    local nodes=$((8000000 / divisor))
    say "tree, $nodes nodes"
    off_screen "$build/tests/bench/tree_bench" "$nodes"
    goal "expand all of $nodes nodes" "$(tree_figure "expand all")" s 2
    goal "the same while the user can act" "$(tree_figure "expand all, giving way")" s 2
    goal "memory of an expanded tree" "$(tree_figure "expand all" MB)" MB 150
    goal "collapse all" "$(tree_figure "collapse all")" s 0.2
    goal "select and paint a row anywhere, slowest of 100" "$(tree_figure "select and paint, slowest of 100")" s 0.05
    goal "scroll to the end" "$(tree_figure "scroll to the end")" s 0.05
}

pane_figure() {  # TEXT: seconds, the median
    awk -v text="$1" '
        index($0, text "  ") == 1 { for (i = 2; i < NF; ++i) if ($i == "median") { print $(i + 1) / 1e3; found = 1 } }
        END { exit !found }' <<<"$printed" || die "no figure of the pane: $1"
}

measure_pane() {
    say "property pane"
    off_screen "$build/tests/bench/pane_bench"
    goal "show a text of 3,000 characters" "$(pane_figure usual)" s 0.01
    goal "show a text of 65,535 characters" "$(pane_figure longest)" s 0.06
    goal "the same as a single line" "$(pane_figure "one line")" s 0.06
    goal "the same with another look at each word" "$(pane_figure mixed)" s 0.06
}

# Not built: there is no desktop program either.
has_window() { [[ -x $build/tests/bench/window_bench ]]; }

# ------------------------------------------------------------------------------------------- main

check_tools() {
    command -v hexdump >/dev/null || die "hexdump is missing (Debian package bsdextrautils)"
    command -v xxd >/dev/null || die "xxd is missing (Debian package xxd)"
    local program
    for program in "$make_afp" "$bare_walker" "$yardstick"; do
        [[ -x $program ]] || die "$program is missing (build with FOLIOSCOPE_BENCH=ON)"
    done
    local needed=$((3500 * MB / divisor)) free
    free=$(df --output=avail -B 1 "$base" | tail -n 1)
    ((free >= needed)) || die "$base has no room for $(size_name $needed)"
}

print_head() {
    echo "Candidate: \`$(basename "${candidate[0]}")\`; yardstick: \`$(basename "$yardstick")\`;" \
        "$pairs pairs; $(nproc) processors, $(sed -nE '/^model name/ {s/.*: //p; q}' /proc/cpuinfo)."
    echo "Ratios are candidate to yardstick, the median of the pairs: of times, in dumps of text rates."
    echo
    row Measurement Candidate Yardstick Ratio Target Held
    row --- --- --- ---: --- ---
}

print_memory() {
    local line
    echo
    row "Anonymous memory" Records Highest Allowed Held
    row --- ---: ---: ---: ---
    for line in "${memory_rows[@]}"; do row "$line"; done
}

print_desktop() {
    local line
    echo
    row Desktop Figure Goal Held
    row --- --- --- ---
    for line in "${desktop_rows[@]}"; do row "$line"; done
}

measure_statements() {
    local run dump largest smaller larger
    run=$((1000 * MB / divisor)) dump=$((200 * MB / divisor)) largest=$((2147483647 / divisor))
    smaller=$(input statements $run)
    measure_run "run, $(size_name $run) of statements" "$smaller" "$yardstick" render 1.8
    larger=$(input largest $largest)
    measure_growth "run, $(size_name $largest) of statements" "$smaller" "$larger" 1.15
    rm "$larger"
    measure_dump "dump, $(size_name $run) of statements" "$smaller"
    if has_window; then measure_window "$smaller"; fi
    rm "$smaller"
    smaller=$(input statements $dump)
    measure_dump "dump, $(size_name $dump) of statements" "$smaller"
    rm "$smaller"
}

measure_all_texts() {
    measure_texts 1
    measure_texts 20
}

measure_other_files() {
    local size=$((400 * MB / divisor)) tiny=$((160 * MB / divisor)) depth=$((1000000 / divisor)) file
    file=$(input small $size --small)
    measure_run "run, $(size_name $size) of small records" "$file" "$yardstick" nodes 14
    rm "$file"
    file=$(input noise $size --noise)
    measure_run "run, $(size_name $size) with noise" "$file" "$yardstick" read 2.5
    rm "$file"
    # Other yardsticks may know x'5A' files only.
    file=$(input tiny $tiny --packaging bare --tiny EPG)
    measure_run "run, $(size_name $tiny) of 8-byte records" "$file" "$bare_walker" nodes
    rm "$file"
    # A level is two records of 17 bytes.
    file=$(input deep $((34 * depth + 20000)) --deep $depth)
    measure_run "run, a tower of $depth groups" "$file" "$bare_walker" nodes
    rm "$file"
}

base=${FOLIOSCOPE_BENCH_DIR:-/dev/shm}
check_tools
folder=$(mktemp -d "$base/folioscope-bench.XXXXXX")
trap 'rm -rf "$folder"' EXIT
trap 'exit 1' INT TERM HUP
print_head
measure_statements
measure_all_texts
measure_other_files
print_memory
if has_window; then
    measure_tree
    measure_pane
    print_desktop
fi
((missed == 0)) || exit 3

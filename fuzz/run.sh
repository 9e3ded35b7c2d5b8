#!/usr/bin/env bash
# Builds the fuzz targets and runs each one, beginning with its corpus. What fails lands in build/fuzz/found.
#
#   fuzz/run.sh                          60 seconds a target, two targets at a time
#   fuzz/run.sh --seconds 5 --jobs 1
#   fuzz/run.sh --execs 20000000 Text Objects
#
# New inputs that reach new code are kept in build/fuzz/grown; with --merge, the few of them that reach what the
# corpus does not join it at the end.
set -euo pipefail
. "$(dirname "$0")/../scripts/common.sh"

seconds=60 execs='' jobs=2 merge='' targets=()
while [ $# -gt 0 ]; do
    case $1 in
    --seconds) seconds=$2; shift 2 ;;
    --execs) execs=$2; shift 2 ;;
    --jobs) jobs=$2; shift 2 ;;
    --merge) merge=yes; shift ;;
    -*) fail "unknown option $1" ;;
    *) targets+=("$1"); shift ;;
    esac
done
[ ${#targets[@]} -gt 0 ] || for source in fuzz/*Fuzz.cpp; do
    targets+=("$(basename "$source" Fuzz.cpp)")
done

# A short quarantine and no stacks of allocations: memory that is used again soon is what makes a run quick.
export ASAN_OPTIONS=quarantine_size_mb=1:thread_local_quarantine_size_kb=64:malloc_context_size=0

build fuzz "${targets[@]/%/Fuzz}"

run_target() {
    local target=$1 folder=build/fuzz limit=(-max_total_time="$seconds")
    [ -z "$execs" ] || limit=(-runs="$execs")
    mkdir -p "$folder/grown/$target" "$folder/found"
    local log=$folder/$target.log
    if ! "$folder/fuzz/${target}Fuzz" "${limit[@]}" -dict=fuzz/dictionary -max_len=600 -timeout=10 \
        -rss_limit_mb=2048 -entropic=0 -reload=0 -print_final_stats=1 -artifact_prefix="$folder/found/$target-" \
        "$folder/grown/$target" "fuzz/corpus/$target" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        return 1
    fi
    printf '%-12s %s executions\n' "$target" "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")"
}

merge_target() {
    "build/fuzz/fuzz/$1Fuzz" -merge=1 -use_counters=0 -max_len=2048 "fuzz/corpus/$1" "build/fuzz/grown/$1" \
        >"build/fuzz/$1.merge.log" 2>&1
}

export -f run_target merge_target
export seconds execs
say "Run ${#targets[@]} targets, $([ -n "$execs" ] && echo "$execs executions" || echo "$seconds seconds") each"
printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I{} bash -euo pipefail -c 'run_target {}' ||
    fail "a target failed; the inputs are in build/fuzz/found"
[ -z "$merge" ] || printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I{} bash -euo pipefail -c 'merge_target {}'

#!/usr/bin/env bash
# ./fuzz.sh [SECONDS]: builds every libFuzzer program of fuzz/ and runs each for SECONDS
# (default 60) over its corpus, printing one line per program. A crash leaves its input in
# build/fuzz/findings/; `build/fuzz/fuzz/fuzz_NAME FILE` replays it.
set -uo pipefail
ROOT=$(cd "$(dirname "$0")" && pwd)
source "$ROOT/scripts/common.sh"
SECONDS_EACH=${1:-60}
ensure_packages "${PACKAGES[@]}" "${FUZZ_PACKAGES[@]}" || exit 1

DIR=$ROOT/build/fuzz
build "$DIR" "${FUZZ_OPTIONS[@]}" >/dev/null || { echo "fuzz build failed"; exit 1; }
mkdir -p "$DIR/findings" "$DIR/logs"

status=0
for program in "$DIR"/fuzz/fuzz_*; do
    name=${program##*/fuzz_}
    dictionary=$ROOT/fuzz/dictionaries/$name.dict
    options=(-max_total_time="$SECONDS_EACH" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1
             -artifact_prefix="$DIR/findings/$name-")
    [ -f "$dictionary" ] && options+=(-dict="$dictionary")
    mkdir -p "$DIR/scratch/$name"
    log=$DIR/logs/$name.log
    before=$(find "$DIR/findings" -name "$name-*" -type f | wc -l)
    "$program" "${options[@]}" "$DIR/scratch/$name" "$ROOT/fuzz/corpus/$name" >"$log" 2>&1
    code=$?
    runs=$(grep -oE 'stat::number_of_executed_units: [0-9]+' "$log" | grep -oE '[0-9]+$')
    cov=$(grep -oE 'cov: [0-9]+ ft: [0-9]+' "$log" | tail -n 1)
    findings=$(( $(find "$DIR/findings" -name "$name-*" -type f | wc -l) - before ))
    printf '%-18s %10s executions  %-20s findings: %s\n' "$name" "${runs:-?}" "${cov:-cov: ?}" "$findings"
    [ "$code" -eq 0 ] && [ "$findings" -eq 0 ] || status=1
done
exit $status

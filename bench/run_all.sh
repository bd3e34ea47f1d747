#!/usr/bin/env bash
# Runs every benchmark program found in the given build folder.
set -euo pipefail
dir=${1:?build folder}
for b in "$dir"/bench_*; do
    [ -x "$b" ] || continue
    echo "== $(basename "$b")"
    "$b" --benchmark_min_time=0.5
done

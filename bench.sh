#!/usr/bin/env bash
# Builds the benchmarks in Release and runs them all.
set -euo pipefail
ROOT=$(cd "$(dirname "$0")" && pwd)
source "$ROOT/scripts/common.sh"
ensure_packages
build "$ROOT/build/release" -DCMAKE_BUILD_TYPE=Release
"$ROOT/bench/run_all.sh" "$ROOT/build/release/bench"
# The whole client under a flood, from outside: the real program, the practice world, Xvfb.
"$ROOT/bench/flood" "$ROOT/build/release"

#!/usr/bin/env bash
# Installs what is missing, builds, starts the practice world on 127.0.0.1 and the client.
set -euo pipefail
ROOT=$(cd "$(dirname "$0")" && pwd)
source "$ROOT/scripts/common.sh"
ensure_packages
build "$ROOT/build/release" -DCMAKE_BUILD_TYPE=Release

BIN="$ROOT/build/release"
world_pid=
if [ -x "$BIN/world/thornmere-world" ]; then
    "$BIN/world/thornmere-world" --listen 127.0.0.1 --port 34283 &
    world_pid=$!
    trap '[ -n "$world_pid" ] && kill "$world_pid" 2>/dev/null' EXIT
fi
"$BIN/src/thornmere-steward" "$@"

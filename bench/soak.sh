#!/usr/bin/env bash
# bench/soak.sh [MINUTES] [BUILD]: floods the client from the practice world for MINUTES
# (default 10) with highlights on and all three text windows open, under its own Xvfb, and
# prints once a second the client's resident memory and its paints per second; at the end
# the growth of resident memory from minute 1 to the last sample. Not a test: a measurement.
set -euo pipefail
ROOT=$(cd "$(dirname "$0")/.." && pwd)
MINUTES=${1:-10}
BUILD=${2:-$ROOT/build/release}
CLIENT=$BUILD/src/thornmere-steward
WORLD=$BUILD/world/thornmere-world
WORK=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$WORK"
}
trap cleanup EXIT
trap "exit 1" INT TERM

exec 3>"$WORK/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
pids+=($!)
while [ ! -s "$WORK/display" ]; do sleep 0.1; done
export DISPLAY=:$(head -n 1 "$WORK/display")

"$WORLD" --port 0 --listen 127.0.0.1 --quiet --flood 1000000000000 >"$WORK/world.out" &
pids+=($!)
while [ ! -s "$WORK/world.out" ]; do sleep 0.1; done
port=$(head -n 1 "$WORK/world.out")

# A profile with the three windows open and highlights that the flood's lines meet often.
data=$WORK/home/ThornmereSteward
mkdir -p "$data"
printf '[Version Info]\nVersion=68000000\n' >"$data/Thornmere.Ini"
settings=$(grep -m 1 '^Settings=' "$ROOT/fuzz/corpus/profile/client-default.dat")
printf '[Config]\n%s\n\n[Windows]\nOpen Windows=Gta\n' "$settings" >"$data/Default.Dat"
printf '012 "fountain"\n030 "Lovely evening"\n014 "$*Obvious"\n' >"$data/Default.Highlights"
printf '014 "Mara"\n011 "Orla"\n' >"$data/Default.Names"

XDG_DATA_HOME=$WORK/home "$CLIENT" --trace "/H127.0.0.1/P$port" 2>"$WORK/trace" &
client=$!
pids+=($client)

echo "second  rss_kb  paints_per_s"
start=${EPOCHREALTIME/./}
last=$start
read_bytes=0
rss_minute1=0
rss=0
for ((second = 1; second <= MINUTES * 60; second++)); do
    # Each sample waits for its whole second since the start, so slow sampling never drifts.
    now=${EPOCHREALTIME/./}
    wait_us=$((start + second * 1000000 - now))
    [ "$wait_us" -le 0 ] || sleep "$(printf '%d.%06d' $((wait_us / 1000000)) $((wait_us % 1000000)))"
    rss=$(awk '/^VmRSS:/ {print $2}' "/proc/$client/status" 2>/dev/null || echo 0)
    [ "$rss" != 0 ] || { echo "the client ended early"; exit 1; }
    size=$(stat -c %s "$WORK/trace")
    paints=$(tail -c +$((read_bytes + 1)) "$WORK/trace" | head -c $((size - read_bytes)) |
        grep -c '^PAINT: ' || true)
    read_bytes=$size
    now=${EPOCHREALTIME/./}
    printf '%6d  %6d  %6d\n' "$second" "$rss" "$((paints * 1000000 / (now - last)))"
    last=$now
    [ "$second" -ne 60 ] || rss_minute1=$rss
done
[ "$rss_minute1" -ne 0 ] || rss_minute1=$rss
echo "RSS at minute 1: $rss_minute1 kB, at the end: $rss kB, growth: $((rss - rss_minute1)) kB"

#!/usr/bin/env bash
# Cold launch to the first catalog grid drawn from the cache, as the application logs it
# ("first grid shown after N ms", counted from process start), under Xvfb.
#   bench/browse/first_grid.sh [RUNS]     (after a build; uses build/bin and the generated content pack)
# One launch fills the cache; each measured launch then starts a new process on the same home and server,
# so the catalogs and the card pictures come from the caches. The launch animation is part of every launch:
# the time at which the home screen replaced it is printed beside the figure.
set -euo pipefail
cd "$(dirname "$0")/../.."
runs=${1:-5}
port=${QUILLET_BENCH_PORT:-18731}
home=$(mktemp -d)
content=${QUILLET_CONTENT_DIR:-build/content}
build/bin/quillet-content-server --port "$port" --content "$content" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null; rm -rf "$home"' EXIT
sleep 0.5

launch() {
    # Each log line with the milliseconds since the launch command started.
    local start
    start=$(date +%s%3N)
    QUILLET_HOME="$home" xvfb-run -a build/bin/quillet --server "http://127.0.0.1:$port/" \
        --screenshot "$home/shot.png" --screenshot-delay 4500 2>/dev/null |
        while IFS= read -r line; do echo "$(($(date +%s%3N) - start)) $line"; done
}

launch >/dev/null
for ((i = 1; i <= runs; ++i)); do
    out=$(launch)
    grid=$(grep -o 'first grid shown after [0-9]* ms' <<<"$out" | grep -o '[0-9]*' || echo "none")
    home_at=$(awk '/Lottie Animation Completed/ { print $1; exit }' <<<"$out")
    grid_at=$(awk '/first grid shown after/ { print $1; exit }' <<<"$out")
    echo "launch $i: first grid shown after $grid ms; $((${grid_at:-0} - ${home_at:-0})) ms after the launch animation ended"
done

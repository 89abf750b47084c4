#!/bin/sh
# The start-up benchmark runs the app, which saves the history when it quits:
# it must do so in a scratch folder, never in the user's data or settings.
# Usage: bench_startup_scratch.sh BENCH_STARTUP
set -u
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
mkdir -p "$home/data" "$home/config" "$home/cache"
env -u QOR_DATA_DIR HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" \
    XDG_CACHE_HOME="$home/cache" "$1" --benchmark_filter=BM_FirstFrameApp >/dev/null 2>&1 || exit 1
left=$(find "$home/data" "$home/config" -mindepth 1 | head -5)
if [ -n "$left" ]; then
    echo "bench_startup wrote into the user's folders:" "$left"
    exit 1
fi

#!/usr/bin/env bash
# Peak resident memory (VmHWM) of a running qor: idle on the list, then after
# 50 materials opened by forwarding qor:// links to it, the way a dispatcher's
# links reach a running instance. The web engine's helper processes are not
# counted. Usage: tools/measure-memory.sh [path/to/qor] [phone|tablet]
set -euo pipefail
cd "$(dirname "$0")/.."
QOR=${1:-build/src/app/qor}
FORM=${2:-tablet}
export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software QTWEBENGINE_DISABLE_SANDBOX=1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/run
mkdir -m 700 "$scratch/run"
"$QOR" --data-dir "$scratch/data" --form-factor "$FORM" --open-tab 0 >/dev/null 2>&1 &
pid=$!
peak() { awk '/VmHWM/ { printf "%.0f MiB", $2 / 1024 }' "/proc/$pid/status"; }
sleep 4
echo "idle on the list: $(peak)"
count=0
for un in $(cut -d'^' -f4 build/pack/chemicals_2024.csv | grep -E '^[0-9]{4}$' | sort -u | head -50); do
  "$QOR" --data-dir "$scratch/data" "qor://chemical?un=$un" >/dev/null 2>&1
  count=$((count + 1))
  sleep 0.3
done
sleep 2
echo "after $count materials ($FORM): $(peak)"
kill "$pid"
wait "$pid" 2>/dev/null || true

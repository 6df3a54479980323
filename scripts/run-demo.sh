#!/usr/bin/env bash
# Builds the console and starts it on the demo installation. Run as root on Debian bookworm.
# Without a desktop, QT_QPA_PLATFORM=vnc serves the window on port 5900 to any VNC viewer.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bash "$root/scripts/install-deps.sh"
build=$root/build/run
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQD7_BUILD_TESTS=OFF -DQD7_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" -j"${QD7_JOBS:-2}"
demo=$root/build/demo
bash "$root/demo/seed.sh" "$demo" "$build/bin/qd7gd"
export QD7_REGISTRY=$demo/registry.ini
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "No display: serving the console over VNC on port 5900 (QT_QPA_PLATFORM=vnc)."
    export QT_QPA_PLATFORM=vnc
fi
exec "$build/bin/qd7console" "$@"

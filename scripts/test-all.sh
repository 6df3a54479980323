#!/usr/bin/env bash
# Builds the console and runs the whole suite twice: a normal build, then one with
# AddressSanitizer and UndefinedBehaviorSanitizer. Run as root on Debian bookworm.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bash "$root/scripts/install-deps.sh"
export QT_QPA_PLATFORM=offscreen
jobs=${QD7_JOBS:-2}

run_suite() {
    local dir=$1; shift
    cmake -S "$root" -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
    cmake --build "$dir" -j"$jobs"
    ctest --test-dir "$dir" --output-on-failure -j"$jobs" --timeout 300
}

echo "== normal build"
run_suite "$root/build/test"
echo "== sanitizer build"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export LSAN_OPTIONS=suppressions=$root/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
run_suite "$root/build/sanitize" -DQD7_SANITIZE=ON -DQD7_BUILD_BENCH=OFF
echo "== all tests passed"

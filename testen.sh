#!/usr/bin/env bash
# Sets up what is missing, builds the game and its headless driver, and runs
# every test, built with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")"
bash scripts/einrichten.sh
export SDL_AUDIODRIVER="${SDL_AUDIODRIVER:-dummy}"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)"
cmake -S . -B build-pruef -DCMAKE_BUILD_TYPE=Debug -DQUORVANT_SANITIZE=ON -DQUORVANT_BENCH=OFF >/dev/null
cmake --build build-pruef -j"$(nproc)"
export ASAN_OPTIONS=detect_leaks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
ctest --test-dir build-pruef --output-on-failure -j"$(nproc)"

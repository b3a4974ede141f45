#!/usr/bin/env bash
# Sets up what is missing, builds the game and its headless driver, and runs
# every test, built with AddressSanitizer and UndefinedBehaviorSanitizer;
# then a minute of fuzzing the saved-game loader (build-fuzz, clang).
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

# The fuzzer feeds the loader damaged saved games for a minute, starting
# from games the driver plays; any crash or sanitizer report fails.
command -v ccache >/dev/null && FUZZ_CACHE=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache) || FUZZ_CACHE=()
CC=clang-14 CXX=clang++-14 cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORVANT_FUZZ=ON \
  -DQUORVANT_TESTS=OFF -DQUORVANT_BENCH=OFF -DQUORVANT_SDL=OFF "${FUZZ_CACHE[@]}" >/dev/null
cmake --build build-fuzz -j"$(nproc)"
rm -rf build-fuzz/lauf && mkdir -p build-fuzz/lauf build-fuzz/funde
ASAN_OPTIONS=detect_leaks=1 build-fuzz/quorvant_fuzz_spielstand -max_total_time=60 -timeout=30 -close_fd_mask=2 \
  -artifact_prefix=build-fuzz/funde/ build-fuzz/lauf build-fuzz/fuzz-korpus

#!/usr/bin/env bash
# Sets up what is missing, builds, and starts Quorvant.
set -euo pipefail
cd "$(dirname "$0")"
bash scripts/einrichten.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORVANT_TESTS=OFF >/dev/null
cmake --build build -j"$(nproc)" --target quorvant
exec ./build/quorvant "$@"

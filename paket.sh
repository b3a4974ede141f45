#!/usr/bin/env bash
# Sets up what is missing, builds the game and makes the Debian package
# build/quorvant_<version>_amd64.deb.
set -euo pipefail
cd "$(dirname "$0")"
bash scripts/einrichten.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target quorvant quorvant_handbuch
cmake --build build --target package
ls -1 build/quorvant_*_amd64.deb

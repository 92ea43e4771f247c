#!/usr/bin/env bash
# Builds everything and runs every test through CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
build=${BRIMO_BUILD_DIR:-build}
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" -j"$(nproc)"
cd "$build"
ctest --output-on-failure -j"$(nproc)" "$@"

#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test through CTest; then the unit tests
# once more under AddressSanitizer and UndefinedBehaviorSanitizer (skip with QUILLET_SKIP_SANITIZERS=1).
set -euo pipefail
cd "$(dirname "$0")"
./scripts/install-deps.sh
jobs=$(nproc)

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DQUILLET_WERROR=ON
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs" --timeout 300

if [[ "${QUILLET_SKIP_SANITIZERS:-0}" != 1 ]]; then
  # The sanitizer build reuses the sample content generated above; line tables are all its reports need.
  cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 -DQUILLET_WERROR=ON -DQUILLET_SANITIZE=ON \
    -DQUILLET_BENCH=OFF -DQUILLET_GENERATE_CONTENT=OFF
  cmake --build build-asan -j "$jobs" --target unit-tests
  QUILLET_CONTENT_DIR="$PWD/build/content" ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --test-dir build-asan --output-on-failure -j "$jobs" -L unit -LE qml --timeout 600
fi

#!/usr/bin/env bash
# Installs what is missing, builds everything once with AddressSanitizer and UndefinedBehaviorSanitizer into
# build-check/ and runs every test there through CTest. QUILLET_SKIP_SANITIZERS=1 builds and tests the plain
# Release build in build/ instead (the one run.sh starts), which is quicker to iterate on.
set -euo pipefail
cd "$(dirname "$0")"
./scripts/install-deps.sh
jobs=$(nproc)
# A compiler cache, where a developer has one, makes repeated runs cheap; a fresh machine builds without.
launcher=()
if command -v ccache > /dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi

if [[ "${QUILLET_SKIP_SANITIZERS:-0}" == 1 ]]; then
  dir=build
  cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQUILLET_WERROR=ON "${launcher[@]}"
else
  # One optimised, instrumented build serves every test: line tables are all the reports need.
  dir=build-check
  cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" -DQUILLET_WERROR=ON \
    -DQUILLET_SANITIZE=ON "${launcher[@]}"
  export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
fi
cmake --build "$dir" -j "$jobs"
ctest --test-dir "$dir" --output-on-failure -j "$jobs" --timeout 600

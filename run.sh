#!/usr/bin/env bash
# Installs what is missing, builds Quillet (Release) into build/ and starts it on its embedded sample content.
set -euo pipefail
cd "$(dirname "$0")"
./scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DQUILLET_WERROR=ON
cmake --build build --target quillet quillet-content-server content-pack
exec ./build/bin/quillet "$@"

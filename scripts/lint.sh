#!/usr/bin/env bash
# Checks the sources against the repository's clang-format and clang-tidy settings.
#   scripts/lint.sh            format check of every C++ file, then clang-tidy on the given files (or none)
#   scripts/lint.sh --tidy-all clang-tidy on every source file too (slow: minutes)
# clang-tidy reads build/compile_commands.json; build once first.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t sources < <(git ls-files 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h')
clang-format --dry-run --Werror "${sources[@]}"
echo "clang-format: ${#sources[@]} files clean"

tidy=()
if [[ "${1:-}" == "--tidy-all" ]]; then
  mapfile -t tidy < <(printf '%s\n' "${sources[@]}" | grep '\.cpp$')
else
  tidy=("$@")
fi
if ((${#tidy[@]})); then
  clang-tidy -p build --quiet "${tidy[@]}"
  echo "clang-tidy: ${#tidy[@]} files clean"
fi

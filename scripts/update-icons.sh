#!/usr/bin/env bash
# Refreshes the application's icons from the Tabler icon set on npm (MIT), at the pinned version.
#   scripts/update-icons.sh            fetch again every icon under src/platform/icons/
#   scripts/update-icons.sh NAME ...   also add these icons (Tabler's outline names, e.g. "letter-case")
# The icons are kept in the repository, so a build needs neither npm nor a network; the table that
# names them is src/platform/assettable.cpp.
set -euo pipefail
cd "$(dirname "$0")/.."

VERSION=3.51.0
dest=src/platform/icons
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mapfile -t names < <(find "$dest" -name '*.svg' -printf '%f\n' | sed 's/\.svg$//')
names+=("$@")
(cd "$work" && npm pack --silent "@tabler/icons@$VERSION" >/dev/null && tar xzf "tabler-icons-$VERSION.tgz")
for name in "${names[@]}"; do
  cp "$work/package/icons/outline/$name.svg" "$dest/$name.svg"
done
cp "$work/package/LICENSE" "$dest/LICENSE"
echo "${#names[@]} icons from @tabler/icons $VERSION"

#!/usr/bin/env bash
# Installs what is missing, builds, makes the sample library, and opens FILE or the sample's main
# assembly. Without a display it shows in the terminal what it can, and writes a picture of the window.
set -euo pipefail
cd "$(dirname "$0")"

./setup.sh
build=build/release
cmake --preset release
cmake --build --preset release --target docbench docmodel docmodel_tool docbench-samples
bin=$build/bin
out=out
mkdir -p "$out"

assembly=$("$bin/docbench-samples" "$out/sample-library" | tail -n 1)
file=${1:-$assembly}

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$bin/docbench" "$file"
fi

export QT_QPA_PLATFORM=offscreen
echo
echo "No display. The reference tree of $file:"
echo
"$bin/docbench" tree "$file"

# Made anew, not copied: a copied document still points at the references of the one it was copied from.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
copy=$("$bin/docbench-samples" "$scratch/gearbox" | tail -n 1)
part=$(find "$scratch" -name '*screw*.tfmprt' | sort | head -n 1)
echo
echo "In a scratch library, $(basename "$part") is renamed and every document that holds it rewritten:"
echo
"$bin/docbench" rename --yes --in "$scratch" --root "$copy" "$part" "renamed fastener"
echo
"$bin/docbench" tree "$copy"

echo
"$bin/docbench" --screenshot "$out/docbench.png" "$file"
echo "A picture of the window: $(pwd)/$out/docbench.png"

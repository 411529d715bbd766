#!/usr/bin/env bash
# Sets up, builds, and runs the gallery headless: one PNG per window type and the whole
# gallery into the folder given (default: gallery-shots), and the README's picture.
set -euo pipefail
cd "$(dirname "$0")/.."

out=${1:-gallery-shots}
bash scripts/setup.sh
cmake -S . -B build >/dev/null
cmake --build build -j"$(nproc)"
DISPLAY= ./build/moxie-gallery --screenshot "$out"
cp "$out/gallery.png" docs/gallery.png
echo "gallery: pictures in $out/, README picture in docs/gallery.png"

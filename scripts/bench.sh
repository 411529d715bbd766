#!/usr/bin/env bash
# Builds (optimised) and runs every benchmark; prints Google Benchmark's tables and, last,
# MoxieLook's times over TaharezLook's for every measure both skins have.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DMOXIE_BUILD_GALLERY=OFF \
    -DMOXIE_BUILD_TESTS=OFF -DMOXIE_BUILD_BENCH=ON >/dev/null
cmake --build build-bench -j"$(nproc)" --target moxie_bench
(cd build-bench/bench && ./moxie_bench --benchmark_min_time="${MOXIE_BENCH_MIN_TIME:-0.2}" "$@")

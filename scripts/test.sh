#!/usr/bin/env bash
# Builds and runs every test: once with GCC and warnings as errors, once with clang under
# AddressSanitizer and UBSan. Benchmarks are built, not run.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
jobs=$(nproc)

echo "== build (gcc, -Werror)"
cmake -S . -B build -DMOXIE_WERROR=ON >/dev/null
cmake --build build -j"$jobs"
(cd build && ctest --output-on-failure -j"$jobs")

echo "== build (clang, AddressSanitizer + UBSan)"
cmake -S . -B build-sanitize -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug -DMOXIE_SANITIZE=ON \
    -DMOXIE_WERROR=ON -DMOXIE_BUILD_BENCH=OFF >/dev/null
cmake --build build-sanitize -j"$jobs"
(cd build-sanitize && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --output-on-failure -j"$jobs")

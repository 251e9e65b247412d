#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a while.
#   scripts/fuzz.sh [seconds per target, default 600]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-600}"
bash scripts/setup.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQC_FUZZ=ON >/dev/null
cmake --build build-fuzz
mkdir -p build-fuzz/corpus-calc
cp tests/fuzz/seeds/calc/* build-fuzz/corpus-calc/ 2>/dev/null || true
ASAN_OPTIONS=detect_leaks=1 ./build-fuzz/tests/fuzz/fuzz_calc -max_total_time="$seconds" \
  -max_len=300 -print_final_stats=1 build-fuzz/corpus-calc

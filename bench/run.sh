#!/usr/bin/env bash
# Builds and runs all benchmarks. Each prints ratios against something measured in the same run; the exit
# code is 1 when one of them passed its limit.
set -uo pipefail
cd "$(dirname "$0")/.."

./setup.sh tests || exit
cmake --preset release && cmake --build --preset release --target benchmarks || exit
export QT_QPA_PLATFORM=offscreen
bin=build/release/bin
sample=$("$bin/docbench-samples" out/sample-library | tail -n 1)

result=0
for benchmark in readrows save loadtree preview whereused rename copy propertysearch webtransfer "startup $sample"; do
    echo "== $benchmark"
    # shellcheck disable=SC2086
    "$bin"/bench-$benchmark 2>/dev/null || result=1
done
exit $result

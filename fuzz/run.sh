#!/bin/sh
# Runs each fuzz target for SECONDS (60 if not given). What it finds lies in build/fuzz/findings; new
# inputs that reach new code in build/fuzz/corpus. Ends with 0 if nothing was found.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
cmake --preset fuzz > /dev/null
ninja -C build/fuzz fuzz_read fuzz_save
mkdir -p build/fuzz/findings
for target in fuzz_read fuzz_save; do
    mkdir -p "build/fuzz/corpus/$target"
    "build/fuzz/bin/$target" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=1024 \
        -max_len=65536 -dict=fuzz/zip.dict -artifact_prefix=build/fuzz/findings/ \
        -print_final_stats=1 "build/fuzz/corpus/$target" fuzz/corpus
done

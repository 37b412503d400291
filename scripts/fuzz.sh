#!/usr/bin/env bash
# Builds the decoder fuzz targets with clang in build-fuzz/ and runs each
# for SECONDS (default 60), one after the other, seeded with the recorded
# messages of tests/data/autorefractor. New inputs the fuzzer keeps go to
# build-fuzz/corpus/<target>/, crashes to build-fuzz/findings/<target>/;
# neither belongs in the repository. Exits non-zero when a target fails.
#
#   scripts/fuzz.sh [SECONDS] [TARGET...]
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds="${1:-60}"
shift || true

cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ \
    -DVISTREL_BUILD_APP=OFF -DVISTREL_BUILD_BENCH=OFF -DVISTREL_BUILD_FUZZ=ON >/dev/null

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(fuzz_decoder_retinomax fuzz_decoder_topcon fuzz_decoder_burton_velo fuzz_decoder_shin_nippon
        fuzz_decoder_humphrey fuzz_decoder_suresight fuzz_decoder_marco_nidek fuzz_decoder_canon
        fuzz_readings_file)
fi
cmake --build build-fuzz --parallel 2 --target "${targets[@]}"

status=0
for target in "${targets[@]}"; do
    corpus="build-fuzz/corpus/$target"
    findings="build-fuzz/findings/$target"
    mkdir -p "$corpus" "$findings"
    echo "== $target: $seconds s"
    if ! "build-fuzz/tests/fuzz/$target" -max_total_time="$seconds" -print_final_stats=1 \
        -artifact_prefix="$findings/" "$corpus" "build-fuzz/tests/fuzz/seeds/$target" \
        2> "build-fuzz/findings/$target.log"; then
        status=1
        echo "   FAILED: see build-fuzz/findings/$target.log"
    fi
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec|new_units_added|peak_rss_mb)' \
        "build-fuzz/findings/$target.log" | sed 's/^/   /' || true
done
exit $status

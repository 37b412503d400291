#!/usr/bin/env bash
# Builds the fuzz targets with clang in build-fuzz/ and runs each for
# SECONDS (default 60), one after the other: all of them when no TARGET is
# named. Seeds come from tests/fuzz/seeds/<target>/ and, for the decoders
# and the readings file, from the recorded messages and script cases the
# build copies to build-fuzz/tests/fuzz/seeds/<target>/. New inputs the
# fuzzer keeps go to build-fuzz/corpus/<target>/ (so runs add up), crashes
# to build-fuzz/findings/<target>/, the fuzzer's log to
# build-fuzz/findings/<target>.log; none of them belongs in the repository.
# Exits non-zero when a target fails.
#
#   scripts/fuzz.sh [SECONDS] [TARGET...]
#
# A short pass for CI: scripts/fuzz.sh 15. A finding of a target that
# starts a station is best replayed on new stations:
#   VISTREL_FUZZ_FRESH=1 build-fuzz/tests/fuzz/<target> <finding>
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds="${1:-60}"
shift || true

all=(fuzz_decoder_retinomax fuzz_decoder_topcon fuzz_decoder_burton_velo fuzz_decoder_shin_nippon
    fuzz_decoder_humphrey fuzz_decoder_suresight fuzz_decoder_marco_nidek fuzz_decoder_canon
    fuzz_readings_file fuzz_options_file fuzz_inventory_file fuzz_journal fuzz_script_parser)
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=("${all[@]}")
fi

cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ \
    -DVISTREL_BUILD_APP=OFF -DVISTREL_BUILD_BENCH=OFF -DVISTREL_BUILD_FUZZ=ON >/dev/null
cmake --build build-fuzz --parallel 2 --target "${targets[@]}"

status=0
for target in "${targets[@]}"; do
    corpus="build-fuzz/corpus/$target"
    findings="build-fuzz/findings/$target"
    log="build-fuzz/findings/$target.log"
    mkdir -p "$corpus" "$findings"
    # The corpus first: the fuzzer writes only to the first folder.
    inputs=("$corpus")
    for seeds in "tests/fuzz/seeds/$target" "build-fuzz/tests/fuzz/seeds/$target"; do
        if [ -d "$seeds" ]; then
            inputs+=("$seeds")
        fi
    done
    options=(-max_total_time="$seconds" -print_final_stats=1 -timeout=30 -artifact_prefix="$findings/")
    # A station keeps what it read for the next input, so the memory in use
    # after an input says nothing about leaks; the sanitizer suite checks them.
    case "$target" in fuzz_decoder_*) ;; *) options+=(-detect_leaks=0) ;; esac
    if [ -f "tests/fuzz/dict/$target.dict" ]; then
        options+=(-dict="tests/fuzz/dict/$target.dict")
    fi
    echo "== $target: $seconds s"
    if ! "build-fuzz/tests/fuzz/$target" "${options[@]}" "${inputs[@]}" 2> "$log"; then
        status=1
        echo "   FAILED: see $log"
        grep -E '^(==[0-9]+==ERROR|SUMMARY|artifact_prefix|Test unit written)' "$log" | sed 's/^/   /' || true
    fi
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec|new_units_added|peak_rss_mb)' "$log" \
        | sed 's/^/   /' || true
done
exit $status

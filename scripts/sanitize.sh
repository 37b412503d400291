#!/usr/bin/env bash
# Builds the whole test suite with AddressSanitizer and
# UndefinedBehaviorSanitizer in build-asan/ and runs it; any finding fails
# the test it happens in, and so this script.
#
#   scripts/sanitize.sh [CTEST ARGUMENTS...]
set -euo pipefail

# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$VISTREL_ROOT"

vistrel_install_deps

flags="-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVISTREL_BUILD_TESTS=ON -DVISTREL_BUILD_BENCH=OFF \
    -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" >/dev/null
cmake --build build-asan --parallel 2

# Leaks inside the desktop libraries (fonts, the window system) are theirs.
suppressions="$VISTREL_ROOT/tests/sanitizers/leaks.supp"
export ASAN_OPTIONS="abort_on_error=1:detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$suppressions:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

if vistrel_no_display && command -v xvfb-run >/dev/null 2>&1; then
    exec xvfb-run -a ctest --test-dir build-asan --output-on-failure -j2 "$@"
fi
exec ctest --test-dir build-asan --output-on-failure -j2 "$@"

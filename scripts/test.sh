#!/usr/bin/env bash
# Installs what is needed, builds everything with the tests in build-tests/
# and runs all tests; exits with ctest's status.
set -euo pipefail

# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$VISTREL_ROOT"

vistrel_install_deps

cmake -S . -B build-tests -DCMAKE_BUILD_TYPE="${VISTREL_TEST_BUILD_TYPE:-RelWithDebInfo}" \
    -DVISTREL_BUILD_TESTS=ON -DVISTREL_BUILD_BENCH=ON
cmake --build build-tests --parallel 2

# Tests that open windows get a virtual display when there is no real one.
if vistrel_no_display && command -v xvfb-run >/dev/null 2>&1; then
    exec xvfb-run -a ctest --test-dir build-tests --output-on-failure -j2
fi
exec ctest --test-dir build-tests --output-on-failure -j2

#!/usr/bin/env bash
# Installs what is needed, builds the station and starts it on the bundled
# demo data. Without a display it runs demo/headless-demo.vs instead.
set -euo pipefail

# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$VISTREL_ROOT"

vistrel_install_deps

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release \
    -DVISTREL_BUILD_TESTS=OFF -DVISTREL_BUILD_BENCH=OFF
cmake --build build --parallel 2

DOCUMENTS=${VISTREL_DOCUMENTS:-$HOME/Documents}
SHARED=${VISTREL_SHARED:-${XDG_DATA_HOME:-$HOME/.local/share}/vistrel}
export VISTREL_DOCUMENTS="$DOCUMENTS" VISTREL_SHARED="$SHARED"

# Places one demo file unless the user already has one there.
place() {
    local from=$1 to=$2
    if [ -e "$to" ] || [ -L "$to" ]; then
        echo "Keeping $to"
    else
        mkdir -p "$(dirname "$to")"
        cp "$from" "$to"
        echo "Placed demo data in $to"
    fi
}
place "demo/Vistrel/Total_Inventory.txt" "$DOCUMENTS/Vistrel/Total_Inventory.txt"
place "demo/Application Data/Vistrel/Vistrel-Options.txt" \
    "$SHARED/Application Data/Vistrel/Vistrel-Options.txt"

if vistrel_no_display; then
    echo "No display (DISPLAY and WAYLAND_DISPLAY are empty): running the headless demo."
    exec build/tools/vistrel-script/vistrel-script \
        --documents "$DOCUMENTS" --shared "$SHARED" demo/headless-demo.vs
fi
exec build/app/vistrel "$@"

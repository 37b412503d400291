#!/bin/sh
# Starts the station on the demo stock shipped with the package, in a
# folder of its own (~/Vistrel-Demo, or VISTREL_DEMO_HOME), so that the
# user's own documents are never touched. Without a display it runs the
# headless demo through the driver instead.
set -eu

here=$(dirname "$(readlink -f "$0")")
demo="$here/../../share/vistrel/demo"
home=${VISTREL_DEMO_HOME:-$HOME/Vistrel-Demo}

VISTREL_DOCUMENTS="$home/Documents"
VISTREL_SHARED="$home/Shared"
export VISTREL_DOCUMENTS VISTREL_SHARED

# Places one demo file unless the demo folder already has one.
place() {
    if [ ! -e "$2" ]; then
        mkdir -p "$(dirname "$2")"
        cp "$1" "$2"
        chmod u+w "$2"
    fi
}
place "$demo/Vistrel/Total_Inventory.txt" "$VISTREL_DOCUMENTS/Vistrel/Total_Inventory.txt"
place "$demo/Application Data/Vistrel/Vistrel-Options.txt" \
    "$VISTREL_SHARED/Application Data/Vistrel/Vistrel-Options.txt"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display: running the headless demo in $home."
    exec "$here/vistrel-script" --documents "$VISTREL_DOCUMENTS" --shared "$VISTREL_SHARED" \
        "$demo/headless-demo.vs"
fi
exec "$here/vistrel" "$@"

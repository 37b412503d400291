#!/usr/bin/env bash
# Builds the station's Debian package with CPack. With --test it then
# installs the package on this machine (root or sudo), runs the installed
# programs on the demo data it brings, and removes it again (--keep leaves
# it installed).
#
#   scripts/package.sh [--test [--keep]]
#
# The build folder is build-package/ (Release), or the one named by
# VISTREL_PACKAGE_BUILD (e.g. build-tests, already configured and built).
set -euo pipefail

# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$VISTREL_ROOT"

test_it=false
keep=false
for arg in "$@"; do
    case "$arg" in
        --test) test_it=true ;;
        --keep) keep=true ;;
        *) echo "usage: scripts/package.sh [--test [--keep]]" >&2; exit 2 ;;
    esac
done

vistrel_install_deps

build=${VISTREL_PACKAGE_BUILD:-build-package}
if [ "$build" = build-package ]; then
    cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release \
        -DVISTREL_BUILD_TESTS=OFF -DVISTREL_BUILD_BENCH=OFF >/dev/null
fi
cmake --build "$build" --parallel 2
rm -f "$build"/vistrel_*.deb
(cd "$build" && cpack -G DEB >/dev/null)
package=$(ls "$build"/vistrel_*.deb)
echo "Package: $package"
dpkg-deb --info "$package" | sed -n 's/^ \(Depends\|Recommends\|Installed-Size\):/  \1:/p'

if ! $test_it; then
    exit 0
fi

# ---- the installed package, tried as a mission would use it ----
failures=0
fail() {
    echo "FAILED: $*" >&2
    failures=$((failures + 1))
}

vistrel_as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    "$(readlink -f "$package")" >/dev/null
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for program in vistrel vistrel-script vistrel-check vistrel-devsim vistrel-demo; do
    [ -x "/usr/bin/$program" ] || fail "/usr/bin/$program is missing"
done
for source in docs/help/*.md; do
    name=$(basename "$source" .md)
    [ -s "/usr/lib/vistrel/$name.pdf" ] || fail "help document $name.pdf is not beside the program"
done
[ -s /usr/share/applications/vistrel.desktop ] || fail "no desktop entry"
[ -s /usr/share/icons/hicolor/scalable/apps/vistrel.svg ] || fail "no icon"
if command -v desktop-file-validate >/dev/null 2>&1; then
    desktop-file-validate /usr/share/applications/vistrel.desktop || fail "the desktop entry is not valid"
fi

# The installed driver on the installed demo data answers as the build does.
demo=/usr/share/vistrel/demo
expected="$work/expected.txt"
mkdir -p "$work/built/docs/Vistrel" "$work/built/shared/Application Data/Vistrel"
cp demo/Vistrel/Total_Inventory.txt "$work/built/docs/Vistrel/"
cp "demo/Application Data/Vistrel/Vistrel-Options.txt" "$work/built/shared/Application Data/Vistrel/"
"$build/tools/vistrel-script/vistrel-script" --documents "$work/built/docs" --shared "$work/built/shared" \
    demo/headless-demo.vs >"$expected"
VISTREL_DEMO_HOME="$work/home" DISPLAY='' WAYLAND_DISPLAY='' vistrel-demo >"$work/installed.txt" \
    || fail "vistrel-demo ended with $?"
grep -v '^No display' "$work/installed.txt" >"$work/installed-output.txt" || true
diff -u "$expected" "$work/installed-output.txt" || fail "the installed demo printed otherwise than the build"
[ -s "$work/home/Documents/Vistrel/Total_Inventory.txt" ] || fail "vistrel-demo placed no demo stock"

vistrel-check "$demo/Vistrel/Total_Inventory.txt" >/dev/null || fail "vistrel-check finds the demo stock unclean"
vistrel-devsim --list-models >/dev/null || fail "vistrel-devsim does not start"
[ -d /usr/share/vistrel/devices/canon-rk2 ] && vistrel-devsim --model canon-rk2 --list-cases 2>/dev/null | grep -q . \
    || fail "vistrel-devsim finds no installed device examples"
vistrel --list-ports >/dev/null || fail "vistrel does not start"
QT_QPA_PLATFORM=offscreen VISTREL_DOCUMENTS="$work/home/Documents" VISTREL_SHARED="$work/home/Shared" \
    timeout 60 vistrel --screenshot "$work/window.png" >/dev/null 2>&1 || fail "the window program does not come up"
[ -s "$work/window.png" ] || fail "the window program drew no window"

if ! $keep; then
    vistrel_as_root env DEBIAN_FRONTEND=noninteractive apt-get remove -y vistrel >/dev/null
fi
if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) of the installed package failed" >&2
    exit 1
fi
echo "The installed package works: programs, help, desktop entry, demo, checker, simulator, window."

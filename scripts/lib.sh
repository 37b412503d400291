# shellcheck shell=bash
# Shared helpers for the scripts in this folder; source it, don't run it.

# Debian/Ubuntu packages the build, the tests and the demo need.
VISTREL_APT_PACKAGES=(
    build-essential
    cmake
    libgtest-dev
    libgmock-dev
    googletest
    libbenchmark-dev
    qt6-base-dev
    qt6-serialport-dev
    libgl-dev
    xvfb
    xauth
)

# What the release checks need beyond that: dpkg-dev and desktop-file-utils
# for the package (scripts/package.sh), clang and its fuzzer runtime for the
# fuzz targets (scripts/fuzz.sh).
# shellcheck disable=SC2034  # used by .ci/run
VISTREL_RELEASE_PACKAGES=(
    dpkg-dev
    desktop-file-utils
    clang
    libfuzzer-14-dev
    libclang-rt-14-dev
)

# The repository root: the parent of this file's folder, fixed when sourced.
# shellcheck disable=SC2034  # used by the scripts that source this file
VISTREL_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Runs a command as root: directly when we are root, through sudo otherwise.
vistrel_as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Prints the packages of VISTREL_APT_PACKAGES that are not installed.
vistrel_missing_packages() {
    local pkg
    for pkg in "${VISTREL_APT_PACKAGES[@]}"; do
        if ! dpkg -s "$pkg" >/dev/null 2>&1; then
            echo "$pkg"
        fi
    done
}

# Installs whatever of VISTREL_APT_PACKAGES is missing; does nothing when
# all are there.
vistrel_install_deps() {
    local missing=()
    mapfile -t missing < <(vistrel_missing_packages)
    if [ "${#missing[@]}" -eq 0 ]; then
        return 0
    fi
    echo "Installing: ${missing[*]}"
    vistrel_as_root env DEBIAN_FRONTEND=noninteractive apt-get update
    vistrel_as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

# True when no X11 or Wayland display is available.
vistrel_no_display() {
    [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]
}

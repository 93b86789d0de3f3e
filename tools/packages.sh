# shellcheck shell=bash
# Which of Debian's packages this project needs, and how to get those that are missing.
# To be sourced. Debian 12's names; elsewhere nothing is installed and the user is told.

# To build the program and to start it. fonts-dejavu-core alone holds every symbol that the windows show
# (U+270E, U+2325, U+21E7, U+261E); xdotool is what looks whether the window came up; lrelease of qt6-l10n-tools
# compiles our translations, and qt6-translations-l10n has Qt's own.
# shellcheck disable=SC2034
packagesToRun=(g++ cmake ninja-build qt6-base-dev qt6-qpa-plugins qt6-l10n-tools qt6-translations-l10n
    fonts-dejavu-core xdotool)

# Where there is no display: a virtual one, a window manager on it, and what takes its picture.
# shellcheck disable=SC2034
packagesForVirtualDisplay=(xvfb openbox imagemagick)

# What packs the program for Debian: see also debian/control.
# shellcheck disable=SC2034
packagesToPackage=(build-essential debhelper xz-utils)

# A desktop with Wayland.
# shellcheck disable=SC2034
packagesForWayland=(qt6-wayland)

# What ./test needs beside those above.
# shellcheck disable=SC2034
packagesToTest=(
    doctest-dev clang-format
    desktop-file-utils appstream
    python3 python3-gi gir1.2-atspi-2.0 at-spi2-core dbus-daemon x11-utils xclip weston "${packagesForWayland[@]}"
)

# What only ./test --long needs.
# shellcheck disable=SC2034
packagesForLongTests=(clang clang-tidy libclang-rt-14-dev shellcheck
    clang-16 libc++-16-dev libc++abi-16-dev
    g++-aarch64-linux-gnu g++-s390x-linux-gnu g++-i686-linux-gnu qemu-user-static)

# What only the test of the package needs.
# shellcheck disable=SC2034
packagesToTestThePackage=(lintian debootstrap)

# The programs and libraries that bench/ measures ours beside.
# shellcheck disable=SC2034
packagesForBenchmarks=(libx11-dev speedcrunch kcalc galculator pkg-config libicu-dev libnumbertext-dev
    libnumbertext-data libprimesieve-dev primesieve-bin curl)

# Prints those of the named packages that are not installed, one a line.
MissingPackages() {
    local -A installed=()
    local name state
    while read -r name state; do
        [[ $state == installed ]] && installed[$name]=1
    done < <(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for name in "$@"; do
        [[ -n ${installed[$name]:-} ]] || printf '%s\n' "$name"
    done
}

# Runs a command as root: as it is, or through sudo.
AsRoot() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Not root, and there is no sudo. Run this as root, then start again:" >&2
        echo "    $*" >&2
        return 1
    fi
}

# Installs those of the named packages that are missing. When none is, it needs neither network nor root.
EnsurePackages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian system: nothing is installed here. What is needed stands in README.md."
        return 0
    fi
    local -a missing
    mapfile -t missing < <(MissingPackages "$@")
    ((${#missing[@]})) || return 0
    echo "Installing from Debian's packages: ${missing[*]}"
    # Another apt may be at work, as on a machine that has just started: wait for it.
    AsRoot apt-get -q -o DPkg::Lock::Timeout=300 update </dev/null
    AsRoot env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}" </dev/null
}

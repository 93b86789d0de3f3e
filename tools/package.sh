#!/usr/bin/env bash
# Builds the package for Debian and prints its path: build/deb/tessarolyne_VERSION_ARCHITECTURE.deb. Installs what is
# missing for that. The same sources, on the same Debian, give the same package to the byte. Options that begin with
# -D go to CMake: tools/package.sh -DTESSAROLYNE_SITE=http://www.tessarolyne.example
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh

for argument; do
    if [[ $argument != -D?* ]]; then
        echo "usage: tools/package.sh [-DSETTING=VALUE...]    (builds the .deb)" >&2
        [[ $argument == -h || $argument == --help ]] && exit 0
        exit 2
    fi
done

# The day of the last commit, where there is one, is that of the package.
if [[ -z ${SOURCE_DATE_EPOCH:-} ]] && SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null); then
    export SOURCE_DATE_EPOCH
fi

Flags() {
    DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"
}

Build() {
    # Debian's own flags come first: the preset's optimisation counts. Nothing is left of an earlier run's settings.
    cmake --fresh --preset deb "-DCMAKE_CXX_FLAGS=$(Flags CPPFLAGS) $(Flags CXXFLAGS)" \
        "-DCMAKE_EXE_LINKER_FLAGS=$(Flags LDFLAGS)" "$@" &&
        cmake --build --preset deb &&
        rm -f build/deb/*.deb &&
        cpack --preset deb -B "$PWD/build/deb"
}

umask 022 # the files get the permissions that Debian wants
mkdir -p build
EnsurePackages "${packagesToRun[@]}" "${packagesToPackage[@]}"
Build "$@" >build/package.log 2>&1 || {
    cat build/package.log >&2
    exit 1
}
echo build/deb/*.deb

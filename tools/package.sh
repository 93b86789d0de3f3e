#!/usr/bin/env bash
# Builds the packages for Debian, source and binary, into build/deb, and prints the path of the one to install:
# build/deb/tessarolyne_VERSION_ARCHITECTURE.deb. Installs what is missing for that. The same sources, on the same
# Debian, give the same packages to the byte. Options that begin with -D go to CMake, by debian/settings.cmake:
#     tools/package.sh -DTESSAROLYNE_SITE=http://www.tessarolyne.example
# DEBFULLNAME and DEBEMAIL name the maintainer, as for Debian's own tools.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh

for argument; do
    if [[ $argument != -D?*=* ]]; then
        echo "usage: tools/package.sh [-DSETTING=VALUE...]    (builds the .deb)" >&2
        [[ $argument == -h || $argument == --help ]] && exit 0
        exit 2
    fi
done

IsCheckout() {
    [[ $(git rev-parse --show-toplevel 2>/dev/null) == "$PWD" ]]
}

# Prints the commit that the sources are, its time, and a mark if they were changed since. A tarball of git's knows
# the first two, and the source package that is made here all three, from tools/commit.
Commit() {
    if IsCheckout; then
        git log -1 --format='%H %ct' | tr -d '\n'
        [[ -z $(git status --porcelain) ]] || printf ' changed'
    elif grep -q '^[0-9a-f]' tools/commit; then
        cat tools/commit
    else
        printf 'unknown %s' "$(date -r CHANGELOG.md +%s)"
    fi
}

# Prints the files of the sources, each with a zero byte behind it.
Files() {
    if IsCheckout; then
        git ls-files -z --cached --others --exclude-standard
    else
        find . \( -path ./build -o -path ./.pc \) -prune -o -type f -printf '%P\0'
    fi | while IFS= read -r -d '' file; do
        if [[ -e $file ]]; then printf '%s\0' "$file"; fi
    done
}

# Packs what the other arguments say as if all had been made at the time of the commit, by nobody, with Debian's modes.
Pack() {
    tar --create --sort=name --mtime="@$epoch" --owner=0 --group=0 --numeric-owner --mode=u+rw,go+rX,go-w "$@"
}

# Prints the version: that of the newest heading of the changelog, and what sorts before it, and in the order of the
# commits, while there is no day behind it.
Version() {
    local version day
    read -r _ version day < <(grep -m 1 '^## ' CHANGELOG.md)
    if [[ $day == \([0-9]* ]]; then
        echo "$version"
    else
        echo "$version~git$(date -u -d "@$epoch" +%Y%m%d%H%M%S).${commit:0:7}${mark:++$mark}"
    fi
}

# Writes the values of the options into the sources $1, and the addresses where Debian's files name them too.
ApplySettings() {
    local tree=$1 argument name value
    shift
    for argument; do
        name=${argument#-D}
        name=${name%%=*}
        value=${argument#*=}
        printf 'set(%s [==[%s]==] CACHE STRING "")\n' "${name%%:*}" "$value" >>"$tree/debian/settings.cmake"
        case ${name%%:*} in
        TESSAROLYNE_SITE) name='https\?://www.tessarolyne.example' ;;
        TESSAROLYNE_EMAIL) name=author@tessarolyne.example ;;
        *) continue ;;
        esac
        value=${value//[&\\#]/\\&}
        sed -i "s#$name#${value%/}#" "$tree"/debian/{control,copyright,watch,upstream/metadata}
    done
    if [[ -n ${DEBFULLNAME:-} && -n ${DEBEMAIL:-} ]]; then
        sed -i "s#^Maintainer: .*#Maintainer: ${DEBFULLNAME//[&\\#]/\\&} <$DEBEMAIL>#" "$tree/debian/control"
    fi
}

# A package of Debian's own has -1, and so counts as newer.
WriteChangelog() {
    cat <<END
tessarolyne ($version-0upstream1) unstable; urgency=medium

  * The project's own package. What is new stands in changelog.gz.

 -- $(sed -n 's/^Maintainer: //p' "$1/debian/control")  $(LC_ALL=C date -u -R -d "@$epoch")
END
}

Build() {
    local tree=build/deb/tessarolyne-$version
    rm -rf build/deb
    mkdir -p "$tree"
    Files | Pack --no-recursion --null --files-from=- | tar --extract --directory="$tree"
    printf '%s %s %s\n' "$commit" "$epoch" "$mark" >"$tree/tools/commit"
    ApplySettings "$tree" "$@"
    WriteChangelog "$tree" >"$tree/debian/changelog"
    Pack --exclude=./debian --transform="s#^\.#tessarolyne-$version#" --directory="$tree" . |
        xz >"build/deb/tessarolyne_$version.orig.tar.xz"
    # The tests are run by ./test.
    (cd "$tree" && DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:-} nocheck" DEB_BUILD_PROFILES=nocheck \
        dpkg-buildpackage --no-sign)
}

umask 022 # the files get the permissions that Debian wants
mkdir -p build
EnsurePackages "${packagesToRun[@]}" "${packagesToPackage[@]}"
read -r commit epoch mark < <(Commit && echo)
version=$(Version)
Build "$@" >build/package.log 2>&1 || {
    cat build/package.log >&2
    exit 1
}
echo build/deb/tessarolyne_*.deb

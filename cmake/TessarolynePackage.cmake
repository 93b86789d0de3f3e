# The package for Debian: `cpack --preset deb`, or all at once by tools/package.sh.
set(CPACK_PACKAGE_NAME tessarolyne)
set(CPACK_PACKAGE_VENDOR "The Tessarolyne authors")
set(CPACK_PACKAGE_HOMEPAGE_URL "${TESSAROLYNE_SITE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "see a number in other bases, as primes and in words")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ
    OWNER_WRITE
    OWNER_EXECUTE
    GROUP_READ
    GROUP_EXECUTE
    WORLD_READ
    WORLD_EXECUTE)

set(CPACK_GENERATOR DEB)
# One of Debian's own has -1, and so counts as newer.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0upstream1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${TESSAROLYNE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Type a number of up to twelve digits, in decimal or in any base from 2 to 36.
At every keystroke it stands there in a second base too, as a product of
primes, and spelled out as an amount of money in French, in Swiss and Belgian
French, or in English.

A second window computes and lists primes, which a text file of your choice
can keep from run to run.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The font has all the symbols that the windows show.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
string(
    JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
    # the two sounds
    "pipewire-bin | pulseaudio-utils | alsa-utils"
    # desktops without X, Qt's own words in the user's language, links and files for other programs
    qt6-wayland qt6-translations-l10n xdg-utils)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# What Debian wants beside the files that every system gets.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_BINARY_DIR}/DebianDocumentation.cmake")
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" TESSAROLYNE_COPYRIGHT)
string(REGEX REPLACE "^[^\n]*\n\n[^\n]*\n\n" "" TESSAROLYNE_COPYRIGHT "${TESSAROLYNE_COPYRIGHT}")
string(REGEX REPLACE "\n([^\n])" "\n \\1" TESSAROLYNE_COPYRIGHT " ${TESSAROLYNE_COPYRIGHT}")
string(REPLACE "\n\n" "\n .\n" TESSAROLYNE_COPYRIGHT "${TESSAROLYNE_COPYRIGHT}")
configure_file("${PROJECT_SOURCE_DIR}/resources/debian/copyright.in" debian/copyright @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/cmake/DebianDocumentation.cmake.in" DebianDocumentation.cmake @ONLY)

include(CPack)

# What a builder may set. The deployment's settings stand on reserved example names until a packager gives
# the real ones.

option(TESSAROLYNE_BUILD_DESKTOP "Build the Qt windows and the program itself" ON)
find_package(doctest QUIET)
option(TESSAROLYNE_BUILD_TESTS "Build the tests" ${doctest_FOUND})
option(TESSAROLYNE_TESTS_ON_DEMAND "Without them, have targets for those of the windows all the same" OFF)
option(TESSAROLYNE_BUILD_BENCHMARKS "Build the side-by-side benchmarks" OFF)
option(TESSAROLYNE_BUILD_FUZZERS "Build the libFuzzer targets (clang only)" OFF)
option(TESSAROLYNE_PRECOMPILE "Precompile what most files include: a faster build from scratch" OFF)
option(TESSAROLYNE_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
set(TESSAROLYNE_SANITIZE "" CACHE STRING "Sanitizers, as in -fsanitize= (for instance address,undefined)")

# Distributions look for newer versions by themselves.
option(TESSAROLYNE_UPDATE_CHECK "Offer to look for a newer version" ON)
option(TESSAROLYNE_DONATIONS "Ask for donations" ON)

# A setting that is left empty has a default, which may follow from others and then changes with them.
macro(tessarolyne_setting name default help)
    set(TESSAROLYNE_${name} "" CACHE STRING "${help}")
    if(TESSAROLYNE_${name} STREQUAL "")
        set(TESSAROLYNE_${name} "${default}")
    endif()
    if(TESSAROLYNE_${name} MATCHES "\\.example")
        list(APPEND examples TESSAROLYNE_${name})
    endif()
endmacro()

# Web addresses, of the given schemes. C++ and XML take them as they are, but for the "&".
macro(tessarolyne_address name scheme default help)
    tessarolyne_setting(${name} "${default}" "${help}")
    if(NOT TESSAROLYNE_${name} MATCHES "^(${scheme}://[^/ \t\"\\<>][^ \t\"\\<>]*)?$")
        message(FATAL_ERROR "TESSAROLYNE_${name} is no address of ${scheme}: ${TESSAROLYNE_${name}}")
    endif()
endmacro()

tessarolyne_address(SITE "https?" "http://www.tessarolyne.example" "The author's site")
string(REGEX REPLACE "/$" "" TESSAROLYNE_SITE "${TESSAROLYNE_SITE}")
string(REGEX REPLACE "^https" "http" site "${TESSAROLYNE_SITE}")
tessarolyne_address(VERSION_FILE http "${site}/prg/Xojo/Tessarolyne_V.txt" "What the update check asks for, unencrypted")
tessarolyne_address(
    HISTORY_PAGE "https?" "" "The page of earlier versions; by default that beside the version file, with _AffV.html")
tessarolyne_address(
    QUESTIONS_PAGE "https?" "${TESSAROLYNE_SITE}/prg/Xojo/Tessarolyne_FAQ.html" "The page of questions and answers")
tessarolyne_address(
    DONATION_PAGE "https?" "${TESSAROLYNE_SITE}/site/PayPage.html?Tessarolyne" "The page for donations")
string(REGEX REPLACE "^http:" "https:" site "${TESSAROLYNE_SITE}")
tessarolyne_address(
    SITE_OF_PICTURES "https?" "${site}/pictures" "Where software centres, which want https, find docs/pictures")
tessarolyne_address(SITE_2 "https?" "http://www2.tessarolyne.example" "The second author's site")
tessarolyne_address(BUILD_TOOL_SITE "https?" "http://www.buildtool.example" "The build tool's site")
tessarolyne_setting(EMAIL "author@tessarolyne.example" "The author's e-mail address")
tessarolyne_setting(EMAIL_2 "author2@tessarolyne.example" "The second author's e-mail address")
if(examples AND TESSAROLYNE_BUILD_DESKTOP)
    list(JOIN examples ", " examples)
    message(WARNING "Give no such build on: these addresses are only examples, which answer nobody: ${examples}")
endif()

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# What a builder may set. The deployment's settings stand on reserved example names until a packager gives
# the real ones.

option(TESSAROLYNE_BUILD_DESKTOP "Build the Qt windows and the program itself" ON)
option(TESSAROLYNE_BUILD_TESTS "Build the tests" OFF)
option(TESSAROLYNE_BUILD_BENCHMARKS "Build the side-by-side benchmarks" OFF)
option(TESSAROLYNE_BUILD_FUZZERS "Build the libFuzzer targets (clang only)" OFF)
option(TESSAROLYNE_PRECOMPILE "Precompile what most files include: a faster build from scratch" OFF)
option(TESSAROLYNE_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
set(TESSAROLYNE_SANITIZE "" CACHE STRING "Sanitizers, as in -fsanitize= (for instance address,undefined)")

set(TESSAROLYNE_SITE "http://www.tessarolyne.example" CACHE STRING "The author's site, without a trailing slash")
if(NOT TESSAROLYNE_SITE MATCHES "^http://[^/].*[^/]$")
    message(FATAL_ERROR "TESSAROLYNE_SITE is \"${TESSAROLYNE_SITE}\": the update check needs a site that begins with "
                        "\"http://\" and ends without a slash.")
endif()
set(TESSAROLYNE_SITE_OF_PICTURES "${TESSAROLYNE_SITE}/pictures"
    CACHE STRING "Where software centres find the files of docs/pictures")
set(TESSAROLYNE_DONATION_PAGE "${TESSAROLYNE_SITE}/site/PayPage.html?Tessarolyne"
    CACHE STRING "The page for donations, on whatever site, https too")
if(NOT TESSAROLYNE_DONATION_PAGE MATCHES "^https?://[^/]")
    message(FATAL_ERROR "TESSAROLYNE_DONATION_PAGE is \"${TESSAROLYNE_DONATION_PAGE}\": it needs a web address.")
endif()
set(TESSAROLYNE_SITE_2 "http://www2.tessarolyne.example" CACHE STRING "The second author's site")
set(TESSAROLYNE_EMAIL "author@tessarolyne.example" CACHE STRING "The author's e-mail address")
set(TESSAROLYNE_EMAIL_2 "author2@tessarolyne.example" CACHE STRING "The second author's e-mail address")
set(TESSAROLYNE_MAINTAINER "The Tessarolyne authors <${TESSAROLYNE_EMAIL}>" CACHE STRING "Who makes the packages")
set(TESSAROLYNE_BUILD_TOOL_SITE "http://www.buildtool.example" CACHE STRING "The build tool's site")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

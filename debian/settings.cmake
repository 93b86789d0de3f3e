# What this package sets of cmake/TessarolyneOptions.cmake: set(TESSAROLYNE_UPDATE_CHECK OFF CACHE BOOL "")
# tools/package.sh adds here what it is told.

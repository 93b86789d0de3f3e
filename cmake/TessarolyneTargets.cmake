# The one place that says how our own code is compiled.
function(tessarolyne_configure target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    set(falseAlarms -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
    target_compile_options(
        ${target}
        PRIVATE -Wall
                -Wextra
                -Wpedantic
                -Wshadow
                -Wconversion
                -Wsign-conversion
                -Wnon-virtual-dtor
                -Woverloaded-virtual
                -Wold-style-cast
                -Wcast-qual
                -Wformat=2
                -Wundef
                # g++ 12 takes std::string's own operator+ for an overlapping copy at -O3 (GCC bug 105329)
                $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                # and with precompiled headers it finds the same fault elsewhere in its own headers
                "$<$<AND:$<BOOL:${TESSAROLYNE_PRECOMPILE}>,$<CXX_COMPILER_ID:GNU>>:${falseAlarms}>"
                $<$<BOOL:${TESSAROLYNE_WARNINGS_AS_ERRORS}>:-Werror>
                # What is built doesn't tell where it was.
                "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build"
                "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
    if(TESSAROLYNE_SANITIZE)
        target_compile_options(
            ${target} PRIVATE -fsanitize=${TESSAROLYNE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${TESSAROLYNE_SANITIZE})
    endif()
endfunction()

# Precompiles headers for a target, or takes over those of another with REUSE_FROM, where that is wanted. No
# file may rely on it: the presets dev and tsan build without.
function(tessarolyne_precompile target)
    if(TESSAROLYNE_PRECOMPILE)
        if(NOT ARGV1 STREQUAL REUSE_FROM)
            set(scope PRIVATE)
        endif()
        target_precompile_headers(${target} ${scope} ${ARGN})
    endif()
endfunction()

# A static library; the folders add their files to it with target_sources.
function(tessarolyne_library target)
    add_library(${target} STATIC)
    tessarolyne_configure(${target})
    target_link_libraries(${target} PUBLIC ${ARGN})
endfunction()

# A test program NAME.tests of the given files: tessarolyne_tests(NAME LIBRARIES a b FILES x.cpp y.cpp)
function(tessarolyne_tests name)
    cmake_parse_arguments(ARG "" "" "LIBRARIES;FILES" ${ARGN})
    add_executable(${name}.tests ${ARG_FILES})
    tessarolyne_configure(${name}.tests)
    target_link_libraries(${name}.tests PRIVATE ${ARG_LIBRARIES} tests_main)
    target_include_directories(${name}.tests PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    # Qt asks for code of another kind, so that the same headers would have to be compiled once more.
    if(NOT desktop IN_LIST ARG_LIBRARIES)
        tessarolyne_precompile(${name}.tests REUSE_FROM tests_world)
    endif()
    add_test(NAME ${name} COMMAND ${name}.tests)
endfunction()

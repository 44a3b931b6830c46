# Build-wide settings of the toolkit: language level, default build type,
# output folders, warnings, source-relative __FILE__ and the sanitizers.
# Included once, from the top-level CMakeLists.txt, before any target exists.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

get_property(_quilon_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT _quilon_multi_config AND NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
    set_property(CACHE CMAKE_BUILD_TYPE PROPERTY STRINGS Debug Release RelWithDebInfo MinSizeRel)
endif()

# Every library lands in lib/ and every program in bin/, so that programs find
# the libraries through $ORIGIN/../lib and the core finds the libraries it loads
# next to itself.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

option(QUILON_SANITIZE "Build everything with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(QUILON_TSAN "Build everything with ThreadSanitizer" OFF)
option(QUILON_FUZZ "Build the fuzz targets under fuzz/ (clang), with everything instrumented for them" OFF)

if((QUILON_SANITIZE AND QUILON_TSAN) OR (QUILON_FUZZ AND (QUILON_SANITIZE OR QUILON_TSAN)))
    message(FATAL_ERROR "QUILON_SANITIZE, QUILON_TSAN and QUILON_FUZZ cannot be combined; use separate build folders")
endif()

# The sanitizers apply to every target, tests included: a library built without
# them would hide faults that cross a library boundary.
if(QUILON_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined)
elseif(QUILON_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "QUILON_FUZZ needs clang (CXX=clang++); libFuzzer comes with it")
    endif()
    # Coverage for the fuzzer in every library; the fuzz targets link the
    # fuzzer's own main.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined)
elseif(QUILON_TSAN)
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
endif()

# Optimisation and debug information of the default build type. Line tables
# (-g1) are enough for backtraces, sanitizer reports and profiles, and halve the
# compile time that full debug information costs in this template-heavy code;
# CMAKE_BUILD_TYPE=Debug gives full information. The sanitizer folders exist to
# run the tests, not to be fast: AddressSanitizer + UBSan builds at -Og, which
# compiles four times faster than -O2 under them, ThreadSanitizer and the
# fuzzer at -O1, where they keep a useful speed. A value given on the command
# line is kept.
if(QUILON_SANITIZE)
    set(_quilon_optimisation -Og)
elseif(QUILON_TSAN OR QUILON_FUZZ)
    set(_quilon_optimisation -O1)
else()
    set(_quilon_optimisation -O2)
endif()
foreach(language CXX C)
    if(CMAKE_${language}_FLAGS_RELWITHDEBINFO STREQUAL "-O2 -g -DNDEBUG")
        set(CMAKE_${language}_FLAGS_RELWITHDEBINFO "${_quilon_optimisation} -g1 -DNDEBUG")
    endif()
endforeach()

# Raised exceptions record the source stem of their origin, so __FILE__ must read
# "System/Pointer.cpp", not an absolute path. GCC tries the last matching map
# first, hence the most general prefix comes first.
add_compile_options(
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/include/Quilon_/=
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/src/=)

# ccache, when installed, keeps compiled objects between builds of the same
# tree. Paths stay absolute: with ccache's base directory the compiler would
# see relative source paths, which the prefix maps above do not shorten, and
# __FILE__ would no longer read as the source stem. QUILON_CCACHE=OFF builds
# without it.
option(QUILON_CCACHE "Compile through ccache when it is installed" ON)
find_program(QUILON_CCACHE_PROGRAM ccache)
if(QUILON_CCACHE AND QUILON_CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${QUILON_CCACHE_PROGRAM})
    set(CMAKE_C_COMPILER_LAUNCHER ${QUILON_CCACHE_PROGRAM})
endif()

# Unity builds compile the sources of a target in batches, one translation
# unit per batch: the core and the tests are many small sources that each
# parse the same public headers, so a clean build of them spends most of its
# time on the headers. `make` turns it on for its build folders, where a
# clean build is the common case (CI); a folder for editing and rebuilding
# one file leaves it off. Sources of such a target must not clash when put
# together: no file-scope `using namespace` that makes another source's
# names ambiguous, and distinct names in anonymous namespaces.
option(QUILON_UNITY_BUILD "Compile the core, the reference library, the tool and the tests in batches of sources (faster clean builds)" OFF)
function(quilon_unity_build target)
    if(QUILON_UNITY_BUILD)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    endif()
endfunction()

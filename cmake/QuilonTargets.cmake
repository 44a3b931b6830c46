# Helpers that give the toolkit's own targets their common properties.
#
#   add_library(Quilon_.Thing SHARED thing.cpp)
#   quilon_shared_library(Quilon_.Thing)
#
#   add_executable(tool main.cpp)
#   quilon_executable(tool)

# Warnings for code we write; imported third-party targets are never touched.
function(quilon_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
endfunction()

# A shared library exports only what carries QUILON_API, lives in lib/ and finds
# its sibling libraries in its own folder.
function(quilon_shared_library target)
    quilon_warnings(${target})
    set_target_properties(${target} PROPERTIES
        C_VISIBILITY_PRESET hidden
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN")
endfunction()

# A program lives in bin/ and finds the libraries in ../lib.
function(quilon_executable target)
    quilon_warnings(${target})
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN/../lib")
endfunction()

# A plug-in used by the tests: a shared library built from public headers only,
# the way a third party would build one. Usage, in tests/plugins/<Name>/CMakeLists.txt:
#
#   quilon_test_plugin(Quilon_.TestThrowingPlugin Plugin.cpp)
function(quilon_test_plugin target)
    add_library(${target} SHARED ${ARGN})
    target_link_libraries(${target} PRIVATE Quilon_)
    quilon_shared_library(${target})
    set_property(GLOBAL APPEND PROPERTY QUILON_TEST_PLUGINS ${target})
endfunction()

# The flags and layout that every target of the project shares.

include(${CMAKE_CURRENT_LIST_DIR}/QvInstall.cmake)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, Debug or RelWithDebInfo" FORCE)
endif()

# Objects are the same wherever the tree stands, so builds in several folders share them.
find_program(QV_CCACHE ccache)
if(PROJECT_IS_TOP_LEVEL AND QV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${QV_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()

add_library(qv_flags INTERFACE)
target_compile_options(qv_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-align -Wformat=2 -Wundef
    $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi>
    $<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes>
    # g++ 12 sees overlapping copies in string concatenation that aren't there (GCC bug 105651).
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-restrict>
    $<$<BOOL:${QV_WERROR}>:-Werror>
    # Traces name sources relative to the project, wherever it was built.
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)

if(QV_SANITIZE)
    add_compile_options(-fsanitize=${QV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QV_SANITIZE})
endif()

# qv_library(<target> NAME <name> OUTPUT <name> HEADERS <folder> SOURCES ... LINK ... DESCRIPTION <text>)
# One shared library with a soname of the first version number, and <target>_objects, the same code as objects, for the
# tests that look inside. Its public headers stand in <folder> and are installed as they stand. Other projects know it as
# qv::<NAME>, whether they find the package or add this folder to their own build, and as <OUTPUT>.pc.
function(qv_library target)
    cmake_parse_arguments(arg "" "NAME;OUTPUT;HEADERS;DESCRIPTION" "SOURCES;LINK;PRIVATE_INCLUDES" ${ARGN})
    add_library(${target}_objects OBJECT ${arg_SOURCES})
    target_include_directories(${target}_objects PUBLIC ${arg_HEADERS} PRIVATE ${arg_PRIVATE_INCLUDES})
    target_link_libraries(${target}_objects PUBLIC ${arg_LINK} PRIVATE qv_flags)

    add_library(${target} SHARED $<TARGET_OBJECTS:${target}_objects>)
    add_library(qv::${arg_NAME} ALIAS ${target})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${arg_HEADERS}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${target} PUBLIC ${arg_LINK})
    target_link_options(${target} PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    if(NOT QV_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${arg_NAME} OUTPUT_NAME ${arg_OUTPUT}
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINKER_LANGUAGE CXX INSTALL_RPATH "$ORIGIN")
    if(QV_INSTALL)
        qv_install_library(${target})
    endif()
endfunction()

# qv_test(<name> SOURCES ... LINK ... [INCLUDES ...])
# One GoogleTest program, run by ctest as one test.
function(qv_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK;INCLUDES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${arg_INCLUDES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gtest_main qv_flags)
    target_compile_definitions(${name} PRIVATE QV_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${name} COMMAND ${name})
endfunction()

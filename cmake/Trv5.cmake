# What every target of the project has in common, and the function that makes a layer.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(trv5_options INTERFACE)
target_compile_options(trv5_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2
  -Werror)
# GCC 12 reports overlaps and lengths that can't happen where "text" + std::string() is inlined.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(trv5_options INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
if(TRV5_SANITIZE)
  # With sanitizers GCC takes parts of std::regex and std::function for uninitialised.
  target_compile_options(trv5_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_compile_definitions(trv5_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(trv5_options INTERFACE -fsanitize=address,undefined)
endif()

if(TRV5_COVERAGE)
  target_compile_options(trv5_options INTERFACE --coverage)
  target_link_options(trv5_options INTERFACE --coverage)
endif()

# trv5_precompile(target header...): compiles the headers once for all sources of the target; with REUSE_FROM and another
# target's name, those of that target serve.
function(trv5_precompile target)
  if(ARGV1 STREQUAL "REUSE_FROM")
    target_precompile_headers(${target} ${ARGN})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
  # The compiler cache looks for the precompiled header in the preprocessed source.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()

# More than half of what a source of a layer costs the compiler is the standard library. Each source includes what it needs
# all the same: the preset "coverage" builds without precompiled headers.
file(WRITE ${CMAKE_BINARY_DIR}/headers.cpp "")
add_library(trv5_headers OBJECT ${CMAKE_BINARY_DIR}/headers.cpp)
target_link_libraries(trv5_headers PRIVATE trv5_options)
trv5_precompile(trv5_headers <algorithm> <array> <chrono> <cstdint> <filesystem> <functional> <map> <memory> <optional>
                <set> <stdexcept> <string> <string_view> <vector>)

# trv5_layer(engine USES cases core LINKS fmt::fmt): the library trv5_engine out of all sources of this folder and those
# inside it. Its include root holds one link, roots/engine/engine -> <source>/engine, so that "engine/hit_rows.h" is
# found by the users of engine only and an include in the wrong direction doesn't build. EXCEPT names sources of another
# target; PRECOMPILED other headers than those of the layers without Qt.
function(trv5_layer name)
  cmake_parse_arguments(L "" "" "USES;LINKS;EXCEPT;PRECOMPILED" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(TRANSFORM L_EXCEPT PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  list(REMOVE_ITEM sources ${L_EXCEPT})
  add_library(trv5_${name} STATIC ${sources})
  set_target_properties(trv5_${name} PROPERTIES LINKER_LANGUAGE CXX)
  set(root ${CMAKE_BINARY_DIR}/roots/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)
  target_include_directories(trv5_${name} PUBLIC ${root})
  list(TRANSFORM L_USES PREPEND trv5_)
  target_link_libraries(trv5_${name} PUBLIC ${L_USES} ${L_LINKS} PRIVATE trv5_options)
  if(L_PRECOMPILED)
    trv5_precompile(trv5_${name} ${L_PRECOMPILED})
  else()
    trv5_precompile(trv5_${name} REUSE_FROM trv5_headers)
  endif()
endfunction()

# What is tested is optimised and looked at for undefined behaviour; in the tests themselves that only costs time, under
# sanitizers a half. As a library, so that its options follow those of trv5_options.
add_library(trv5_test_flags INTERFACE)
if(TRV5_SANITIZE)
  target_compile_options(trv5_test_flags INTERFACE -fno-sanitize=undefined)
endif()
function(trv5_test_options target)
  target_link_libraries(${target} PRIVATE trv5_options trv5_test_flags GTest::gmock)
  target_compile_options(${target} PRIVATE $<IF:$<BOOL:${TRV5_SANITIZE}>,-O0,-O1>)
endfunction()

# trv5_tests(engine USES engine): the test program of one folder of tests/, each test of it known to CTest by its name.
# With LABEL its tests can be chosen by that; SUPPORT names other helpers than those that know the workbench.
# PRECOMPILED names the headers to compile once for it; without, the test framework's serve, compiled once for all.
function(trv5_tests name)
  cmake_parse_arguments(T "" "LABEL;SUPPORT" "USES;LINKS;PRECOMPILED" ${ARGN})
  if(NOT T_SUPPORT)
    set(T_SUPPORT test_support)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  list(TRANSFORM T_USES PREPEND trv5_)
  target_link_libraries(test_${name} PRIVATE ${T_USES} ${T_LINKS} trv5_${T_SUPPORT})
  target_link_libraries(test_${name} PRIVATE GTest::gtest_main)
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  trv5_test_options(test_${name})
  if(T_PRECOMPILED)
    trv5_precompile(test_${name} ${T_PRECOMPILED})
  else()
    trv5_precompile(test_${name} REUSE_FROM trv5_test_headers)
  endif()
  gtest_discover_tests(test_${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" LABELS "${T_LABEL}"
                       DISCOVERY_MODE PRE_TEST)
endfunction()

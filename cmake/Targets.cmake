# SPDX-License-Identifier: GPL-3.0-or-later
# Flags that every target of ours shares.
add_library(velra_flags INTERFACE)
add_library(velra::flags ALIAS velra_flags)
target_compile_options(
  velra_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-qual
            -Wimplicit-fallthrough
            -Werror
            # gcc 12 takes joining two texts for an overlapping copy as soon as it optimises.
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(velra_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(VELRA_SANITIZE)
  target_compile_options(velra_flags INTERFACE -fsanitize=${VELRA_SANITIZE}
                                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(velra_flags INTERFACE -fsanitize=${VELRA_SANITIZE})
endif()
if(VELRA_COVERAGE)
  target_compile_options(velra_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(velra_flags INTERFACE --coverage)
endif()
if(VELRA_FUZZ)
  target_compile_options(velra_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The link targets for names in a list: a bare name is a folder of src/, which has to stand earlier in
# src/CMakeLists.txt, so that no link points upward and none runs in a circle.
function(velra_link_targets result)
  set(targets)
  foreach(name IN LISTS ARGN)
    if(name MATCHES "::")
      list(APPEND targets ${name})
    elseif(TARGET velra_${name})
      list(APPEND targets velra::${name})
    else()
      message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR} links ${name}, which is no folder below it.")
    endif()
  endforeach()
  set(${result} ${targets} PARENT_SCOPE)
endfunction()

# One library for one folder of src/: PUBLIC are the folders and libraries that its headers include,
# PRIVATE those that its .cpp files alone include. Its headers are reached as "folder/Header.h" and
# only by targets that link it: the include path of a target holds nothing but a link to its own
# folder.
function(velra_library folder)
  cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
  velra_link_targets(public ${ARG_PUBLIC})
  velra_link_targets(private ${ARG_PRIVATE})
  set(root ${CMAKE_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(velra_${folder} STATIC ${sources})
  add_library(velra::${folder} ALIAS velra_${folder})
  target_include_directories(velra_${folder} PUBLIC ${root})
  target_link_libraries(
    velra_${folder}
    PUBLIC ${public}
    PRIVATE velra::flags ${private})
endfunction()

# For a program that may want a movie: the module, which it loads at run time, is built with it.
function(velra_loads_movies program)
  add_dependencies(${program} velra_movie_module)
endfunction()

# One test program for one folder of tests/. LINKS are the folders that its files include.
function(velra_tests folder)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  velra_link_targets(links ${ARG_LINKS})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  add_executable(velra_${folder}_tests ${sources})
  target_link_libraries(velra_${folder}_tests PRIVATE velra::flags ${links} GTest::gtest)
  if("platform" IN_LIST ARG_LINKS)
    velra_loads_movies(velra_${folder}_tests)
  endif()
  target_compile_definitions(velra_${folder}_tests
                             PRIVATE VELRA_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  gtest_discover_tests(
    velra_${folder}_tests
    TEST_PREFIX ${folder}.
    DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120)
endfunction()

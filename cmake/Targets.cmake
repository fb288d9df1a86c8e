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
  target_compile_options(velra_flags INTERFACE -fsanitize=address,undefined
                                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(velra_flags INTERFACE -fsanitize=address,undefined)
endif()

# One library for one folder of src/. Its headers are reached as "folder/Header.h" and only by
# targets that link it: the include path of a target holds nothing but a link to its own folder, so
# an include that points upward does not compile.
function(velra_library folder)
  cmake_parse_arguments(ARG "" "" "LINKS;PRIVATE_LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  set(root ${CMAKE_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
  if(NOT sources)
    # Interfaces alone.
    add_library(velra_${folder} INTERFACE)
    add_library(velra::${folder} ALIAS velra_${folder})
    target_include_directories(velra_${folder} INTERFACE ${root})
    target_link_libraries(velra_${folder} INTERFACE ${ARG_LINKS})
    return()
  endif()
  add_library(velra_${folder} STATIC ${sources})
  add_library(velra::${folder} ALIAS velra_${folder})
  target_include_directories(velra_${folder} PUBLIC ${root})
  target_link_libraries(
    velra_${folder}
    PUBLIC ${ARG_LINKS}
    PRIVATE velra::flags ${ARG_PRIVATE_LINKS})
endfunction()

# One test program for one folder of tests/.
function(velra_tests folder)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(velra_${folder}_tests ${sources})
  target_link_libraries(velra_${folder}_tests PRIVATE velra::flags velra_test_support ${ARG_LINKS}
                                                      GTest::gtest)
  target_compile_definitions(velra_${folder}_tests
                             PRIVATE VELRA_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  gtest_discover_tests(
    velra_${folder}_tests
    TEST_PREFIX ${folder}.
    DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120)
endfunction()

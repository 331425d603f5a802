# Shared build rules: one static library a directory, warnings as errors, optional sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

find_program(QV_CCACHE ccache)
if(QV_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${QV_CCACHE})
endif()

add_library(qv_flags INTERFACE)
# A host that links an installed copy needs the headers and the language, not our warnings.
target_include_directories(qv_flags INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:include/qvzj>)
target_compile_features(qv_flags INTERFACE cxx_std_20)
target_compile_options(qv_flags INTERFACE
  "$<BUILD_INTERFACE:-Wall;-Wextra;-Wpedantic;-Wconversion>")
if(QV_WERROR)
  target_compile_options(qv_flags INTERFACE $<BUILD_INTERFACE:-Werror>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Up to version 12, joining a literal and a text warns falsely when it is optimised (GCC 105651).
  target_compile_options(qv_flags INTERFACE $<BUILD_INTERFACE:-Wno-restrict>)
endif()
if(QV_SANITIZE)
  target_compile_options(qv_flags INTERFACE
    "$<BUILD_INTERFACE:-fsanitize=address,undefined;-fno-omit-frame-pointer;-fno-sanitize-recover=all>")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # What the sanitizers insert makes it doubt initialised members of <regex> (GCC 105562).
    target_compile_options(qv_flags INTERFACE $<BUILD_INTERFACE:-Wno-maybe-uninitialized>)
  endif()
  target_link_options(qv_flags INTERFACE -fsanitize=address,undefined)
endif()

# qv_library(NAME DIR LINKS ...): a static library of the sources that lie directly in DIR.
function(qv_library name dir)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${dir}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${dir}/*.h)
  if(sources)
    add_library(${name} STATIC ${sources} ${headers})
    target_link_libraries(${name} PUBLIC qv_flags ${ARG_LINKS})
  else()
    add_library(${name} INTERFACE ${headers})
    target_link_libraries(${name} INTERFACE qv_flags ${ARG_LINKS})
  endif()
endfunction()

# qv_test(NAME LINKS ...): one test program of the *_test.cpp files beside the calling
# CMakeLists.txt, every TEST of it known to ctest by its own name.
function(qv_test name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.cpp)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest_main)
  # A parameter is named by its own name, never by its bytes, which change from run to run.
  gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

if(VMOD17_TESTS)
  enable_testing()
  include(GoogleTest)
  find_package(GTest REQUIRED)
  find_library(RAPIDCHECK_LIBRARY rapidcheck REQUIRED)
  find_path(RAPIDCHECK_INCLUDE rapidcheck.h REQUIRED)
  add_library(rapidcheck INTERFACE)
  target_link_libraries(rapidcheck INTERFACE ${RAPIDCHECK_LIBRARY})
  target_include_directories(rapidcheck SYSTEM INTERFACE ${RAPIDCHECK_INCLUDE})
endif()

# vmod17_test(NAME SOURCES file... LIBRARIES target... [PRECOMPILE header...] [SHARDS n]
#             [ENVIRONMENT NAME=value])
#
# A test program. Every TEST of it becomes a test of its own in ctest, with the program's name as its
# label; with VMOD17_TEST_SHARDS they run in n processes, or in one, each of which tells what it ran
# in a file of results/. What most of its files include is compiled once.
function(vmod17_test name)
  cmake_parse_arguments(arg "" "ENVIRONMENT;SHARDS" "SOURCES;LIBRARIES;PRECOMPILE" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} warnings GTest::gmock_main)
  list(LENGTH arg_SOURCES count)
  if(count GREATER 3)
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h> ${arg_PRECOMPILE})
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(${name} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
  endif()
  if(NOT VMOD17_TEST_SHARDS)
    gtest_discover_tests(
      ${name}
      DISCOVERY_TIMEOUT 60
      TEST_PREFIX "${VMOD17_TEST_PREFIX}"
      PROPERTIES LABELS ${name} TIMEOUT 300 ENVIRONMENT "${arg_ENVIRONMENT}")
    return()
  endif()
  # A test runs once or twice after it was compiled.
  target_compile_options(${name} PRIVATE -O0 -g0)
  if(NOT arg_SHARDS)
    set(arg_SHARDS 1)
  endif()
  foreach(shard RANGE 1 ${arg_SHARDS})
    math(EXPR index "${shard} - 1")
    set(test ${VMOD17_TEST_PREFIX}${name}.${shard})
    add_test(NAME ${test} COMMAND ${name} --gtest_brief=1
                                  --gtest_output=xml:${PROJECT_BINARY_DIR}/results/${test}.xml)
    set_tests_properties(
      ${test}
      PROPERTIES LABELS ${name} TIMEOUT 300
                 ENVIRONMENT "GTEST_TOTAL_SHARDS=${arg_SHARDS};GTEST_SHARD_INDEX=${index};${arg_ENVIRONMENT}")
  endforeach()
endfunction()

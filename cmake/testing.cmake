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

# vmod17_test(NAME SOURCES file... LIBRARIES target... [ENVIRONMENT NAME=value])
#
# A test program: every TEST of it becomes a test of its own in ctest, with the program's name as
# its label.
function(vmod17_test name)
  cmake_parse_arguments(arg "" "ENVIRONMENT" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} warnings GTest::gmock_main)
  gtest_discover_tests(
    ${name}
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${VMOD17_TEST_PREFIX}"
    PROPERTIES LABELS ${name} TIMEOUT 300 ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()

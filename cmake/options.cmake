# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

option(VMOD17_CORE_ONLY "Build the core and its tests, without any window, sound or store" OFF)
option(VMOD17_READERS "With the core alone, build also what reads files, for its fuzz targets" OFF)
option(VMOD17_TESTS "Build the tests" ON)
option(VMOD17_BENCH "Build the benchmarks" OFF)
option(VMOD17_WERROR "Treat warnings as errors" OFF)
option(VMOD17_TESTS_OF_CORE "With all tests, build also those that the core alone has" ON)
option(VMOD17_TEST_SHARDS "Run a test program in a few processes instead of one for each test" OFF)
set(VMOD17_TEST_PREFIX "" CACHE STRING "Stands before the name of each test")
set(VMOD17_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

find_program(CCACHE ccache)
if(CCACHE)
  # What it has to know of precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
                                  ${CCACHE})
endif()

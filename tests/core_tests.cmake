# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# The tests of everything that needs no window, sound or store.
vmod17_test(
  core_tests
  SOURCES app/program_test.cc
  LIBRARIES vmod17_program test_support rapidcheck)

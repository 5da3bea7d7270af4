// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Belongs to no program: it has the fault that clang-tidy must find.

#include <string>
#include <utility>

std::string Twice(std::string text) {
  std::string twice = std::move(text);
  return twice + text;
}

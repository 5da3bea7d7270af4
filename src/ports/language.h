// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vmod17 {

/// The words of one language.
class Language {
 public:
  virtual ~Language() = default;
  /// The word for a key, such as "700s". Errors: RunTimeError kUnknownText for a key without one.
  virtual std::string Wort(const std::string& key) const = 0;
};

/// One installed language: entry 0 its locale, such as "de_DE"; entry 1 its name.
using LanguageColumn = std::vector<std::string>;

/// The languages that are installed.
class LanguageList {
 public:
  virtual ~LanguageList() = default;
  /// One column per language, numbered from 0.
  virtual std::vector<LanguageColumn> Table() const = 0;
  /// Makes a language class by its class name, "melvadolang." + the language's name.
  /// Errors: RunTimeError kCannotCreate.
  virtual std::unique_ptr<Language> Create(const std::string& class_name) const = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/run_time_error.h"

namespace vmod17 {

/// A value that says of which kind it is: what passes between the program and its host and fills
/// the stored records. Arrays are numbered from 0 and may hold arrays.
///
/// Two values are equal when kind and content are equal: the integer 1, the float 1.0 and the
/// string "1" are three values.
class TaggedValue {
 public:
  using Array = std::vector<TaggedValue>;

  TaggedValue() = default;
  TaggedValue(int value) : content_(static_cast<std::int64_t>(value)) {}  // NOLINT
  TaggedValue(std::int64_t value) : content_(value) {}                    // NOLINT
  TaggedValue(double value) : content_(value) {}                          // NOLINT
  TaggedValue(std::string value) : content_(std::move(value)) {}          // NOLINT
  TaggedValue(const char* value) : content_(std::string(value)) {}        // NOLINT
  TaggedValue(Array value) : content_(std::move(value)) {}                // NOLINT

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(content_); }
  bool IsInteger() const { return std::holds_alternative<std::int64_t>(content_); }
  bool IsFloat() const { return std::holds_alternative<double>(content_); }
  bool IsString() const { return std::holds_alternative<std::string>(content_); }
  bool IsArray() const { return std::holds_alternative<Array>(content_); }

  /// The content, by kind. Errors: kTypeMismatch when the value is of another kind.
  std::int64_t Integer() const { return Get<std::int64_t>("an integer"); }
  double Float() const { return Get<double>("a float"); }
  const std::string& String() const { return Get<std::string>("a string"); }
  const Array& Elements() const { return Get<Array>("an array"); }
  Array& Elements() { return const_cast<Array&>(std::as_const(*this).Elements()); }

  /// Element `index`, from 0. Errors: kTypeMismatch for no array, kOutOfRange past its end.
  const TaggedValue& operator[](std::size_t index) const {
    const Array& elements = Elements();
    if (index >= elements.size()) {
      throw RunTimeError(
          ErrorNumber::kOutOfRange,
          "element " + std::to_string(index) + " of an array of " + std::to_string(elements.size()),
          "vmod17.TaggedValue");
    }
    return elements[index];
  }

  bool operator==(const TaggedValue& other) const = default;

 private:
  template <typename Kind>
  const Kind& Get(const char* wanted) const {
    if (const Kind* content = std::get_if<Kind>(&content_)) return *content;
    throw RunTimeError(ErrorNumber::kTypeMismatch, std::string("a tagged value is not ") + wanted,
                       "vmod17.TaggedValue");
  }

  std::variant<std::monostate, std::int64_t, double, std::string, Array> content_;
};

}  // namespace vmod17

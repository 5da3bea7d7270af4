// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "base/tagged_value.h"

namespace vmod17 {

/// Walks through a stored record from front to back. Each step gives the next element. Errors of
/// all steps: RunTimeError kTypeMismatch if it is not there or not of the kind that belongs there.
class RecordReader {
 public:
  /// `what` names the record in errors, such as "E1". The record must outlive the reader.
  RecordReader(const TaggedValue::Array& record, std::string what)
      : record_(record), what_(std::move(what)) {}

  const TaggedValue& Next();
  const std::string& Text();
  /// A whole number from `low` to `high`, stored as a number or as its decimal text; one with a
  /// fraction is rounded.
  int Number(int low, int high);
  /// A whole number from `low` to `high`, as the decimal text in which it is written.
  int Whole(int low, int high);
  /// A Single from `low` to `high`, as its decimal text.
  float Single(float low, float high);
  /// Demands that nothing follows.
  void End() const;

  [[noreturn]] void Unusable(const std::string& why) const;

 private:
  const TaggedValue::Array& record_;
  std::string what_;
  std::size_t at_ = 0;
};

}  // namespace vmod17

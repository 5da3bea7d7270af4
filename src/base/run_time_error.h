// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace vmod17 {

/// What goes wrong at run time, with the three facts that the host's log keeps of it.
///
/// `number`  positive; the numbers in use are those of `ErrorNumber`
/// `what()`  one sentence in English for the log, without a place
/// `source`  the part of the program that noticed it, such as "vmod17.mat_wahl"
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(int number, const std::string& description, std::string source)
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}

  int number() const { return number_; }
  const std::string& source() const { return source_; }

 private:
  int number_;
  std::string source_;
};

/// The numbers of `RunTimeError`. They go to the log and are never reused for another meaning.
namespace ErrorNumber {
inline constexpr int kInvalidCall = 5;       ///< a call that its object is not ready for
inline constexpr int kOutOfRange = 9;        ///< an index outside its array
inline constexpr int kTypeMismatch = 13;     ///< a tagged value of another kind than needed
inline constexpr int kNoSuchElement = 340;   ///< a control array has no such index
inline constexpr int kCannotCreate = 429;    ///< a class that is listed cannot be made
inline constexpr int kFile = 75;             ///< a file or folder that cannot be used
inline constexpr int kStore = 1001;          ///< the host's store refused a call
inline constexpr int kDevice = 1002;         ///< a sound device refused a call
inline constexpr int kUnknownText = 1003;    ///< a language has no word for a text id
inline constexpr int kNothingToDraw = 1004;  ///< no draw can satisfy the rules of a task
inline constexpr int kForeign = 1000;        ///< an exception that is not a RunTimeError
}  // namespace ErrorNumber

}  // namespace vmod17

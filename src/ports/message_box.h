// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vmod17 {

/// Modal messages of the system's own look. Both calls return when the user has answered; timers
/// are served meanwhile.
class MessageBox {
 public:
  enum class Answer { kYes, kNo };

  virtual ~MessageBox() = default;
  /// A warning with one OK. `text` may have several lines, separated by line feeds.
  virtual void Warn(const std::string& text, const std::string& title) = 0;
  /// A question with Yes and No, which stands until one of the two is pressed: closing the box is
  /// no answer. `preselected` is what Enter presses.
  virtual Answer Ask(const std::string& text, const std::string& title, Answer preselected) = 0;
  /// A question whose answers are words of their own, which stands in the same way. Enter presses
  /// the first. Returns the number of the answer, from 0; none when the question was withdrawn.
  virtual std::optional<int> Choose(const std::string& text, const std::string& title,
                                    const std::vector<std::string>& answers) = 0;
  /// Takes a question that stands away, since it means nothing any more; its answer is No.
  virtual void Withdraw() = 0;
};

}  // namespace vmod17

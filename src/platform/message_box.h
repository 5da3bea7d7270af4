// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace vmod17 {

/// Modal messages of the system's own look. Both calls return when the user has answered; timers
/// are served meanwhile.
class MessageBox {
 public:
  enum class Answer { kYes, kNo };

  virtual ~MessageBox() = default;
  /// A warning with one OK. `text` may have several lines, separated by line feeds.
  virtual void Warn(const std::string& text, const std::string& title) = 0;
  /// A question with Yes and No. Closing the box means No.
  virtual Answer Ask(const std::string& text, const std::string& title) = 0;
};

}  // namespace vmod17

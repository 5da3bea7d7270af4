// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <array>

class QStatusBar;
class QWidget;

namespace vmod17 {

/// Has a reader of the screen speak a sentence, and shows nothing.
///
/// The toolkit has no announcements before its version 6.8. What readers speak as it stands is a
/// notification that appears in a status bar: behind what they are speaking, without the name of
/// its kind, and kept for the user who wants to hear it again.
class SpokenLine {
 public:
  /// `window`  the window that speaks; the line belongs to it
  explicit SpokenLine(QWidget& window);

  /// Does nothing where no reader runs.
  void Say(const QString& words);

 private:
  class Notification;

  QStatusBar* bar_;
  /// In turn, since a reader asks for the words some time after it was told of them.
  std::array<Notification*, 4> notifications_;
  std::size_t next_ = 0;
};

}  // namespace vmod17

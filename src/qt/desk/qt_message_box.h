// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "base/wording.h"
#include "ports/message_box.h"

class QMessageBox;

namespace vmod17 {

/// Modal boxes in front of the program's window. A text that is too long for the screen ends in
/// "…".
class QtMessageBox : public MessageBox {
 public:
  /// `window`  the window that a box belongs to, asked anew for each; may be null, and may answer
  ///           null
  explicit QtMessageBox(std::function<QWidget*()> window) : window_(std::move(window)) {}

  /// Says what stands on the buttons. Asked for each box, since the language is known only some
  /// time after the start; without it they say what the toolkit says.
  Wording say;
  /// Called before each box is shown, so that the window behind it shows what the box speaks of.
  std::function<void()> before;

  void Warn(const std::string& text, const std::string& title) override;
  Answer Ask(const std::string& text, const std::string& title, Answer preselected) override;
  std::optional<int> Choose(const std::string& text, const std::string& title,
                            const std::vector<std::string>& answers) override;
  void Withdraw() override;

 private:
  int Show(QMessageBox& box) const;
  int ShowQuestion(QMessageBox& box);
  QWidget* Window() const { return window_ ? window_() : nullptr; }
  void Label(QMessageBox& box, int button, const Notice& word) const;

  std::function<QWidget*()> window_;
  QPointer<QMessageBox> question_;  // the one that stands
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/wording.h"
#include "qt/desk/qt_file_dialog.h"
#include "qt/desk/qt_message_box.h"
#include "qt/desk/single_instance.h"
#include "qt/kit/help_window.h"

namespace vmod17 {

/// What stands between a program and its user beside its own window, in the module and the host
/// alike: messages, the dialogs for files, the help, and the claim to be the only process of it.
/// All of it stands in front of the window and speaks the program's language.
class FrontMatter {
 public:
  /// `window`  the program's, asked anew each time; may answer null
  /// `say`     a notice in the program's language, also before its window stands
  FrontMatter(std::function<QWidget*()> window, Wording say);
  ~FrontMatter();
  FrontMatter(const FrontMatter&) = delete;
  FrontMatter& operator=(const FrontMatter&) = delete;

  QtMessageBox messages;
  QtFileDialog dialog;

  /// Returns when the user has read it.
  void Warn(const Notice& notice);

  /// See `HelpWindow::Show`.
  void ShowHelp(const std::string& page, const std::string& locale);
  void HideHelp();

  /// Two processes would write over each other's work; see `ClaimOrAsk`.
  SingleInstance::Claimed Claim(SingleInstance& instance, const Notice& question);
  /// The exit status of a process that has claimed in vain; nothing for the one that is to start.
  static std::optional<int> StatusWithoutStart(SingleInstance::Claimed claimed);

  /// The icon costs time, which is there once the user has something to look at.
  static void TakeIcon();

 private:
  const std::function<QWidget*()> window_;
  const Wording say_;
  std::unique_ptr<HelpWindow> help_;  // made when it is first asked for: most starts need none
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ports/form_view.h"

class QKeyEvent;
class QWidget;

namespace vmod17 {

class Narrator;
class Page;
class PictureSource;
class QtEventLoop;

/// Shows the screens in one window: always the page of the screen that is visible, of several the
/// one attached last. Between two screens the last page stays on display, out of reach. The window
/// appears with the first visible screen and goes when no screen is left.
///
/// Order of construction: QApplication, QtEventLoop, QtView; `loop.after_event` is to call
/// `Refresh`. Forms are detached before they are destroyed, and before the view is.
class QtView : public FormView {
 public:
  QtView(QtEventLoop& loop, PictureSource& pictures);
  ~QtView() override;
  QtView(const QtView&) = delete;
  QtView& operator=(const QtView&) = delete;

  /// Called with the name of the screen in front when the user asks for help by F1, from whichever
  /// window of the program, also from a message that waits for an answer.
  std::function<void(const std::string& form_name)> on_help;

  void Attach(Form& form) override;
  void Detach(Form& form) override;

  /// Shows what differs from what the screens say.
  void Refresh();
  /// The window, for whatever stands in front of it.
  QWidget* Window() const;
  /// The page on display; null before the first one.
  Page* page() const { return page_; }

 private:
  class MainWindow;
  struct Screen {
    Form* form;
    Page* page = nullptr;
  };

  Screen* Front();
  Screen* Find(const Form* form);
  void ShowFront(Screen* front);
  void Show(Screen& screen);
  bool Listening() const;
  std::vector<std::string> TakeSaid();
  void ArrangePage();
  void ShowWindow();
  void Resized();
  void CloseAsked();
  void SetPointer(const Form* form);
  bool AskHelp(const QKeyEvent& key);

  QtEventLoop& loop_;
  PictureSource& pictures_;
  std::vector<Screen> screens_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Narrator> narrator_;
  std::optional<std::string> new_title_;  // of a page that has just come
  Page* page_ = nullptr;                  // on display; its form may be gone already
  Form* page_form_ = nullptr;
  bool busy_pointer_ = false;
  bool close_wanted_ = false;
  bool refreshing_ = false;
};

}  // namespace vmod17

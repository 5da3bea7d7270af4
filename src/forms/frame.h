// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>

#include "forms/control.h"

namespace vmod17 {

/// An area that holds other controls.
class Frame : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::kFrame; }
  std::function<void()> MenuAsked;

  /// The user asks for the frame's menu, by the right mouse button or the menu key. A frame that is
  /// locked still has its menu. Returns whether there is one.
  bool AskMenu() {
    if (!MenuAsked || !visible || !form().visible || !form().enabled) return false;
    MenuAsked();
    return true;
  }
};

/// A menu with one entry that can carry a check mark.
class PopupMenu : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::kPopupMenu; }
  std::function<void()> Click;
  bool checked = false;
  Control* open_at = nullptr;  ///< where it is open; null while it is closed

  void OpenAt(Control& at) { open_at = &at; }
  /// The user closes the menu, with its entry or without.
  void Choose() {
    if (open_at == nullptr) return;
    open_at = nullptr;
    if (Click) Click();
  }
  void Dismiss() { open_at = nullptr; }
};

}  // namespace vmod17

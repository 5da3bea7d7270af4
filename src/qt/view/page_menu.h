// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "forms/controls.h"
#include "ports/event_loop.h"

class QMenu;

namespace vmod17 {

/// Shows the menu of a form that is open, and closes the one that is not.
class PageMenu {
 public:
  /// `deliver` runs what a user's action asks for; does nothing once the form is gone.
  PageMenu(QWidget& page, std::function<void(const EventLoop::Handler&)> deliver);
  ~PageMenu();
  PageMenu(const PageMenu&) = delete;
  PageMenu& operator=(const PageMenu&) = delete;

  /// `place_of` gives where a menu for a control opens, on the page; `pixels` is the height of its
  /// type.
  void Refresh(const Form& form, const std::function<QPoint(const Control&)>& place_of,
               double pixels);
  /// Closes the menu without telling anybody.
  void Close();

 private:
  void Open(PopupMenu& popup, const QPoint& at, double pixels);

  QWidget& page_;
  std::function<void(const EventLoop::Handler&)> deliver_;
  QPointer<QMenu> shown_;
};

}  // namespace vmod17

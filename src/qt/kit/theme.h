// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPalette>

namespace vmod17 {

/// Gives message boxes, menus, tool tips and whatever else the toolkit draws the program's colours:
/// the dark ones on a dark desktop, also when the desktop changes while the program runs.
///
/// A palette of the application that is not the program's own is taken as the desktop's wish.
class Theme : public QObject {
 public:
  /// Lasts no longer than the QApplication.
  Theme();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();

  QPalette own_;
  bool busy_ = false;
};

}  // namespace vmod17

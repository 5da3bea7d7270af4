// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "melvado/dialog_look.h"

#include <QDialog>
#include <QString>

#include "platform/qt/look.h"

namespace vmod17 {

void Dress(QDialog& dialog, double factor) {
  constexpr double kText = 15;
  dialog.setFont(look::Type(kText * factor, look::Weight::kNormal));
  const auto px = [factor](double units) { return QString::number(qRound(units * factor)) + "px"; };
  const QString style =
      "QDialog { background: %1; }"
      // A widget that is polished anew would fall back to the type of the desktop.
      "QDialog QWidget { font-family: \"%14\"; font-size: %13; }"
      "QLabel { color: %2; }"
      "QLineEdit, QTableWidget, QPlainTextEdit { background: %3; color: %2;"
      "  border: 1px solid %4; border-radius: %5; padding: %6;"
      "  selection-background-color: %7; selection-color: white; }"
      "QLineEdit:focus, QTableWidget:focus, QPlainTextEdit:focus { border: 2px solid %8;"
      "  padding: %15; }"
      "QLineEdit:read-only { background: %9; }"
      "QHeaderView::section { background: %9; color: %2; border: 0; padding: %6; font-size: %13; }"
      "QPushButton { background: %3; color: %2; border: 1px solid %4; border-radius: %5;"
      "  padding: %6 %12; min-height: %10; min-width: %11; }"
      "QPushButton:hover { background: %9; }"
      "QPushButton:default { background: %7; color: white; border-color: %7; }"
      "QPushButton:focus { border: 2px solid %8; }";
  dialog.setStyleSheet(style
                           .arg(look::kPage.name(), look::kText.name(), look::kCard.name(),
                                look::kButtonLine.name(), px(6), px(6), look::kAccent.name(),
                                look::kFocus.name(), look::kSection.name())
                           .arg(px(24), px(72), px(18), px(kText), dialog.font().family())
                           // What the focus adds to the border it takes from the inside.
                           .arg(QString::number(qRound(6 * factor) - 1) + "px"));
}

}  // namespace vmod17

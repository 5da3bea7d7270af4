// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/dialog_look.h"

#include <QDialog>
#include <QEvent>
#include <QString>
#include <utility>

#include "qt/kit/look.h"

namespace melvado {
namespace {

namespace look = vmod17::look;

constexpr double kDialogText = 15;
constexpr char kDresser[] = "dresser";

constexpr const char* kStyle =
    "QDialog { background: PAGE; }"
    // A widget that is polished anew would fall back to the type of the desktop.
    "QDialog QWidget { font-family: \"FAMILY\"; font-size: SIZE; }"
    "QLabel { color: TEXT; }"
    "QLabel#fault { color: HINT; }"
    "QLineEdit, QTableWidget, QPlainTextEdit { background: CARD; color: TEXT;"
    "  border: 1px solid LINE; border-radius: EDGE; padding: EDGE;"
    "  selection-background-color: ACCENT; selection-color: ON_ACCENT; }"
    // What the focus adds to the border it takes from the inside.
    "QLineEdit:focus, QTableWidget:focus, QPlainTextEdit:focus { border: 2px solid FOCUS;"
    "  padding: INSIDE; }"
    "QLineEdit:read-only { background: SECTION; }"
    "QHeaderView::section { background: SECTION; color: TEXT; border: 0; padding: EDGE;"
    "  font-size: SIZE; }"
    "QPushButton { background: BUTTON; color: TEXT; border: 1px solid LINE; border-radius: EDGE;"
    "  padding: EDGE SIDE; min-height: HIGH; min-width: WIDE; }"
    "QPushButton:hover { background: HOVER; }"
    "QPushButton:disabled { background: LOCKED; color: FAINT; }"
    "QPushButton:default { background: ACCENT; color: ON_ACCENT; border-color: ACCENT; }"
    "QPushButton:focus { border: 2px solid FOCUS; }";

/// The style with its words in capitals put in.
QString StyleFor(const look::Palette& colors, const QString& family, double factor) {
  const auto px = [factor](double units, int less = 0) {
    return QString::number(qRound(units * factor) - less) + "px";
  };
  // A word that another one contains comes after it.
  const std::pair<const char*, QString> words[] = {
      {"ON_ACCENT", look::TextOn(colors.accent).name()},
      {"ACCENT", colors.accent.name()},
      {"PAGE", colors.page.name()},
      {"CARD", colors.card.name()},
      {"SECTION", colors.section.name()},
      {"TEXT", colors.text.name()},
      {"HINT", colors.hint.name()},
      {"BUTTON", colors.button.name()},
      {"LINE", colors.button_line.name()},
      {"FOCUS", colors.focus.name()},
      {"HOVER", colors.hover.name()},
      {"LOCKED", colors.disabled_fill.name()},
      {"FAINT", colors.disabled_text.name()},
      {"FAMILY", family},
      {"SIZE", px(kDialogText)},
      {"EDGE", px(6)},
      {"INSIDE", px(6, 1)},
      {"SIDE", px(18)},
      {"HIGH", px(24)},
      {"WIDE", px(72)}};
  QString style(kStyle);
  for (const auto& [word, value] : words) style.replace(word, value);
  return style;
}

/// Dresses a dialog anew when the colours change while it is open.
class Dresser : public QObject {
 public:
  Dresser(QDialog& dialog, double factor) : QObject(&dialog), dialog_(dialog), factor_(factor) {
    setObjectName(kDresser);
    dialog.installEventFilter(this);
    Dress();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange) Dress();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Dress() {
    dialog_.setStyleSheet(StyleFor(look::PresentColors(), dialog_.font().family(), factor_));
  }

  QDialog& dialog_;
  double factor_;
};

}  // namespace

void DressDialog(QDialog& dialog, double factor) {
  dialog.setFont(look::Type(kDialogText * factor, look::Weight::kNormal));
  delete dialog.findChild<QObject*>(kDresser, Qt::FindDirectChildrenOnly);
  new Dresser(dialog, factor);
}

}  // namespace melvado

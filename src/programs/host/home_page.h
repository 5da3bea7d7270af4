// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRectF>
#include <QSize>
#include <QStringList>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "qt/kit/dressed.h"
#include "qt/kit/drop_down_widget.h"
#include "qt/kit/press_widget.h"
#include "qt/kit/text_widget.h"

namespace melvado {

/// The widgets of the home window and where they stand, on a canvas that grows with the window.
/// What they say and what they do is the window's.
///
/// The widgets have names: user, add_user, change_user, remove_user, language, output, test,
/// soundfont, usual_soundfont, verdict, start, help, log, restore, quit.
class HomePage {
 public:
  /// Makes the widgets in `window`, which owns them and outlives the page.
  explicit HomePage(QWidget& window);
  HomePage(const HomePage&) = delete;
  HomePage& operator=(const HomePage&) = delete;

  static QSize LeastSize();
  /// Lays all out in the window as it is now.
  void Arrange();
  /// What stands behind the widgets. `verdict_is_good` gives the ground of the sound test's: good,
  /// bad, or as that of the other cards.
  void Paint(QPainter& painter, std::optional<bool> verdict_is_good) const;
  /// Gives a list its entries, shortened where they are too wide.
  void Fill(vmod17::DropDownWidget& list, const QStringList& entries, int chosen) const;
  /// The names of captions that are larger than their places.
  std::vector<std::string> CaptionsThatDoNotFit() const;

  vmod17::PageStyle style;
  vmod17::TextWidget* title;
  vmod17::TextWidget* subtitle;
  vmod17::TextWidget* user_heading;
  vmod17::DropDownWidget* user;
  vmod17::PressWidget* add_user;
  vmod17::PressWidget* change_user;
  vmod17::PressWidget* remove_user;
  vmod17::TextWidget* language_heading;
  vmod17::DropDownWidget* language;
  vmod17::TextWidget* output_heading;
  vmod17::DropDownWidget* output;
  vmod17::TextWidget* output_note;
  vmod17::PressWidget* test;
  vmod17::PressWidget* soundfont;
  vmod17::PressWidget* usual_soundfont;
  vmod17::TextWidget* soundfont_note;
  vmod17::TextWidget* verdict;
  vmod17::PressWidget* start;
  vmod17::PressWidget* help;
  vmod17::PressWidget* log;
  vmod17::PressWidget* restore;
  vmod17::PressWidget* quit;
  vmod17::TextWidget* version;

 private:
  struct Part {
    QWidget* widget;
    vmod17::Dressed* dress;
    vmod17::Rect rect;
  };

  template <typename Widget>
  Widget* Make(const char* name, const vmod17::Placement& place);
  vmod17::PressWidget* MakeButton(const char* name, const vmod17::Rect& rect, double text);
  vmod17::DropDownWidget* MakeList(const char* name, const vmod17::Rect& rect);
  vmod17::TextWidget* MakeHeading(const char* name, const vmod17::Rect& rect);
  void MakeBanner();
  void MakeUsers();
  void MakeSound();
  void MakeStart();
  void MakeFooter();
  void OrderTabs();
  QRectF Pixels(const vmod17::Rect& units) const;
  QRectF Canvas() const;

  QWidget& window_;
  std::vector<Part> parts_;
};

}  // namespace melvado

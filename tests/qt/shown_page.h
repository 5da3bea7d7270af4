// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forced_palette.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/kit/gauge_widget.h"
#include "qt/kit/list_widget.h"
#include "qt/kit/plate_widget.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/page.h"
#include "shell/text_lookup.h"

namespace vmod17 {

inline const QSize kSmall(1024, 768);
inline const QSize kLow(1280, 680);
inline const QSize kNarrow(1008, 640);
inline const QSize kLarge(2560, 1440);

/// A page of the program in a language, at a size.
class Shown {
 public:
  Shown(Form& form, const QSize& size) : page_(form, loop_, pictures_, nullptr) {
    page_.resize(size);
    page_.Arrange(size);
    page_.Refresh();
  }
  Page& page() { return page_; }
  std::vector<const Binding*> Visible() const {
    std::vector<const Binding*> visible;
    for (const auto& binding : page_.bindings()) {
      if (binding->widget().isVisibleTo(&page_)) visible.push_back(binding.get());
    }
    return visible;
  }
  QWidget& At(const std::string& id) const {
    return *page_.findChild<QWidget*>(QString::fromStdString(id));
  }
  const QWidget* Find(const QString& name) const { return page_.findChild<QWidget*>(name); }
  QRect OnPage(const QWidget& widget) const {
    return QRect(widget.mapTo(&page_, QPoint(0, 0)), widget.size());
  }

 private:
  QtEventLoop loop_;
  ChordPictures pictures_;
  Page page_;
};

/// The solution of a slot lies on the slot's mark.
inline bool MayCover(const Control& one, const Control& other) {
  return (one.name() == "erg" && other.name() == "ergebnis") ||
         (one.name() == "ergebnis" && other.name() == "erg");
}

/// An area is there to have others stand in it, and so is a control that the program uses as one.
inline bool StandsIn(const Shown& shown, const Binding& inner, const Binding& area) {
  const bool holds = dynamic_cast<const PlateWidget*>(&area.widget()) != nullptr ||
                     inner.control().container == &area.control();
  return holds && shown.OnPage(area.widget()).contains(shown.OnPage(inner.widget()));
}

inline void ExpectNothingCoversAnother(const Shown& shown) {
  const auto visible = shown.Visible();
  for (std::size_t i = 0; i < visible.size(); ++i) {
    for (std::size_t j = i + 1; j < visible.size(); ++j) {
      const Binding& one = *visible[i];
      const Binding& other = *visible[j];
      if (StandsIn(shown, one, other) || StandsIn(shown, other, one) ||
          MayCover(one.control(), other.control())) {
        continue;
      }
      EXPECT_FALSE(shown.OnPage(one.widget()).intersects(shown.OnPage(other.widget())))
          << one.control().Id() << " and " << other.control().Id();
    }
  }
}

inline void ExpectAllIsOnThePage(Shown& shown) {
  for (const Binding* binding : shown.Visible()) {
    EXPECT_TRUE(shown.page().rect().contains(shown.OnPage(binding->widget())))
        << binding->control().Id();
    EXPECT_FALSE(binding->widget().size().isEmpty()) << binding->control().Id();
  }
}

/// What is hidden has no caption; it is tried with that of its control.
inline void ExpectNoCaptionIsCut(Shown& shown) {
  EXPECT_TRUE(shown.page().TitleFits());
  for (const auto& binding : shown.page().bindings()) {
    const Control& control = binding->control();
    if (dynamic_cast<const Picture*>(&control) != nullptr) continue;
    const auto* const list = dynamic_cast<const ItemList*>(&control);
    const std::string caption = list != nullptr ? list->text() : control.caption;
    EXPECT_TRUE(binding->dressed().Fits(QString::fromStdString(caption)))
        << control.Id() << ": " << caption;
  }
}

/// Type that is high or bold enough may stand out less.
inline double LeastContrast(Dressed& dressed, const QWidget& widget) {
  constexpr double kSize = 24;
  constexpr double kSizeIfBold = 18.66;
  const QFont type = dressed.Type();
  const bool large = type.pixelSize() >= (type.bold() ? kSizeIfBold : kSize);
  return large || !widget.isEnabled() ? 3 : 4.5;
}

/// By the solution, as the mark of a slot is in the end.
inline bool IsCovered(Shown& shown, const Binding& binding) {
  if (binding.control().name() != "ergebnis") return false;
  const QWidget* const solution = shown.Find(QString("erg(%1)").arg(binding.control().index()));
  return solution != nullptr && solution->isVisibleTo(&shown.page());
}

inline void ExpectAllCanBeRead(Shown& shown) {
  for (const Binding* binding : shown.Visible()) {
    Dressed& dressed = binding->dressed();
    if (dressed.caption().isEmpty() || IsCovered(shown, *binding)) continue;
    EXPECT_GE(look::Contrast(dressed.Ink(), dressed.Ground()),
              LeastContrast(dressed, binding->widget()))
        << binding->control().Id() << ": " << dressed.caption().toStdString() << ", "
        << dressed.Ink().name().toStdString() << " on " << dressed.Ground().name().toStdString();
  }
}

inline void ExpectTheEndsOfAScaleAreWhole(Shown& shown) {
  for (const auto& binding : shown.page().bindings()) {
    const auto* const gauge = dynamic_cast<const GaugeWidget*>(&binding->widget());
    if (gauge == nullptr) continue;
    EXPECT_TRUE(gauge->EndsFit()) << binding->control().Id();
  }
}

inline void ExpectNoEntryIsCut(Shown& shown) {
  for (const auto& binding : shown.page().bindings()) {
    const auto* const list = dynamic_cast<const ListWidget*>(&binding->widget());
    if (list == nullptr) continue;
    EXPECT_TRUE(list->EntriesFit()) << binding->control().Id();
  }
}

/// Also in what is not shown now.
inline void ExpectNoWordIsMissing(const Form& form) {
  const auto expect = [](const std::string& text, const std::string& where) {
    EXPECT_EQ(text.find(TextLookup::kOhneWort), std::string::npos) << where << ": " << text;
  };
  expect(form.caption, form.name());
  for (const Control* control : form.controls()) {
    expect(control->caption, control->Id());
    expect(control->description, control->Id());
    const auto* const list = dynamic_cast<const ItemList*>(control);
    if (list == nullptr) continue;
    for (const ItemList::Entry& entry : list->entries()) expect(entry.text, control->Id());
  }
}

inline void ExpectWellLaidOut(Form& form,
                              const std::vector<QSize>& sizes = {kSmall, kLow, kNarrow, kLarge}) {
  ExpectNoWordIsMissing(form);
  for (const QSize& size : sizes) {
    Shown shown(form, size);
    ExpectAllIsOnThePage(shown);
    ExpectNothingCoversAnother(shown);
    ExpectNoCaptionIsCut(shown);
    ExpectNoEntryIsCut(shown);
    ExpectTheEndsOfAScaleAreWhole(shown);
  }
  for (const bool dark : {false, true}) {
    const ForcedPalette desktop(dark);
    Shown shown(form, kSmall);
    ExpectAllCanBeRead(shown);
  }
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRect>
#include <QWidget>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/controls.h"
#include "forms/layout.h"
#include "qt/kit/font_measure.h"
#include "qt/view/binder.h"
#include "qt/view/page_menu.h"

namespace vmod17 {

class QtEventLoop;

/// The least number of pixels of a unit: the smallest type, of 12 units, has 11 pixels then.
inline constexpr double kLeastFactor = 0.9;

/// One screen's widgets. It is made when the screen is first shown, since only then is it known
/// what the screen consists of.
class Page : public QWidget {
 public:
  Page(Form& form, QtEventLoop& loop, PictureSource& pictures, QWidget* parent);

  /// Shows what differs in the form, and finds the focus a new place where it lost its own.
  void Refresh();
  /// Puts everything in place for a size in pixels: the largest factor at which the canvas fits,
  /// but none at which type could no longer be read.
  void Arrange(const QSize& size);
  /// The least size at which nothing is cut off.
  QSize LeastSize() const;
  double factor() const { return style_.factor; }

  /// Gives the focus to where it was when the screen was last shown, or to its first control.
  void TakeFocus();
  /// A key that no control had a use for. Returns whether it means something here.
  bool HandleKey(const QKeyEvent& event);
  /// The right mouse button at a point of the page. Returns whether a menu belongs there.
  bool AskMenuAt(const QPoint& at) { return AskMenuOf(FrameAt(at), at); }
  /// Whether the focus is to be seen; a mouse press ends it, a key begins it.
  void SetKeyboard(bool keyboard);

  /// Draws the page on paper of this size, without the controls that are there to be worked. For a
  /// page that is never shown.
  void PrintOn(QPainter& painter, const QSize& paper);

  /// The form is about to be destroyed. The page goes on showing what it shows, and does nothing.
  void Release();

  bool TitleFits() const;
  const std::vector<std::unique_ptr<Binding>>& bindings() const { return bindings_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Build();
  void BindControl(Control& control);
  void NameAndKeys();
  void Place();
  void PlaceBackdrops();
  Frame* FrameAt(const QPoint& point) const;
  Frame* FrameWithFocus() const;
  bool AskMenuOf(Frame* frame, const QPoint& at);
  QPoint MenuPlace(const Control& control) const;
  QRect Pixels(const Rect& units) const;
  QRect PixelsOf(const Control& control) const { return Pixels(layout_.PlaceOf(control)); }
  void OrderTabs();
  std::vector<const Binding*> RowByRow(std::vector<const Binding*> bindings) const;
  void CollectTabs(const Control* container, std::vector<QWidget*>& order) const;
  void Deliver(const EventLoop::Handler& handler);
  bool MoveFocus(const Control& from, int key);
  const Binding* Nearest(const Binding& from, const std::vector<const Binding*>& among,
                         int key) const;
  Binding* BindingOf(const Control* control) const;
  Pressable* ReachableOf(const KeyBinding& key) const;
  bool CanFocus(const QWidget& widget) const;
  QWidget* Refuge() const;
  QWidget* RefugeIn(std::size_t i) const;
  void KeepFocus(QWidget* before);
  void RememberFocus(QWidget* focus);
  void PaintBanner(QPainter& painter) const;
  void PaintGround(QPainter& painter) const;
  void PaintCards(QPainter& painter) const;
  void PaintTitle(QPainter& painter) const;

  Form* form_;
  QtEventLoop& loop_;
  PageStyle style_;
  BindingSite site_;
  FontMeasure measure_;
  Layout layout_;
  QSize size_;
  struct Card {
    QRect rect;
    std::optional<Color> fill;
    bool operator==(const Card&) const = default;
  };
  std::vector<Card> cards_;
  std::vector<QRect> vacancies_;  // of frames that are hidden
  QRect title_place_;
  PageMenu menu_;
  QPoint menu_at_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unordered_map<const Control*, Binding*> by_control_;
  std::map<const OptionGroup*, QButtonGroup*> option_groups_;
  QWidget* last_focus_ = nullptr;
  std::map<std::size_t, std::size_t> last_in_refuge_;  // which of a refuge had the focus last
  std::string title_;
  std::optional<Color> ground_;
};

}  // namespace vmod17

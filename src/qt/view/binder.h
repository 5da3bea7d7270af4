// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "forms/controls.h"
#include "ports/event_loop.h"
#include "qt/kit/dressed.h"

class QButtonGroup;

namespace vmod17 {

/// What a binding needs of its page.
struct BindingSite {
  const PageStyle& style;
  /// Runs what a user's action asks for; does nothing once the form is gone.
  std::function<void(const EventLoop::Handler&)> deliver;
  /// Moves the focus from a widget as an arrow key, Home or End says, among controls of one array.
  std::function<bool(const Control& from, int key)> move_focus;
  /// Asks for the menu of a frame.
  std::function<void(Frame& frame)> ask_menu;
  /// The toolkit's group for the options of one group, which exclude each other.
  std::function<QButtonGroup*(const OptionGroup& group)> option_group;
};

/// Ties a control to its widget: a user's action reaches the control, and `Refresh` shows on the
/// widget what the control says, writing only what differs.
///
/// A control that is hidden, or stands in something hidden, may know what the user must not: the
/// widget has nothing of it then, in no text, picture or property, and raises no event.
class Binding {
 public:
  Binding(Control& control, QWidget& widget, Dressed& dressed);
  virtual ~Binding() = default;
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  Control& control() const { return control_; }
  QWidget& widget() const { return widget_; }
  Dressed& dressed() const { return dressed_; }
  /// The control whose caption names this one where it has no caption of its own, and describes it
  /// where it has one; null for none.
  void NameBy(const Control* other) { named_by_ = other; }
  /// The controls whose captions tell what the two ends of a scale mean.
  virtual void NameEnds(const Control* /*low*/, const Control* /*high*/) {}
  /// The key that presses it, for its tool tip.
  void SetKey(const QString& key) { key_ = key; }

  /// Takes everything off a widget whose control is hidden by now. To be called for all bindings of
  /// a page before the first is refreshed, since an area takes what stands in it out of sight.
  void Withdraw();
  /// Returns whether the control's place or visibility differs from the last time.
  bool Refresh();

 protected:
  /// Shows what the control's kind has beyond the common; called by `Refresh`.
  virtual void RefreshKind() {}
  /// Takes that off again.
  virtual void WithdrawKind() {}
  /// Kinds whose caption is not that of the control set it themselves.
  virtual bool OwnCaption() const { return false; }

 private:
  using SetPlace = std::array<std::optional<int>, 4>;

  void RefreshLook();
  void RefreshTexts();
  void WriteName(const std::string& name);
  void WriteDescription(const std::string& description);
  bool RefreshPlace();

  Control& control_;
  QWidget& widget_;
  Dressed& dressed_;
  const Control* named_by_ = nullptr;
  QString key_;

  std::optional<std::string> caption_;
  std::optional<std::string> name_;
  std::string description_;
  std::optional<Color> back_color_;
  std::optional<Color> fore_color_;
  bool withdrawn_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  SetPlace set_place_;
};

/// Makes the widget for a control, by the control's kind. Null for a kind that is never shown.
std::unique_ptr<Binding> Bind(Control& control, const Placement& place, const BindingSite& site,
                              QWidget* parent);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <utility>

#include "forms/color.h"
#include "forms/form.h"

namespace vmod17 {

/// What all controls share. Controls are members of their form and never move.
class Control {
 public:
  /// What a view has to know to show it. A new kind wants its widget in each view.
  enum class Kind {
    kLabel,
    kButton,
    kPanel,
    kPicture,
    kFrame,
    kOption,
    kItemList,
    kSlider,
    kGauge,
    kPopupMenu,
    kUnseen  ///< works by itself and is never shown
  };

  static constexpr int kNoIndex = -1;

  Control(Form& form, std::string name, int index = kNoIndex)
      : form_(form), name_(std::move(name)), index_(index) {
    form.controls_.push_back(this);
  }
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual Kind kind() const = 0;
  Form& form() const { return form_; }
  const std::string& name() const { return name_; }
  /// The place in the control array, or kNoIndex.
  int index() const { return index_; }
  /// Name and index as they are written: "jz_kl(3)".
  std::string Id() const {
    return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")";
  }

  /// True when the user can act on the control: it and all that it stands in is visible and
  /// enabled.
  bool Reachable() const {
    for (const Control* c = this; c != nullptr; c = c->container) {
      if (!c->visible || !c->enabled) return false;
    }
    return form_.loaded() && form_.visible && form_.enabled;
  }

  /// Ends what the control does by itself. Called when its form is put out of reach for good.
  virtual void OutOfReach() {}

  std::string caption;
  std::string spoken;       ///< what a reader of the screen says in place of the caption
  std::string description;  ///< what a reader of the screen says beside the name; may stay empty
  std::string tag;
  bool visible = true;
  bool enabled = true;
  std::optional<Color> back_color;  ///< none: the view's own
  std::optional<Color> fore_color;
  Control* container = nullptr;  ///< the frame it stands in; none: the form

  /// Place in the container and size, where a rule of the program sets them. What is not set is the
  /// view's to choose.
  std::optional<int> left, top, width, height;

 private:
  Form& form_;
  std::string name_;
  int index_;
};

class Label : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::kLabel; }
};

/// Shows a share in whole per cent.
class Gauge : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::kGauge; }
  int percent = 0;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/color.h"

namespace vmod17 {

class Control;
class TextMeasure;
struct Layout;
struct Size;

/// A screen: its controls in the order of their making, and what concerns the window as a whole.
/// Units of places and sizes are the pixels of a screen of 1024 by 768; a view may enlarge them.
class Form {
 public:
  enum class Pointer { kDefault, kHourglass };
  enum class WindowState { kNormal = 0, kMinimised = 1, kMaximised = 2 };

  explicit Form(std::string name) : name_(std::move(name)) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::vector<Control*>& controls() const { return controls_; }
  /// False once the screen has been unloaded. Nothing of it can be reached any more then.
  bool loaded() const { return loaded_; }

  /// The three events of a screen's life, and the wish of the window system to close it.
  virtual void Form_Load() {}
  virtual void Form_Resize() { window_state = WindowState::kMaximised; }
  virtual void Form_Unload() {}
  virtual void Form_Close() = 0;

  /// Where its controls stand on a page of this size, as they are now. One without a place is not
  /// shown.
  virtual Layout LayOut(Size page, const TextMeasure& measure) const;

  /// Has the user told in words what else only the eye would see: what a click was worth, what has
  /// moved where. It is spoken where a reader of the screen runs, behind what the same event has
  /// said before, and leaves nothing to be seen.
  void Say(std::string words) { said_.push_back(std::move(words)); }
  /// Takes what was said since the last time. It is the view that asks.
  std::vector<std::string> TakeSaid() { return std::exchange(said_, {}); }

  /// Puts the screen out of reach for good and runs `Form_Unload`.
  void Unload();

  std::string caption;
  bool visible = false;
  bool enabled = true;
  Pointer pointer = Pointer::kDefault;
  WindowState window_state = WindowState::kMaximised;
  std::optional<Color> back_color;  ///< none: the view's own
  bool listening = false;  ///< the user listens to what is played: nothing is spoken meanwhile

 private:
  friend class Control;
  std::string name_;
  std::vector<std::string> said_;
  std::vector<Control*> controls_;
  bool loaded_ = true;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "ports/event_loop.h"

// The controls of the screens, as plain values. A view reads them after each delivered event and at
// each yield, and shows what differs; a user's action comes back through `Press`, `Choose` and
// `Slide`, which do nothing for a control that cannot be reached. Code uses `Check`, `Select` and
// `Set`, which run the same handlers whether the control can be reached or not.

namespace vmod17 {

/// An RGB colour, each part 0 to 255.
struct Color {
  int red = 0;
  int green = 0;
  int blue = 0;
  bool operator==(const Color&) const = default;
};

constexpr Color Rgb(int red, int green, int blue) { return {red, green, blue}; }
/// A colour from its hexadecimal value in blue-green-red order.
constexpr Color Bgr(int value) { return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF}; }

namespace Colors {
inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);
inline constexpr Color kRed = Rgb(255, 0, 0);
inline constexpr Color kGrey = Rgb(192, 192, 192);
inline constexpr Color kYellow = Rgb(255, 255, 0);
inline constexpr Color kMagenta = Rgb(255, 0, 255);
}  // namespace Colors

/// Which ready-made picture a control shows.
struct PictureId {
  enum class Kind { kNone, kNotation, kSymbol, kTraining, kTest };
  Kind kind = Kind::kNone;
  int klang = 0;  ///< the Klang number of a kNotation or kSymbol, otherwise 0
  bool operator==(const PictureId&) const = default;
};

class Control;

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

/// What all controls share. Controls are members of their form and never move.
class Control {
 public:
  static constexpr int kNoIndex = -1;

  Control(Form& form, std::string name, int index = kNoIndex)
      : form_(form), name_(std::move(name)), index_(index) {
    form.controls_.push_back(this);
  }
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

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
};

/// How a control was judged when it was pressed as an answer.
struct AnswerMark {
  enum class Kind { kTick, kCross };
  Kind kind = Kind::kTick;
  int slot = 0;  ///< the question that was answered, from 1; 0 where there is only one
  bool operator==(const AnswerMark&) const = default;
};

/// A control that the user can press.
class Pressable : public Control {
 public:
  using Control::Control;
  std::function<void()> Click;

  int number = 0;                 ///< shown small beside what it shows; 0 for none
  std::vector<AnswerMark> marks;  ///< shown small, in the order of their making

  /// The user presses it. Returns whether it could be reached.
  bool Press() {
    if (!Reachable()) return false;
    if (Click) Click();
    return true;
  }
};

class Button : public Pressable {
 public:
  using Pressable::Pressable;
};

/// A raised area with a caption; with a handler it works as a button.
class Panel : public Pressable {
 public:
  using Pressable::Pressable;
};

class Picture : public Pressable {
 public:
  using Pressable::Pressable;
  PictureId image;
};

/// An area that holds other controls.
class Frame : public Control {
 public:
  using Control::Control;
  std::function<void()> MenuAsked;

  /// The user asks for the frame's menu, by the right mouse button or the menu key. A frame that is
  /// locked still has its menu. Returns whether there is one.
  bool AskMenu() {
    if (!MenuAsked || !visible || !form().visible || !form().enabled) return false;
    MenuAsked();
    return true;
  }
};

/// A menu with one entry that can carry a check mark.
class PopupMenu : public Control {
 public:
  using Control::Control;
  std::function<void()> Click;
  bool checked = false;
  Control* open_at = nullptr;  ///< where it is open; null while it is closed

  void OpenAt(Control& at) { open_at = &at; }
  /// The user closes the menu, with its entry or without.
  void Choose() {
    if (open_at == nullptr) return;
    open_at = nullptr;
    if (Click) Click();
  }
  void Dismiss() { open_at = nullptr; }
};

/// Shows a share in whole per cent.
class Gauge : public Control {
 public:
  using Control::Control;
  int percent = 0;
};

class OptionGroup;

/// One option of an `OptionGroup`.
class Option : public Control {
 public:
  Option(Form& form, const std::string& name, int index, OptionGroup& group)
      : Control(form, name, index), group_(group) {}

  /// The group through which it is checked.
  OptionGroup& group() const { return group_; }

 private:
  OptionGroup& group_;
};

/// Options of one name of which one at the most is checked.
class OptionGroup {
 public:
  /// Options `first` to `last`; none is checked if `checked` is none of them.
  OptionGroup(Form& form, const std::string& name, int first, int last, int checked)
      : first_(first), chosen_(checked) {
    for (int i = first; i <= last; ++i) {
      options_.push_back(std::make_unique<Option>(form, name, i, *this));
    }
  }
  OptionGroup(const OptionGroup&) = delete;
  OptionGroup& operator=(const OptionGroup&) = delete;

  std::function<void(int index)> Click;
  /// What the handler sets; none if it sets no such value. A screen that is opened anew may find
  /// another value in it than the option that it shows.
  const int* field = nullptr;

  Option& operator[](int index) const {
    if (index < first() || index > last()) {
      throw RunTimeError(ErrorNumber::kNoSuchElement, "no option " + std::to_string(index),
                         "vmod17.OptionGroup");
    }
    return *options_[index - first_];
  }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(options_.size()) - 1; }
  int chosen() const { return chosen_; }

  /// Checks an option and runs its handler, also if it stood checked. Errors: kNoSuchElement.
  void Check(int index) {
    (*this)[index];
    chosen_ = index;
    if (Click) Click(index);
  }
  /// The user checks an option; one that stands checked stays so without an event, unless its field
  /// says otherwise.
  bool Choose(int index) {
    if (!(*this)[index].Reachable()) return false;
    if (index != chosen_ || (field != nullptr && *field != index)) Check(index);
    return true;
  }

 private:
  int first_;
  int chosen_;
  std::vector<std::unique_ptr<Option>> options_;
};

/// Entries of which one at the most is selected.
class ItemList : public Control {
 public:
  enum class Look { kDropDown, kBox };
  /// Marks an entry whose value is its place in the list.
  static constexpr int kValueIsIndex = -999;

  struct Entry {
    std::string text;
    int item_data = 0;
    bool empty = false;  ///< stands where there is nothing to choose; `Step` goes past it
    bool operator==(const Entry&) const = default;
  };

  ItemList(Form& form, std::string name, int index = kNoIndex, Look look = Look::kDropDown)
      : Control(form, std::move(name), index), look_(look) {}

  std::function<void()> Click;

  Look look() const { return look_; }
  const std::vector<Entry>& entries() const { return entries_; }
  int count() const { return static_cast<int>(entries_.size()); }
  /// The selected entry, from 0; -1 for none.
  int list_index() const { return list_index_; }
  /// The text of the selected entry, or nothing.
  std::string text() const { return list_index_ < 0 ? "" : entries_[list_index_].text; }
  /// Entry `i`, from 0. Errors: kOutOfRange.
  const Entry& entry(int i) const {
    Need(i);
    return entries_[i];
  }

  void Clear() {
    entries_.clear();
    list_index_ = -1;
  }
  void Add(std::string text, int item_data) { entries_.push_back({std::move(text), item_data}); }
  void AddEmpty(std::string text, int item_data) {
    entries_.push_back({std::move(text), item_data, true});
  }
  /// Inserts an entry before entry `at`; the selection stays with its entry.
  void Insert(int at, Entry new_entry) {
    if (at != count()) Need(at);
    entries_.insert(entries_.begin() + at, std::move(new_entry));
    if (list_index_ >= at) ++list_index_;
  }
  /// Removes an entry; if it was selected, none is. Errors: kOutOfRange.
  void Remove(int at) {
    Need(at);
    entries_.erase(entries_.begin() + at);
    if (list_index_ == at) list_index_ = -1;
    if (list_index_ > at) --list_index_;
  }

  /// Selects an entry and runs the handler, also if it stood selected. Errors: kOutOfRange.
  void Select(int i) {
    Need(i);
    list_index_ = i;
    if (Click) Click();
  }
  /// The user selects an entry. Returns whether it could be reached.
  bool Choose(int i) {
    if (!Reachable() || i < 0 || i >= count()) return false;
    Select(i);
    return true;
  }
  /// The user goes on from the selected entry to the next one, `way` 1, or the one before, -1.
  /// Returns whether there is one and the list could be reached.
  bool Step(int way) {
    int i = list_index_ + way;
    while (i >= 0 && i < count() && entries_[i].empty) i += way;
    return Choose(i);
  }

 private:
  void Need(int i) const {
    if (i < 0 || i >= count()) {
      throw RunTimeError(ErrorNumber::kOutOfRange, Id() + " has no entry " + std::to_string(i),
                         "vmod17.ItemList");
    }
  }

  Look look_;
  std::vector<Entry> entries_;
  int list_index_ = -1;
};

/// A value that the user slides between two bounds.
class Slider : public Control {
 public:
  Slider(Form& form, std::string name, int low, int high)
      : Control(form, std::move(name)), low_(low), high_(high), value_(low) {}

  std::function<void()> Change;

  int low() const { return low_; }
  int high() const { return high_; }
  int value() const { return value_; }
  /// Sets the value, kept within the bounds, and runs the handler.
  void Set(int value) {
    value_ = value < low_ ? low_ : value > high_ ? high_ : value;
    if (Change) Change();
  }
  /// The user moves it. Returns whether it could be reached.
  bool Slide(int value) {
    if (!Reachable()) return false;
    Set(value);
    return true;
  }

 private:
  int low_;
  int high_;
  int value_;
};

/// The controls of one name, by index.
template <typename Kind>
class ControlArray {
 public:
  /// One control for each of `indexes`, which ascend from 0 or more; further arguments go to each.
  template <typename... Args>
  ControlArray(Form& form, const std::string& name, const std::vector<int>& indexes, Args... args)
      : indexes_(indexes), controls_(indexes.empty() ? 0 : indexes.back() + 1) {
    for (const int i : indexes) controls_[i] = std::make_unique<Kind>(form, name, i, args...);
  }
  /// One control for each index from `first` to `last`.
  template <typename... Args>
  ControlArray(Form& form, const std::string& name, int first, int last, Args... args)
      : ControlArray(form, name, Sequence(first, last), args...) {}

  const std::vector<int>& indexes() const { return indexes_; }
  int first() const { return indexes_.front(); }
  int last() const { return indexes_.back(); }
  /// Errors: RunTimeError kNoSuchElement.
  Kind& operator[](int index) const {
    if (index < 0 || index >= static_cast<int>(controls_.size()) || !controls_[index]) {
      throw RunTimeError(ErrorNumber::kNoSuchElement, "no control " + std::to_string(index),
                         "vmod17.ControlArray");
    }
    return *controls_[index];
  }

 private:
  static std::vector<int> Sequence(int first, int last) {
    std::vector<int> indexes;
    for (int i = first; i <= last; ++i) indexes.push_back(i);
    return indexes;
  }

  std::vector<int> indexes_;
  std::vector<std::unique_ptr<Kind>> controls_;  // by index; null where the array has a gap
};

/// A timer of a form. Its handler is delivered each time the interval has passed, as long as it is
/// armed; a form that is unloaded disarms its timers for good.
class Timer : public Control {
 public:
  Timer(Form& form, EventLoop& loop, std::string name, int interval_ms)
      : Control(form, std::move(name)), interval(interval_ms), loop_(loop) {
    visible = false;
    enabled = false;
  }
  ~Timer() override { Disable(); }

  std::function<void()> Fire;
  int interval;  ///< milliseconds; a change counts from the next `Enable`

  void Enable() {
    if (enabled || !form().loaded()) return;
    enabled = true;
    running_ = loop_.StartTimer(interval, EventLoop::Repeat::kAlways, [this] {
      if (enabled && Fire) Fire();
    });
  }
  void Disable() {
    if (enabled) loop_.StopTimer(running_);
    enabled = false;
  }
  void OutOfReach() override { Disable(); }

 private:
  EventLoop& loop_;
  int running_ = 0;
};

inline void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  visible = false;
  for (Control* control : controls_) control->OutOfReach();
  Form_Unload();
}

}  // namespace vmod17

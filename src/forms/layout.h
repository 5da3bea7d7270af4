// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

// Where the controls of a screen stand and how they are dressed, as plain values that a screen
// makes and a view follows. All lengths are units, the pixels of a screen of 1024 by 768; places
// are counted from the page's upper left corner.

namespace vmod17 {

class Control;
class Pressable;
template <typename Kind>
class ControlArray;

struct Point {
  double x = 0;
  double y = 0;
};

struct Size {
  double width = 0;
  double height = 0;
};

/// How far something reaches beyond each edge of something else; below 0 it stands back.
struct Margins {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Rect&) const = default;
  double right() const { return left + width; }
  double bottom() const { return top + height; }
  Point center() const { return {left + width / 2, top + height / 2}; }
  bool empty() const { return width <= 0 || height <= 0; }

  /// The same with each edge moved by so much to the right or downwards.
  Rect Adjusted(double by_left, double by_top, double by_right, double by_bottom) const {
    return {left + by_left, top + by_top, width + by_right - by_left, height + by_bottom - by_top};
  }
  Rect Moved(const Point& by) const { return {left + by.x, top + by.y, width, height}; }
  Rect Grown(const Margins& by) const { return Adjusted(-by.left, -by.top, by.right, by.bottom); }
  /// The least that holds both; one that is empty counts nothing.
  Rect United(const Rect& other) const {
    if (empty()) return other;
    if (other.empty()) return *this;
    const double first = std::min(left, other.left);
    const double highest = std::min(top, other.top);
    return {first, highest, std::max(right(), other.right()) - first,
            std::max(bottom(), other.bottom()) - highest};
  }
};

/// Where a text stands in its place.
enum class Align {
  kLeft,  ///< half way down, as the next two
  kCenter,
  kRight,
  kTopLeft
};

/// How a control is dressed. What does not suit the control's kind is taken as kPlain.
enum class Dress {
  kPlain,      ///< a label without ground, a button like the others, a frame that is not seen
  kCard,       ///< a frame as a white card
  kSmallCard,  ///< the same with a lower head, which tells when the frame is locked
  kHeading,    ///< a label above its group
  kHint,       ///< a label that tells what is missing
  kQuiet,      ///< a label or button that steps back
  kPrimary,    ///< the button that leads on
  kLarge,      ///< a button to be hit quickly
  kTile,       ///< the picture of a tile, in the tile's frame
  kCell,       ///< a panel that can have the focus, to be read with what it holds
  kMark,       ///< a panel that shows a result
  kNotice,     ///< a frame that stands above all others
  kOnBanner    ///< a label on the coloured band
};

/// The head of a card, which shows the colour that the program gives it.
inline constexpr double kCardHead = 38;
inline constexpr double kSmallCardHead = 30;

/// The height of an entry in a list box.
inline constexpr double kListRow = 23;

struct Placement {
  Rect rect{};
  Dress dress = Dress::kPlain;
  double text = 14;  ///< height of the type
  Align align = Align::kLeft;
  bool bold = false;
  bool capital = false;  ///< heads something, and begins large whatever its word does elsewhere
  /// The control whose caption names or explains this one.
  const Control* named_by = nullptr;
  /// Of a gauge: the controls whose captions tell what 0 and 100 per cent mean.
  std::array<const Control*, 2> ends{};
  double head = 0;         ///< of a frame: where it begins what the program places in it
  double least_width = 0;  ///< about its middle, where the program's own is too narrow for words
};

/// A key, by the sign that it writes; a letter by its capital.
struct Key {
  enum class With { kNothing, kControl };
  static constexpr char kEscape = '\x1B';

  char sign = 0;
  With with = With::kNothing;
};

/// What a key does: it presses the first of the controls that can be reached, or closes the screen
/// as the window's cross does while one of them can be reached.
struct KeyBinding {
  Key key;
  std::vector<const Pressable*> controls;
  bool closes = false;
};

/// A card that the page draws behind a frame and that may reach beyond it.
struct Backdrop {
  const Control* control;  ///< shown while this one is
  Margins beyond{};
};

using Controls = std::vector<const Control*>;

struct Layout {
  Size canvas{1024, 660};   ///< the least room; the page may have more
  Size content{1016, 658};  ///< what of it must stay visible
  /// A control without a place is not shown.
  std::unordered_map<const Control*, Placement> places;
  std::vector<KeyBinding> keys;
  std::vector<Backdrop> backdrops;
  std::vector<Rect> sections;  ///< grounds on which what belongs together stands
  Controls vacancies;          ///< frames that leave a quiet empty place while they are hidden
  /// Where the keyboard's focus goes when its control cannot keep it, best first. Of controls that
  /// stand together it goes to the next one after that which had it last.
  std::vector<Controls> refuge;
  bool tab_by_column = false;  ///< Tab goes down the columns of frames, not along their rows
  const Pressable* default_control =
      nullptr;                           ///< pressed by Enter where the focus has no use for it
  const Control* focus_first = nullptr;  ///< has the focus when the screen is first shown

  /// The form's caption as a title; an empty place shows none.
  Rect title;
  double title_text = 22;
  Align title_align = Align::kCenter;
  Rect banner;  ///< a coloured band with an ornament, which the title stands on

  /// Where a control stands on the page: what the program sets counts before the layout's choice.
  Rect PlaceOf(const Control& control) const;
};

/// All controls of an array, in their order.
template <typename Kind>
Controls Each(const ControlArray<Kind>& array) {
  Controls each;
  for (const int i : array.indexes()) each.push_back(&array[i]);
  return each;
}

}  // namespace vmod17

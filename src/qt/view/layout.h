// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QKeySequence>
#include <QMarginsF>
#include <QRectF>
#include <QString>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "forms/controls.h"

// Where the controls of a screen stand and how they are dressed. All lengths are units, the pixels
// of a screen of 1024 by 768; places are counted from the page's upper left corner.

namespace vmod17 {

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

/// The least number of pixels of a unit: the smallest type, of 12 units, has 11 pixels then.
inline constexpr double kLeastFactor = 0.9;

struct Placement {
  QRectF rect;
  Dress dress = Dress::kPlain;
  double text = 14;  ///< height of the type
  Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
  bool bold = false;
  bool capital = false;    ///< heads something, and begins large whatever its word does elsewhere
  std::string named_by{};  ///< the control whose caption names or explains this one
  /// Of a gauge: the controls whose captions tell what 0 and 100 per cent mean.
  std::array<std::string, 2> ends{};
  double head = 0;         ///< of a frame: where it begins what the program places in it
  double least_width = 0;  ///< about its middle, where the program's own is too narrow for words
};

/// What a key does: it presses the first of the controls that can be reached, or closes the screen
/// as the window's cross does while one of them can be reached.
struct KeyBinding {
  QKeySequence keys;
  std::vector<std::string> controls;
  bool closes = false;
};

/// A card that the page draws behind a frame and that may reach beyond it.
struct Backdrop {
  std::string control;  ///< shown while this one is
  QMarginsF beyond;
};

struct Layout {
  QSizeF canvas{1024, 660};                 ///< the least room; the page may have more
  QSizeF content{1016, 658};                ///< what of it must stay visible
  std::map<std::string, Placement> places;  ///< by Id; a control without a place is not shown
  std::vector<KeyBinding> keys;
  std::vector<Backdrop> backdrops;
  std::vector<QRectF> sections;  ///< grounds on which what belongs together stands
  std::vector<std::string>
      vacancies;  ///< frames that leave a quiet empty place while they are hidden
  /// Where the keyboard's focus goes when its control cannot keep it, best first; a name without
  /// index stands for all of the array.
  std::vector<std::string> refuge;
  bool tab_by_column = false;   ///< Tab goes down the columns of frames, not along their rows
  std::string default_control;  ///< pressed by Enter where the focus has no use for it
  std::string focus_first;      ///< has the focus when the screen is first shown

  /// The form's caption as a title; an empty rect shows none.
  QRectF title;
  double title_text = 22;
  Qt::Alignment title_align = Qt::AlignCenter;
  QRectF banner;  ///< a coloured band with an ornament, which the title stands on
};

/// The layout of a form on a page of this size. Depends on the form's name and on what its controls
/// say of their sizes and of being visible. A form that is not known has no places.
Layout LayoutOf(const Form& form, const QSizeF& page);

/// The control of an Id; null when the form has none.
const Control* FindControl(const Form& form, const std::string& id);

/// "name(index)".
std::string IdOf(const std::string& name, int index);

Layout LayoutFirstScreen(const Form& form, const QSizeF& page);
Layout LayoutResults(const Form& form, const QSizeF& page);
Layout LayoutSettings(const Form& form, const QSizeF& page);
Layout LayoutWorksheet(const Form& form, const QSizeF& page);

}  // namespace vmod17

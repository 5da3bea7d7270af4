// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <vector>

#include "forms/layout.h"
#include "forms/text_measure.h"
#include "settings/settings_screen.h"

namespace vmod17 {
namespace {

using Screen = Einstellung1;
using Places = decltype(Layout::places);

constexpr double kTitle = 38;
constexpr double kOutlook = 20;  // the line that says what a run will be
constexpr double kMainButton = 52;
constexpr double kBar = kOutlook + 6 + kMainButton;
constexpr double kGap = 10;         // between two cards
constexpr double kRing = 7;         // of a section's ground around its cards
constexpr double kSectionGap = 10;  // between two sections

constexpr double kMargin = 10;  // within a card
constexpr double kHead = kSmallCardHead;
constexpr double kOption = 34;
constexpr double kRow = 36;
constexpr double kNote = 20;
constexpr double kMover = 26;  // the buttons between two lists

// The columns of cards. The first two tell what is asked, the next two how it sounds, the last one
// how a run goes: each of these stands on a ground of its own.
constexpr double kBasics = 170;
constexpr double kLists = 330;
constexpr double kLoudness = 146;
constexpr double kManner = 148;
constexpr double kRun = 138;

// All columns end at one height, and so do the cards beside each other.
constexpr double kTotal = 528;
constexpr double kOptions = kHead + 2 * kOption + 18;
constexpr double kLast = kTotal - kOptions;
constexpr double kLastButOne = kLast - kGap - kOptions;
constexpr double kKinds = 208;
constexpr double kSoundCheck = 160;
constexpr double kChords = kHead + 10 + kRow + 14;

struct Card {
  int frame;
  Rect rect;
};

constexpr double Sum(double a, double b) { return a + kGap + b; }

/// The cards of each section, in the order in which one decides; places count from the upper left
/// corner of the first.
std::vector<std::vector<Card>> Sections() {
  const double lists = Sum(kBasics, 0);
  const double sound = Sum(kBasics, kLists) + 2 * kRing + kSectionGap;
  const double manner = Sum(sound + kLoudness, 0);
  const double run = manner + kManner + 2 * kRing + kSectionGap;
  const double check = kLast - kGap - kSoundCheck;
  const double range = kChords + kGap;
  return {{{8, {0, 0, kBasics, kLastButOne - kGap - kOptions - kGap}},
           {3, {0, kLastButOne - kGap - kOptions, kBasics, kOptions}},
           {7, {0, kLastButOne, kBasics, kOptions}},
           {12, {0, kLast, kBasics, kOptions}},
           {11, {lists, 0, kLists, kKinds}},
           {2, {lists, kKinds + kGap, kLists, kTotal - kKinds - kGap}}},
          {{15, {sound, 0, Sum(kLoudness, kManner), check - kGap}},
           {14, {sound, check, kLoudness, kSoundCheck}},
           {10, {manner, check, kManner, kSoundCheck}},
           {17, {sound, kLast, kLoudness, kOptions}},
           {0, {manner, kLast, kManner, kOptions}}},
          {{4, {run, 0, kRun, kChords}},
           {1, {run, range, kRun, kLastButOne - kGap - range}},
           {9, {run, kLastButOne, kRun, kOptions}},
           {5, {run, kLast, kRun, kOptions}}}};
}

/// Puts the controls of a frame into its card.
class CardBuilder {
 public:
  CardBuilder(Layout& layout, const Screen& screen, const Card& card, const Point& corner)
      : places_(layout.places),
        card_(card.rect.Moved(corner)),
        next_(card_.top + kHead + 8),
        // The loudness has no caption but that of its slider.
        heading_(card.frame == 14 ? screen.lb14[0] : screen.geinst_lb[card.frame]) {
    places_[&screen.grdeinst[card.frame]] = {
        .rect = card_, .dress = Dress::kSmallCard, .named_by = &heading_};
    places_[&heading_] = {.rect = {Left(), card_.top + 3, Inside() - kLock, kHead - 4},
                          .dress = Dress::kHeading,
                          .text = 14,
                          .bold = true,
                          .capital = true};
  }

  void Options(const OptionGroup& group) { Options(group, Inside()); }
  void Options(const OptionGroup& group, double width) {
    for (int i = group.first(); i <= group.last(); ++i) {
      places_[&group[i]] = {.rect = {Left() - 5, next_, width + 10, kOption}, .text = 14};
      next_ += kOption;
    }
  }
  void List(const ItemList& list) { List(list, heading_); }
  /// With room for two lines.
  void LongList(const ItemList& list) {
    List(list, heading_);
    constexpr double kSecondLine = 14;
    places_[&list].rect.height = kRow + kSecondLine;
    next_ += kSecondLine;
  }
  void NamedList(const Label& label, const ItemList& list) {
    next_ += 6;
    Note(label, Left(), Inside());
    next_ += kNote;
    List(list, label);
  }
  /// Two lists with their buttons between them, and the hint under the second one.
  void ListPair(const ControlArray<ItemList>& lists, const ControlArray<Label>& labels,
                const ControlArray<Button>& buttons, int entries) {
    const double width = (Inside() - kMover - 8) / 2;
    const double height = entries * kListRow + 4;
    const double top = next_ + kNote;
    for (const int i : lists.indexes()) {
      const double left = i == 0 ? Left() : card_.right() - kMargin - width;
      Note(labels[i], left, width);
      places_[&lists[i]] = {.rect = {left, top, width, height}, .text = 12};
      places_[&buttons[i]] = {
          .rect = {Left() + width + 4, top + height / 2 - 38 + i * 40, kMover, 36},
          .text = 18,
          .align = Align::kCenter};
    }
    places_[&labels[2]] = {
        .rect = {card_.right() - kMargin - width, top + height + 3, width, kNote},
        .dress = Dress::kHint,
        .text = 14,
        .bold = true};
  }
  void Groups(const Screen& screen) {
    Note(screen.lb2[3], Left(), Inside());
    next_ += kNote + 4;
    ListPair(screen.grplst, screen.lb2, screen.grp_alle, 8);
  }
  void Loudness(const Screen& screen) {
    constexpr double kNumber = 30;
    places_[&screen.HSliderVolume] = {.rect = {Left() - 4, next_ + 4, Inside() - kNumber, kRow},
                                      .named_by = &heading_};
    places_[&screen.lb14[1]] = {.rect = {Left() + Inside() - kNumber, next_ + 4, kNumber, kRow},
                                .text = 14,
                                .align = Align::kRight};
    places_[&screen.klang_contr] = {.rect = {Left(), card_.bottom() - 16 - 44, Inside(), 44},
                                    .text = 14,
                                    .align = Align::kCenter};
  }
  void Timbre(const Screen& screen) {
    const double half = (Inside() - 8) / 2;
    const double right = Left() + half + 8;
    places_[&screen.Channel_Combo] = {
        .rect = {right, next_ + 2, half, kRow}, .text = 14, .named_by = &screen.lb15[2]};
    Note(screen.lb15[2], right, half, next_ + 2 + kRow + 4);
    Options(screen.kl_farb, half);
    next_ += 8;
    List(screen.ComboPatch);
    next_ += 12;
    constexpr double kUnit = 44;
    const double label = 62;
    places_[&screen.lb15[0]] = {.rect = {Left(), next_, label, kRow}, .text = 14};
    places_[&screen.lb15[1]] = {.rect = {Left() + Inside() - kUnit + 6, next_, kUnit - 6, kRow},
                                .text = 14};
    places_[&screen.temp_Combo] = {.rect = {Left() + label, next_, Inside() - label - kUnit, kRow},
                                   .text = 14,
                                   .named_by = &screen.lb15[0]};
  }

 private:
  static constexpr double kLock = 15;  // room for the sign of a locked card

  double Left() const { return card_.left + kMargin; }
  double Inside() const { return card_.width - 2 * kMargin; }
  void List(const ItemList& list, const Label& name) {
    places_[&list] = {.rect = {Left(), next_ + 2, Inside(), kRow}, .text = 14, .named_by = &name};
    next_ += kRow + 6;
  }
  void Note(const Label& note, double left, double width) { Note(note, left, width, next_); }
  void Note(const Label& note, double left, double width, double top) {
    places_[&note] = {.rect = {left, top, width, kNote}, .dress = Dress::kQuiet, .text = 13};
  }

  Places& places_;
  Rect card_;
  double next_;
  const Label& heading_;
};

void FillCard(CardBuilder& card, const Screen& screen, int frame) {
  switch (frame) {
    case 0:
      return card.Options(screen.frequenz);
    case 1:
      card.List(screen.oktav_cmb);
      return card.NamedList(screen.lb1, screen.Combo_tonraum);
    case 2:
      return card.Groups(screen);
    case 3:
      return card.Options(screen.akk_grp);
    case 4:
      return card.List(screen.akkzahl_cmb);
    case 5:
      return card.Options(screen.abfrage);
    case 7:
      return card.Options(screen.aus_w);
    case 8:
      card.LongList(screen.training_Combo);
      return card.List(screen.prfnr_Comb);
    case 9:
      return card.Options(screen.Tonart);
    case 10:
      card.LongList(screen.arpeg_cmb);
      return card.NamedList(screen.lb10, screen.cmb_arpTmp);
    case 11:
      return card.ListPair(screen.klanglst, screen.lb11, screen.klang_alle, 5);
    case 12:
      return card.Options(screen.akk_anzg);
    case 14:
      return card.Loudness(screen);
    case 15:
      return card.Timbre(screen);
    case 17:
      return card.Options(screen.betonung);
    default:
      return;
  }
}

void FillCards(Layout& layout, const Screen& screen, const Point& corner) {
  for (const std::vector<Card>& section : Sections()) {
    Rect ground;
    for (const Card& card : section) {
      CardBuilder builder(layout, screen, card, corner);
      FillCard(builder, screen, card.frame);
      ground = ground.United(card.rect);
    }
    layout.sections.push_back(ground.Moved(corner).Grown({kRing, kRing, kRing, kRing}));
  }
}

/// All headings in one size, the largest at which each stands in its line.
void SetHeadings(Places& places, const TextMeasure& measure) {
  constexpr double kLargest = 14;
  constexpr double kSmallest = 11;
  double type = kLargest;
  for (const auto& [label, place] : places) {
    if (place.dress != Dress::kHeading) continue;
    const auto too_wide = [&measure, &type, label = label, room = place.rect.width * 0.97] {
      return measure.Width(label->caption, type, Weight::kBold) > room;
    };
    while (type > kSmallest && too_wide()) type -= 1;
  }
  for (auto& [label, place] : places) {
    if (place.dress == Dress::kHeading) place.text = type;
  }
}

void FillBar(Layout& layout, const Screen& screen, const Rect& bar) {
  layout.places[&screen.ausblick] = {
      .rect = {bar.left + kRing, bar.top + 4, bar.width - 2 * kRing, kOutlook}, .text = 14};
  const double middle = bar.bottom() - kMainButton / 2;
  const auto place = [&](const Button& button, double left, double width, double height,
                         Dress dress, double text) {
    layout.places[&button] = {.rect = {left, middle - height / 2, width, height},
                              .dress = dress,
                              .text = text,
                              .align = Align::kCenter,
                              .bold = dress == Dress::kPrimary};
  };
  const double right = bar.right();
  place(screen.cmdZurueck, bar.left, 140, 46, Dress::kPlain, 16);
  place(screen.cmdHilfe, bar.left + 156, 44, 44, Dress::kQuiet, 20);
  place(screen.cmdOptionRead, right - 260 - 24 - 210 - 12 - 150, 150, 40, Dress::kQuiet, 14);
  place(screen.cmdOptionSave, right - 260 - 24 - 210, 210, 40, Dress::kQuiet, 14);
  place(screen.cmdOK, right - 260, 260, kMainButton, Dress::kPrimary, 22);
}

}  // namespace

Layout Einstellung1::LayOut(Size page, const TextMeasure& measure) const {
  Layout layout;
  layout.canvas.height = 672;  // some air above and below
  const Rect last = Sections().back().back().rect;
  const double width = last.right() + 2 * kRing;
  const double height = kTitle + kTotal + 2 * kRing + kBar;
  const double x = (page.width - width) / 2;
  const double y = (page.height - height) / 2;

  layout.title = {x + kRing, y, width - 2 * kRing, kTitle - 8};
  layout.title_align = Align::kLeft;
  FillCards(layout, *this, {x + kRing, y + kTitle + kRing});
  FillBar(layout, *this, {x, y + height - kBar, width, kBar});
  layout.places[&aktionsbox] = {.rect = {x, y + kTitle, width, height - kTitle}};
  SetHeadings(layout.places, measure);
  layout.vacancies = {&grdeinst[2], &grdeinst[11], &grdeinst[12]};

  layout.tab_by_column = true;
  layout.default_control = &cmdOK;
  layout.focus_first = &cmdOK;
  layout.refuge = {{&cmdOK}, {&HSliderVolume}, {&temp_Combo}, {&cmdZurueck}};
  return layout;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "qt/kit/look.h"
#include "qt/view/layout.h"

namespace vmod17 {
namespace {

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
  QRectF rect;
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
  CardBuilder(Layout& layout, const Card& card, const QPointF& corner)
      : layout_(layout), card_(card.rect.translated(corner)), next_(card_.top() + kHead + 8) {
    // The loudness has no caption but that of its slider.
    heading_ = card.frame == 14 ? "lb14(0)" : IdOf("geinst_lb", card.frame);
    layout_.places[IdOf("grdeinst", card.frame)] = {
        .rect = card_, .dress = Dress::kSmallCard, .named_by = heading_};
    layout_.places[heading_] = {
        .rect = QRectF(Left(), card_.top() + 3, Inside() - kLock, kHead - 4),
        .dress = Dress::kHeading,
        .text = 14,
        .bold = true,
        .capital = true};
  }

  void Options(const std::string& name) { Options(name, Inside()); }
  void Options(const std::string& name, double width) {
    for (int i = 0; i < 2; ++i) {
      layout_.places[IdOf(name, i)] = {.rect = QRectF(Left() - 5, next_, width + 10, kOption),
                                       .text = 14};
      next_ += kOption;
    }
  }
  void List(const std::string& id) { List(id, heading_); }
  /// With room for two lines.
  void LongList(const std::string& id) {
    List(id, heading_);
    constexpr double kSecondLine = 14;
    layout_.places[id].rect.setHeight(kRow + kSecondLine);
    next_ += kSecondLine;
  }
  void NamedList(const std::string& label, const std::string& id) {
    next_ += 6;
    Note(label, Left(), Inside());
    next_ += kNote;
    List(id, label);
  }
  /// Two lists with their buttons between them, and the hint under the second one.
  void ListPair(const std::string& lists, const std::string& labels, const std::string& buttons,
                int entries) {
    const double width = (Inside() - kMover - 8) / 2;
    const double height = entries * kListRow + 4;
    const double top = next_ + kNote;
    for (int i = 0; i < 2; ++i) {
      const double left = i == 0 ? Left() : card_.right() - kMargin - width;
      Note(IdOf(labels, i), left, width);
      layout_.places[IdOf(lists, i)] = {.rect = QRectF(left, top, width, height), .text = 12};
      layout_.places[IdOf(buttons, i)] = {
          .rect = QRectF(Left() + width + 4, top + height / 2 - 38 + i * 40, kMover, 36),
          .text = 18,
          .align = Qt::AlignCenter};
    }
    layout_.places[IdOf(labels, 2)] = {
        .rect = QRectF(card_.right() - kMargin - width, top + height + 3, width, kNote),
        .dress = Dress::kHint,
        .text = 14,
        .bold = true};
  }
  void Groups() {
    Note("lb2(3)", Left(), Inside());
    next_ += kNote + 4;
    ListPair("grplst", "lb2", "grp_alle", 8);
  }
  void Loudness() {
    constexpr double kNumber = 30;
    layout_.places["HSliderVolume"] = {
        .rect = QRectF(Left() - 4, next_ + 4, Inside() - kNumber, kRow), .named_by = heading_};
    layout_.places["lb14(1)"] = {
        .rect = QRectF(Left() + Inside() - kNumber, next_ + 4, kNumber, kRow),
        .text = 14,
        .align = Qt::AlignRight | Qt::AlignVCenter};
    layout_.places["klang_contr"] = {.rect = QRectF(Left(), card_.bottom() - 16 - 44, Inside(), 44),
                                     .text = 14,
                                     .align = Qt::AlignCenter};
  }
  void Timbre() {
    const double half = (Inside() - 8) / 2;
    const double right = Left() + half + 8;
    layout_.places["Channel_Combo"] = {
        .rect = QRectF(right, next_ + 2, half, kRow), .text = 14, .named_by = "lb15(2)"};
    Note("lb15(2)", right, half, next_ + 2 + kRow + 4);
    Options("kl_farb", half);
    next_ += 8;
    List("ComboPatch");
    next_ += 12;
    constexpr double kUnit = 44;
    const double label = 62;
    layout_.places["lb15(0)"] = {.rect = QRectF(Left(), next_, label, kRow), .text = 14};
    layout_.places["lb15(1)"] = {
        .rect = QRectF(Left() + Inside() - kUnit + 6, next_, kUnit - 6, kRow), .text = 14};
    layout_.places["temp_Combo"] = {
        .rect = QRectF(Left() + label, next_, Inside() - label - kUnit, kRow),
        .text = 14,
        .named_by = "lb15(0)"};
  }

 private:
  static constexpr double kLock = 15;  // room for the sign of a locked card

  double Left() const { return card_.left() + kMargin; }
  double Inside() const { return card_.width() - 2 * kMargin; }
  void List(const std::string& id, const std::string& name) {
    layout_.places[id] = {
        .rect = QRectF(Left(), next_ + 2, Inside(), kRow), .text = 14, .named_by = name};
    next_ += kRow + 6;
  }
  void Note(const std::string& id, double left, double width) { Note(id, left, width, next_); }
  void Note(const std::string& id, double left, double width, double top) {
    layout_.places[id] = {
        .rect = QRectF(left, top, width, kNote), .dress = Dress::kQuiet, .text = 13};
  }

  Layout& layout_;
  QRectF card_;
  double next_;
  std::string heading_;
};

/// The option groups that fill a card alone, by frame.
const std::map<int, std::string>& OptionCards() {
  static const std::map<int, std::string> cards = {
      {0, "frequenz"}, {3, "akk_grp"},   {5, "abfrage"},  {7, "aus_w"},
      {9, "Tonart"},   {12, "akk_anzg"}, {17, "betonung"}};
  return cards;
}

void FillCard(CardBuilder& card, int frame) {
  if (const auto options = OptionCards().find(frame); options != OptionCards().end()) {
    return card.Options(options->second);
  }
  switch (frame) {
    case 1:
      card.List("oktav_cmb");
      return card.NamedList("lb1", "Combo_tonraum");
    case 2:
      return card.Groups();
    case 4:
      return card.List("akkzahl_cmb");
    case 8:
      card.LongList("training_Combo");
      return card.List("prfnr_Comb");
    case 10:
      card.LongList("arpeg_cmb");
      return card.NamedList("lb10", "cmb_arpTmp");
    case 11:
      return card.ListPair("klanglst", "lb11", "klang_alle", 5);
    case 14:
      return card.Loudness();
    case 15:
      return card.Timbre();
    default:
      return;
  }
}

void FillCards(Layout& layout, const QPointF& corner) {
  for (const std::vector<Card>& section : Sections()) {
    QRectF ground;
    for (const Card& card : section) {
      CardBuilder builder(layout, card, corner);
      FillCard(builder, card.frame);
      ground |= card.rect;
    }
    layout.sections.push_back(ground.translated(corner).adjusted(-kRing, -kRing, kRing, kRing));
  }
}

/// All headings in one size, the largest at which each stands in its line.
void SetHeadings(Layout& layout, const Form& form) {
  constexpr double kLargest = 14;
  constexpr double kSmallest = 11;
  double size = kLargest;
  for (const auto& [id, place] : layout.places) {
    const Control* const label = FindControl(form, id);
    if (place.dress != Dress::kHeading || label == nullptr) continue;
    const QString text = QString::fromStdString(label->caption).trimmed();
    const auto too_wide = [&] {
      const QFontMetricsF metrics(look::Type(size, look::Weight::kBold));
      return metrics.horizontalAdvance(text) > place.rect.width() * 0.97;
    };
    while (size > kSmallest && too_wide()) size -= 1;
  }
  for (auto& [id, place] : layout.places) {
    if (place.dress == Dress::kHeading) place.text = size;
  }
}

void FillBar(Layout& layout, const QRectF& bar) {
  layout.places["ausblick"] = {
      .rect = QRectF(bar.left() + kRing, bar.top() + 4, bar.width() - 2 * kRing, kOutlook),
      .text = 14};
  const double middle = bar.bottom() - kMainButton / 2;
  const auto button = [&](const std::string& id, double left, double width, double height,
                          Dress dress, double text) {
    layout.places[id] = {.rect = QRectF(left, middle - height / 2, width, height),
                         .dress = dress,
                         .text = text,
                         .align = Qt::AlignCenter,
                         .bold = dress == Dress::kPrimary};
  };
  button("cmdZurueck", bar.left(), 140, 46, Dress::kPlain, 16);
  button("cmdHilfe", bar.left() + 156, 44, 44, Dress::kQuiet, 20);
  button("cmdOptionRead", bar.right() - 260 - 24 - 210 - 12 - 150, 150, 40, Dress::kQuiet, 14);
  button("cmdOptionSave", bar.right() - 260 - 24 - 210, 210, 40, Dress::kQuiet, 14);
  button("cmdOK", bar.right() - 260, 260, kMainButton, Dress::kPrimary, 22);
}

}  // namespace

Layout LayoutSettings(const Form& form, const QSizeF& page) {
  Layout layout;
  layout.canvas.setHeight(672);  // some air above and below
  const QRectF last = Sections().back().back().rect;
  const double width = last.right() + 2 * kRing;
  const double height = kTitle + kTotal + 2 * kRing + kBar;
  const double x = (page.width() - width) / 2;
  const double y = (page.height() - height) / 2;

  layout.title = QRectF(x + kRing, y, width - 2 * kRing, kTitle - 8);
  layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;
  FillCards(layout, QPointF(x + kRing, y + kTitle + kRing));
  const QRectF bar(x, y + height - kBar, width, kBar);
  FillBar(layout, bar);
  layout.places["aktionsbox"] = {.rect = QRectF(x, y + kTitle, width, height - kTitle)};
  SetHeadings(layout, form);
  layout.vacancies = {"grdeinst(2)", "grdeinst(11)", "grdeinst(12)"};

  layout.tab_by_column = true;
  layout.default_control = "cmdOK";
  layout.focus_first = "cmdOK";
  layout.refuge = {"cmdOK", "HSliderVolume", "temp_Combo", "cmdZurueck"};
  return layout;
}

}  // namespace vmod17

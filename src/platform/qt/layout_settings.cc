// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <set>
#include <vector>

#include "platform/qt/layout.h"
#include "platform/qt/look.h"

namespace vmod17 {
namespace {

constexpr double kTitle = 56;
constexpr double kBar = 84;
constexpr double kGap = 14;
constexpr double kColumnGap = 16;
constexpr double kWidest = 360;  // of a column
constexpr double kContent = 1000;

constexpr double kMargin = 18;  // within a frame
constexpr double kHeading = 22;
constexpr double kRow = 34;
constexpr double kRowStep = 42;
constexpr double kFirstRow = kCardHead + 10;
constexpr double kLists = 116;

// What the program does not offer yet. Its place is planned, so that the rest need not move.
const std::set<std::string> kNichtAngeboten = {
    "grdeinst(2)",   "grdeinst(3)", "grdeinst(7)", "grdeinst(8)",   "grdeinst(11)", "grdeinst(14)",
    "geinst_lb(15)", "kl_farb(0)",  "kl_farb(1)",  "Channel_Combo", "ComboPatch",   "lb15(2)"};

bool Offered(const std::string& id) { return !kNichtAngeboten.contains(id); }

// The frames by column, in the order in which one decides: what is to be named and out of what, how
// it sounds, how a run goes.
const std::vector<std::vector<int>> kColumns = {
    {8, 3, 7, 12}, {11, 2}, {15, 14, 10, 17, 0}, {4, 1, 9, 5}};

/// Puts the controls of a frame into its rows.
class FrameBuilder {
 public:
  FrameBuilder(Layout& layout, int frame, double x, double y, double width)
      : layout_(layout), frame_(frame), x_(x), y_(y), width_(width), next_(y + kFirstRow) {
    Heading(IdOf("geinst_lb", frame));
  }
  /// Enters the frame itself. Returns where it ends.
  double Close() {
    layout_.places[IdOf("grdeinst", frame_)] = {
        .rect = QRectF(x_, y_, width_, next_ + 6 - y_), .look = Look::kCard, .named_by = heading_};
    return next_ + 6;
  }

  void Heading(const std::string& id) {
    heading_ = id;
    layout_.places[id] = {
        .rect = QRectF(Left(), y_ + (kCardHead - kHeading) / 2, Inside(), kHeading),
        .look = Look::kHeading,
        .text = 15,
        .bold = true};
  }
  void Options(const std::string& name) {
    const double half = Inside() / 2;
    for (int i = 0; i < 2; ++i) {
      layout_.places[IdOf(name, i)] = {.rect = QRectF(Left() + i * half, next_, half - 6, kRow),
                                       .text = 15};
    }
    next_ += kRowStep;
  }
  void List(const std::string& id) { Place(id, Left(), Inside(), heading_); }
  void NamedList(const std::string& label, const std::string& id) {
    const double side = Inside() * 0.38;
    Text(label, Left(), side - 8);
    Place(id, Left() + side, Inside() - side, label);
  }
  void ListWithUnit(const std::string& id, const std::string& unit) {
    constexpr double kUnit = 52;
    Text(unit, Left() + Inside() - kUnit + 8, kUnit - 8);
    Place(id, Left(), Inside() - kUnit, heading_);
  }
  void TwoLists(const std::string& name, const std::string& labels) {
    const double half = (Inside() - 12) / 2;
    for (int i = 0; i < 2; ++i) {
      const double left = Left() + i * (half + 12);
      layout_.places[IdOf(labels, i)] = {
          .rect = QRectF(left, next_, half, 20), .look = Look::kQuiet, .text = 13};
      layout_.places[IdOf(name, i)] = {.rect = QRectF(left, next_ + 22, half, kLists),
                                       .named_by = IdOf(labels, i)};
    }
    next_ += 22 + kLists + 8;
  }
  void Hint(const std::string& id) {
    layout_.places[id] = {.rect = QRectF(Left(), next_, Inside(), 20), .text = 13, .bold = true};
    next_ += 24;
  }
  void Button(const std::string& id) {
    layout_.places[id] = {
        .rect = QRectF(Left(), next_, Inside(), kRow), .text = 15, .align = Qt::AlignCenter};
    next_ += kRowStep;
  }
  void Slider(const std::string& label, const std::string& id, const std::string& value) {
    const double side = Inside() * 0.34;
    Text(label, Left(), side - 8);
    Text(value, Left() + Inside() - 38, 38);
    Place(id, Left() + side, Inside() - side - 46, label);
  }

 private:
  double Left() const { return x_ + kMargin; }
  double Inside() const { return width_ - 2 * kMargin; }
  void Text(const std::string& id, double left, double width) {
    layout_.places[id] = {.rect = QRectF(left, next_, width, kRow), .text = 15};
  }
  void Place(const std::string& id, double left, double width, const std::string& name) {
    layout_.places[id] = {.rect = QRectF(left, next_, width, kRow), .text = 15, .named_by = name};
    next_ += kRowStep;
  }

  Layout& layout_;
  int frame_;
  double x_, y_, width_, next_;
  std::string heading_;
};

void FillSound(FrameBuilder& builder) {
  if (!Offered("kl_farb(0)")) builder.Heading("lb15(0)");
  builder.ListWithUnit("temp_Combo", "lb15(1)");
  if (!Offered("kl_farb(0)")) return;
  builder.Options("kl_farb");
  builder.NamedList("lb15(2)", "Channel_Combo");
  builder.List("ComboPatch");
}

void FillFrame(FrameBuilder& builder, int frame) {
  switch (frame) {
    case 0:
      return builder.Options("frequenz");
    case 1:
      builder.List("oktav_cmb");
      return builder.NamedList("lb1", "Combo_tonraum");
    case 2:
      builder.Hint("lb2(3)");
      builder.TwoLists("grplst", "lb2");
      return builder.Hint("lb2(2)");
    case 3:
      return builder.Options("akk_grp");
    case 4:
      return builder.List("akkzahl_cmb");
    case 5:
      return builder.Options("abfrage");
    case 7:
      return builder.Options("aus_w");
    case 8:
      builder.List("training_Combo");
      return builder.List("prfnr_Comb");
    case 9:
      return builder.Options("Tonart");
    case 10:
      builder.List("arpeg_cmb");
      return builder.NamedList("lb10", "cmb_arpTmp");
    case 11:
      builder.TwoLists("klanglst", "lb11");
      return builder.Hint("lb11(2)");
    case 12:
      return builder.Options("akk_anzg");
    case 14:
      builder.Slider("lb14(0)", "HSliderVolume", "lb14(1)");
      return builder.Button("klang_contr");
    case 15:
      return FillSound(builder);
    case 17:
      return builder.Options("betonung");
    default:
      return;
  }
}

std::vector<std::vector<int>> OfferedColumns() {
  std::vector<std::vector<int>> columns;
  for (std::vector<int> column : kColumns) {
    std::erase_if(column, [](int frame) { return !Offered(IdOf("grdeinst", frame)); });
    if (!column.empty()) columns.push_back(column);
  }
  return columns;
}

/// The columns, from the upper left corner of the block. Returns its size.
QSizeF FillColumns(Layout& layout, const QPointF& corner) {
  const std::vector<std::vector<int>> columns = OfferedColumns();
  const auto count = static_cast<double>(columns.size());
  const double width = std::min(kWidest, (kContent - (count - 1) * kColumnGap) / count);
  double x = corner.x();
  double bottom = corner.y();
  for (const std::vector<int>& column : columns) {
    double y = corner.y();
    for (const int frame : column) {
      FrameBuilder builder(layout, frame, x, y, width);
      FillFrame(builder, frame);
      y = builder.Close() + kGap;
    }
    bottom = std::max(bottom, y - kGap);
    x += width + kColumnGap;
  }
  return QSizeF(x - kColumnGap - corner.x(), bottom - corner.y());
}

void FillBar(Layout& layout, const QRectF& bar) {
  const double middle = bar.center().y() + 8;
  layout.places["cmdZurueck"] = {
      .rect = QRectF(bar.left(), middle - 23, 140, 46), .text = 16, .align = Qt::AlignCenter};
  layout.places["cmdHilfe"] = {.rect = QRectF(bar.left() + 156, middle - 22, 44, 44),
                               .look = Look::kQuiet,
                               .text = 20,
                               .align = Qt::AlignCenter};
  layout.places["cmdOK"] = {.rect = QRectF(bar.right() - 220, middle - 27, 220, 54),
                            .look = Look::kPrimary,
                            .text = 20,
                            .align = Qt::AlignCenter,
                            .bold = true};
}

}  // namespace

Layout LayoutSettings(const Form&, const QSizeF& page) {
  Layout measured;
  const QSizeF columns = FillColumns(measured, QPointF(0, 0));
  const double height = kTitle + columns.height() + kBar;
  const double x = (page.width() - columns.width()) / 2;
  const double y = (page.height() - height) / 2;

  Layout layout;
  layout.title = QRectF(x, y, columns.width(), kTitle - 12);
  layout.title_color = look::kText;
  layout.title_align = Qt::AlignLeft | Qt::AlignVCenter;
  FillColumns(layout, QPointF(x, y + kTitle));
  const QRectF bar(x, y + kTitle + columns.height(), columns.width(), kBar);
  FillBar(layout, bar);
  layout.places["aktionsbox"] = {
      .rect = QRectF(x, y + kTitle, columns.width(), columns.height() + kBar)};
  std::erase_if(layout.places, [](const auto& place) { return !Offered(place.first); });

  layout.keys = {{QKeySequence(Qt::Key_Escape), {"cmdZurueck"}}};
  layout.tab_by_column = true;
  layout.default_control = "cmdOK";
  layout.focus_first = "cmdOK";
  layout.refuge = {"cmdOK", "temp_Combo", "cmdZurueck"};
  return layout;
}

}  // namespace vmod17

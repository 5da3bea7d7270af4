// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/widgets.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>

#include "qt/kit/signs.h"

namespace vmod17 {
namespace {

constexpr double kGaugeEnd = 84;  // height of the words at an end of the gauge
constexpr QSizeF kGaugeMark{52, 24};
constexpr double kNumberText = 11;  // of a tile's number
constexpr double kTileMark = 14;    // of a mark on a tile
constexpr double kLargeMark = 20;   // the same on a button

bool IsEnter(const QKeyEvent* event) {
  return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

/// Whether a key leads from one control of an array to another.
bool LeadsOn(const QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

std::optional<QColor> Optional(const std::optional<Color>& color) {
  if (!color) return std::nullopt;
  return look::ToQ(*color);
}

/// A picture with a place of its own has a white ground there; another stands on what is below it.
bool BringsItsWhite(Dress dress) { return dress == Dress::kMark || dress == Dress::kTile; }

/// A picture without its white, its black in another colour.
QImage InInk(const QPixmap& picture, const QColor& ink) {
  QImage drawn(picture.size(), QImage::Format_ARGB32_Premultiplied);
  drawn.setDevicePixelRatio(picture.devicePixelRatio());
  drawn.fill(ink);
  QImage share = picture.toImage().convertToFormat(QImage::Format_Grayscale8);
  share.invertPixels();
  drawn.setAlphaChannel(share);
  return drawn;
}

}  // namespace

// --- Dressed

Dressed::Dressed(QWidget& self, const PageStyle& style, const Placement& place)
    : self_(self), style_(style), place_(place) {
  QAccessible::installFactory(&MakeAccessible);  // more than once does no harm
}

void Dressed::SetCaption(const QString& caption) {
  caption_ = caption.trimmed();
  if (place_.capital && !caption_.isEmpty()) caption_[0] = caption_[0].toUpper();
  self_.update();
}

void Dressed::SetColors(const std::optional<Color>& back, const std::optional<Color>& fore) {
  back_ = Optional(back);
  fore_ = Optional(fore);
  self_.update();
}

look::Setting Dressed::SetInto(const QString& caption, const QSizeF& box) const {
  return look::SetText(caption, box, Px(place_.text),
                       place_.bold ? look::Weight::kBold : look::Weight::kNormal);
}

bool Dressed::Fits(const QString& caption) const {
  return caption.trimmed().isEmpty() || SetInto(caption.trimmed(), TextBox()).fits;
}

const look::Setting& Dressed::Set() {
  const QSizeF box = TextBox();
  const double pixels = Px(place_.text);
  if (set_pixels_ != pixels || set_box_ != box || set_caption_ != caption_) {
    setting_ = SetInto(caption_, box);
    set_pixels_ = pixels;
    set_box_ = box;
    set_caption_ = caption_;
  }
  return setting_;
}

QColor Dressed::GroundBelow() const {
  const auto* const frame = dynamic_cast<const PlateWidget*>(self_.parentWidget());
  return frame == nullptr ? colors().card : frame->GroundAt(self_.geometry().center());
}

QColor Dressed::InkOn(const QColor& ground, const QColor& usual) const {
  if (!self_.isEnabled()) return colors().disabled_text;
  // Where the program sets both, it knows how they go together.
  if (fore_) return back_ ? *fore_ : look::Readable(*fore_, ground);
  return look::IsReadable(usual, ground) ? usual : look::TextOn(ground);
}

// --- PressWidget

PressWidget::PressWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QAbstractButton(parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
}

void PressWidget::SetImage(const PictureId& image) {
  image_ = image;
  update();
}

void PressWidget::SetNumber(int number) {
  number_ = number;
  update();
}

void PressWidget::SetMarks(const std::vector<AnswerMark>& marks) {
  marks_ = marks;
  update();
}

QSizeF PressWidget::TextBox() const {
  const double side = place_.dress == Dress::kTile ? 4 : 20;
  return QSizeF(width() - Px(side), height() - Px(6));
}

QColor PressWidget::Ground() const {
  if (place_.dress == Dress::kTile) return back_.value_or(QColor(Qt::white));
  if (back_) return isDown() ? back_->darker(112) : underMouse() ? back_->darker(104) : *back_;
  if (!isEnabled()) return colors().disabled_fill;
  if (place_.dress == Dress::kPrimary) {
    return isDown() || underMouse() ? colors().accent_hover : colors().accent;
  }
  if (isDown()) return colors().pressed;
  return underMouse() ? colors().hover : colors().button;
}

QColor PressWidget::Edge() const {
  if (back_) return back_->darker(130);
  if (!isEnabled()) return colors().line;
  return place_.dress == Dress::kPrimary ? Ground() : colors().button_line;
}

QColor PressWidget::Ink() const {
  if (back_) return fore_.value_or(look::TextOn(*back_));
  if (place_.dress == Dress::kTile) return Qt::black;
  return InkOn(Ground(), place_.dress == Dress::kQuiet ? colors().accent : colors().text);
}

void PressWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (place_.dress == Dress::kTile) {
    PaintTile(painter);
  } else {
    PaintButton(painter);
  }
}

void PressWidget::PaintTile(QPainter& painter) {
  painter.fillRect(rect(), Ground());
  const QPixmap picture = style_.pictures.Get(image_, style_.factor, devicePixelRatioF());
  if (picture.isNull()) {
    look::DrawText(painter, QRectF(rect()), caption(), Set(), Ink(), Qt::AlignCenter);
  } else {
    const QSizeF size = picture.deviceIndependentSize();
    const QPoint corner(qRound((width() - size.width()) / 2),
                        qRound((height() - size.height()) / 2));
    // White of the picture takes the colour of the ground, black stays black.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawPixmap(corner, picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  PaintNumber(painter);
  if (isEnabled() && (isDown() || underMouse())) {
    painter.fillRect(rect(), QColor(0x2B, 0x5C, 0xB8, isDown() ? 60 : 22));
  }
  PaintMarks(painter);
  if (ShowsFocus()) look::DrawFocusRing(painter, QRectF(rect()), colors(), Px(2), style_.factor);
}

/// In the corner that the pictures leave free.
void PressWidget::PaintNumber(QPainter& painter) {
  if (number_ == 0) return;
  const QRectF box = QRectF(rect()).adjusted(Px(3), 0, 0, -Px(1));
  painter.setFont(
      look::Type(std::max(Px(kNumberText), look::kSmallestPixels), look::Weight::kNormal));
  painter.setPen(Ink());
  painter.drawText(box, Qt::AlignLeft | Qt::AlignBottom, QString::number(number_));
}

/// From the lower right corner upwards, and further to the left when the column is full.
void PressWidget::PaintMarks(QPainter& painter) {
  const bool tile = place_.dress == Dress::kTile;
  const double height = Px(tile ? kTileMark : kLargeMark);
  const double gap = Px(1);
  const double margin = Px(tile ? 2 : 8);
  double right = width() - margin;
  double bottom = this->height() - margin;
  for (const AnswerMark& mark : marks_) {
    const double wide = mark.slot == 0 ? height : 1.7 * height;
    if (bottom - height < 0) {
      right -= wide + gap;
      bottom = this->height() - margin;
    }
    DrawAnswerMark(painter, QRectF(right - wide, bottom - height, wide, height), mark);
    bottom -= height + gap;
  }
}

void PressWidget::PaintButton(QPainter& painter) {
  const QRectF box(rect());
  const bool round = place_.dress == Dress::kQuiet;
  const double radius = round ? box.height() / 2 : Px(look::kRadius);
  look::DrawPlate(painter, box, Ground(), Edge(), radius, Px(1.2));
  const QRectF inside = box.adjusted(Px(10), Px(3), -Px(10), -Px(3));
  if (image_.kind == PictureId::Kind::kNone) {
    look::DrawText(painter, inside, caption(), Set(), Ink(), place_.align);
  } else {
    DrawSign(painter, image_.kind, box, Ink());
  }
  PaintMarks(painter);
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), radius, style_.factor);
}

void PressWidget::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event)) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  if (LeadsOn(event)) {
    if (!move_focus || !move_focus(event->key())) event->ignore();
    return;
  }
  if (event->key() == Qt::Key_Escape) {  // the base class would only release a held button
    event->ignore();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void PressWidget::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void PressWidget::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

// --- TextWidget

TextWidget::TextWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QLabel(parent), Dressed(*this, style, place) {
  setTextFormat(Qt::PlainText);
}

void TextWidget::SetImage(const PictureId& image) {
  image_ = image;
  update();
}

QSizeF TextWidget::TextBox() const {
  const double side = place_.dress == Dress::kMark || HasGround() ? 6 : 0;
  return QSizeF(width() - Px(side), height());
}

/// White under a plain label is that of the paper.
bool TextWidget::HasGround() const {
  return back_ && (place_.dress == Dress::kMark || *back_ != QColor(Qt::white));
}

QColor TextWidget::Ground() const {
  const bool is_picture =
      image_.kind == PictureId::Kind::kNotation || image_.kind == PictureId::Kind::kSymbol;
  if (is_picture) return BringsItsWhite(place_.dress) ? QColor(Qt::white) : GroundBelow();
  if (HasGround()) return *back_;
  if (place_.dress == Dress::kOnBanner) return look::kBannerEnd;
  return place_.dress == Dress::kPrimary ? colors().hover : GroundBelow();
}

QColor TextWidget::Ink() const {
  const QColor ground = Ground();
  const auto usual = [&](const QColor& color) { return InkOn(ground, color); };
  // What a locked frame is about is still to be read, and what is missing or came out as well.
  const auto always = [&](const QColor& color) {
    return isEnabled()                       ? usual(color)
           : look::IsReadable(color, ground) ? color
                                             : look::TextOn(ground);
  };
  switch (place_.dress) {
    case Dress::kMark:
      if (back_) return fore_.value_or(look::TextOn(ground));
      return usual(colors().text);
    case Dress::kHeading:
      return always(colors().text);
    case Dress::kHint:
      return always(colors().hint);
    case Dress::kPrimary:
      return usual(colors().accent);
    case Dress::kQuiet:
      return usual(colors().quiet_text);
    case Dress::kOnBanner:
      return Qt::white;
    default:
      return usual(colors().text);
  }
}

/// The largest drawing, brought to its size by the printer itself.
void TextWidget::PaintImageOnPaper(QPainter& painter) {
  const QImage drawn = style_.pictures.ForPaper(image_);
  const QSizeF size = PictureSource::SizeOnPaper(drawn) * style_.factor;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
  painter.drawImage(QRectF(corner, size), drawn);
}

void TextWidget::PaintImage(QPainter& painter) {
  if (style_.paper) return PaintImageOnPaper(painter);
  const QPixmap picture = style_.pictures.Get(image_, style_.factor, devicePixelRatioF());
  if (picture.isNull()) {
    DrawSign(painter, image_.kind, QRectF(rect()), colors().accent);
    if (place_.dress == Dress::kMark) painter.fillRect(rect(), Ground());
    look::DrawText(painter, QRectF(rect()), caption(), Set(), Ink(), place_.align);
    return;
  }
  const QSizeF size = picture.deviceIndependentSize();
  const double free = width() - size.width();
  const bool white = BringsItsWhite(place_.dress);
  const QPointF corner(white ? qRound(free / 2) : 0, qRound((height() - size.height()) / 2));
  if (!white) return painter.drawImage(corner, InInk(picture, Ink()));
  painter.fillRect(rect(), Qt::white);
  painter.drawPixmap(corner, picture);
}

void TextWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter);
}

void TextWidget::Paint(QPainter& painter) {
  if (image_.kind != PictureId::Kind::kNone) return PaintImage(painter);
  QRectF box(rect());
  if (HasGround()) {
    const bool mark = place_.dress == Dress::kMark;
    look::DrawPlate(painter, box, *back_, back_->darker(120), Px(mark ? 3 : look::kRadius), Px(1));
    box.adjust(Px(4), 0, -Px(4), 0);
  } else if (place_.dress == Dress::kPrimary) {
    look::DrawPlate(painter, box, colors().hover, colors().accent, Px(look::kRadius), Px(1.2));
    box.adjust(Px(4), 0, -Px(4), 0);
  }
  look::DrawText(painter, box, caption(), Set(), Ink(), place_.align);
}

// --- PlateWidget

PlateWidget::PlateWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QGroupBox(parent), Dressed(*this, style, place) {
  setFlat(true);
  if (place.dress == Dress::kCell) setFocusPolicy(Qt::StrongFocus);
}

void PlateWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter);
}

void PlateWidget::Paint(QPainter& painter) {
  const QRectF box(rect());
  switch (place_.dress) {
    case Dress::kTile:
      if (back_) look::DrawPlate(painter, box, *back_, {}, Px(4), 0);
      return;
    case Dress::kCard:
      look::DrawCard(painter, box, colors(), colors().card, style_.factor);
      if (back_) look::DrawCardHead(painter, box, Px(kCardHead), *back_, style_.factor);
      return;
    case Dress::kSmallCard:
      return PaintSmallCard(painter);
    case Dress::kCell:
      return PaintCell(painter);
    case Dress::kNotice:
      look::DrawPlate(painter, box, back_.value_or(colors().card), colors().accent,
                      Px(look::kCardRadius), Px(2));
      return;
    case Dress::kPlain:
    case Dress::kHeading:
    case Dress::kHint:
    case Dress::kQuiet:
    case Dress::kPrimary:
    case Dress::kLarge:
    case Dress::kMark:
    case Dress::kOnBanner:
      return;
  }
}

QColor PlateWidget::GroundAt(const QPoint& point) const {
  switch (place_.dress) {
    case Dress::kTile:
      return back_.value_or(GroundBelow());
    case Dress::kCard:
      return back_ && point.y() < Px(kCardHead) ? *back_ : colors().card;
    case Dress::kSmallCard:
      if (back_ && point.y() < Px(kSmallCardHead)) return *back_;
      return isEnabled() ? colors().card : colors().locked_card;
    case Dress::kCell:
      return Qt::white;
    case Dress::kNotice:
      return back_.value_or(colors().card);
    default:
      return GroundBelow();
  }
}

void PlateWidget::PaintSmallCard(QPainter& painter) {
  const QRectF box(rect());
  look::DrawCard(painter, box, colors(), isEnabled() ? colors().card : colors().locked_card,
                 style_.factor);
  if (back_) look::DrawCardHead(painter, box, Px(kSmallCardHead), *back_, style_.factor);
  if (isEnabled()) return;
  const double side = Px(15);
  DrawLock(painter, QRectF(width() - side - Px(9), (Px(kSmallCardHead) - side) / 2, side, side),
           back_ ? look::TextOn(*back_) : colors().text);
}

void PlateWidget::PaintCell(QPainter& painter) {
  const QRectF box(rect());
  const bool bare = !back_ || *back_ == QColor(Qt::white);
  look::DrawPlate(painter, box, Qt::white, bare ? colors().button_line : *back_, Px(6),
                  Px(bare ? 1 : 2.5));
  if (ShowsFocus() && !style_.paper) {
    look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
  }
}

void PlateWidget::keyPressEvent(QKeyEvent* event) {
  const bool moves = place_.dress == Dress::kCell && LeadsOn(event) && move_focus;
  if (!moves || !move_focus(event->key())) event->ignore();
}

void PlateWidget::changeEvent(QEvent* event) {
  QGroupBox::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) update();
}

// --- OptionWidget

OptionWidget::OptionWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QRadioButton(parent), Dressed(*this, style, place) {
  setAttribute(Qt::WA_Hover);
}

QSizeF OptionWidget::TextBox() const { return QSizeF(width() - Px(34), height()); }

void OptionWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box(rect());
  if (isEnabled() && (underMouse() || isDown())) {
    look::DrawPlate(painter, box, isDown() ? colors().pressed : colors().hover, {}, Px(6), 0);
  }
  const double side = Px(18);
  const QRectF circle(Px(6), (height() - side) / 2, side, side);
  const look::Palette& tones = colors();
  const QColor line = !isEnabled() ? tones.line : isChecked() ? tones.accent : tones.button_line;
  painter.setPen(QPen(line, Px(isChecked() ? 2 : 1.5)));
  painter.setBrush(isEnabled() ? colors().button : colors().disabled_fill);
  painter.drawEllipse(circle.adjusted(Px(1), Px(1), -Px(1), -Px(1)));
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? colors().accent : colors().disabled_text);
    painter.drawEllipse(circle.center(), Px(4.5), Px(4.5));
  }
  look::DrawText(painter, box.adjusted(Px(32), 0, -Px(2), 0), caption(), Set(), Ink(),
                 Qt::AlignLeft | Qt::AlignVCenter);
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
}

// --- DropDownWidget

DropDownWidget::DropDownWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QComboBox(parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setMaxVisibleItems(15);
  // Some styles would show all entries at once, from one edge of the screen to the other.
  setStyleSheet("combobox-popup: 0");
  setView(new DropDownEntries(*this));
  setItemDelegate(new DropDownDelegate(this));
}

/// Within the edge and the ring of the focus, which would cut what is as high as the list.
QSizeF DropDownWidget::TextBox() const { return QSizeF(width() - Px(34), height() - Px(6)); }

void DropDownWidget::showPopup() {
  const QFont font = look::Type(Px(place_.text), look::Weight::kNormal);
  view()->setFont(font);
  // Long entries show whole, beyond the closed list's width.
  view()->setMinimumWidth(std::max(width(), view()->sizeHintForColumn(0) + qRound(Px(28))));
  QComboBox::showPopup();
}

QColor DropDownWidget::Ground() const {
  if (!isEnabled()) return colors().disabled_fill;
  return underMouse() ? colors().hover : back_.value_or(colors().button);
}

void DropDownWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF box(rect());
  const QColor edge = isEnabled() ? colors().button_line : colors().line;
  look::DrawPlate(painter, box, Ground(), edge, Px(6), Px(1.2));
  look::DrawText(painter, box.adjusted(Px(10), 0, -Px(24), 0), caption(), Set(), Ink(),
                 Qt::AlignLeft | Qt::AlignVCenter);
  const QColor arrow = isEnabled() ? colors().quiet_text : colors().disabled_text;
  painter.setPen(QPen(arrow, Px(1.8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF tip(width() - Px(14), height() / 2.0 + Px(2.5));
  painter.drawPolyline(
      QPolygonF{{tip + QPointF(-Px(5), -Px(5)), tip, tip + QPointF(Px(5), -Px(5))}});
  if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
}

void DropDownWidget::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event)) {
    event->ignore();
    return;
  }
  const bool up = event->key() == Qt::Key_Up;
  const bool along = up || event->key() == Qt::Key_Down;
  if (along && step && !event->modifiers().testFlag(Qt::AltModifier)) return step(up ? -1 : 1);
  QComboBox::keyPressEvent(event);
}

/// A wheel over a closed list would change the exercise by accident.
void DropDownWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

// --- ListWidget

class ListWidget::Delegate : public QStyledItemDelegate {
 public:
  explicit Delegate(ListWidget& list) : QStyledItemDelegate(&list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return QSize(10, static_cast<int>(list_.Px(kListRow)));
  }
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    painter->save();
    const double f = list_.style_.factor;
    const QRectF row = QRectF(option.rect).adjusted(2 * f, f, -2 * f, -f);
    const bool cursor = list_.hasFocus() && list_.currentRow() == index.row();
    const bool hovered = list_.isEnabled() && (option.state & QStyle::State_MouseOver);
    if (cursor || hovered) {
      const look::Palette& colors = list_.colors();
      const QColor fill = cursor ? colors.pressed : colors.hover;
      look::DrawPlate(*painter, row, fill, colors.accent, 4 * f, cursor ? f : 0);
    }
    painter->setFont(list_.font());
    painter->setPen(list_.Ink());
    painter->drawText(row.adjusted(5 * f, -1, 0, 1), Qt::AlignLeft | Qt::AlignVCenter,
                      index.data().toString());
    painter->restore();
  }

 private:
  ListWidget& list_;
};

ListWidget::ListWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QListWidget(parent), Dressed(*this, style, place) {
  setFrameShape(QFrame::NoFrame);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMouseTracking(true);
  setItemDelegate(new Delegate(*this));
  viewport()->setAutoFillBackground(false);
  viewport()->setCursor(Qt::PointingHandCursor);
  // Where a reader of the screen runs, the toolkit has asked for what this is before it was one of
  // ours, and keeps the answer.
  if (QAccessibleInterface* const early = QAccessible::queryAccessibleInterface(this)) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
  }
  connect(this, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { TakeEntry(row(item)); });
}

double ListWidget::RowWidth() const { return width() - Px(9); }

QFont ListWidget::EntryType() const { return look::Type(Px(place_.text), look::Weight::kNormal); }

bool ListWidget::EntriesFit() const {
  const QFontMetricsF metrics(EntryType());
  for (int i = 0; i < count(); ++i) {
    if (metrics.horizontalAdvance(item(i)->text()) > RowWidth() + 1) return false;
  }
  return count() * static_cast<int>(Px(kListRow)) <= height();
}

QColor ListWidget::Ground() const {
  return isEnabled() ? back_.value_or(colors().button) : colors().disabled_fill;
}

/// What is chosen is to be read also where it is locked.
QColor ListWidget::Ink() const {
  return isEnabled() ? InkOn(Ground(), colors().text) : colors().quiet_text;
}

void ListWidget::resizeEvent(QResizeEvent* event) {
  QListWidget::resizeEvent(event);
  scheduleDelayedItemsLayout();  // the rows grow with the page
}

void ListWidget::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    const QRectF box(viewport()->rect());
    look::DrawPlate(painter, box, Ground(), isEnabled() ? colors().button_line : colors().line,
                    Px(6), Px(1.2));
    if (ShowsFocus()) look::DrawFocusRing(painter, box, colors(), Px(6), style_.factor);
  }
  const QFont type = EntryType();
  if (font() != type) setFont(type);
  QListWidget::paintEvent(event);
}

void ListWidget::TakeEntry(int row) {
  if (isEnabled() && choose) choose(row);
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void ListWidget::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(event) && event->key() != Qt::Key_Space) return QListWidget::keyPressEvent(event);
  if (!event->isAutoRepeat() && currentRow() >= 0) TakeEntry(currentRow());
}

void ListWidget::keyboardSearch(const QString& text) {
  const int row = search_.Type(text, RowTexts(*this), currentRow());
  if (row >= 0) setCurrentRow(row);
}

/// The cursor has a place as soon as the keyboard comes.
void ListWidget::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  if (currentRow() < 0 && count() > 0) setCurrentRow(0);
}

// --- GaugeWidget

GaugeWidget::GaugeWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QProgressBar(parent), Dressed(*this, style, place) {
  setRange(0, 100);
}

bool GaugeWidget::SetEnds(const QString& low, const QString& high) {
  if (low_ == low && high_ == high) return false;
  low_ = low;
  high_ = high;
  update();
  return true;
}

/// The words stand above and under the scale, and the mark reaches beyond both its ends.
QRectF GaugeWidget::Track() const {
  const double wide = Px(14);
  const double end = Px(kGaugeEnd) + Px(kGaugeMark.height()) / 2;
  return QRectF((width() - wide) / 2, end, wide, height() - 2 * end);
}

QRectF GaugeWidget::PlaceOfEnd(bool high) const {
  const double side = Px(3);
  const double edge = Px(8);
  const double tall = Px(kGaugeEnd) - 2 * edge;
  return QRectF(side, high ? edge : height() - edge - tall, width() - 2 * side, tall);
}

bool GaugeWidget::EndsFit() const {
  const QSizeF box = PlaceOfEnd(false).size();
  const double size = Px(place_.text);
  return look::SetText(low_, box, size, look::Weight::kBold).fits &&
         look::SetText(high_, box, size, look::Weight::kBold).fits;
}

/// From green at the bottom to red at the top.
void GaugeWidget::PaintScale(QPainter& painter) const {
  const QRectF track = Track();
  QLinearGradient ground(track.bottomLeft(), track.topLeft());
  ground.setColorAt(0, colors().solved);
  ground.setColorAt(0.5, colors().half_way);
  ground.setColorAt(1, colors().too_hard);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(track, track.width() / 2, track.width() / 2);
  painter.setPen(QPen(colors().card, Px(1)));
  for (int tenth = 1; tenth < 10; ++tenth) {
    const double y = track.bottom() - track.height() * tenth / 10;
    const double inset = tenth == 5 ? 0 : track.width() * 0.3;
    painter.drawLine(QPointF(track.left() + inset, y), QPointF(track.right() - inset, y));
  }
}

/// Where the training stands, with the number.
void GaugeWidget::PaintMark(QPainter& painter) const {
  const QRectF track = Track();
  const double share = std::clamp(value(), 0, 100) / 100.0;
  QRectF mark(QPointF(), kGaugeMark * style_.factor);
  mark.moveCenter(QPointF(track.center().x(), track.bottom() - track.height() * share));
  look::DrawPlate(painter, mark, colors().text, colors().card, mark.height() / 2, Px(2));
  const QString percent = QString("%1%").arg(value());
  look::DrawText(painter, mark, percent,
                 look::SetText(percent, mark.size(), Px(place_.text), look::Weight::kBold),
                 colors().card, Qt::AlignCenter);
}

void GaugeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  look::DrawPlate(painter, QRectF(rect()), colors().section, {}, Px(look::kRadius), 0);
  PaintScale(painter);
  const auto write = [&](bool high, const QString& text, const QColor& color) {
    const QRectF box = PlaceOfEnd(high);
    look::DrawText(painter, box, text,
                   look::SetText(text, box.size(), Px(place_.text), look::Weight::kBold), color,
                   Qt::AlignCenter);
  };
  write(true, high_, colors().too_hard_text);
  write(false, low_, colors().solved_text);
  PaintMark(painter);
}

// --- SliderWidget

SliderWidget::SliderWidget(QWidget* parent, const PageStyle& style, const Placement& place)
    : QSlider(Qt::Horizontal, parent), Dressed(*this, style, place) {
  setFocusPolicy(Qt::StrongFocus);
}

void SliderWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double knob = Px(9);
  const double range = std::max(1, maximum() - minimum());
  const double x = knob + (width() - 2 * knob) * (value() - minimum()) / range;
  QRectF groove(knob, height() / 2.0 - Px(3), width() - 2 * knob, Px(6));
  look::DrawPlate(painter, groove, colors().line, {}, Px(3), 0);
  groove.setRight(x);
  const QColor color = isEnabled() ? colors().accent : colors().disabled_text;
  look::DrawPlate(painter, groove, color, {}, Px(3), 0);
  painter.setPen(QPen(colors().card, Px(2)));
  painter.setBrush(color);
  painter.drawEllipse(QPointF(x, height() / 2.0), knob - Px(1), knob - Px(1));
  if (ShowsFocus()) look::DrawFocusRing(painter, QRectF(rect()), colors(), Px(6), style_.factor);
}

void SliderWidget::GoTo(double x) {
  const double knob = Px(9);
  const double share = std::clamp((x - knob) / std::max(1.0, width() - 2 * knob), 0.0, 1.0);
  setValue(minimum() + qRound(share * (maximum() - minimum())));
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) GoTo(event->position().x());
}

void SliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) GoTo(event->position().x());
}

}  // namespace vmod17

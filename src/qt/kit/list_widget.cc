// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/list_widget.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "qt/kit/keys.h"

namespace vmod17 {

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

}  // namespace vmod17

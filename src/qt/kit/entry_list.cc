// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/entry_list.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <functional>

#include "qt/kit/look.h"

namespace vmod17 {
namespace {

constexpr int kPause = 1000;  // ms

using Match = std::function<bool(const QString& entry)>;

/// The first of the entries from `start` on, around the end, that matches; -1 for none.
int Find(const QStringList& entries, int start, const Match& match) {
  const int count = static_cast<int>(entries.size());
  for (int i = 0; i < count; ++i) {
    const int row = (start + i) % count;
    if (match(entries[row])) return row;
  }
  return -1;
}

int FindBeginning(const QStringList& entries, int start, const QString& typed) {
  return Find(entries, start, [&](const QString& entry) {
    return entry.trimmed().startsWith(typed, Qt::CaseInsensitive);
  });
}

int FindTyped(const QStringList& entries, int start, const QString& typed) {
  const Match has_word = [&](const QString& entry) {
    return entry.contains(" " + typed, Qt::CaseInsensitive) ||
           entry.contains("(" + typed, Qt::CaseInsensitive);
  };
  const Match contains = [&](const QString& entry) {
    return entry.contains(typed, Qt::CaseInsensitive);
  };
  if (const int row = FindBeginning(entries, start, typed); row >= 0) return row;
  for (const Match& match : {has_word, contains}) {
    if (const int row = Find(entries, start, match); row >= 0) return row;
  }
  return -1;
}

}  // namespace

int TypedSearch::Type(const QString& text, const QStringList& entries, int current) {
  if (!since_.isValid() || since_.elapsed() > kPause) typed_.clear();
  since_.start();
  typed_ += text;
  const QString first = typed_.left(1);
  const bool one_letter = typed_ == first.repeated(typed_.size());
  const int start = std::max(0, current);
  if (!one_letter) return FindTyped(entries, start, typed_);
  if (typed_.size() > 1) {
    if (const int row = FindBeginning(entries, start, typed_); row >= 0) return row;
  }
  return FindTyped(entries, start + 1, first);
}

QStringList RowTexts(const QAbstractItemView& view) {
  QStringList texts;
  for (int row = 0; row < view.model()->rowCount(); ++row) {
    texts.push_back(view.model()->index(row, 0).data().toString());
  }
  return texts;
}

DropDownEntries::DropDownEntries(QComboBox& closed) : QListView(&closed), closed_(closed) {}

QSize DropDownDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const QFontMetrics metrics(option.font);
  return {metrics.horizontalAdvance(index.data().toString()) + metrics.height(),
          metrics.height() * 3 / 2};
}

void DropDownDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const look::Palette& colors = look::PresentColors();
  const bool cursor = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->fillRect(option.rect, colors.card);
  if (cursor) {
    look::DrawPlate(*painter, QRectF(option.rect).adjusted(2, 1, -2, -1), colors.pressed,
                    colors.accent, 4, 1);
  }
  const int side = QFontMetrics(option.font).height() / 2;
  painter->setFont(option.font);
  painter->setPen(colors.text);
  painter->drawText(option.rect.adjusted(side, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    index.data().toString());
  painter->restore();
}

void DropDownEntries::keyboardSearch(const QString& text) {
  const int row = search_.Type(text, RowTexts(*this), currentIndex().row());
  if (row >= 0) setCurrentIndex(model()->index(row, 0));
}

void DropDownEntries::TakeEntry(int row) {
  if (!closed_.isEnabled()) return;
  closed_.setCurrentIndex(row);
  Q_EMIT closed_.activated(row);
  closed_.hidePopup();
}

int DropDownEntries::ChosenEntry() const {
  return isVisible() ? currentIndex().row() : closed_.currentIndex();
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QListView>
#include <QString>
#include <QStringList>
#include <QStyledItemDelegate>

#include "qt/kit/accessible.h"

class QComboBox;

namespace vmod17 {

/// Finds entries by what is typed: letters that follow each other within a second belong together.
class TypedSearch {
 public:
  /// Takes what was typed and answers which entry is meant: the next one from `current` that begins
  /// with it, else one of whose words begins with it, else one that contains it; -1 for none. One
  /// letter, also typed again and again, goes on from entry to entry.
  int Type(const QString& text, const QStringList& entries, int current);

 private:
  QString typed_;
  QElapsedTimer since_;
};

/// The texts of a list's rows.
QStringList RowTexts(const QAbstractItemView& view);

/// The list that a drop-down list shows, with a search that also finds within names. The closed
/// list searches through it too.
class DropDownEntries : public QListView, public TakesEntries {
 public:
  explicit DropDownEntries(QComboBox& closed);
  void keyboardSearch(const QString& text) override;
  void TakeEntry(int row) override;
  int ChosenEntry() const override;

 private:
  QComboBox& closed_;
  TypedSearch search_;
};

/// Paints the entries of a list that drops down as those of a list box are painted.
class DropDownDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace vmod17

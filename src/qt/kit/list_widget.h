// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QListWidget>
#include <functional>

#include "qt/kit/accessible.h"
#include "qt/kit/dressed.h"
#include "qt/kit/entry_list.h"

namespace vmod17 {

/// A list box. The cursor is where the keyboard is; nothing in it stays chosen.
class ListWidget : public QListWidget, public Dressed, public TakesEntries {
 public:
  ListWidget(QWidget* parent, const PageStyle& style, const Placement& place);
  /// The user means this entry.
  std::function<void(int row)> choose;
  void keyboardSearch(const QString& text) override;
  void TakeEntry(int row) override;
  int ChosenEntry() const override { return -1; }
  /// False when an entry is longer than its row allows.
  bool EntriesFit() const;
  QColor Ground() const override;
  QColor Ink() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Does nothing: the first click of the two has moved the entry, and the second would meet the
  /// one that has come up in its place.
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  class Delegate;
  QFont EntryType() const;
  double RowWidth() const;

  TypedSearch search_;
};

}  // namespace vmod17

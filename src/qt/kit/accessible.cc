// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <map>

#include "qt/kit/drop_down_widget.h"
#include "qt/kit/option_widget.h"
#include "qt/kit/plate_widget.h"

namespace vmod17 {
namespace {

/// The toolkit's own would switch the dot and leave the program with what it had.
class AccessibleOption : public QAccessibleWidget {
 public:
  explicit AccessibleOption(OptionWidget& option)
      : QAccessibleWidget(&option, QAccessible::RadioButton), option_(option) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = option_.isChecked();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (option_.isEnabled()) names.prepend(toggleAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action != toggleAction()) return QAccessibleWidget::doAction(action);
    option_.click();
  }

 private:
  OptionWidget& option_;
};

/// A frame can have a menu, also while it is locked.
class AccessibleFrame : public QAccessibleWidget {
 public:
  explicit AccessibleFrame(PlateWidget& frame)
      : QAccessibleWidget(&frame, QAccessible::Grouping), frame_(frame) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (frame_.ask_menu) names.prepend(showMenuAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
    if (frame_.ask_menu) frame_.ask_menu();
  }

 private:
  PlateWidget& frame_;
};

/// An entry of a list.
class AccessibleEntry : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleEntry(QAbstractItemView& view, TakesEntries& list, int row)
      : view_(view), list_(list), row_(row) {}

  bool isValid() const override { return row_ < view_.model()->rowCount(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&view_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? Index().data().toString() : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect place = view_.visualRect(Index()) & view_.viewport()->rect();
    return {view_.viewport()->mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = view_.currentIndex() == Index();
    state.selectable = list_.ChosenEntry() >= 0;
    state.selected = list_.ChosenEntry() == row_;
    state.disabled = !view_.isEnabled();
    state.invisible = !view_.isVisible();
    state.offscreen = view_.visualRect(Index()).intersected(view_.viewport()->rect()).isEmpty();
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }

  QStringList actionNames() const override {
    return view_.isEnabled() ? QStringList{pressAction()} : QStringList();
  }
  void doAction(const QString& action) override {
    if (action == pressAction() && isValid()) list_.TakeEntry(row_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QModelIndex Index() const { return view_.model()->index(row_, 0); }

  QAbstractItemView& view_;
  TakesEntries& list_;
  int row_;
};

class AccessibleEntries : public QAccessibleWidget {
 public:
  AccessibleEntries(QAbstractItemView& view, TakesEntries& list)
      : QAccessibleWidget(&view, QAccessible::List), view_(view), list_(list) {}
  ~AccessibleEntries() override { Forget(); }

  int childCount() const override {
    const QAbstractItemModel* const model = view_.model();
    return model == nullptr ? 0 : model->rowCount();
  }
  QAccessibleInterface* child(int row) const override {
    if (row < 0 || row >= childCount()) return nullptr;
    const auto known = ids_.find(row);
    if (known != ids_.end()) return QAccessible::accessibleInterface(known->second);
    Watch();
    auto* const entry = new AccessibleEntry(view_, list_, row);
    ids_[row] = QAccessible::registerAccessibleInterface(entry);
    return entry;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return child(view_.indexAt(view_.viewport()->mapFromGlobal(QPoint(x, y))).row());
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (const auto& [row, id] : ids_) {
      if (QAccessible::accessibleInterface(id) == child) return row;
    }
    return -1;
  }
  QAccessibleInterface* focusChild() const override { return child(view_.currentIndex().row()); }
  /// An open list stands in a window of its own, but belongs to the closed one.
  QAccessibleInterface* parent() const override {
    for (QWidget* widget = view_.parentWidget(); widget; widget = widget->parentWidget()) {
      if (qobject_cast<QComboBox*>(widget)) return QAccessible::queryAccessibleInterface(widget);
    }
    return QAccessibleWidget::parent();
  }

 private:
  /// A reader keeps in mind what it has read of an entry: another text is another entry.
  void Watch() const {
    if (watched_ == view_.model()) return;
    watched_ = view_.model();
    const auto forget = [this] { Forget(); };
    QObject::connect(watched_, &QAbstractItemModel::modelReset, &changes_, forget);
    QObject::connect(watched_, &QAbstractItemModel::rowsInserted, &changes_, forget);
    QObject::connect(watched_, &QAbstractItemModel::rowsRemoved, &changes_, forget);
    QObject::connect(watched_, &QAbstractItemModel::dataChanged, &changes_, forget);
  }
  void Forget() const {
    for (const auto& [row, id] : ids_) QAccessible::deleteAccessibleInterface(id);
    ids_.clear();
  }

  QAbstractItemView& view_;
  TakesEntries& list_;
  mutable std::map<int, QAccessible::Id> ids_;  // of the entries that were asked for, by row
  mutable const QAbstractItemModel* watched_ = nullptr;
  QObject changes_;  // ends the connections with the list
};

/// The toolkit's own is called by its chosen entry, where the name has to be the label beside it.
/// Readers ask for no value of a list that is closed, so the entry is its description as well.
class AccessibleDropDown : public QAccessibleWidget {
 public:
  explicit AccessibleDropDown(DropDownWidget& list)
      : QAccessibleWidget(&list, QAccessible::ComboBox), list_(list) {}

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
  }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == list_.view() ? 0 : -1;
  }
  QString text(QAccessible::Text kind) const override {
    const QString entry = list_.currentText();
    const QString words = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Value) return entry;
    if (kind != QAccessible::Description) return words;
    return words.isEmpty() ? entry : entry + ". " + words;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = list_.view()->isVisible();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (list_.isEnabled()) names = QStringList{showMenuAction(), pressAction()} + names;
    return names;
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction() && action != pressAction()) {
      return QAccessibleWidget::doAction(action);
    }
    if (!list_.isEnabled()) return;
    if (list_.view()->isVisible()) {
      list_.hidePopup();
    } else {
      list_.showPopup();
    }
  }

 private:
  DropDownWidget& list_;
};

}  // namespace

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* option = dynamic_cast<OptionWidget*>(object)) return new AccessibleOption(*option);
  if (auto* frame = dynamic_cast<PlateWidget*>(object)) return new AccessibleFrame(*frame);
  if (auto* list = dynamic_cast<DropDownWidget*>(object)) return new AccessibleDropDown(*list);
  if (auto* list = dynamic_cast<TakesEntries*>(object)) {
    return new AccessibleEntries(dynamic_cast<QAbstractItemView&>(*object), *list);
  }
  return nullptr;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "forms/control.h"

namespace vmod17 {

/// Entries of which one at the most is selected.
class ItemList : public Control {
 public:
  enum class Shape { kDropDown, kBox };
  /// Marks an entry whose value is its place in the list.
  static constexpr int kValueIsIndex = -999;

  struct Entry {
    std::string text;
    int item_data = 0;
    bool empty = false;  ///< stands where there is nothing to choose; `Step` goes past it
    bool operator==(const Entry&) const = default;
  };

  ItemList(Form& form, std::string name, int index = kNoIndex, Shape shape = Shape::kDropDown)
      : Control(form, std::move(name), index), shape_(shape) {}
  Kind kind() const override { return Kind::kItemList; }

  std::function<void()> Click;

  Shape shape() const { return shape_; }
  const std::vector<Entry>& entries() const { return entries_; }
  int count() const { return static_cast<int>(entries_.size()); }
  /// The selected entry, from 0; -1 for none.
  int list_index() const { return list_index_; }
  /// The text of the selected entry, or nothing.
  std::string text() const { return list_index_ < 0 ? "" : entries_[list_index_].text; }
  /// Entry `i`, from 0. Errors: kOutOfRange.
  const Entry& entry(int i) const {
    Need(i);
    return entries_[i];
  }

  void Clear() {
    entries_.clear();
    list_index_ = -1;
  }
  void Add(std::string text, int item_data) { entries_.push_back({std::move(text), item_data}); }
  void AddEmpty(std::string text, int item_data) {
    entries_.push_back({std::move(text), item_data, true});
  }
  /// Inserts an entry before entry `at`; the selection stays with its entry.
  void Insert(int at, Entry new_entry) {
    if (at != count()) Need(at);
    entries_.insert(entries_.begin() + at, std::move(new_entry));
    if (list_index_ >= at) ++list_index_;
  }
  /// Removes an entry; if it was selected, none is. Errors: kOutOfRange.
  void Remove(int at) {
    Need(at);
    entries_.erase(entries_.begin() + at);
    if (list_index_ == at) list_index_ = -1;
    if (list_index_ > at) --list_index_;
  }

  /// Selects an entry and runs the handler, also if it stood selected. Errors: kOutOfRange.
  void Select(int i) {
    Need(i);
    list_index_ = i;
    if (Click) Click();
  }
  /// The user selects an entry. Returns whether it could be reached.
  bool Choose(int i) {
    if (!Reachable() || i < 0 || i >= count()) return false;
    Select(i);
    return true;
  }
  /// The user goes on from the selected entry to the next one, `way` 1, or the one before, -1.
  /// Returns whether there is one and the list could be reached.
  bool Step(int way) {
    int i = list_index_ + way;
    while (i >= 0 && i < count() && entries_[i].empty) i += way;
    return Choose(i);
  }

 private:
  void Need(int i) const {
    if (i < 0 || i >= count()) {
      throw RunTimeError(ErrorNumber::kOutOfRange, Id() + " has no entry " + std::to_string(i),
                         "vmod17.ItemList");
    }
  }

  Shape shape_;
  std::vector<Entry> entries_;
  int list_index_ = -1;
};

}  // namespace vmod17

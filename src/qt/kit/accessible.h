// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QObject;
class QString;
class QAccessibleInterface;

namespace vmod17 {

/// A list whose entries can be taken one by one. The toolkit's own lists offer an assistive
/// technology to select an entry, which the program would not hear of.
class TakesEntries {
 public:
  /// Does what a click on the entry does.
  virtual void TakeEntry(int row) = 0;
  /// The entry that counts as chosen; -1 for none.
  virtual int ChosenEntry() const = 0;

 protected:
  ~TakesEntries() = default;
};

/// What an assistive technology sees of those widgets of ours whose base class tells it less than
/// the eye sees, or lets it act past the program; null for all others. A factory for
/// `QAccessible::installFactory`.
QAccessibleInterface* MakeAccessible(const QString& class_name, QObject* object);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "base/notice.h"
#include "programs/shared/texts.h"
#include "store/store_user.h"

class QLabel;
class QLineEdit;

namespace melvado {

/// Asks for the three facts of a user, until they are taken or the dialog is left.
///
/// Its widgets have names: name, first_name, number, note, fault, ok, cancel.
class UserDialog : public QDialog {
 public:
  using Take = std::function<std::optional<vmod17::Notice>(const vmod17::StoreUser&)>;

  /// `user`  the one to be changed, whose number stays; without a number, a new one
  /// `take`  takes what was typed, or says why it cannot
  UserDialog(QWidget* parent, const vmod17::Texts& texts, const vmod17::StoreUser& user, Take take);

 private:
  QLineEdit* MakeField(const char* name, const std::string& text);
  QLabel* MakeLabel(const QString& text, QLineEdit& field);
  QLabel* MakeLine(const char* name);
  vmod17::StoreUser Typed() const;
  void Try();
  void Grow();
  /// Where the fault of what was typed is to be mended.
  QLineEdit& FaultyField() const;

  const vmod17::Texts& texts_;
  const Take take_;
  QLineEdit* name_;
  QLineEdit* first_name_;
  QLineEdit* number_;
  QLabel* note_;   // what is needed, said before it is asked for
  QLabel* fault_;  // in its place: what is wrong with what was typed
};

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/user_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/text_ids.h"
#include "base/usual_words.h"
#include "programs/host/dialog_look.h"
#include "programs/host/users.h"
#include "qt/kit/window_factor.h"

namespace melvado {

namespace text_id = vmod17::text_id;

using vmod17::StoreUser;
using vmod17::Texts;

UserDialog::UserDialog(QWidget* parent, const Texts& texts, const StoreUser& user, Take take)
    : QDialog(parent),
      texts_(texts),
      take_(std::move(take)),
      name_(MakeField("name", user.name)),
      first_name_(MakeField("first_name", user.first_name)),
      number_(MakeField("number", user.id)),
      note_(MakeLine("note")),
      fault_(MakeLine("fault")) {
  const bool known = !user.id.empty();
  const double factor = vmod17::FactorOf(*parent);
  DressDialog(*this, factor);
  setWindowTitle(known ? texts.Say(text_id::kChangeUser, "Change a user")
                       : texts.Say(text_id::kAddUser, "Add a user"));
  // What is stored stands under the number.
  number_->setReadOnly(known);
  if (known) number_->setFocusPolicy(Qt::NoFocus);
  fault_->hide();
  if (!known) {
    note_->setText(
        texts.Say(text_id::kNumberIsNeeded,
                  "Please enter the matriculation number: the trainings are kept under it."));
    number_->setAccessibleDescription(note_->text());
  }
  note_->setVisible(!known);

  auto* const form = new QFormLayout;
  form->setVerticalSpacing(qRound(10 * factor));
  form->addRow(MakeLabel(texts.Say(text_id::kName, "Name"), *name_), name_);
  form->addRow(MakeLabel(texts.Say(text_id::kFirstName, "First name"), *first_name_), first_name_);
  form->addRow(
      MakeLabel(texts.Say(text_id::kMatriculationNumber, "Matriculation number"), *number_),
      number_);
  auto* const ok = new QPushButton(texts.Say(vmod17::kOkWord));
  ok->setObjectName("ok");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, [this] { Try(); });
  auto* const cancel = new QPushButton(texts.Say(text_id::kCancel, "Cancel"));
  cancel->setObjectName("cancel");
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(ok);
  auto* const all = new QVBoxLayout(this);
  all->setContentsMargins(qRound(24 * factor), qRound(24 * factor), qRound(24 * factor),
                          qRound(20 * factor));
  all->setSpacing(qRound(14 * factor));
  all->addLayout(form);
  all->addWidget(note_);
  all->addWidget(fault_);
  all->addLayout(buttons);
  setMinimumWidth(qRound(460 * factor));
  resize(minimumSize());
  Grow();
}

QLineEdit* UserDialog::MakeField(const char* name, const std::string& text) {
  auto* const field = new QLineEdit(QString::fromStdString(text), this);
  field->setObjectName(name);
  return field;
}

/// The form's own labels would take the words of a language for markup.
QLabel* UserDialog::MakeLabel(const QString& text, QLineEdit& field) {
  auto* const label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setBuddy(&field);
  return label;
}

QLabel* UserDialog::MakeLine(const char* name) {
  auto* const line = new QLabel(this);
  line->setObjectName(name);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  return line;
}

StoreUser UserDialog::Typed() const {
  const auto text = [](const QLineEdit* field) { return field->text().toStdString(); };
  return {text(number_), text(name_), text(first_name_)};
}

void UserDialog::Try() {
  const auto fault = take_(Typed());
  for (QLineEdit* field : {name_, first_name_, number_}) field->setAccessibleDescription({});
  if (!fault) return accept();
  note_->hide();
  const QString said = texts_.Say(*fault);
  fault_->setText(said);
  fault_->show();
  Grow();
  // A reader of the screen says it with the field. It speaks of a field again only when the focus
  // comes from elsewhere.
  QLineEdit& field = FaultyField();
  field.setAccessibleDescription(said);
  findChild<QPushButton*>("ok")->setFocus(Qt::OtherFocusReason);
  field.setFocus(Qt::OtherFocusReason);
  field.selectAll();
}

/// A window grows by itself for what is wide, but not for what is high.
void UserDialog::Grow() {
  resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

QLineEdit& UserDialog::FaultyField() const {
  const StoreUser user = Cleaned(Typed());
  const auto length = [](const std::string& text) { return QString::fromStdString(text).size(); };
  if (!user.id.empty() && length(user.id) <= kLongestNumber) {
    if (length(user.name) > kLongestName) return *name_;
    if (length(user.first_name) > kLongestName) return *first_name_;
  }
  return number_->isReadOnly() ? *name_ : *number_;
}

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/qt_message_box.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

/// Stands until one of its buttons is pressed: neither Escape nor the window's cross is an answer.
class QuestionBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override {
    if (!event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
  }
};

void Label(QMessageBox& box, QMessageBox::StandardButton button, const std::string& word) {
  if (!word.empty()) box.button(button)->setText(QString::fromStdString(word));
}

}  // namespace

/// The keyboard comes back to the window even where no window manager sees to it.
int QtMessageBox::Show(QMessageBox& box) const {
  if (before) before();
  if (box.parentWidget() != nullptr) box.setFont(box.parentWidget()->font());
  const int answer = box.exec();
  if (QWidget* window = box.parentWidget(); window != nullptr && window->isVisible()) {
    window->activateWindow();
  }
  return answer;
}

void QtMessageBox::Warn(const std::string& text, const std::string& title) {
  QMessageBox box(QMessageBox::Warning, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, Window());
  box.setTextFormat(Qt::PlainText);
  Label(box, QMessageBox::Ok, CurrentWords().ok);
  Show(box);
}

MessageBox::Answer QtMessageBox::Ask(const std::string& text, const std::string& title,
                                     Answer preselected) {
  QuestionBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No, Window());
  box.setDefaultButton(preselected == Answer::kYes ? QMessageBox::Yes : QMessageBox::No);
  const Words words_now = CurrentWords();
  Label(box, QMessageBox::Yes, words_now.yes);
  Label(box, QMessageBox::No, words_now.no);
  return ShowQuestion(box) == QMessageBox::Yes ? Answer::kYes : Answer::kNo;
}

std::optional<int> QtMessageBox::Choose(const std::string& text, const std::string& title,
                                        const std::vector<std::string>& answers) {
  QuestionBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::NoButton, Window());
  std::vector<QAbstractButton*> buttons;
  for (const std::string& answer : answers) {
    // Of one role, so that they stand in their order.
    buttons.push_back(box.addButton(QString::fromStdString(answer), QMessageBox::ActionRole));
  }
  box.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
  ShowQuestion(box);
  const auto chosen = std::ranges::find(buttons, box.clickedButton());
  if (chosen == buttons.end()) return std::nullopt;
  return static_cast<int>(chosen - buttons.begin());
}

int QtMessageBox::ShowQuestion(QMessageBox& box) {
  box.setWindowFlag(Qt::WindowCloseButtonHint, false);
  box.setTextFormat(Qt::PlainText);
  const QPointer<QMessageBox> before_it = std::exchange(question_, &box);
  const int answer = Show(box);
  question_ = before_it;
  return answer;
}

void QtMessageBox::Withdraw() {
  if (question_) question_->done(QMessageBox::No);
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_message_box.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "base/usual_words.h"

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

constexpr int kNarrowest = 360;       // width of the words, in pixels, in the narrowest box
constexpr int kAroundTheWords = 200;  // height of title, buttons and edges
constexpr qsizetype kLongestWord = 50;
constexpr QChar kMayBreak(0x200B);

/// Whether a line may break at a character by itself: at a blank, and between signs of the east.
bool Breaks(QChar c) { return c.isSpace() || c >= QChar(0x2E80); }

/// A text whose words can be broken into lines, however long they are: a path has no blanks.
QString Breakable(const QString& text) {
  QString broken;
  qsizetype length = 0;
  for (const QChar c : text) {
    length = Breaks(c) ? 0 : length + 1;
    if (length > kLongestWord) {
      broken += kMayBreak;
      length = 1;
    }
    broken += c;
  }
  return broken;
}

/// As much of a text as a box on the screen has room for, with "…" in the place of the rest.
QString Fitting(const QString& text, const QMessageBox& box) {
  const QScreen* const screen = box.screen();
  const int room = std::max(screen->availableGeometry().height() - kAroundTheWords, 200);
  const QFontMetrics type(box.font());
  const auto fits = [&](const QString& part) {
    constexpr int kAnyHeight = 1 << 20;
    const QRect all(0, 0, kNarrowest, kAnyHeight);
    return type.boundingRect(all, Qt::TextWordWrap, part).height() <= room;
  };
  // No screen shows more, and measuring takes its time.
  constexpr qsizetype kMostOfAll = 20'000;
  QString fitting = Breakable(text.left(kMostOfAll));
  if (text.size() <= kMostOfAll && fits(fitting)) return fitting;
  while (!fitting.isEmpty() && !fits(fitting + "…")) fitting.truncate(fitting.size() * 9 / 10);
  return fitting + "…";
}

}  // namespace

void QtMessageBox::Label(QMessageBox& box, int button, const Notice& word) const {
  if (!say) return;
  box.button(static_cast<QMessageBox::StandardButton>(button))
      ->setText(QString::fromStdString(say(word)));
}

/// The keyboard comes back to the window even where no window manager sees to it.
int QtMessageBox::Show(QMessageBox& box) const {
  if (before) before();
  if (box.parentWidget() != nullptr) box.setFont(box.parentWidget()->font());
  box.setText(Fitting(box.text(), box));
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
  Label(box, QMessageBox::Ok, kOkWord);
  Show(box);
}

MessageBox::Answer QtMessageBox::Ask(const std::string& text, const std::string& title,
                                     Answer preselected) {
  QuestionBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No, Window());
  box.setDefaultButton(preselected == Answer::kYes ? QMessageBox::Yes : QMessageBox::No);
  Label(box, QMessageBox::Yes, kYesWord);
  Label(box, QMessageBox::No, kNoWord);
  return ShowQuestion(box) == QMessageBox::Yes ? Answer::kYes : Answer::kNo;
}

std::optional<int> QtMessageBox::Choose(const std::string& text, const std::string& title,
                                        const std::vector<std::string>& answers) {
  QuestionBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::NoButton, Window());
  std::vector<QAbstractButton*> buttons;
  buttons.reserve(answers.size());
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

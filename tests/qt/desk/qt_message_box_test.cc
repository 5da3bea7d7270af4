// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <map>
#include <string>

#include "qt/accessible_tree.h"

namespace vmod17 {
namespace {

using Answer = MessageBox::Answer;

/// What the user does once the box stands.
std::string InGerman(const Notice& notice) {
  static const std::map<int, std::string> kGerman = {{432, "Gut"}, {9001, "Ja"}, {9002, "Nein"}};
  return kGerman.at(notice.text_id);
}

void Then(const std::function<void(QMessageBox&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
}

TEST(QtMessageBox, WarnsInPlainWordsUntilTheUserAgrees) {
  QtMessageBox messages(nullptr);
  messages.say = InGerman;
  QString text, title, button;
  Then([&](QMessageBox& box) {
    text = box.text();
    title = box.windowTitle();
    button = box.button(QMessageBox::Ok)->text();
    box.button(QMessageBox::Ok)->click();
  });
  messages.Warn("Zeile 1\n<b>Zeile 2</b>", "Melvado 2000");
  EXPECT_EQ(text, "Zeile 1\n<b>Zeile 2</b>");
  EXPECT_EQ(title, "Melvado 2000");
  EXPECT_EQ(button, "Gut");
}

TEST(QtMessageBox, IsReadWholeByAReaderOfTheScreen) {
  const HeardEvents reader;
  QtMessageBox messages(nullptr);
  QAccessible::Role role = QAccessible::NoRole;
  QStringList read;
  Then([&](QMessageBox& box) {
    role = QAccessible::queryAccessibleInterface(&box)->role();
    ForEachAccessible(*QAccessible::queryAccessibleInterface(&box), [&](auto& element) {
      if (!element.state().invisible) read << element.text(QAccessible::Name);
    });
    box.button(QMessageBox::No)->click();
  });
  messages.say = InGerman;
  messages.Ask("Speichern?\nEin Stand geht verloren.", "Melvado", MessageBox::Answer::kNo);
  // Readers speak of an alert with all its labels, as soon as it comes.
  EXPECT_EQ(role, QAccessible::AlertMessage);
  EXPECT_EQ(read.filter("Speichern?\nEin Stand geht verloren.").size(), 1);
  for (const char* word : {"Melvado", "Ja", "Nein"}) EXPECT_TRUE(read.contains(word)) << word;
}

TEST(QtMessageBox, FitsIntoTheScreenWhateverItSays) {
  QString lines;
  for (int i = 0; i < 200; ++i) lines += "\nSetting " + QString::number(i);
  for (const QString& text : {lines, QString(3000, 'x'), QString(300'000, 'x'),
                              QString("word ").repeated(100'000), QString(3000, QChar(0x8A00))}) {
    QtMessageBox messages(nullptr);
    QSize size, room;
    QString said;
    Then([&](QMessageBox& box) {
      size = box.frameGeometry().size();
      room = box.screen()->availableGeometry().size();
      said = box.text();
      box.button(QMessageBox::Ok)->click();
    });
    messages.Warn(text.toStdString(), "Melvado");
    EXPECT_LE(size.height(), room.height()) << text.left(20).toStdString();
    EXPECT_LE(size.width(), room.width()) << text.left(20).toStdString();
    EXPECT_TRUE(said.endsWith("…"));
  }
}

TEST(QtMessageBox, TellsYesFromNo) {
  QtMessageBox messages(nullptr);
  messages.say = InGerman;
  Then([](QMessageBox& box) {
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Ja");
    EXPECT_EQ(box.button(QMessageBox::No)->text(), "Nein");
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(messages.Ask("Speichern?", "Melvado", Answer::kYes), Answer::kYes);
  Then([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  EXPECT_EQ(messages.Ask("Speichern?", "Melvado", Answer::kYes), Answer::kNo);
}

TEST(QtMessageBox, OffersAnswersInTheirOrderOfWhichEnterPressesTheFirst) {
  QtMessageBox messages(nullptr);
  const std::vector<std::string> answers = {"Noch einmal", "Anderer Ordner", "Aufgeben"};
  Then([](QMessageBox& box) {
    std::vector<std::pair<int, std::string>> found;
    for (const QAbstractButton* button : box.buttons()) {
      found.emplace_back(button->x(), button->text().toStdString());
    }
    std::ranges::sort(found);
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(found[0].second, "Noch einmal");
    EXPECT_EQ(found[2].second, "Aufgeben");
    QTest::keyClick(&box, Qt::Key_Escape);
    box.close();
    EXPECT_TRUE(box.isVisible());
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(messages.Choose("Nicht gespeichert.", "Melvado", answers), 0);
  for (int i = 0; i < 3; ++i) {
    Then([i, &answers](QMessageBox& box) {
      for (QAbstractButton* button : box.buttons()) {
        if (button->text().toStdString() == answers[static_cast<std::size_t>(i)]) button->click();
      }
    });
    EXPECT_EQ(messages.Choose("Nicht gespeichert.", "Melvado", answers), i);
  }
  Then([&](QMessageBox&) { messages.Withdraw(); });
  EXPECT_EQ(messages.Choose("Nicht gespeichert.", "Melvado", answers), std::nullopt);
}

TEST(QtMessageBox, TakesNeitherEscapeNorTheWindowsCrossForAnAnswer) {
  for (const auto first : {Answer::kYes, Answer::kNo}) {
    QtMessageBox messages(nullptr);
    Then([](QMessageBox& box) {
      QTest::keyClick(&box, Qt::Key_Escape);
      EXPECT_TRUE(box.isVisible());
      EXPECT_FALSE(box.close());
      EXPECT_TRUE(box.isVisible());
      box.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(messages.Ask("Speichern?", "Melvado", first), Answer::kYes);
  }
}

TEST(QtMessageBox, PressesWithEnterWhatIsPreselected) {
  for (const auto first : {Answer::kYes, Answer::kNo}) {
    QtMessageBox messages(nullptr);
    Then([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(messages.Ask("Speichern?", "Melvado", first), first);
  }
}

TEST(QtMessageBox, WithdrawsTheQuestionThatStands) {
  QtMessageBox messages(nullptr);
  messages.Withdraw();  // none
  Then([&](QMessageBox& box) {
    messages.Withdraw();
    EXPECT_FALSE(box.isVisible());
  });
  EXPECT_EQ(messages.Ask("Speichern?", "Melvado", Answer::kYes), Answer::kNo);
  messages.Withdraw();
}

TEST(QtMessageBox, LetsTheProgramEndWhileAQuestionStands) {
  QtMessageBox messages(nullptr);
  Then([](QMessageBox&) { QCoreApplication::exit(); });
  EXPECT_EQ(messages.Ask("Speichern?", "Melvado", Answer::kYes), Answer::kNo);
}

}  // namespace
}  // namespace vmod17

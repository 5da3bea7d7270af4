// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Language files as somebody may put them into his language folder.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include "melvado_testing.h"

namespace melvado {
namespace {

using ::testing::IsEmpty;

class LanguageFiles : public HostStage {
 protected:
  /// Compiles a language of these messages and starts the host with it, chosen.
  void OpenWith(const QString& name, const QString& messages) {
    QDir().mkpath(At("languages"));
    QFile source(At(name + ".ts"));
    ASSERT_TRUE(source.open(QIODevice::WriteOnly));
    source.write(("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                  "<TS version=\"2.1\" language=\"eo\"><context><name></name>" +
                  messages + "</context></TS>")
                     .toUtf8());
    source.close();
    ASSERT_EQ(QProcess::execute(LRELEASE, {"-silent", "-idbased", source.fileName(), "-qm",
                                           At("languages/" + name + ".qm")}),
              0);
    HostSetup setup = HostOfTest();
    setup.language_folders.emplace_back(At("languages").toStdString());
    Open(std::move(setup));
    ASSERT_TRUE(Entries("language").contains(name));
    host_->ChooseLanguage(name.toStdString());
    Serve();
    Press("help");  // any press shows the words anew
  }

  static QString Message(int id, const QString& word) {
    return QString("<message id=\"%1s\"><source></source><translation>%2</translation></message>")
        .arg(id)
        .arg(word);
  }
};

TEST_F(LanguageFiles, MayHaveAThousandForeignKeys) {
  QString messages = Message(9411, "Provu la sonon");
  for (int id = 100'000; id < 101'000; ++id) messages += Message(id, "fremda");
  OpenWith("Esperanto", messages);
  EXPECT_EQ(Caption("test"), "Provu la sonon");
  EXPECT_EQ(Caption("language_heading"), "Language");
  EXPECT_THAT(told_, IsEmpty());
}

/// No label and no tool tip that stands takes its words for markup.
void ExpectPlainTexts(const char* where) {
  int labels = 0;
  for (const QWidget* widget : QApplication::allWidgets()) {
    const QString tip = widget->toolTip();
    EXPECT_TRUE(!Qt::mightBeRichText(tip) || tip.startsWith("<qt>&lt;")) << tip.toStdString();
    const auto* const label = qobject_cast<const QLabel*>(widget);
    if (label == nullptr) continue;
    ++labels;
    EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
        << where << ": " << label->text().toStdString();
  }
  EXPECT_GT(labels, 0) << where;
}

TEST_F(LanguageFiles, AreShownAsTheyAreWhateverTheyLookLike) {
  QString messages;
  for (int id = 1; id < 10'000; id += id == 999 ? 8002 : 1) {
    messages += Message(id, "&lt;b&gt;fett&lt;/b&gt;&lt;img src='x.png'/&gt;%1");
  }
  OpenWith("Esperanto", messages);
  host_->AddUser({"4711", "<b>Berg</b>", "<img src='x.png'/>"});
  Press("help");
  ExpectPlainTexts("the window");
  for (const char* button : {"add_user", "change_user"}) {
    QTimer::singleShot(0, [&] {
      auto* const dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      dialog->findChild<QWidget*>("ok")->setFocus();
      dialog->findChild<QLineEdit*>("name")->setText(QString(500, 'x'));
      dialog->findChild<QPushButton*>("ok")->click();
      ExpectPlainTexts(button);
      dialog->close();
    });
    Press(button);
  }
  Press("log");
  ExpectPlainTexts("the log");
}

TEST_F(LanguageFiles, MayHaveNoKeyOfTheProgramAtAll) {
  OpenWith("Esperanto", Message(100'000, "fremda"));
  EXPECT_EQ(Caption("test"), "Test the sound");
  EXPECT_EQ(host_->Language(), "Esperanto");
  EXPECT_THAT(told_, IsEmpty());
}

}  // namespace
}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/home_window.h"

#include <signal.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "melvado_testing.h"
#include "programs/host/log_window.h"
#include "programs/host/user_dialog.h"
#include "qt/kit/drop_down_widget.h"
#include "qt/kit/press_widget.h"
#include "qt/screen_reader.h"

namespace melvado {
namespace {

using vmod17::DropDownWidget;
using vmod17::MessageBox;
using vmod17::PressWidget;
using vmod17::ScreenReader;

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The words of a dialog that are larger than their places.
std::vector<std::string> CutWords(const QWidget& window) {
  std::vector<std::string> cut;
  for (const auto* button : window.findChildren<QPushButton*>()) {
    if (button->width() < button->sizeHint().width()) cut.push_back(button->text().toStdString());
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible()) continue;
    const bool whole = label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                         : label->width() >= label->sizeHint().width();
    if (!whole) cut.push_back(label->text().toStdString());
  }
  for (const auto* field : window.findChildren<QLineEdit*>()) {
    if (field->height() < field->sizeHint().height()) {
      cut.push_back(field->objectName().toStdString());
    }
  }
  for (const auto* table : window.findChildren<QTableWidget*>()) {
    const QHeaderView& header = *table->horizontalHeader();
    for (int i = 0; i < header.count(); ++i) {
      if (header.sectionSize(i) >= header.sectionSizeHint(i)) continue;
      cut.push_back(table->horizontalHeaderItem(i)->text().toStdString());
    }
  }
  return cut;
}

class HomeWindowTest : public HostStage {
 protected:
  /// Does it in each language.
  void InEachLanguage(const std::function<void(const std::string& language)>& act) {
    const QStringList languages = Entries("language");
    ASSERT_GE(languages.size(), 2);
    for (int i = 0; i < languages.size(); ++i) {
      Choose("language", i);
      ASSERT_EQ(Caption("language"), languages[i]);
      act(languages[i].toStdString());
    }
  }
  void ExpectRoomForEveryWord() {
    for (const QSize size : {QSize(1024, 730), QSize(2560, 1440)}) {
      window_->showNormal();
      window_->resize(size);
      Serve();
      InEachLanguage([&](const std::string& language) {
        EXPECT_THAT(window_->CaptionsThatDoNotFit(), IsEmpty())
            << language << " at " << size.width();
      });
    }
  }
  void ExpectWhole(const QWidget& dialog, const std::string& language) {
    Serve();
    for (const auto* label : dialog.findChildren<QLabel*>()) {
      EXPECT_EQ(label->font().pixelSize(), dialog.font().pixelSize()) << language;
    }
    EXPECT_THAT(CutWords(dialog), IsEmpty()) << language;
    EXPECT_TRUE(QRect(0, 0, 1024, 768).contains(QRect(QPoint(), dialog.size())))
        << language << ": " << dialog.width() << " by " << dialog.height();
  }
  static UserDialog* Dialog() {
    return dynamic_cast<UserDialog*>(QApplication::activeModalWidget());
  }
  static void Type(UserDialog& dialog, const char* field, const QString& text) {
    dialog.findChild<QLineEdit*>(field)->setText(text);
  }
  static void Click(UserDialog& dialog, const char* button) {
    dialog.findChild<QPushButton*>(button)->click();
  }
  /// What the user does in the dialog that the next press opens.
  static void Then(const std::function<void(UserDialog&)>& act) {
    QTimer::singleShot(0, [act] {
      ASSERT_NE(Dialog(), nullptr);
      act(*Dialog());
    });
  }
  void AddUser(const QString& number, const QString& name, const QString& first_name) {
    Then([&](UserDialog& dialog) {
      Type(dialog, "number", number);
      Type(dialog, "name", name);
      Type(dialog, "first_name", first_name);
      Click(dialog, "ok");
      if (Dialog() != nullptr && dialog.isVisible()) dialog.reject();
    });
    Press("add_user");
  }
  static QString Plain(QString text) { return text.remove(QChar(0x2068)).remove(QChar(0x2069)); }
};

// ---- The first start

TEST_F(HomeWindowTest, NeedsNoChoiceAtTheFirstStart) {
  Open();
  EXPECT_EQ(Caption("language"), "Deutsch");
  EXPECT_EQ(Caption("user"), "Niemand (ohne Namen)");
  EXPECT_EQ(Caption("output"), "Eingebauter Synthesizer");
  EXPECT_EQ(Caption("start"), "Jazz-Akkorde bestimmen");
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("start"));
  EXPECT_THAT(told_, IsEmpty());
  EXPECT_THAT(messages_.warnings, IsEmpty());
}

TEST_F(HomeWindowTest, SpeaksTheLanguageOfTheDesktop) {
  locales_ = {"en_GB"};
  Open();
  EXPECT_EQ(Caption("language"), "English");
  EXPECT_EQ(Caption("user"), "Nobody (without a name)");
}

TEST_F(HomeWindowTest, LeadsToTheModuleByEnter) {
  Open();
  const Surrounding fake("FAKE_MODULE", "SHOWN wait MENUE 0");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(ServeUntil([this] { return !window_->isVisible(); }));
  EXPECT_TRUE(host_->ModuleRuns());
  kill(static_cast<pid_t>(host_->module_process()), SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return window_->isVisible(); }));
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("start"));
  EXPECT_THAT(messages_.warnings, IsEmpty());
  EXPECT_THAT(messages_.questions, IsEmpty());
}

TEST_F(HomeWindowTest, StartsByEnterFromAListToo) {
  Open();
  Find<QWidget>("language")->setFocus();
  const Surrounding fake("FAKE_MODULE", "SHOWN MENUE 0");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(host_->ModuleRuns());
  EXPECT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
}

TEST_F(HomeWindowTest, HasRoomForEveryWordOfEveryLanguage) {
  Open();
  ExpectRoomForEveryWord();
  AddUser("4711", "Berg", "Anna");
  host_->ChooseOutput("USB Digital Piano");
  host_->ChooseSoundfont("");
  ExpectRoomForEveryWord();
}

TEST_F(HomeWindowTest, HasRoomForASoundfontThatIsThereOrMissing) {
  HostSetup setup = HostOfTest();
  setup.sound.soundfont = At("Concert Grand Piano.sf2").toStdString();
  Open(setup);
  EXPECT_THAT(Caption("soundfont_note").toStdString(), HasSubstr("fehlt"));
  ExpectRoomForEveryWord();
  QFile file(At("Concert Grand Piano.sf2"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("RIFF\x10\x00\x00\x00sfbk", 12);
  file.close();
  Open(setup);
  Choose("language", static_cast<int>(Entries("language").indexOf("Deutsch")));
  EXPECT_EQ(Caption("soundfont_note").toStdString(), "Soundfont: Concert Grand Piano.sf2");
  ExpectRoomForEveryWord();
}

TEST_F(HomeWindowTest, HasRoomForWhatTheTestSays) {
  ports_->Plug({"Digital Piano:Digital Piano MIDI 1"});
  Open();
  Choose("output", 0);
  Press("test");
  ExpectRoomForEveryWord();
  EXPECT_TRUE(host_->TestRuns());
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  ASSERT_TRUE(host_->verdict()->left_the_program);
  ExpectRoomForEveryWord();
  ports_->Plug({});
  host_->RefreshOutputs();
  Press("test");
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  ASSERT_FALSE(host_->verdict()->left_the_program);
  ExpectRoomForEveryWord();
}

TEST_F(HomeWindowTest, HasRoomForTheWordsOfAStart) {
  Open();
  const Surrounding fake("FAKE_MODULE", "wait SHOWN MENUE 0");
  Press("start");
  ExpectRoomForEveryWord();
  EXPECT_TRUE(host_->ModuleRuns());
  kill(static_cast<pid_t>(host_->module_process()), SIGTERM);
  EXPECT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
}

TEST_F(HomeWindowTest, ShowsItsOwnWordsWholeInTheLists) {
  Open();
  InEachLanguage([this](const std::string& language) {
    EXPECT_EQ(Caption("user").toStdString(), host_->texts().Say(9403, "").toStdString());
    EXPECT_EQ(Caption("output").toStdString(), host_->texts().Say(9409, "").toStdString());
    host_->ChooseOutput("USB Piano");
    host_->RefreshOutputs();
    Choose("user", 0);  // shows the outputs anew
    EXPECT_EQ(Caption("output").toStdString(),
              host_->texts().Say(9410, "", {"USB Piano"}).toStdString())
        << language;
    host_->ChooseOutput("");
  });
}

TEST_F(HomeWindowTest, ShowsTheDialogOfAUserWholeInEveryLanguage) {
  Open();
  AddUser("4711", "Berg", "Anna");
  InEachLanguage([this](const std::string& language) {
    Then([&](UserDialog& dialog) {
      ExpectWhole(dialog, language);
      for (const char* number : {"", "4711"}) {
        Type(dialog, "number", number);
        Click(dialog, "ok");
        ASSERT_TRUE(dialog.findChild<QLabel*>("fault")->isVisible());
        ExpectWhole(dialog, language);
      }
      Type(dialog, "number", "4712");
      Type(dialog, "name", QString(10'000, 'x'));
      Click(dialog, "ok");
      ExpectWhole(dialog, language);
      dialog.reject();
    });
    Press("add_user");
  });
}

TEST_F(HomeWindowTest, ShowsTheLogWholeInEveryLanguage) {
  Open();
  RunModule("3");
  InEachLanguage([this](const std::string& language) {
    Press("log");
    LogWindow& log = *window_->log_window();
    ExpectWhole(log, language);
    log.findChild<QPushButton*>("copy")->click();
    ASSERT_FALSE(log.findChild<QLabel*>("note")->text().isEmpty());
    ExpectWhole(log, language);
    log.close();
  });
}

TEST_F(HomeWindowTest, GrowsWithTheDisplay) {
  Open();
  window_->showNormal();
  window_->resize(2048, 1460);
  EXPECT_DOUBLE_EQ(window_->factor(), 2);
  EXPECT_EQ(Find<QWidget>("start")->height(), 2 * 78);
}

// ---- Language

TEST_F(HomeWindowTest, ChangesItsWordsAtOnceAndKeepsTheLanguage) {
  Open();
  const QStringList languages = Entries("language");
  Choose("language", static_cast<int>(languages.indexOf("English")));
  EXPECT_EQ(Caption("test"), "Test the sound");
  EXPECT_EQ(Caption("output"), "Built-in synthesiser");
  Open();
  EXPECT_EQ(Caption("language"), "English");
  EXPECT_EQ(Caption("test"), "Test the sound");
}

// ---- Users

TEST_F(HomeWindowTest, AddsAUserWhoIsThenTheOneWhoLearns) {
  Open();
  AddUser("4711", "Berg", "Anna");
  EXPECT_EQ(Plain(Caption("user")), "Berg, Anna (4711)");
  EXPECT_EQ(Entries("user").size(), 2);
  EXPECT_EQ(host_->ChosenUser(), "4711");
  Open();
  EXPECT_EQ(Plain(Caption("user")), "Berg, Anna (4711)");
}

TEST_F(HomeWindowTest, LetsAnotherUserOrNobodyLearn) {
  Open();
  AddUser("4711", "Berg", "Anna");
  AddUser("0815", "Tal", "Ida");
  EXPECT_EQ(host_->ChosenUser(), "0815");
  Choose("user", 1);
  EXPECT_EQ(host_->ChosenUser(), "4711");
  Choose("user", 0);
  EXPECT_EQ(host_->ChosenUser(), "");
  EXPECT_FALSE(Find<QWidget>("change_user")->isEnabled());
  EXPECT_FALSE(Find<QWidget>("remove_user")->isEnabled());
}

TEST_F(HomeWindowTest, AsksAgainUntilANumberCanBeTaken) {
  Open();
  AddUser("4711", "Berg", "Anna");
  Then([](UserDialog& dialog) {
    auto* const fault = dialog.findChild<QLabel*>("fault");
    auto* const note = dialog.findChild<QLabel*>("note");
    EXPECT_FALSE(fault->isVisible());
    EXPECT_TRUE(note->isVisible());
    EXPECT_THAT(note->text().toStdString(), HasSubstr("Matrikelnummer ein"));
    Click(dialog, "ok");
    EXPECT_FALSE(note->isVisible());
    EXPECT_THAT(fault->text().toStdString(), HasSubstr("Matrikelnummer ein"));
    EXPECT_EQ(dialog.focusWidget()->objectName(), "number");
    EXPECT_EQ(dialog.focusWidget()->accessibleDescription(), fault->text());
    Type(dialog, "number", "4711");
    Click(dialog, "ok");
    EXPECT_THAT(fault->text().toStdString(), HasSubstr("steht schon in der Liste"));
    Type(dialog, "number", "4712");
    Type(dialog, "name", QString(10'000, 'x'));
    Click(dialog, "ok");
    EXPECT_THAT(fault->text().toStdString(), HasSubstr("zu lang"));
    EXPECT_EQ(dialog.focusWidget()->objectName(), "name");
    EXPECT_EQ(dialog.focusWidget()->accessibleDescription(), fault->text());
    EXPECT_TRUE(dialog.findChild<QLineEdit*>("number")->accessibleDescription().isEmpty());
    Type(dialog, "number", "   ");
    Click(dialog, "ok");
    EXPECT_THAT(fault->text().toStdString(), HasSubstr("Matrikelnummer ein"));
    EXPECT_EQ(dialog.focusWidget()->objectName(), "number");
    Type(dialog, "number", "4712");
    Type(dialog, "name", "Tal");
    Click(dialog, "ok");
    EXPECT_FALSE(dialog.isVisible());
  });
  Press("add_user");
  EXPECT_EQ(host_->ChosenUser(), "4712");
  EXPECT_THAT(host_->Users(), SizeIs(2));
}

TEST_F(HomeWindowTest, AddsNobodyWhenReturnIsPressedOnCancel) {
  Open();
  Then([](UserDialog& dialog) {
    Type(dialog, "number", "4711");
    auto* const cancel = dialog.findChild<QPushButton*>("cancel");
    cancel->setFocus(Qt::TabFocusReason);
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  Press("add_user");
  EXPECT_THAT(host_->Users(), IsEmpty());
}

TEST_F(HomeWindowTest, ChangesTheNamesOfAUserButNotHisNumber) {
  Open();
  AddUser("4711", "Berg", "Anna");
  Then([](UserDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QLineEdit*>("number")->isReadOnly());
    EXPECT_EQ(dialog.findChild<QLineEdit*>("name")->text(), "Berg");
    Type(dialog, "name", "Tal");
    Click(dialog, "ok");
  });
  Press("change_user");
  EXPECT_EQ(Plain(Caption("user")), "Tal, Anna (4711)");
}

TEST_F(HomeWindowTest, LeavesAUserAsHeIsWhenTheDialogIsLeft) {
  Open();
  AddUser("4711", "Berg", "Anna");
  Then([](UserDialog& dialog) {
    Type(dialog, "name", "Tal");
    Click(dialog, "cancel");
  });
  Press("change_user");
  EXPECT_EQ(Plain(Caption("user")), "Berg, Anna (4711)");
}

TEST_F(HomeWindowTest, RemovesAUserOnlyIfTheAnswerIsYes) {
  Open();
  AddUser("4711", "Berg", "Anna");
  Press("remove_user");
  ASSERT_THAT(messages_.questions, SizeIs(1));
  EXPECT_THAT(messages_.questions[0].text, HasSubstr("bleiben erhalten"));
  EXPECT_EQ(messages_.preselected, MessageBox::Answer::kNo);
  EXPECT_THAT(host_->Users(), SizeIs(1));
  messages_.answer = MessageBox::Answer::kYes;
  Press("remove_user");
  EXPECT_THAT(host_->Users(), IsEmpty());
  EXPECT_EQ(Caption("user"), "Niemand (ohne Namen)");
}

// ---- Sound

TEST_F(HomeWindowTest, ShowsADeviceThatComesAndGoes) {
  Open();
  EXPECT_EQ(Entries("output"), QStringList{"Eingebauter Synthesizer"});
  ports_->Plug({"Piano"});
  host_->RefreshOutputs();
  EXPECT_EQ(Entries("output"), (QStringList{"Piano", "Eingebauter Synthesizer"}));
  EXPECT_EQ(Caption("output"), "Eingebauter Synthesizer");
  Choose("output", 0);
  EXPECT_EQ(Caption("output_note"), "");
  ports_->Plug({});
  host_->RefreshOutputs();
  EXPECT_EQ(Caption("output"), "Piano (nicht angeschlossen)");
  EXPECT_THAT(Caption("output_note").toStdString(), HasSubstr("eingebaute Synthesizer"));
  EXPECT_EQ(Find<QWidget>("output")->accessibleDescription(), Caption("output_note"));
  ports_->Plug({"Expander", "Piano"});
  host_->RefreshOutputs();
  EXPECT_EQ(Caption("output"), "Piano");
  EXPECT_EQ(Caption("output_note"), "");
}

TEST_F(HomeWindowTest, LooksForDevicesByItself) {
  Open();
  ports_->Plug({"Piano"});
  EXPECT_TRUE(ServeUntil([this] { return Entries("output").size() == 2; }));
}

TEST_F(HomeWindowTest, RemembersADeviceByNameWhileItIsGone) {
  ports_->Plug({"Piano", "Expander"});
  Open();
  Choose("output", 1);
  ports_->Plug({});
  Open();
  EXPECT_EQ(Caption("output"), "Expander (nicht angeschlossen)");
}

TEST_F(HomeWindowTest, TakesOverAnOutputThatIsNamedFromOutside) {
  ports_->Plug({"Piano", "Expander"});
  HostSetup setup = HostOfTest();
  setup.midi = "Exp";
  Open(std::move(setup));
  EXPECT_EQ(Caption("output"), "Expander");
  Open();
  EXPECT_EQ(Caption("output"), "Expander");
}

TEST_F(HomeWindowTest, TellsWhatBecameOfTheTest) {
  ports_->Plug({"Piano"});
  Open();
  Choose("output", 0);
  Press("test");
  EXPECT_TRUE(Find<QAbstractButton>("test")->isDown());
  EXPECT_EQ(Caption("verdict"), "Es wird ein Akkord gespielt…");
  Press("test");  // it runs already
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  EXPECT_FALSE(Find<QAbstractButton>("test")->isDown());
  EXPECT_THAT(Caption("verdict").toStdString(), HasSubstr("Das MIDI-Gerät „Piano“ hat"));
  EXPECT_EQ(Find<QWidget>("test")->accessibleDescription(), Caption("verdict"));
  Choose("language", static_cast<int>(Entries("language").indexOf("English")));
  EXPECT_THAT(Caption("verdict").toStdString(), HasSubstr("the MIDI device"));
}

TEST_F(HomeWindowTest, LeadsOnByEnterAfterAUserWasAdded) {
  Open();
  AddUser("4711", "Berg", "Anna");
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("start"));
  EXPECT_EQ(Plain(Find<QWidget>("start")->accessibleDescription()),
            Plain(Caption("user_heading") + " Berg, Anna (4711)"));
}

TEST_F(HomeWindowTest, KeepsTheFocusOnTheTestWhileItRuns) {
  ports_->Plug({"Piano"});
  Open();
  Choose("output", 0);
  Find<QWidget>("test")->setFocus();
  Press("test");
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("test"));
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("test"));
}

TEST_F(HomeWindowTest, StopsATestWhenTheModuleStarts) {
  ports_->Plug({"Piano"});
  Open();
  Choose("output", 0);
  Press("test");
  RunModule("SHOWN MENUE 0");
  EXPECT_FALSE(host_->TestRuns());
  EXPECT_TRUE(Find<QWidget>("test")->isEnabled());
}

// ---- The module

TEST_F(HomeWindowTest, ComesBackAndSaysSoWhenTheModuleCrashes) {
  for (const char* const script : {"SHOWN abort", "SHOWN 0", "7"}) {
    messages_.questions.clear();
    Open();
    RunModule(script);
    EXPECT_TRUE(window_->isVisible());
    ASSERT_THAT(messages_.questions, SizeIs(1)) << script;
    EXPECT_THAT(messages_.questions[0].text, HasSubstr("unerwartet"));
    ASSERT_THAT(host_->Log(), testing::Not(IsEmpty()));
    EXPECT_EQ(host_->Log().back().source, "melvado");
  }
}

TEST_F(HomeWindowTest, ComesBackWhenTheModuleIsKilled) {
  Open();
  const Surrounding fake("FAKE_MODULE", "SHOWN wait");
  Press("start");
  ASSERT_TRUE(ServeUntil([this] { return !window_->isVisible(); }));
  kill(static_cast<pid_t>(host_->module_process()), SIGKILL);
  ASSERT_TRUE(ServeUntil([this] { return window_->isVisible(); }));
  EXPECT_THAT(messages_.questions, SizeIs(1));
  EXPECT_THAT(host_->Log().back().text, HasSubstr("signal 9"));
}

TEST_F(HomeWindowTest, ShowsTheEndOfTheLogAfterACrashIfItIsWanted) {
  Open();
  messages_.answer = MessageBox::Answer::kYes;
  RunModule("SHOWN abort");
  ASSERT_NE(window_->log_window(), nullptr);
  EXPECT_TRUE(window_->log_window()->isVisible());
  const auto* lines = window_->log_window()->findChild<QTableWidget*>("lines");
  ASSERT_GT(lines->rowCount(), 0);
  EXPECT_EQ(lines->currentRow(), lines->rowCount() - 1);
  EXPECT_EQ(lines->item(lines->rowCount() - 1, 4)->text(), "melvado");
}

TEST_F(HomeWindowTest, SaysThatTheModuleCannotBeStarted) {
  HostSetup setup = HostOfTest();
  setup.module = "/nowhere/vmod17";
  Open(std::move(setup));
  RunModule("");
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_THAT(messages_.warnings[0].text, HasSubstr("ließ sich nicht starten"));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(Find<QWidget>("start")->isEnabled());
}

TEST_F(HomeWindowTest, SaysThatTheModuleWasOpenBefore) {
  Open();
  RunModule("OPEN 0");
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_THAT(messages_.warnings[0].text, HasSubstr("schon geöffnet"));
}

TEST_F(HomeWindowTest, StaysAsItIsWhileTheModuleStarts) {
  Open();
  const Surrounding fake("FAKE_MODULE", "wait SHOWN MENUE 0");
  Press("start");
  EXPECT_EQ(Caption("start"), "Wird gestartet…");
  for (const char* name : {"user", "language", "output", "test", "add_user"}) {
    EXPECT_FALSE(Find<QWidget>(name)->isEnabled()) << name;
  }
  const qint64 first = host_->module_process();
  Press("start");
  EXPECT_EQ(host_->module_process(), first);
  kill(static_cast<pid_t>(first), SIGTERM);
  ASSERT_TRUE(ServeUntil([this] { return !host_->ModuleRuns(); }));
  Serve();
  EXPECT_TRUE(Find<QWidget>("user")->isEnabled());
}

// ---- The log

TEST_F(HomeWindowTest, ShowsTheLogNewestLastAndCopiesItAsAReport) {
  Open();
  RunModule("3");
  RunModule("4");
  Press("log");
  LogWindow* const log = window_->log_window();
  const auto* lines = log->findChild<QTableWidget*>("lines");
  ASSERT_EQ(lines->rowCount(), 3);  // the first is the host's start
  EXPECT_EQ(lines->item(1, 2)->text(), "3");
  EXPECT_EQ(lines->item(2, 2)->text(), "4");
  log->findChild<QPushButton*>("copy")->click();
  const std::string report = QGuiApplication::clipboard()->text().toStdString();
  for (const char* part : {"Melvado 1.", "System: ", "Qt 6", "Sound output: built-in synthesiser",
                           "Soundfont: the system's", "ERROR 4 in Host.ModuleEnded"}) {
    EXPECT_THAT(report, HasSubstr(part));
  }
}

TEST_F(HomeWindowTest, ReadsTheLogAgain) {
  Open();
  Press("log");
  LogWindow* const log = window_->log_window();
  const auto* lines = log->findChild<QTableWidget*>("lines");
  EXPECT_EQ(lines->rowCount(), 1);
  RunModule("3");
  log->findChild<QPushButton*>("refresh")->click();
  EXPECT_EQ(lines->rowCount(), 2);
}

TEST_F(HomeWindowTest, AsksForHelpByF1AndByTheButton) {
  Open();
  int asked = 0;
  window_->on_help = [&](const std::string&) { ++asked; };
  QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
  Press("help");
  EXPECT_EQ(asked, 2);
  Press("log");
  QTest::keyClick(window_->log_window()->findChild<QTableWidget*>("lines"), Qt::Key_F1);
  EXPECT_EQ(asked, 3);
}

TEST_F(HomeWindowTest, AsksToQuitWhenItIsClosed) {
  Open();
  int asked = 0;
  window_->on_quit = [&] { ++asked; };
  window_->close();
  Press("quit");
  EXPECT_EQ(asked, 2);
}

// ---- What a reader of the screen speaks

class SpokenHome : public HomeWindowTest {
 protected:
  SpokenHome() { ports_->Plug({"Piano"}); }
  ~SpokenHome() override { window_.reset(); }

  ScreenReader reader_;
};

TEST_F(SpokenHome, IsSilentOverTheChordOfTheSoundTestAndTellsTheVerdict) {
  Open();
  Choose("output", 0);
  Find<QWidget>("test")->setFocus();
  reader_.Spoken();
  Press("test");
  EXPECT_EQ(reader_.Spoken(), " ");  // which ends what was being spoken
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  EXPECT_EQ(reader_.Spoken(), (Caption("verdict") + " " + Caption("test")).toStdString());
  Press("test");
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  EXPECT_THAT(reader_.Spoken(), HasSubstr(Caption("verdict").toStdString()));
}

TEST_F(SpokenHome, TellsThatItsOutputHasGone) {
  Open();
  Choose("output", 0);
  reader_.Spoken();
  ports_->Plug({});
  host_->RefreshOutputs();
  EXPECT_EQ(reader_.Spoken(), Caption("output_note").toStdString());
  host_->RefreshOutputs();
  EXPECT_EQ(reader_.Spoken(), "");
}

TEST_F(SpokenHome, TellsTheEntryThatAKeyChoosesInAList) {
  Open();
  Find<QWidget>("output")->setFocus();
  reader_.Spoken();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(reader_.Spoken(), "Piano");
}

// ---- Without mouse and keys, as an assistive technology works

class AccessibleHome : public HomeWindowTest {
 protected:
  static QAccessibleInterface& Of(QObject& object) {
    return *QAccessible::queryAccessibleInterface(&object);
  }
  /// Presses a button, which acts a moment later; `done` tells that it has.
  static void PressIt(QObject& button, const std::function<bool()>& done) {
    Of(button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(ServeUntil(done)) << button.objectName().toStdString();
  }
  void Take(const char* list, int entry) {
    Of(*Find<QWidget>(list))
        .child(0)
        ->child(entry)
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
  }
  static void Write(UserDialog& dialog, const char* field, const QString& text) {
    Of(*dialog.findChild<QLineEdit*>(field)).setText(QAccessible::Value, text);
  }
};

TEST_F(AccessibleHome, HasANameAndAnActionForAllThatCanBeDone) {
  Open();
  int buttons = 0;
  for (QWidget* widget : window_->findChildren<QWidget*>()) {
    const bool button = dynamic_cast<PressWidget*>(widget) != nullptr;
    if (!button && dynamic_cast<DropDownWidget*>(widget) == nullptr) continue;
    QAccessibleInterface& element = Of(*widget);
    EXPECT_GT(element.text(QAccessible::Name).size(), 1) << widget->objectName().toStdString();
    if (!widget->isEnabled()) continue;
    const QStringList actions = element.actionInterface()->actionNames();
    EXPECT_TRUE(actions.contains(QAccessibleActionInterface::pressAction()));
    EXPECT_TRUE(actions.contains(QAccessibleActionInterface::setFocusAction()));
    buttons += button ? 1 : 0;
  }
  EXPECT_GT(buttons, 5);
  EXPECT_EQ(Of(*Find<QWidget>("output")).text(QAccessible::Name), Caption("output_heading"));
  EXPECT_EQ(Of(*Find<QWidget>("output")).text(QAccessible::Value), Entries("output")[0]);
}

TEST_F(AccessibleHome, TakesTheEntriesOfItsLists) {
  ports_->Plug({"Piano"});
  Open();
  Take("language", static_cast<int>(Entries("language").indexOf("English")));
  EXPECT_EQ(host_->Language(), "English");
  Take("output", 0);
  EXPECT_EQ(host_->outputs().chosen, 0);
  EXPECT_EQ(Caption("output"), "Piano");
}

TEST_F(AccessibleHome, AddsChoosesAndRemovesAUser) {
  Open();
  Then([](UserDialog& dialog) {
    PressIt(*dialog.findChild<QPushButton*>("ok"),
            [&] { return dialog.findChild<QLabel*>("fault")->isVisible(); });
    Write(dialog, "number", "4711");
    Write(dialog, "name", "Berg");
    PressIt(*dialog.findChild<QPushButton*>("ok"), [&] { return !dialog.isVisible(); });
  });
  Press("add_user");
  EXPECT_EQ(host_->ChosenUser(), "4711");
  Take("user", 0);
  EXPECT_EQ(host_->ChosenUser(), "");
  Take("user", 1);
  EXPECT_EQ(host_->ChosenUser(), "4711");
  messages_.answer = MessageBox::Answer::kYes;
  PressIt(*Find<QWidget>("remove_user"), [this] { return host_->Users().empty(); });
}

TEST_F(AccessibleHome, TestsTheSoundOpensHelpAndLogAndEnds) {
  ports_->Plug({"Piano"});
  Open();
  Take("output", 0);
  PressIt(*Find<QWidget>("test"), [this] { return host_->verdict().has_value(); });
  std::string page;
  window_->on_help = [&page](const std::string& asked) { page = asked; };
  PressIt(*Find<QWidget>("help"), [&] { return page == "melvado"; });
  PressIt(*Find<QWidget>("log"), [this] { return window_->log_window() != nullptr; });
  LogWindow& log = *window_->log_window();
  auto& lines = *log.findChild<QTableWidget*>("lines");
  ASSERT_GT(lines.rowCount(), 0);
  Of(lines).tableInterface()->selectRow(lines.rowCount() - 1);
  EXPECT_FALSE(log.findChild<QPlainTextEdit*>("line")->toPlainText().isEmpty());
  PressIt(*log.findChild<QPushButton*>("close"), [&] { return !log.isVisible(); });
  bool quit = false;
  window_->on_quit = [&quit] { quit = true; };
  PressIt(*Find<QWidget>("quit"), [&] { return quit; });
}

}  // namespace
}  // namespace melvado

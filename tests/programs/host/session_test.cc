// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What the host has chosen holds for the module that it starts, whatever the store has taken of it.

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

#include "melvado_testing.h"

namespace melvado {
namespace {

using vmod17::HostStore;
using vmod17::LogEntry;
using vmod17::StoreOptions;
using vmod17::StoreUser;

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class SessionTest : public HostStage {
 protected:
  HostSetup HostOnAStoreThatCannotBeUsed() {
    QFile file(At("file"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    HostSetup setup = HostOfTest();
    setup.store = (At("file") + "/store.sqlite").toStdString();
    return setup;
  }

  /// The store as the module sees it that the host starts next.
  std::unique_ptr<HostStore> StoreOfModule(const HostSetup& setup) {
    QFile::remove(At("notes"));
    const Surrounding notes("FAKE_MODULE_NOTES", At("notes").toUtf8());
    RunModule("SHOWN MENUE 0");
    QFile written(At("notes"));
    EXPECT_TRUE(written.open(QIODevice::ReadOnly));
    static const QRegularExpression kSession("MELVADO_SESSION=(.*)\\nMELVADO_MIDI",
                                             QRegularExpression::DotMatchesEverythingOption);
    StoreOptions options;
    options.address = setup.store;
    options.session =
        kSession.match(QString::fromUtf8(written.readAll())).captured(1).toStdString();
    return std::make_unique<HostStore>(std::move(options));
  }

  QStringList LogLines() {
    QStringList lines;
    for (const LogEntry& line : host_->Log()) lines << QString::fromStdString(line.text);
    return lines;
  }
};

/// Another program that holds a store, as long as it lives.
class Holder {
 public:
  explicit Holder(const QString& path) {
    database_ = QSqlDatabase::addDatabase("QSQLITE", "holder");
    database_.setDatabaseName(path);
    EXPECT_TRUE(database_.open());
    EXPECT_TRUE(QSqlQuery(database_).exec("BEGIN IMMEDIATE"));
  }
  ~Holder() {
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase("holder");
  }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  QSqlDatabase database_;
};

TEST_F(SessionTest, GoesToTheModuleAlsoWhereNoStoreTakesIt) {
  const HostSetup setup = HostOnAStoreThatCannotBeUsed();
  Open(setup);
  host_->AddUser({"4711", "Berg", "Anna"});
  host_->ChooseLanguage("Русский");
  const auto module = StoreOfModule(setup);
  EXPECT_EQ(module->User(), (StoreUser{"4711", "Berg", "Anna"}));
  EXPECT_EQ(module->Language(), "Русский");
}

TEST_F(SessionTest, StaysWithAUserWhomAnotherHostHasTakenOffTheList) {
  Open();
  host_->AddUser({"4711", "Berg", "Anna"});
  Host other(HostOfTest(), loop_);
  other.RemoveUser("4711");
  EXPECT_EQ(StoreOfModule(HostOfTest())->User(), (StoreUser{"4711", "Berg", "Anna"}));
}

TEST_F(SessionTest, HasNobodyWhenTheUserIsTakenOffTheListHere) {
  Open();
  host_->AddUser({"4711", "Berg", "Anna"});
  host_->RemoveUser("4711");
  EXPECT_EQ(StoreOfModule(HostOfTest())->User(), std::nullopt);
}

TEST_F(SessionTest, TellsEachTimeThatTheStoreIsHeldAndChangesNothing) {
  HostSetup setup = HostOfTest();
  setup.store_patience_ms = 10;
  Open(std::move(setup));
  host_->AddUser({"4711", "Berg", "Anna"});
  host_->AddUser({"1", "Tal", "Ida"});
  {
    const Holder holder(At("store.sqlite"));
    for (int i = 0; i < 2; ++i) {
      const auto fault = host_->AddUser({"2", "Neu", "Eva"});
      ASSERT_TRUE(fault.has_value());
      EXPECT_EQ(fault->text_id, 9103);
      EXPECT_EQ(host_->ChangeUser({"1", "Tal", "Eva"})->text_id, 9103);
      EXPECT_EQ(host_->ChooseSoundfont("")->text_id, 9103);
      Serve();
      // The caller says these.
      EXPECT_THAT(told_, IsEmpty());
    }
    host_->ChooseUser("4711");
    host_->ChooseLanguage("English");
    host_->ChooseOutput("Piano");
    host_->RemoveUser("1");
    Serve();
    EXPECT_THAT(told_, ElementsAre(9103, 9103, 9103, 9103));
    EXPECT_EQ(host_->ChosenUser(), "1");
    EXPECT_EQ(host_->Language(), "Deutsch");
  }
  EXPECT_EQ(host_->AddUser({"2", "Neu", "Eva"}), std::nullopt);
  EXPECT_EQ(host_->ChosenUser(), "2");
}

TEST_F(SessionTest, KeepsTheDialogOpenWithWhatWasTypedWhileTheStoreIsHeld) {
  HostSetup setup = HostOfTest();
  setup.store_patience_ms = 10;
  Open(std::move(setup));
  std::optional<Holder> holder(At("store.sqlite"));
  QString fault;
  bool stayed = false;
  QTimer::singleShot(0, window_.get(), [&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    const auto press_ok = [&] { dialog->findChild<QPushButton*>("ok")->click(); };
    dialog->findChild<QLineEdit*>("number")->setText("4711");
    press_ok();
    stayed = dialog->isVisible();
    fault = dialog->findChild<QLabel*>("fault")->text();
    holder.reset();
    press_ok();
  });
  Press("add_user");
  EXPECT_TRUE(stayed);
  EXPECT_THAT(fault.toStdString(), HasSubstr("store.sqlite"));
  EXPECT_EQ(host_->ChosenUser(), "4711");
}

TEST_F(SessionTest, BeginsWithEnglishWhereTheLanguageOfTheDesktopIsNotInstalled) {
  locales_ = {"da_DK"};
  Open();
  EXPECT_EQ(host_->Language(), "English");
}

TEST_F(SessionTest, IsLoggedFromItsStartOnWithTheHostsOwnErrors) {
  Open();
  EXPECT_THAT(LogLines(), Contains(QString("melvado 1.0.0")));
  host_->LogError("run_time", 13, "an odd thing", "melvado.Host");
  const LogEntry last = host_->Log().back();
  EXPECT_EQ(last.kind, LogEntry::Kind::kError);
  EXPECT_EQ(last.place, "run_time");
  EXPECT_EQ(last.number, 13);
  EXPECT_EQ(last.text, "an odd thing");
  EXPECT_EQ(last.source, "melvado.Host");
}

}  // namespace
}  // namespace melvado

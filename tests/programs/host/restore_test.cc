// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A backup that the user has restored in the home window.

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "melvado_testing.h"

namespace melvado {
namespace {

using vmod17::HostStore;
using vmod17::MessageBox;
using vmod17::StoreOptions;
using vmod17::StoreUser;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class Restore : public HostStage {
 protected:
  /// A backup of a store with Anna, who speaks English; since then Ida alone has been there.
  void MakeBackup() {
    Open();
    host_->AddUser({"4711", "Berg", "Anna"});
    host_->ChooseLanguage("English");
    Close();
    ASSERT_TRUE(QFile::copy(At("store.sqlite"), At("backup.db")));
    Open();
    host_->RemoveUser("4711");
    host_->AddUser({"4712", "Tal", "Ida"});
    host_->ChooseLanguage("Deutsch");
    Open();
    dialog_.to_open = At("backup.db").toStdString();
  }
  std::vector<std::string> Users() {
    std::vector<std::string> ids;
    for (const StoreUser& user : host_->Users()) ids.push_back(user.id);
    return ids;
  }
  QStringList FilesLike(const QString& pattern) const {
    return QDir(folder_.path()).entryList({pattern});
  }
};

TEST_F(Restore, ShowsEverythingAsItIsInTheBackup) {
  MakeBackup();
  messages_.answer = MessageBox::Answer::kYes;
  Press("restore");
  EXPECT_EQ(dialog_.folder, folder_.path().toStdString());
  ASSERT_THAT(messages_.questions, SizeIs(1));
  EXPECT_THAT(messages_.questions[0].text, HasSubstr(At("backup.db").toStdString()));
  EXPECT_THAT(messages_.questions[0].text, HasSubstr(At("store.sqlite").toStdString()));
  EXPECT_EQ(messages_.preselected, MessageBox::Answer::kNo);
  EXPECT_THAT(Users(), ElementsAre("4711"));
  EXPECT_EQ(Caption("user"), Entries("user")[1]);
  EXPECT_EQ(Caption("language"), "English");
  EXPECT_EQ(Caption("restore"), "Restore a backup…");
  // In the language of the backup, with the name under which the store is kept.
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_THAT(messages_.warnings[0].text, HasSubstr("has been restored"));
  ASSERT_EQ(FilesLike("store.sqlite.replaced-*").size(), 1);
  EXPECT_THAT(messages_.warnings[0].text,
              HasSubstr(FilesLike("store.sqlite.replaced-*")[0].toStdString()));
  EXPECT_THAT(host_->Log().back().text, HasSubstr("restored " + At("backup.db").toStdString()));
  Open();
  EXPECT_THAT(Users(), ElementsAre("4711"));
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(Restore, ChangesNothingWithoutAFileOrTheUsersYes) {
  MakeBackup();
  Press("restore");
  EXPECT_THAT(messages_.questions, SizeIs(1));
  dialog_.to_open.reset();
  Press("restore");
  EXPECT_THAT(messages_.questions, SizeIs(1));
  EXPECT_THAT(messages_.warnings, IsEmpty());
  EXPECT_THAT(Users(), ElementsAre("4712"));
  EXPECT_EQ(FilesLike("store.sqlite.*"), QStringList());
}

TEST_F(Restore, SaysInWordsWhyAFileIsRefused) {
  MakeBackup();
  dialog_.to_open = FAKE_MODULE;
  Press("restore");
  EXPECT_THAT(messages_.questions, IsEmpty());
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_EQ(messages_.warnings[0].text,
            host_->texts().Say({9120, "", {FAKE_MODULE}}).toStdString());
  EXPECT_THAT(Users(), ElementsAre("4712"));
}

TEST_F(Restore, BringsBackWhatADamagedStoreHasLost) {
  MakeBackup();
  Close();
  QFile store(At("store.sqlite"));
  ASSERT_TRUE(store.open(QIODevice::ReadWrite));
  store.write("damaged by something");
  store.close();
  Open();
  Serve();
  EXPECT_THAT(told_, ElementsAre(9106));
  EXPECT_THAT(Users(), IsEmpty());
  messages_.answer = MessageBox::Answer::kYes;
  Press("restore");
  EXPECT_THAT(Users(), ElementsAre("4711"));
}

TEST_F(Restore, RefusesWhileAnotherProgramUsesTheStore) {
  MakeBackup();
  HostStore other([&] {
    StoreOptions options;
    options.address = HostOfTest().store;
    return options;
  }());
  ASSERT_THAT(other.Users(), SizeIs(1));
  messages_.answer = MessageBox::Answer::kYes;
  Press("restore");
  ASSERT_THAT(messages_.warnings, SizeIs(1));
  EXPECT_EQ(messages_.warnings[0].text,
            host_->texts().Say({9123, "", {At("store.sqlite").toStdString()}}).toStdString());
  EXPECT_THAT(Users(), ElementsAre("4712"));
}

TEST_F(Restore, CanBeReachedWithTheKeyboard) {
  MakeBackup();
  auto* const button = Find<QWidget>("restore");
  button->setFocus(Qt::TabFocusReason);
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(dialog_.opened, 1);
  EXPECT_EQ(button->accessibleName(), Caption("restore"));
}

TEST_F(Restore, IsNotOfferedForAServer) {
  HostSetup setup = HostOfTest();
  setup.store = "postgresql://anna@127.0.0.1:1/nowhere";
  Open(std::move(setup));
  EXPECT_FALSE(Find<QWidget>("restore")->isVisible());
}

}  // namespace
}  // namespace melvado

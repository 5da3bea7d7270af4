// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What a user, a file or a device may do to the host, and what becomes of it.

#include <QFile>

#include "melvado_testing.h"
#include "midi/soundfonts.h"

namespace melvado {
namespace {

using vmod17::ExistingSoundfonts;
using vmod17::MessageBox;
using vmod17::StoreUser;
using vmod17::UsualSoundfonts;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class BadInput : public HostStage {
 protected:
  /// A soundfont under a name that can be taken away.
  QString LinkToSoundfont(const QString& name) {
    const auto existing = ExistingSoundfonts(UsualSoundfonts());
    EXPECT_FALSE(existing.empty());
    QFile::link(QString::fromStdString(existing[0]), At(name));
    return At(name);
  }
  QString WriteFile(const QString& name, const QByteArray& content) {
    QFile file(At(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return At(name);
  }
};

TEST_F(BadInput, AStoreOfANewerVersionIsToldOfAndLeftAlone) {
  Open();
  host_->AddUser({"4711", "Berg", "Anna"});
  Close();
  RunOnStore("UPDATE melvado_meta SET value = '99' WHERE name = 'schema_version'");
  Open();
  EXPECT_THAT(told_, ElementsAre(9101));
  EXPECT_EQ(Caption("user"), "Niemand (ohne Namen)");
  EXPECT_EQ(host_->AddUser({"1", "Tal", "Ida"}), std::nullopt);
  EXPECT_EQ(host_->ChosenUser(), "1");
  Close();
  RunOnStore("UPDATE melvado_meta SET value = '2' WHERE name = 'schema_version'");
  Open();
  EXPECT_EQ(host_->ChosenUser(), "4711");
}

TEST_F(BadInput, AStoreThatCannotBeUsedStillLetsTheUserChoose) {
  HostSetup setup = HostOfTest();
  setup.store = WriteFile("file", "").toStdString() + "/store.sqlite";
  Open(std::move(setup));
  EXPECT_THAT(told_, ElementsAre(9102));
  EXPECT_EQ(host_->AddUser({"4711", "Berg", "Anna"}), std::nullopt);
  EXPECT_THAT(host_->Users(), SizeIs(1));
  EXPECT_EQ(host_->ChosenUser(), "4711");
}

TEST_F(BadInput, UsersWithOddNamesAreKeptAndShownAsTheyAre) {
  const std::vector<StoreUser> odd = {{"1", "O'Brien\"; DROP TABLE melvado_user; --", "Bob/..\\"},
                                      {"2", "<b>fett</b><img src=x>", "&lt;"},
                                      {"3", "\u05D0\u05D1\u200F", "\u202Eabc"},
                                      {"4", std::string(100, 'W'), std::string(100, 'W')},
                                      {"../5", "%1 %2", "日本"}};
  Open();
  for (const StoreUser& user : odd) EXPECT_EQ(host_->AddUser(user), std::nullopt) << user.id;
  Open();
  ASSERT_THAT(host_->Users(), SizeIs(odd.size()));
  for (int i = 1; i < Find<QComboBox>("user")->count(); ++i) {
    Choose("user", i);
    EXPECT_THAT(window_->CaptionsThatDoNotFit(), IsEmpty()) << Caption("user").toStdString();
  }
  EXPECT_TRUE(Entries("user").join('\n').contains("<b>fett</b>"));
  messages_.answer = MessageBox::Answer::kYes;
  for (std::size_t i = odd.size(); i > 0; --i) {
    Choose("user", 1);
    Press("remove_user");
  }
  EXPECT_THAT(host_->Users(), IsEmpty());
}

TEST_F(BadInput, ANumberIsTakenOnceAlsoBetweenTwoHosts) {
  Open();
  Host other(HostOfTest(), loop_);
  EXPECT_EQ(host_->AddUser({"4711", "Berg", "Anna"}), std::nullopt);
  const auto fault = other.AddUser({" 4711\u200B", "Tal", "Ida"});
  ASSERT_TRUE(fault.has_value());
  EXPECT_EQ(fault->text_id, 9435);
  EXPECT_EQ(other.Users(), (std::vector<StoreUser>{{"4711", "Berg", "Anna"}}));
}

TEST_F(BadInput, AUserWhomAnotherHostRemovesIsShownAsLongAsHeIsChosenHere) {
  Open();
  host_->AddUser({"4711", "Berg", "Anna"});
  Host other(HostOfTest(), loop_);
  other.RemoveUser("4711");
  EXPECT_EQ(host_->ChosenUser(), "4711");
  EXPECT_THAT(host_->Users(), SizeIs(1));
}

TEST_F(BadInput, AFileThatIsNoSoundfontIsRefused) {
  Open();
  for (const QByteArray& content :
       {QByteArray(), QByteArray("no soundfont"), QByteArray("RIFF\x10\x00\x00\x00sfbk", 12)}) {
    messages_.warnings.clear();
    dialog_.to_open = WriteFile("wrong.sf2", content).toStdString();
    Press("soundfont");
    ASSERT_THAT(messages_.warnings, SizeIs(1));
    EXPECT_THAT(messages_.warnings[0].text, HasSubstr("kein Soundfont"));
    EXPECT_EQ(host_->Soundfont(), "");
  }
}

TEST_F(BadInput, ASoundfontThatVanishesGivesWayToTheSystemsAndIsToldOf) {
  Open();
  dialog_.to_open = LinkToSoundfont("Flügel <1>.sf2").toStdString();
  Press("soundfont");
  EXPECT_THAT(messages_.warnings, IsEmpty());
  EXPECT_EQ(Caption("soundfont_note"), "Soundfont: Flügel <1>.sf2");
  QFile::remove(At("Flügel <1>.sf2"));
  Open();
  EXPECT_THAT(Caption("soundfont_note").toStdString(), HasSubstr("fehlt"));
  Press("test");
  ASSERT_TRUE(ServeUntil([this] { return !host_->TestRuns(); }));
  EXPECT_THAT(host_->verdict()->Ids(), ElementsAre(9442, 9157, 9444));
  Find<QWidget>("usual_soundfont")->setFocus();
  Press("usual_soundfont");
  EXPECT_EQ(host_->Soundfont(), "");
  EXPECT_FALSE(Find<QWidget>("usual_soundfont")->isEnabled());
  // The focus has gone no further than it must, and tells what plays now.
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("soundfont"));
  EXPECT_EQ(Find<QWidget>("soundfont")->accessibleDescription(), Caption("soundfont_note"));
}

TEST_F(BadInput, ASoundfontThatIsNamedFromOutsideIsShownAndNotToBeChosen) {
  HostSetup setup = HostOfTest();
  setup.sound.soundfont = LinkToSoundfont("Orgel.sf2").toStdString();
  Open(std::move(setup));
  EXPECT_EQ(Caption("soundfont_note"), "Soundfont: Orgel.sf2");
  EXPECT_FALSE(Find<QWidget>("soundfont")->isEnabled());
}

TEST_F(BadInput, ALanguageThatIsUninstalledGivesWayToTheDesktops) {
  Open();
  host_->ChooseLanguage("English");
  Close();
  RunOnStore("UPDATE melvado_setting SET value = 'Klingonisch' WHERE name = 'language'");
  Open();
  EXPECT_EQ(Caption("language"), "Deutsch");
}

TEST_F(BadInput, ALanguageFileThatCannotBeReadIsLeftOutAndToldOf) {
  WriteFile("Kaputt.qm", "no language");
  HostSetup setup = HostOfTest();
  setup.language_folders.push_back(folder_.path().toStdString());
  Open(std::move(setup));
  EXPECT_THAT(told_, ElementsAre(9251));
  EXPECT_FALSE(Entries("language").contains("Kaputt"));
}

TEST_F(BadInput, WithoutAnyLanguageTheWindowIsEnglish) {
  HostSetup setup = HostOfTest();
  setup.language_folders = {};
  Open(std::move(setup));
  EXPECT_EQ(Caption("test"), "Test the sound");
}

}  // namespace
}  // namespace melvado

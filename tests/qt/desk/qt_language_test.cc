// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <functional>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class QtLanguageListTest : public testing::Test {
 protected:
  fs::path Folder() const { return folder_.path().toStdString(); }
  void Put(const std::string& test_file, const std::string& name) const {
    fs::copy_file(fs::path(TEST_LANGUAGES) / test_file, Folder() / name);
  }
  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(Folder() / name, std::ios::binary) << content;
  }

  QTemporaryDir folder_;
};

/// Names of the files that are left out.
std::vector<std::string> Problems(const QtLanguageList& list) {
  std::vector<std::string> names;
  for (const auto& problem : list.problems()) names.push_back(fs::path(problem.path).filename());
  return names;
}

int NumberOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST_F(QtLanguageListTest, ListsEachFileUnderItsNameWithItsLocale) {
  Put("Kurz.qm", "Ostdeutsch.qm");
  const QtLanguageList list({Folder()});
  EXPECT_THAT(list.Table(), ElementsAre(LanguageColumn{"de_AT", "Ostdeutsch"}));
  EXPECT_THAT(list.problems(), IsEmpty());
}

TEST_F(QtLanguageListTest, FindsWordsByTheirIds) {
  Put("Kurz.qm", "Deutsch.qm");
  const auto language = QtLanguageList({Folder()}).Create("melvadolang.Deutsch");
  EXPECT_EQ(language->Wort("586s"), "Übungsart");
  EXPECT_EQ(language->Wort("700s"), ": ");
}

TEST_F(QtLanguageListTest, RaisesForAnIdWithoutAWord) {
  Put("Kurz.qm", "Deutsch.qm");
  const auto language = QtLanguageList({Folder()}).Create("melvadolang.Deutsch");
  EXPECT_EQ(NumberOf([&] { language->Wort("1s"); }), ErrorNumber::kUnknownText);
}

TEST_F(QtLanguageListTest, TakesNoWordFromAFileThatHasNoIds) {
  Put("OhneIds.qm", "Deutsch.qm");
  const auto language = QtLanguageList({Folder()}).Create("melvadolang.Deutsch");
  EXPECT_EQ(NumberOf([&] { language->Wort("700s"); }), ErrorNumber::kUnknownText);
}

TEST_F(QtLanguageListTest, PassesOverFoldersThatDoNotExist) {
  const QtLanguageList list({Folder() / "nowhere"});
  EXPECT_THAT(list.Table(), IsEmpty());
  EXPECT_THAT(list.problems(), IsEmpty());
}

TEST_F(QtLanguageListTest, ReportsFilesThatCannotBeReadInsteadOfListingThem) {
  Put("Kurz.qm", "Deutsch.qm");
  Write("Empty.qm", "");
  Write("Garbage.qm", "This is no translation, although it is called one.");
  const QtLanguageList list({Folder()});
  EXPECT_THAT(list.Table(), ElementsAre(LanguageColumn{"de_AT", "Deutsch"}));
  EXPECT_THAT(Problems(list), ElementsAre("Empty.qm", "Garbage.qm"));
}

TEST_F(QtLanguageListTest, CannotMakeALanguageThatIsNotListed) {
  Put("Kurz.qm", "Deutsch.qm");
  const QtLanguageList list({Folder()});
  for (const char* name : {"melvadolang.English", "melvadolang.deutsch", "Deutsch", ""}) {
    EXPECT_EQ(NumberOf([&] { list.Create(name); }), ErrorNumber::kCannotCreate) << name;
  }
}

TEST_F(QtLanguageListTest, LetsTheUsersFileTakeThePlaceOfTheProgramsOwn) {
  fs::create_directory(Folder() / "user");
  Put("OhneIds.qm", "Deutsch.qm");
  Put("Kurz.qm", "user/Deutsch.qm");
  const QtLanguageList list({Folder(), Folder() / "user"});
  EXPECT_THAT(list.Table(), ElementsAre(LanguageColumn{"de_AT", "Deutsch"}));
  EXPECT_EQ(list.Create("melvadolang.Deutsch")->Wort("586s"), "Übungsart");
}

TEST_F(QtLanguageListTest, ChoosesTheFirstOfTheUsersWishesThatIsInstalled) {
  Put("Kurz.qm", "Deutsch.qm");
  Put("OhneIds.qm", "Francais.qm");
  const QtLanguageList list({Folder()});
  EXPECT_EQ(list.BestFor({"it-IT", "fr-CA", "de-DE"}), "Francais");
  EXPECT_EQ(list.BestFor({"de"}), "Deutsch");
}

TEST_F(QtLanguageListTest, ChoosesEnglishIfNoWishIsInstalled) {
  Put("Kurz.qm", "Deutsch.qm");
  const std::vector<std::string> wishes = {"it-IT", "C"};
  EXPECT_EQ(QtLanguageList({Folder()}).BestFor(wishes), std::nullopt);
  const QtLanguageList installed({fs::path(PROGRAM_LANGUAGES)});
  EXPECT_EQ(installed.BestFor({"da-DK", "C"}), "English");
}

TEST(InstalledLanguages, HaveAWordForTheTitleOfTheProgram) {
  const QtLanguageList list({fs::path(PROGRAM_LANGUAGES)});
  EXPECT_THAT(list.problems(), IsEmpty());
  for (const char* name : {"melvadolang.Deutsch", "melvadolang.English"}) {
    EXPECT_NE(list.Create(name)->Wort("347s"), "") << name;
  }
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/store/host_store.h"
#include "store_testing.h"

namespace vmod17 {

/// An empty store for the tests of its user list.
class StoreForUsers {
 public:
  virtual ~StoreForUsers() = default;
  virtual std::string Address() = 0;
  /// Runs one statement past the store.
  virtual void Run(const QString& statement) = 0;
};

using MakeStoreForUsers = std::function<std::unique_ptr<StoreForUsers>()>;

/// What the user list keeps to on every database. In one test program only one file may include
/// this header.
class UserListContract : public ::testing::TestWithParam<MakeStoreForUsers> {
 protected:
  using UserIs = HostStore::UserIs;
  using Array = TaggedValue::Array;

  UserListContract() { Restart(); }

  void Restart() {
    store_.reset();
    store_ = std::make_unique<HostStore>(TestOptions(place_->Address(), &notices_));
  }
  void MakeVersion1() {
    store_.reset();
    place_->Run("DROP TABLE melvado_user");
    place_->Run("UPDATE melvado_meta SET value = '1' WHERE name = 'schema_version'");
    Restart();
  }

  const StoreUser kAnna{"4711", "Berg", "Anna"};
  const StoreUser kIda{"0815", "Tal", "Ida"};
  std::unique_ptr<StoreForUsers> place_ = GetParam()();
  std::vector<Notice> notices_;
  std::unique_ptr<HostStore> store_;
};

TEST_P(UserListContract, IsEmptyAtFirst) {
  EXPECT_TRUE(store_->Users().empty());
  EXPECT_EQ(store_->User(), std::nullopt);
}

TEST_P(UserListContract, KeepsUsersAcrossStarts) {
  EXPECT_TRUE(store_->SaveUser(kAnna, UserIs::kNew));
  EXPECT_TRUE(store_->SaveUser(kIda, UserIs::kNew));
  Restart();
  EXPECT_EQ(store_->Users(), (std::vector<StoreUser>{kIda, kAnna}));
  EXPECT_EQ(store_->User(), std::nullopt);
  EXPECT_TRUE(notices_.empty());
}

TEST_P(UserListContract, GivesANumberOnce) {
  EXPECT_TRUE(store_->SaveUser(kAnna, UserIs::kNew));
  EXPECT_FALSE(store_->SaveUser({"4711", "Tal", "Ida"}, UserIs::kNew));
  EXPECT_EQ(store_->Users(), std::vector<StoreUser>{kAnna});
}

TEST_P(UserListContract, RefusesAUserWithoutANumber) {
  EXPECT_THROW(store_->SaveUser({"", "Berg", "Anna"}, UserIs::kNew), RunTimeError);
  EXPECT_TRUE(store_->Users().empty());
}

TEST_P(UserListContract, ChangesTheNamesAlsoOfWhoIsChosen) {
  store_->SaveUser(kAnna, UserIs::kNew);
  store_->SetUser(kAnna);
  EXPECT_TRUE(store_->SaveUser({"4711", "Berg-Tal", "Änna"}, UserIs::kKnown));
  EXPECT_EQ(store_->User(), (StoreUser{"4711", "Berg-Tal", "Änna"}));
  Restart();
  EXPECT_EQ(store_->User(), (StoreUser{"4711", "Berg-Tal", "Änna"}));
  EXPECT_EQ(store_->Users(), (std::vector<StoreUser>{{"4711", "Berg-Tal", "Änna"}}));
}

TEST_P(UserListContract, KeepsTheTrainingsOfAUserWhoIsRemovedForHisReturn) {
  store_->SaveUser(kAnna, UserIs::kNew);
  store_->SetUser(kAnna);
  StoreValue(*store_, "E1", Array{"Anna's"});
  store_->RemoveUser("4711");
  EXPECT_EQ(store_->User(), std::nullopt);
  EXPECT_TRUE(store_->Users().empty());
  EXPECT_EQ(ReadValue(*store_, "E1"), NothingStored());
  Restart();
  EXPECT_EQ(store_->User(), std::nullopt);
  store_->SaveUser(kAnna, UserIs::kNew);
  store_->SetUser(kAnna);
  EXPECT_EQ(ReadValue(*store_, "E1"), TaggedValue(Array{"Anna's"}));
}

TEST_P(UserListContract, KeepsNamesOfAnyLetters) {
  const std::vector<StoreUser> users = {{"1", "O'Brien; DROP TABLE melvado_user", "<b>Ann</b>"},
                                        {"2/3\\4", "\u202E\u200Fabc", "\"quoted\""},
                                        {"5", std::string(10'000, 'x'), "日本"}};
  for (const StoreUser& user : users) EXPECT_TRUE(store_->SaveUser(user, UserIs::kNew));
  Restart();
  EXPECT_EQ(store_->Users(), users);
}

TEST_P(UserListContract, MakesAStoreOfVersion1IntoOneOfThisVersionWithWhoWasChosen) {
  store_->SetUser(kAnna);
  store_->SetLanguage("English");
  StoreValue(*store_, "E1", Array{"Anna's"});
  LogLine(*store_, "line");
  MakeVersion1();
  EXPECT_EQ(store_->Users(), std::vector<StoreUser>{kAnna});
  EXPECT_EQ(store_->User(), kAnna);
  EXPECT_EQ(store_->Language(), "English");
  EXPECT_EQ(ReadValue(*store_, "E1"), TaggedValue(Array{"Anna's"}));
  EXPECT_EQ(store_->Log(10).size(), 1u);
  Restart();
  EXPECT_EQ(store_->Users(), std::vector<StoreUser>{kAnna});
  EXPECT_TRUE(notices_.empty());
}

TEST_P(UserListContract, MakesNoUserOfNobodyWhenItComesFromVersion1) {
  store_->SetLanguage("English");
  store_->SetUser({"", "", ""});
  MakeVersion1();
  EXPECT_TRUE(store_->Users().empty());
}

TEST_P(UserListContract, KeepsTheSoundfont) {
  EXPECT_EQ(store_->Soundfont(), "");
  store_->SetSoundfont("/home/änna/Flügel.sf2");
  Restart();
  EXPECT_EQ(store_->Soundfont(), "/home/änna/Flügel.sf2");
}

}  // namespace vmod17

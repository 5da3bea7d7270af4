// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/host_store.h"
#include "store_testing.h"

namespace vmod17 {

/// The place of a store for the tests of its user list.
class StoreForUsers {
 public:
  virtual ~StoreForUsers() = default;
  /// What a store at this place is made with.
  virtual StoreOptions Options() = 0;
  /// What the numbers of the test's users begin with, where other users are kept as well.
  virtual std::string Mark() { return ""; }
};

using MakeStoreForUsers = std::function<std::unique_ptr<StoreForUsers>()>;

/// What the user list keeps to on every database, be it used by this process alone or not. In one
/// test program only one file may include this header.
class UserListContract : public ::testing::TestWithParam<MakeStoreForUsers> {
 protected:
  using UserIs = HostStore::UserIs;
  using Array = TaggedValue::Array;

  UserListContract() { Restart(); }

  void Restart() {
    store_.reset();
    StoreOptions options = place_->Options();
    options.notify = [this](const Notice& notice) { notices_.push_back(notice); };
    store_ = std::make_unique<HostStore>(std::move(options));
  }

  bool Save(const StoreUser& user, UserIs is) { return store_->SaveUser(Marked(user), is); }
  void Remove(const std::string& id) { store_->RemoveUser(place_->Mark() + id); }
  void Choose(const StoreUser& user) { store_->SetUser(Marked(user)); }

  std::optional<StoreUser> Chosen() {
    std::optional<StoreUser> user = store_->User();
    if (user) user->id = user->id.substr(place_->Mark().size());
    return user;
  }

  /// Those of the test itself.
  std::vector<StoreUser> Users() {
    const std::string mark = place_->Mark();
    std::vector<StoreUser> users;
    for (const StoreUser& user : store_->Users()) {
      if (!user.id.starts_with(mark)) continue;
      users.push_back({user.id.substr(mark.size()), user.name, user.first_name});
    }
    return users;
  }

  const StoreUser kAnna{"4711", "Berg", "Anna"};
  const StoreUser kIda{"0815", "Tal", "Ida"};
  std::unique_ptr<StoreForUsers> place_ = GetParam()();
  std::vector<Notice> notices_;
  std::unique_ptr<HostStore> store_;

 private:
  StoreUser Marked(StoreUser user) {
    if (!user.id.empty()) user.id = place_->Mark() + user.id;
    return user;
  }
};

TEST_P(UserListContract, IsEmptyAtFirst) {
  EXPECT_TRUE(Users().empty());
  EXPECT_EQ(Chosen(), std::nullopt);
}

TEST_P(UserListContract, KeepsUsersAcrossStarts) {
  EXPECT_TRUE(Save(kAnna, UserIs::kNew));
  EXPECT_TRUE(Save(kIda, UserIs::kNew));
  Restart();
  EXPECT_EQ(Users(), (std::vector<StoreUser>{kIda, kAnna}));
  EXPECT_EQ(Chosen(), std::nullopt);
  EXPECT_TRUE(notices_.empty());
}

TEST_P(UserListContract, GivesANumberOnce) {
  EXPECT_TRUE(Save(kAnna, UserIs::kNew));
  EXPECT_FALSE(Save({"4711", "Tal", "Ida"}, UserIs::kNew));
  EXPECT_EQ(Users(), std::vector<StoreUser>{kAnna});
}

TEST_P(UserListContract, RefusesAUserWithoutANumber) {
  EXPECT_THROW(Save({"", "Berg", "Anna"}, UserIs::kNew), RunTimeError);
  EXPECT_TRUE(Users().empty());
}

TEST_P(UserListContract, ChangesTheNamesAlsoOfWhoIsChosen) {
  Save(kAnna, UserIs::kNew);
  Choose(kAnna);
  EXPECT_TRUE(Save({"4711", "Berg-Tal", "Änna"}, UserIs::kKnown));
  EXPECT_EQ(Chosen(), (StoreUser{"4711", "Berg-Tal", "Änna"}));
  Restart();
  EXPECT_EQ(Chosen(), (StoreUser{"4711", "Berg-Tal", "Änna"}));
  EXPECT_EQ(Users(), (std::vector<StoreUser>{{"4711", "Berg-Tal", "Änna"}}));
}

TEST_P(UserListContract, KeepsTheTrainingsOfAUserWhoIsRemovedForHisReturn) {
  Save(kAnna, UserIs::kNew);
  Choose(kAnna);
  StoreValue(*store_, "E1", Array{"Anna's"});
  Remove("4711");
  EXPECT_EQ(Chosen(), std::nullopt);
  EXPECT_TRUE(Users().empty());
  EXPECT_EQ(ReadValue(*store_, "E1"), NothingStored());
  Restart();
  EXPECT_EQ(Chosen(), std::nullopt);
  Save(kAnna, UserIs::kNew);
  Choose(kAnna);
  EXPECT_EQ(ReadValue(*store_, "E1"), TaggedValue(Array{"Anna's"}));
}

TEST_P(UserListContract, KeepsNamesOfAnyLetters) {
  const std::vector<StoreUser> users = {{"1", "O'Brien; DROP TABLE melvado_user", "<b>Ann</b>"},
                                        {"2/3\\4", "\u202E\u200Fabc", "\"quoted\""},
                                        {"5", std::string(10'000, 'x'), "日本"}};
  for (const StoreUser& user : users) EXPECT_TRUE(Save(user, UserIs::kNew));
  Restart();
  EXPECT_EQ(Users(), users);
}

TEST_P(UserListContract, KeepsTheSoundfont) {
  EXPECT_EQ(store_->Soundfont(), "");
  store_->SetSoundfont("/home/änna/Flügel.sf2");
  Restart();
  EXPECT_EQ(store_->Soundfont(), "/home/änna/Flügel.sf2");
}

}  // namespace vmod17

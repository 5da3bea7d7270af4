// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "store/host_store.h"
#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {

/// An empty store that can be made one of an older version.
class StoreForUpgrade {
 public:
  virtual ~StoreForUpgrade() = default;
  virtual std::string Address() = 0;
  /// Runs one statement past the store.
  virtual void Run(const QString& statement) = 0;
};

using MakeStoreForUpgrade = std::function<std::unique_ptr<StoreForUpgrade>()>;

/// How a store of an older version becomes one of this version, on every database. In one test
/// program only one file may include this header.
class StoreUpgradeContract : public ::testing::TestWithParam<MakeStoreForUpgrade> {
 protected:
  using Array = TaggedValue::Array;

  StoreUpgradeContract() { Restart(); }

  void Restart() {
    store_.reset();
    store_ = std::make_unique<HostStore>(TestOptions(place_->Address(), &notices_));
  }
  void MakeVersion1() {
    store_.reset();
    place_->Run("DROP TABLE melvado_user");
    place_->Run("UPDATE melvado_meta SET value = '1' WHERE name = 'schema_version'");
  }

  const StoreUser kAnna{"4711", "Berg", "Anna"};
  std::unique_ptr<StoreForUpgrade> place_ = GetParam()();
  std::vector<Notice> notices_;
  std::unique_ptr<HostStore> store_;
};

TEST_P(StoreUpgradeContract, MakesAStoreOfVersion1IntoOneOfThisVersionWithWhoWasChosen) {
  store_->SetUser(kAnna);
  store_->SetLanguage("English");
  StoreValue(*store_, "E1", Array{"Anna's"});
  LogLine(*store_, "line");
  MakeVersion1();
  Restart();
  EXPECT_EQ(store_->Users(), std::vector<StoreUser>{kAnna});
  EXPECT_EQ(store_->User(), kAnna);
  EXPECT_EQ(store_->Language(), "English");
  EXPECT_EQ(ReadValue(*store_, "E1"), TaggedValue(Array{"Anna's"}));
  EXPECT_EQ(store_->Log(10).size(), 1u);
  Restart();
  EXPECT_EQ(store_->Users(), std::vector<StoreUser>{kAnna});
  EXPECT_TRUE(notices_.empty());
}

TEST_P(StoreUpgradeContract, MakesNoUserOfNobodyWhenItComesFromVersion1) {
  store_->SetLanguage("English");
  store_->SetUser({"", "", ""});
  MakeVersion1();
  Restart();
  EXPECT_TRUE(store_->Users().empty());
}

TEST_P(StoreUpgradeContract, LosesNothingWhenTwoProcessesComeFromVersion1AtOnce) {
  store_->SetUser(kAnna);
  StoreProcess first;
  StoreProcess second;
  const QString open = "open " + QString::fromStdString(place_->Address()) + " 30000";
  for (int round = 1; round <= 10; ++round) {
    MakeVersion1();
    for (StoreProcess* process : {&first, &second}) ASSERT_EQ(process->Ask(open), "open");
    // Nothing of the store has been touched so far. Both begin with it now.
    first.Say("add first Berg");
    second.Say("add second Tal");
    EXPECT_EQ(first.Hear(), "added") << round;
    EXPECT_EQ(second.Hear(), "added") << round;
    Restart();
    const std::vector<StoreUser> users = {kAnna, {"first", "Berg", ""}, {"second", "Tal", ""}};
    EXPECT_EQ(store_->Users(), users) << round;
  }
  for (StoreProcess* process : {&first, &second}) EXPECT_EQ(process->Ask("notices"), "");
  EXPECT_TRUE(notices_.empty());
}

}  // namespace vmod17

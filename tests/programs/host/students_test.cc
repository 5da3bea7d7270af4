// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Two students at one machine: the host chooses, the exercise runs on the store that it hands on.

#include "melvado_testing.h"
#include "results/results_fixture.h"

namespace melvado {
namespace {

using vmod17::HostStore;
using vmod17::kTraining;
using vmod17::kWeiter;
using vmod17::ResultsFixture;
using vmod17::StoreOptions;
using vmod17::Wort;

class Students : public HostStage {
 protected:
  void SetUp() override {
    Open();
    host_->AddUser({"4711", "Berg", "Anna"});
    host_->AddUser({"4712", "Tal", "Ida"});
  }

  /// The exercise as the host starts it for a user.
  std::unique_ptr<ResultsFixture> ModuleOf(const std::string& user) {
    host_->ChooseUser(user);
    StoreOptions options;
    options.address = HostOfTest().store;
    options.session = host_->Session();
    stores_.push_back(std::make_unique<HostStore>(std::move(options)));
    return std::make_unique<ResultsFixture>(
        [store = stores_.back().get()] { return store->Service(); });
  }

  /// A new training in which one chord is known already.
  void Train(const std::string& user, int known) {
    const auto p = ModuleOf(user);
    p->BeginMode(kTraining);
    p->DoTask({known});
    EXPECT_EQ(p->Weight(known), 0);
    p->SaveAndLeave();
  }

 private:
  std::vector<std::unique_ptr<HostStore>> stores_;
};

TEST_F(Students, EachContinueATrainingOfTheirOwn) {
  Train("4711", 3);
  {
    const auto ida = ModuleOf("4712");
    ida->ToSettings();
    EXPECT_EQ(ida->settings_screen().training_Combo.entry(kWeiter).text, "---------------");
  }
  Train("4712", 5);

  const auto anna = ModuleOf("4711");
  anna->ToSettings();
  anna->ContinueHere();
  EXPECT_EQ(anna->Weight(3), 0);
  EXPECT_EQ(anna->Weight(5), 4);

  const auto ida = ModuleOf("4712");
  ida->ToSettings();
  ida->ContinueHere();
  EXPECT_EQ(ida->Weight(3), 4);
  EXPECT_EQ(ida->Weight(5), 0);

  const auto nobody = ModuleOf("");
  nobody->ToSettings();
  EXPECT_EQ(nobody->settings_screen().training_Combo.entry(kWeiter).text, "---------------");
}

TEST_F(Students, SeeTheirDataOnTheResultsPage) {
  Train("4711", 3);
  const auto anna = ModuleOf("4711");
  anna->ToResults();
  EXPECT_EQ(anna->UserLine(3), (ResultsFixture::Line{Wort(9603), " Berg"}));
  EXPECT_EQ(anna->UserLine(4), (ResultsFixture::Line{Wort(9604), " Anna"}));
  EXPECT_EQ(anna->UserLine(5), (ResultsFixture::Line{Wort(9605), " 4711"}));
  const auto nobody = ModuleOf("");
  nobody->ToResults();
  EXPECT_EQ(nobody->UserLine(3), ResultsFixture::Line());
}

}  // namespace
}  // namespace melvado

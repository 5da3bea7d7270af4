// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/outputs.h"

#include <gmock/gmock.h>

namespace melvado {
namespace {

TEST(Outputs, AreTheSynthesiserWhereThereIsNoPort) {
  const OutputChoice choice = ListOutputs({}, "");
  EXPECT_EQ(choice.outputs, std::vector<Output>{{""}});
  EXPECT_EQ(choice.chosen, 0);
}

TEST(Outputs, HaveTheSynthesiserLast) {
  const OutputChoice choice = ListOutputs({"Piano", "Expander"}, "");
  EXPECT_EQ(choice.outputs, (std::vector<Output>{{"Piano"}, {"Expander"}, {""}}));
  EXPECT_EQ(choice.chosen, 2);
}

TEST(Outputs, AreRememberedByNameOrAPartOfIt) {
  EXPECT_EQ(ListOutputs({"Piano", "Expander"}, "Expander").chosen, 1);
  EXPECT_EQ(ListOutputs({"Piano", "Expander"}, "Exp").chosen, 1);
  EXPECT_EQ(ListOutputs({"Piano 2", "Piano"}, "Piano").chosen, 1);
}

TEST(Outputs, AreFoundAgainUnderAnotherAddress) {
  EXPECT_EQ(ListOutputs({"USB:Piano"}, "USB:Piano 24:0").chosen, 0);
}

TEST(Outputs, ShowARememberedOneThatIsGone) {
  const OutputChoice choice = ListOutputs({"Piano"}, "Expander 20:1");
  EXPECT_EQ(choice.outputs, (std::vector<Output>{{"Expander", false}, {"Piano"}, {""}}));
  EXPECT_EQ(choice.chosen, 0);
}

}  // namespace
}  // namespace melvado

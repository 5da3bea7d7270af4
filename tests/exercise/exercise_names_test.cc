// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/exercise_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_platform.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::SizeIs;

class ExerciseNamesTest : public ::testing::Test {
 protected:
  void LoadTexts(const std::string& language) {
    texts_.WeitereTexte = [this](const TextLookup& texts) { names_.Fuelle(texts); };
    texts_.SprachenLaden();
    texts_.SpracheWaehlen(language);
    texts_.TexteLaden();
  }

  FakeLanguages languages_;
  FakeSystem system_;
  TextLookup texts_{languages_.Factory(), system_};
  ExerciseNames names_;
};

TEST_F(ExerciseNamesTest, AreLookedUpInOneOrderBehindTheTitlesAndSharedIdsTwice) {
  LoadTexts("Deutsch");
  std::vector<std::string> keys;
  for (const int id : {347, 287, 221, 224, 348, 51,  379, 380, 409, 200, 201, 410, 312, 609,
                       199, 51,  57,  60,  62,  64,  136, 564, 565, 550, 438, 133, 84,  624,
                       278, 477, 371, 400, 470, 479, 194, 141, 478, 424, 400, 319, 476}) {
    keys.push_back(std::to_string(id) + "s");
  }
  EXPECT_THAT(languages_.looked_up, ElementsAreArray(keys));
}

TEST_F(ExerciseNamesTest, StandInTheirSlotsAndLeaveTheOthersEmpty) {
  LoadTexts("Deutsch");
  EXPECT_THAT(names_.grp_name_ar,
              ElementsAre("[51s]", "[379s]", "[380s]", "[409s]", "[200s]", "[201s]", "[410s]",
                          "[312s]", "[609s]", "", "[199s]"));
  EXPECT_THAT(names_.klang_name_ar,
              ElementsAre("", "", "", "[51s]", "[57s]", "[60s]", "[62s]", "[64s]"));
  EXPECT_THAT(names_.modus_name_ar, ElementsAre("[136s]", "[564s]", "[565s]", "[550s]", "[438s]"));
  EXPECT_THAT(names_.arp_richtung_name_ar, ElementsAre("[133s]", "[84s]", "[624s]", "[278s]"));
  EXPECT_THAT(names_.arp_tempo_name_ar,
              ElementsAre("[477s]", "[371s]", "[400s]", "[470s]", "[479s]"));
  EXPECT_THAT(names_.art_name_ar, ElementsAre("[194s]", "[141s]"));
  EXPECT_THAT(names_.frei_name_ar, ElementsAre("[478s]", "[424s]", "[400s]", "[319s]", "[476s]"));
}

TEST_F(ExerciseNamesTest, AreVoidWhenThereIsNoLanguage) {
  LoadTexts("Suomi");
  EXPECT_THAT(names_.modus_name_ar, Each("VOID"));
}

TEST_F(ExerciseNamesTest, NameTheTempiInAllLanguagesAlike) {
  EXPECT_THAT(ExerciseNames::tempo_name_ar,
              ElementsAre(" 30              ", " 40 (Largo)      ", " 60 (Larghetto)  ",
                          " 80 (Adagio)     ", "100 (Andante)    ", "120 (Moderato)   ",
                          "140 (Allegro)    ", "160 (Vivace)     ", "180 (Presto)     ",
                          "200 (Prestissimo)"));
  EXPECT_THAT(ExerciseNames::tempo_name_ar, Each(SizeIs(17)));
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "results/percentages.h"

#include <gtest/gtest.h>

#include <string>

#include "base/run_time_error.h"
#include "exercise/settings_record.h"

namespace vmod17 {
namespace {

constexpr Color kRot = Bgr(0x8080FF);
constexpr Color kBlassrot = Bgr(0xC0C0FF);
constexpr Color kBlassgelb = Bgr(0xC0FFFF);
constexpr Color kBlassgruen = Bgr(0xC0FFC0);
constexpr Color kGruen = Bgr(0x80FF80);

/// What the counters hold of one item.
struct Counts {
  float a0 = 0;
  float a1 = 0;
  float a2 = 0;
  float a3 = 1;
};

Auswertung With(const Counts& counts, int item = 1) {
  Auswertung auswertung;
  auswertung.init_arr(24, 3);
  auswertung.Save(item, 0, counts.a0);
  auswertung.Save(item, 1, counts.a1);
  auswertung.Save(item, 2, counts.a2);
  auswertung.Save(item, 3, counts.a3);
  return auswertung;
}

ItemErgebnis Mark(int uebmodus, const Counts& counts) {
  return ItemBewerten(uebmodus, With(counts), 1);
}

/// The caption of an item's cell.
std::string Cell(int uebmodus, const Counts& counts) {
  const ItemErgebnis item = Mark(uebmodus, counts);
  return item.zaehlt ? ProzentText(item.p * 100, ".") : "";
}

constexpr int kTrainings[] = {kModusNeuesTraining, kModusFortsetzung};
constexpr int kTests[] = {kModusTest, kModusPruefung};

// ---- Which items count --------------------------------------------------------------------------

TEST(ItemBewerten, PassesOverWhatHadNoPlaceInTheRun) {
  for (int modus = kModusFrei; modus <= kModusPruefung; ++modus) {
    for (const float a3 : {0.0f, -1.0f}) {
      const ItemErgebnis item = Mark(modus, {2, -32, 1, a3});
      EXPECT_FALSE(item.im_lauf);
      EXPECT_FALSE(item.zaehlt);
    }
  }
}

TEST(ItemBewerten, GivesNoMarkInFreePractice) {
  const ItemErgebnis item = Mark(kModusFrei, {2, -32, 1, 1});
  EXPECT_TRUE(item.im_lauf);
  EXPECT_FALSE(item.zaehlt);
}

TEST(ItemBewerten, LeavesOutOfATrainingWhatWasNeitherAskedNorChosen) {
  for (const int modus : kTrainings) {
    const ItemErgebnis item = Mark(modus, {0, 0, 0, 1});
    EXPECT_TRUE(item.im_lauf);
    EXPECT_FALSE(item.zaehlt);
  }
}

TEST(ItemBewerten, CountsInATestWhatWasNeverAnswered) {
  for (const int modus : kTests) {
    const ItemErgebnis item = Mark(modus, {0, 0, 0, 2});
    EXPECT_TRUE(item.zaehlt);
    EXPECT_EQ(item.p, 0);
    EXPECT_EQ(Cell(modus, {0, 0, 0, 2}), "0.0%");
    EXPECT_EQ(ErgebnisFarbe(item.p), kRot);
  }
}

TEST(ItemBewerten, ReadsEveryItemOfTheBoardAndNoOther) {
  for (int i = 1; i <= 24; ++i) {
    const Auswertung auswertung = With({1, -16, 0, 1}, i);
    for (int other = 1; other <= 24; ++other) {
      EXPECT_EQ(ItemBewerten(kModusNeuesTraining, auswertung, other).zaehlt, other == i);
    }
    EXPECT_EQ(ItemBewerten(kModusNeuesTraining, auswertung, i).p, 1);
  }
  EXPECT_THROW(ItemBewerten(kModusTest, With({}), 25), RunTimeError);
}

// ---- The mark of a training ---------------------------------------------------------------------

TEST(ItemBewerten, DividesTheScoresOfATrainingByTheBestThatWerePossible) {
  for (const int modus : kTrainings) {
    // Asked twice with -16 and -12: -28 of -32.
    EXPECT_EQ(Mark(modus, {2, -28, 0, 1}).p, 0.875f);
    EXPECT_EQ(Cell(modus, {2, -28, 0, 1}), "87.5%");
    EXPECT_EQ(ErgebnisFarbe(0.875f), kGruen);
    EXPECT_EQ(Cell(modus, {1, 0, 0, 1}), "0.0%");
    EXPECT_EQ(Cell(modus, {1, -8, 0, 1}), "50.0%");
    EXPECT_EQ(Cell(modus, {3, -40, 0, 1}), "83.3%");
  }
}

TEST(ItemBewerten, GivesExactlyOneToAPerfectTraining) {
  for (const int modus : kTrainings) {
    for (int a0 = 1; a0 <= 2000; ++a0) {
      ASSERT_EQ(Mark(modus, {static_cast<float>(a0), -16.0f * static_cast<float>(a0), 0, 1}).p, 1);
    }
  }
}

TEST(ItemBewerten, CountsInATrainingWhatWasOnlyWronglyChosen) {
  for (const int modus : kTrainings) {
    // Never asked and chosen twice: -4 of -16.
    const ItemErgebnis item = Mark(modus, {0, 0, 2, 1});
    EXPECT_TRUE(item.zaehlt);
    EXPECT_EQ(item.p, 0.25f);
    EXPECT_EQ(Cell(modus, {0, 0, 1, 1}), "37.5%");
    EXPECT_EQ(Cell(modus, {0, 0, 3, 1}), "12.5%");
    EXPECT_EQ(Cell(modus, {0, 0, 4, 1}), "0.0%");
    EXPECT_EQ(Cell(modus, {0, 0, 40, 1}), "0.0%");
  }
}

TEST(ItemBewerten, HelpsAnItemTheMoreTheFewerWrongChoicesItHad) {
  // m is -6, -4, -2 and then 0, and the divisor has one score more, whatever the number.
  const float s[] = {-16, -22, -20, -18, -16, -16};
  for (const int modus : kTrainings) {
    EXPECT_EQ(Mark(modus, {1, -16, 0, 1}).p, 1);
    for (int a2 = 1; a2 <= 5; ++a2) {
      EXPECT_EQ(Mark(modus, {1, -16, static_cast<float>(a2), 1}).p, s[a2] / -32) << a2;
    }
  }
}

TEST(ItemBewerten, RoundsTheSumOfATrainingHalvesToEven) {
  for (const int modus : kTrainings) {
    EXPECT_EQ(Mark(modus, {2, -20.5f, 0, 1}).p, -20.0f / -32);
    EXPECT_EQ(Mark(modus, {2, -21.5f, 0, 1}).p, -22.0f / -32);
    EXPECT_EQ(Mark(modus, {2, -20.4f, 0, 1}).p, -20.0f / -32);
    EXPECT_EQ(Mark(modus, {2, -20.6f, 0, 1}).p, -21.0f / -32);
    // The sum is rounded, and not its parts: -20.5 - 6 is -26.5.
    EXPECT_EQ(Mark(modus, {2, -20.5f, 1, 1}).p, -26.0f / -48);
    EXPECT_EQ(Mark(modus, {2, -21.5f, 1, 1}).p, -28.0f / -48);
    // The divisor is rounded too, where a number of questions is none.
    EXPECT_EQ(Mark(modus, {1.03125f, -8, 0, 1}).p, -8.0f / -16);
  }
}

// ---- The mark of a test -------------------------------------------------------------------------

TEST(ItemBewerten, TakesTheTwoBestScoresOfATest) {
  for (const int modus : kTests) {
    EXPECT_EQ(Mark(modus, {-16, -16, 0, 2}).p, 1);
    EXPECT_EQ(Cell(modus, {-16, -16, 0, 2}), "100.0%");
    EXPECT_EQ(Cell(modus, {0, -16, 0, 2}), "50.0%");
    EXPECT_EQ(Cell(modus, {-8, -16, 0, 2}), "75.0%");
  }
}

TEST(ItemBewerten, TakesAWrongChoiceOfATestAsAThirdScore) {
  for (const int modus : kTests) {
    // -34 of -48.
    EXPECT_EQ(Mark(modus, {-12, -16, 1, 2}).p, static_cast<float>(34.0 / 48));
    EXPECT_EQ(Cell(modus, {-12, -16, 1, 2}), "70.8%");
    EXPECT_EQ(ErgebnisFarbe(static_cast<float>(34.0 / 48)), kBlassgruen);
    const int s[] = {-32, -38, -36, -34, -32, -32};
    EXPECT_EQ(Mark(modus, {-16, -16, 0, 2}).p, 1);
    for (int a2 = 1; a2 <= 5; ++a2) {
      EXPECT_EQ(Mark(modus, {-16, -16, static_cast<float>(a2), 2}).p,
                static_cast<float>(s[a2] / -48.0))
          << a2;
    }
  }
}

TEST(ItemBewerten, RoundsTheSumOfATestHalvesToEven) {
  for (const int modus : kTests) {
    EXPECT_EQ(Mark(modus, {-10.5f, -12, 0, 2}).p, -22.0f / -32);
    EXPECT_EQ(Mark(modus, {-11.5f, -12, 0, 2}).p, -24.0f / -32);
    // Both are halves by themselves; their sum is none.
    EXPECT_EQ(Mark(modus, {-10.5f, -12.5f, 0, 2}).p, -23.0f / -32);
    EXPECT_EQ(Mark(modus, {-10.5f, -12, 1, 2}).p, static_cast<float>(28.0 / 48));
    EXPECT_EQ(Mark(modus, {-10.2f, -12.2f, 0, 2}).p, -22.0f / -32);
    EXPECT_EQ(Mark(modus, {-10.4f, -12.2f, 0, 2}).p, -23.0f / -32);
  }
}

TEST(ItemBewerten, RoundsTheSurchargeForWrongChoicesHalvesToEven) {
  // 2 * 0.75 - 8 is -6.5 and goes to -6; 2 * 1.25 - 8 is -5.5 and goes there too.
  EXPECT_EQ(Mark(kModusTest, {0, 0, 0.75f, 2}).p, -6.0f / -48);
  EXPECT_EQ(Mark(kModusTest, {0, 0, 1.25f, 2}).p, -6.0f / -48);
  EXPECT_EQ(Mark(kModusTest, {0, 0, 1.75f, 2}).p, static_cast<float>(4.0 / 48));
}

TEST(ItemBewerten, LetsAMarkLieOutsideOfNothingAndAll) {
  EXPECT_EQ(Mark(kModusNeuesTraining, {1, 8, 0, 1}).p, -0.5f);
  EXPECT_EQ(Cell(kModusNeuesTraining, {1, 8, 0, 1}), "-50.0%");
  EXPECT_EQ(ErgebnisFarbe(-0.5f), kRot);
  EXPECT_EQ(Mark(kModusNeuesTraining, {1, -24, 0, 1}).p, 1.5f);
  EXPECT_EQ(Cell(kModusNeuesTraining, {1, -24, 0, 1}), "150.0%");
  EXPECT_EQ(ErgebnisFarbe(1.5f), kGruen);
  EXPECT_EQ(Cell(kModusTest, {-32, -32, 0, 1}), "200.0%");
}

// ---- Colours ------------------------------------------------------------------------------------

TEST(ErgebnisFarbe, HasFiveShadesWhoseBoundsBelongToTheLowerOne) {
  EXPECT_EQ(ErgebnisFarbe(0), kRot);
  EXPECT_EQ(ErgebnisFarbe(0.2f), kRot);
  EXPECT_EQ(ErgebnisFarbe(0.2001f), kBlassrot);
  EXPECT_EQ(ErgebnisFarbe(0.4f), kBlassrot);
  EXPECT_EQ(ErgebnisFarbe(0.4001f), kBlassgelb);
  EXPECT_EQ(ErgebnisFarbe(0.6f), kBlassgelb);
  EXPECT_EQ(ErgebnisFarbe(0.6001f), kBlassgruen);
  EXPECT_EQ(ErgebnisFarbe(0.8f), kBlassgruen);
  EXPECT_EQ(ErgebnisFarbe(0.8001f), kGruen);
  EXPECT_EQ(ErgebnisFarbe(1), kGruen);
}

TEST(ErgebnisFarbe, KeepsToItsBoundsForEveryMarkThatMeetsThem) {
  // Five, ten and so on questions: a fifth of the best scores is a whole number.
  for (int a0 = 5; a0 <= 1000; a0 += 5) {
    const Color shades[] = {kRot, kRot, kBlassrot, kBlassgelb, kBlassgruen, kGruen};
    for (int fifths = 0; fifths <= 5; ++fifths) {
      const auto s = static_cast<float>(-16 * a0 / 5 * fifths);
      const float p = Mark(kModusNeuesTraining, {static_cast<float>(a0), s, 0, 1}).p;
      ASSERT_EQ(ErgebnisFarbe(p), shades[fifths]) << s << " of " << -16 * a0;
    }
  }
}

TEST(ErgebnisFarbe, TakesATotalThatIsInPerCentAlreadyTimesAHundredOnceMore) {
  EXPECT_EQ(ErgebnisFarbe(0.1f), kRot);
  EXPECT_EQ(ErgebnisFarbe(0.2f), kRot) << "a total of 0.2 per cent";
  EXPECT_EQ(ErgebnisFarbe(0.3f), kBlassrot);
  EXPECT_EQ(ErgebnisFarbe(0.5f), kBlassgelb);
  EXPECT_EQ(ErgebnisFarbe(0.7f), kBlassgruen);
  EXPECT_EQ(ErgebnisFarbe(0.81f), kGruen);
  EXPECT_EQ(ErgebnisFarbe(1.5f), kGruen) << "a total of 1.5 per cent";
  EXPECT_EQ(ErgebnisFarbe(-0.5f), kRot);
}

TEST(ErgebnisFarbe, IsRedWithoutAnyMark) { EXPECT_EQ(kOhneErgebnisFarbe, kRot); }

// ---- Text and total -----------------------------------------------------------------------------

TEST(ProzentText, HasOneDigitAfterTheSystemsDecimalSign) {
  EXPECT_EQ(ProzentText(87.5f, "."), "87.5%");
  EXPECT_EQ(ProzentText(87.5f, ","), "87,5%");
  EXPECT_EQ(ProzentText(70.833336f, ","), "70,8%");
  EXPECT_EQ(ProzentText(0, ","), "0,0%");
  EXPECT_EQ(ProzentText(100, "."), "100.0%");
  EXPECT_EQ(ProzentText(0.06f, "."), "0.1%");
  EXPECT_EQ(ProzentText(99.96f, "."), "100.0%");
  EXPECT_EQ(ProzentText(12.3f, "٫"), "12٫3%");
}

TEST(ProzentText, RoundsHalvesAwayFromNothing) {
  EXPECT_EQ(ProzentText(6.25f, "."), "6.3%");
  EXPECT_EQ(ProzentText(18.75f, "."), "18.8%");
  EXPECT_EQ(ProzentText(-6.25f, "."), "-6.3%");
}

TEST(ProzentText, TellsValuesBelowNothingAndAboveAHundred) {
  EXPECT_EQ(ProzentText(-50, "."), "-50.0%");
  EXPECT_EQ(ProzentText(-0.5f, ","), "-0,5%");
  EXPECT_EQ(ProzentText(-0.04f, "."), "0.0%");
  EXPECT_EQ(ProzentText(150, "."), "150.0%");
  EXPECT_EQ(ProzentText(3276.7f, "."), "3276.7%");
}

TEST(Gesamtergebnis, IsTheMeanOfTheItemsThatCount) {
  Gesamtergebnis gesamt;
  EXPECT_TRUE(gesamt.Leer());
  gesamt.Nimm({});
  gesamt.Nimm({true, false, 1});
  EXPECT_TRUE(gesamt.Leer());
  gesamt.Nimm({true, true, 0.875f});
  gesamt.Nimm({true, true, 0});
  gesamt.Nimm({true, false, 1});
  EXPECT_FALSE(gesamt.Leer());
  EXPECT_EQ(gesamt.Prozent(), 43.75f);
}

TEST(Gesamtergebnis, HasNothingToTellWhereAllMarksAreNothingOrAddUpToIt) {
  Gesamtergebnis nothing;
  for (int i = 0; i < 3; ++i) nothing.Nimm({true, true, 0});
  EXPECT_TRUE(nothing.Leer());
  Gesamtergebnis balanced;
  balanced.Nimm({true, true, 0.5f});
  balanced.Nimm({true, true, -0.5f});
  EXPECT_TRUE(balanced.Leer());
}

TEST(Gesamtergebnis, MayLieOutsideOfNothingAndAll) {
  Gesamtergebnis gesamt;
  gesamt.Nimm({true, true, -0.5f});
  EXPECT_EQ(gesamt.Prozent(), -50);
  gesamt.Nimm({true, true, 3.5f});
  EXPECT_EQ(gesamt.Prozent(), 150);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/answer_field.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "forms/form.h"

namespace vmod17 {
namespace {

class Sheet : public Form {
 public:
  Sheet() : Form("sheet") { visible = true; }
  ControlArray<Panel> klang_pan{*this, "klang_pan", 1, kBrettGroesse};
  ControlArray<Picture> jz_kl{*this, "jz_kl", 1, kBrettGroesse};
  ControlArray<Panel> akk_group{*this, "akk_group", 1, kGruppen};
  void Form_Close() override {}
};

/// Three tiles, or the groups 2 and 5, all closed.
class AnswerFieldTest : public ::testing::Test {
 protected:
  AnswerFieldTest() {
    board.akk_zahl = 3;
    settings.akk_anzahl = 1;
    settings.grp_anzahl = 2;
    settings.grp_ausw_ar = {0, 2, 5};
    for (const int tile : sheet.jz_kl.indexes()) sheet.jz_kl[tile].enabled = false;
    for (const int group : sheet.akk_group.indexes()) sheet.akk_group[group].enabled = false;
  }
  void NameGroups() { settings.best_art = 1; }
  template <typename Kind>
  static std::vector<int> Open(const ControlArray<Kind>& choices) {
    std::vector<int> open;
    for (const int i : choices.indexes()) {
      if (choices[i].enabled) open.push_back(i);
    }
    return open;
  }
  std::vector<int> Tiles() const { return Open(sheet.jz_kl); }
  std::vector<int> Groups() const { return Open(sheet.akk_group); }

  Sheet sheet;
  ExerciseSettings settings;
  ChordTable table;
  ChordBoard board{table};
  std::array<int, kBrettGroesse + 1> struck{};
  AnswerField field{settings, board, sheet.klang_pan, sheet.jz_kl, sheet.akk_group};
};

TEST_F(AnswerFieldTest, OpensTheTilesThatAreNotStruck) {
  struck[2] = 1;
  field.AntwortenFreigeben(struck);
  EXPECT_EQ(Tiles(), (std::vector<int>{1, 3}));
  EXPECT_EQ(Groups(), std::vector<int>{});
  EXPECT_EQ(sheet.jz_kl[1].back_color, Rgb(255, 255, 255));
  EXPECT_EQ(sheet.klang_pan[1].back_color, Rgb(128, 255, 128));
}

TEST_F(AnswerFieldTest, OpensTheChosenGroupsThatAreNotStruck) {
  NameGroups();
  field.AntwortenFreigeben(struck);
  EXPECT_EQ(Groups(), (std::vector<int>{2, 5}));
  field.Sperre();
  struck[5] = 1;
  field.AntwortenFreigeben(struck);
  EXPECT_EQ(Groups(), std::vector<int>{2});
  EXPECT_EQ(Tiles(), std::vector<int>{});
}

TEST_F(AnswerFieldTest, OpensAllForTheNextSlot) {
  field.OeffneAlle();
  EXPECT_EQ(Tiles(), (std::vector<int>{1, 2, 3}));
  NameGroups();
  field.OeffneAlle();
  EXPECT_EQ(Groups(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(AnswerFieldTest, ClosesAndStrikesInGreyOnRed) {
  field.OeffneAlle();
  field.Streiche(2);
  EXPECT_EQ(Tiles(), (std::vector<int>{1, 3}));
  EXPECT_EQ(sheet.jz_kl[2].back_color, Rgb(192, 192, 192));
  EXPECT_EQ(sheet.klang_pan[2].back_color, Rgb(255, 0, 0));
  field.Sperre();
  EXPECT_EQ(Tiles(), std::vector<int>{});
  EXPECT_EQ(sheet.jz_kl[1].back_color, Rgb(192, 192, 192));
  EXPECT_EQ(sheet.klang_pan[1].back_color, Rgb(255, 0, 0));
}

TEST_F(AnswerFieldTest, StrikesAGroup) {
  NameGroups();
  field.AntwortenFreigeben(struck);
  field.Streiche(2);
  EXPECT_EQ(Groups(), std::vector<int>{5});
  field.Sperre();
  EXPECT_EQ(Groups(), std::vector<int>{});
}

TEST_F(AnswerFieldTest, GivesTheChoiceByWhatIsNamed) {
  sheet.jz_kl[2].spoken = "C, c e g";
  sheet.akk_group[2].caption = "Moll-Sept";
  EXPECT_EQ(&field[2], &sheet.jz_kl[2]);
  EXPECT_EQ(field.Name(2), "C, c e g");
  NameGroups();
  EXPECT_EQ(&field[2], &sheet.akk_group[2]);
  EXPECT_EQ(field.Name(2), "Moll-Sept");
}

TEST_F(AnswerFieldTest, TellsTheSlotOfAMarkOnlyWhereThereAreSeveral) {
  using enum AnswerMark::Kind;
  field.Markiere(1, kCross, 1);
  EXPECT_EQ(sheet.jz_kl[1].marks, (std::vector<AnswerMark>{{kCross, 0}}));
  settings.akk_anzahl = 2;
  field.Markiere(1, kTick, 2);
  EXPECT_EQ(sheet.jz_kl[1].marks, (std::vector<AnswerMark>{{kCross, 0}, {kTick, 2}}));
  NameGroups();
  field.Markiere(1, kTick, 1);
  EXPECT_EQ(sheet.akk_group[1].marks, (std::vector<AnswerMark>{{kTick, 1}}));
  field.LoescheMarken();
  EXPECT_TRUE(sheet.jz_kl[1].marks.empty());
  EXPECT_TRUE(sheet.akk_group[1].marks.empty());
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Whatever a student chooses to be asked by group: what can be asked can be answered.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "worksheet/worksheet_fixture.h"

namespace vmod17 {
namespace {

struct Selection {
  std::vector<int> klangtypen;  ///< none for the two-hand voicings
  std::vector<int> gruppen;
};

std::string Told(const Selection& selection) {
  std::string told = "kinds";
  for (const int k : selection.klangtypen) told += " " + std::to_string(k);
  told += ", groups";
  for (const int g : selection.gruppen) told += " " + std::to_string(g);
  return told;
}

/// All choices of at least `least` of the values.
std::vector<std::vector<int>> Choices(const std::vector<int>& values, int least) {
  std::vector<std::vector<int>> choices;
  for (unsigned bits = 0; bits < 1u << values.size(); ++bits) {
    std::vector<int> choice;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if ((bits >> i & 1) != 0) choice.push_back(values[i]);
    }
    if (static_cast<int>(choice.size()) >= least) choices.push_back(choice);
  }
  return choices;
}

/// The groups on offer where this is the smallest kind.
std::vector<int> GroupsOnOffer(int klangtyp) {
  switch (klangtyp) {
    case 5:
      return {1, 2, 3, 4, 5, 6};
    case 6:
      return {2, 3, 4, 5};
    case 7:
      return {2, 5};
    default:
      return {1, 2, 3, 4, 5, 6, 7, 8};
  }
}

/// Every selection of kinds with which a run by groups can be started.
std::vector<Selection> OfKinds() {
  std::vector<Selection> all;
  for (const auto& kinds : Choices({4, 5, 6, 7}, 1)) {
    for (const auto& groups : Choices(GroupsOnOffer(kinds.front()), 2)) {
      all.push_back({kinds, groups});
    }
  }
  return all;
}

std::vector<Selection> OfVoicings() {
  std::vector<Selection> all;
  for (const auto& groups : Choices(GroupsOnOffer(kVoicing), 2)) all.push_back({{}, groups});
  return all;
}

/// A student who is asked by groups and errs as long as that is possible.
class Erring : public WorksheetFixture {
 public:
  Erring() { ToSettings(); }

  /// A run of these chords with so many tasks, at the worst: every wrong button is tried first.
  void Practise(const Selection& selection, int tasks) {
    Begin(selection);
    const std::set<int> board = GroupsOfBoard();
    EXPECT_EQ(ShownGroups(), board);
    EXPECT_TRUE(std::ranges::includes(selection.gruppen, board));
    for (int i = 0; i < tasks && !testing::Test::HasFailure(); ++i) {
      PlayTask();
      Err();
      ++tasks_;
    }
    EXPECT_TRUE(worksheet().zurueck.Press());
  }
  int tasks() const { return tasks_; }

 private:
  void Begin(const Selection& selection) {
    Select(selection.klangtypen, selection.gruppen);
    settings().akk_form = selection.klangtypen.empty() ? 1 : 0;
    settings().oktav_ber = 3;
    settings().best_art = 1;
    settings().akk_anzahl = 2;
    StartRun();
    ASSERT_TRUE(messages.warnings.empty()) << messages.warnings.front().text;
  }
  std::set<int> GroupsOfBoard() {
    std::set<int> groups;
    for (int e = 1; e <= program.board().akk_zahl; ++e) groups.insert(program.board()[e].group);
    return groups;
  }
  std::set<int> ShownGroups() {
    std::set<int> shown;
    for (int g = 1; g <= kGruppen; ++g) {
      if (worksheet().akk_group[g].visible) shown.insert(g);
    }
    return shown;
  }
  /// Answers the task with as many wrong clicks as each slot takes.
  void Err() {
    while (run().akk_nr <= settings().akk_anzahl) {
      ASSERT_TRUE(Choice(RightChoice()).Reachable()) << "group " << RightChoice();
      if (Wrong() == 0) Right();
    }
    EXPECT_TRUE(worksheet().CmdNextAufg.Reachable());
  }

  int tasks_ = 0;
};

TEST(GroupSelections, AreAsManyAsCanBeChosen) {
  EXPECT_EQ(OfKinds().size(), 2227);
  EXPECT_EQ(OfVoicings().size(), 247);
}

TEST(GroupSelections, HaveAButtonForEveryChordThatCanBeAsked) {
  Erring student;
  for (const auto& selections : {OfKinds(), OfVoicings()}) {
    for (const Selection& selection : selections) {
      SCOPED_TRACE(Told(selection));
      student.Practise(selection, 1);
      ASSERT_FALSE(HasFailure());
    }
  }
}

TEST(GroupSelections, LetNoTaskOfAThousandGetStuck) {
  // Five groups for three kinds: two of them come onto the board by the filling up alone.
  const Selection crowded{{4, 6, 7}, {1, 5, 6, 7, 8}};
  Erring student;
  while (student.tasks() < 1000 && !HasFailure()) student.Practise(crowded, 20);
  EXPECT_EQ(student.tasks(), 1000);
}

}  // namespace
}  // namespace vmod17

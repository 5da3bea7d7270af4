// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What each setting of the table does wherever a setting does something.

#include "settings/settings_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "results/own_words.h"
#include "settings/settings_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::Not;

using Pair = std::pair<std::string, std::string>;

class Table : public SettingsTest {
 protected:
  Table() { ToSettings(); }

  std::vector<const Merkmal*> Options() {
    std::vector<const Merkmal*> options;
    for (const Merkmal& m : kMerkmale) {
      if (m.gruppe != nullptr) options.push_back(&m);
    }
    return options;
  }
  OptionGroup& Of(const Merkmal& m) { return screen().*m.gruppe; }

  std::vector<Pair> Summary() {
    screen().EinstDatSave();
    const TaggedValue::Array& list = settings().einst_liste;
    std::vector<Pair> pairs;
    for (std::size_t i = 1; i + 1 < list.size(); i += 2) {
      pairs.emplace_back(list[i].String(), list[i + 1].String());
    }
    return pairs;
  }
  /// What a new training would be stored with.
  TaggedValue::Array Stored() { return StoredSettings{settings(), {}, 0, {}}.Write(); }
};

TEST_F(Table, HasARowForEachTwoOptionsOfTheScreen) {
  std::set<const OptionGroup*> on_screen;
  for (const Control* control : screen().controls()) {
    if (const auto* option = dynamic_cast<const Option*>(control))
      on_screen.insert(&option->group());
  }
  std::set<const OptionGroup*> in_table;
  for (const Merkmal* m : Options()) {
    in_table.insert(&Of(*m));
    EXPECT_EQ(Of(*m).first(), 0);
    EXPECT_EQ(Of(*m).last(), 1);
  }
  EXPECT_EQ(in_table, on_screen);
}

TEST_F(Table, HasARowForEachTaggedListThatHasAField) {
  std::set<std::string> tagged;
  for (const Control* control : screen().controls()) {
    if (dynamic_cast<const ItemList*>(control) && !control->tag.empty()) {
      tagged.insert(control->name());
    }
  }
  tagged.erase("Channel_Combo");
  tagged.erase("ComboPatch");
  std::set<std::string> in_table;
  for (const Merkmal& m : kMerkmale) {
    if (m.liste != nullptr) in_table.insert((screen().*m.liste).name());
  }
  EXPECT_EQ(in_table, tagged);
}

TEST_F(Table, HasAWordOfTheResultsForEachOptionThatTheyShow) {
  for (const Merkmal* m : Options()) {
    if (m->zeile == Merkmal::kKeineZeile) continue;
    EXPECT_NE(EigenesWort(m->texte[0]), "") << m->marke;
    EXPECT_NE(EigenesWort(m->texte[1]), "") << m->marke;
    EXPECT_NE(EigenesWort(RahmenTitel(m->rahmen)), "") << m->marke;
  }
}

TEST_F(Table, RulesWhatEachOptionSets) {
  for (const Merkmal* m : Options()) {
    SCOPED_TRACE(m->marke);
    for (const int i : {1, 0}) {
      Of(*m).Check(i);
      EXPECT_EQ(settings().*m->feld, i);
      EXPECT_EQ(Of(*m)[i].caption, Wort(m->texte[i]));
      EXPECT_EQ(Of(*m)[i].container, &screen().grdeinst[m->rahmen]);
    }
  }
}

TEST_F(Table, LeavesNoOptionOutOfTheSettingsInWords) {
  for (const Merkmal* m : Options()) {
    SCOPED_TRACE(m->marke);
    for (const int i : {1, 0}) {
      settings().*m->feld = i;
      const Pair pair(m->schluessel, Wort(m->texte[i]));
      if (m->Gilt(settings())) {
        EXPECT_THAT(Summary(), Contains(pair));
      } else {
        EXPECT_THAT(Summary(), Not(Contains(pair)));
      }
    }
  }
}

TEST_F(Table, LeavesNoOptionOutOfAStoredTraining) {
  for (const Merkmal* m : Options()) {
    SCOPED_TRACE(m->marke);
    const TaggedValue::Array before = Stored();
    settings().*m->feld = 1;
    EXPECT_NE(Stored(), before);
    settings().*m->feld = 0;
    EXPECT_EQ(Stored(), before);
  }
}

TEST_F(Table, LeavesNoOptionOutOfATestFile) {
  for (const int i : RahmenNummern()) {
    if (!screen().grdeinst[i].AskMenu()) continue;  // the groups are hidden
    screen().popPruefung.Choose();
  }
  dialog.to_save = "test.xml";
  ASSERT_TRUE(screen().cmdOptionSave.Press());
  const FixedSettings& saved = settings_files.files["test.xml"];
  for (const Merkmal* m : Options()) {
    EXPECT_EQ(std::ranges::count(saved.controls, Of(*m)[0].name(), &FixedControl::cname), 1)
        << m->marke;
  }
}

TEST_F(Table, LocksEachOptionThatATrainingKeepsButItsTimbres) {
  for (const Merkmal* m : Options()) {
    const auto rahmen = std::ranges::find(kRahmen, m->rahmen, &Rahmen::nummer);
    EXPECT_EQ(Sperrt(kModusFortsetzung, *rahmen), m->gruppe != &Einstellung1::kl_farb) << m->marke;
    EXPECT_FALSE(Sperrt(kModusFrei, *rahmen)) << m->marke;
    EXPECT_FALSE(Sperrt(kModusNeuesTraining, *rahmen)) << m->marke;
    EXPECT_FALSE(Sperrt(kModusTest, *rahmen)) << m->marke;
  }
}

}  // namespace
}  // namespace vmod17

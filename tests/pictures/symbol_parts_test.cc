// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "pictures/symbol_parts.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "catalogue/chord_table.h"

namespace vmod17 {
namespace {

/// The parts in the order of reading, written as a symbol of the table again.
std::string PutTogether(const SymbolParts& parts) {
  std::string text = parts.root + parts.quality + (parts.six_nine ? "6/9" : "") + parts.extension;
  for (size_t i = 0; i < parts.alterations.size(); ++i) {
    text += i == 0 ? '(' : '/';
    text += parts.alterations[i];
  }
  if (!parts.alterations.empty()) text += ")";
  if (!parts.bass.empty()) text += "/" + parts.bass;
  return text;
}

TEST(SymbolParts, KeepTheQualityFromTheExtension) {
  EXPECT_EQ(TakeApart("Cmin7(add4)"), (SymbolParts{"C", "min", "7", false, {"add4"}, ""}));
  EXPECT_EQ(TakeApart("Cmin(maj9)"), (SymbolParts{"C", "min", "", false, {"maj9"}, ""}));
  EXPECT_EQ(TakeApart("Cmaj13(#11)"), (SymbolParts{"C", "", "maj13", false, {"♯11"}, ""}));
  EXPECT_EQ(TakeApart("C13sus4"), (SymbolParts{"C", "", "13sus4", false, {}, ""}));
  EXPECT_EQ(TakeApart("Cadd9"), (SymbolParts{"C", "", "add9", false, {}, ""}));
}

TEST(SymbolParts, SplitAlterationsAtTheSlashIntoTwoLines) {
  EXPECT_EQ(TakeApart("C7(#11 b13/#9)"), (SymbolParts{"C", "", "7", false, {"♯11 ♭13", "♯9"}, ""}));
  EXPECT_EQ(TakeApart("C7(#9 b13/b5 b9)"),
            (SymbolParts{"C", "", "7", false, {"♯9 ♭13", "♭5 ♭9"}, ""}));
}

TEST(SymbolParts, StackSixAndNine) {
  EXPECT_EQ(TakeApart("C6/9(#11)"), (SymbolParts{"C", "", "", true, {"♯11"}, ""}));
  EXPECT_EQ(TakeApart("Cmin6/9"), (SymbolParts{"C", "min", "", true, {}, ""}));
}

TEST(SymbolParts, TellTheSignOfTheRootFromThatOfTheFifth) {
  EXPECT_EQ(TakeApart("Ab/C"), (SymbolParts{"A♭", "", "", false, {}, "C"}));
  EXPECT_EQ(TakeApart("Cb5"), (SymbolParts{"C", "", "♭5", false, {}, ""}));
}

TEST(SymbolParts, ReadTheChordOverABassNote) {
  EXPECT_EQ(TakeApart("Fmin/C"), (SymbolParts{"F", "min", "", false, {}, "C"}));
}

TEST(SymbolParts, KeepTheSignsThatAreTrueAlready) {
  EXPECT_EQ(TakeApart("Cø(♮9)"), (SymbolParts{"C", "", "ø", false, {"♮9"}, ""}));
  EXPECT_EQ(TakeApart("C°(maj7)"), (SymbolParts{"C", "", "°", false, {"maj7"}, ""}));
}

TEST(SymbolParts, RefuseWhatIsNoSymbol) {
  EXPECT_THROW(TakeApart(""), std::invalid_argument);
  EXPECT_THROW(TakeApart("H7"), std::invalid_argument);
  EXPECT_THROW(TakeApart("C7(b9"), std::invalid_argument);
  EXPECT_THROW(TakeApart("C/x"), std::invalid_argument);
  EXPECT_THROW(TakeApart("C7(b9)7"), std::invalid_argument);
}

TEST(SymbolParts, LoseNothingOfAnySymbolOfTheCatalogue) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    const std::string_view symbol = ChordOfKlang(klang).symbol;
    std::string expected;
    for (size_t i = 0; i < symbol.size(); ++i) {
      const bool before_number_or_slash =
          i + 1 < symbol.size() &&
          std::string_view("0123456789/").find(symbol[i + 1]) != std::string_view::npos;
      const bool flat = symbol[i] == 'b' && before_number_or_slash;
      expected += flat ? "♭" : symbol[i] == '#' ? "♯" : std::string(1, symbol[i]);
    }
    EXPECT_EQ(PutTogether(TakeApart(symbol)), expected);
  }
}

}  // namespace
}  // namespace vmod17

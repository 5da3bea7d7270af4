// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/users.h"

#include <gmock/gmock.h>

namespace melvado {
namespace {

using vmod17::StoreUser;

int FaultIdOf(const StoreUser& user) {
  const auto fault = FaultOf(user);
  return fault ? fault->text_id : 0;
}

TEST(Users, AreCleanedOfWhatNobodySees) {
  EXPECT_EQ(Cleaned({" 47\u200B11\u200F ", "\tvon  der\nHeide ", "Anna\x01"}),
            (StoreUser{"4711", "von der Heide", "Anna"}));
}

TEST(Users, AreCleanedOfMarksThatTurnTheDirectionOfWhatFollows) {
  EXPECT_EQ(Cleaned({"\u2067"
                     "1\u2069",
                     "\u202EBerg\u202C", "\u2066\u05D0\u05D1\u200F\u2069"}),
            (StoreUser{"1", "Berg", "\u05D0\u05D1"}));
  EXPECT_EQ(Cleaned({"1", "\u200E\u202A\u061C", " \u202B\u202DAnna \u2068"}),
            (StoreUser{"1", "", "Anna"}));
}

TEST(Users, KeepWhatJoinsAndPartsTheLettersOfTheirNames) {
  const StoreUser user{"1", "\u0645\u06CC\u200C\u062E", "\u0915\u094D\u200D\u0937"};
  EXPECT_EQ(Cleaned(user), user);
}

TEST(Users, HaveOneNumberHoweverItsLettersAreComposed) {
  EXPECT_EQ(Cleaned({"A\u0308 7", "", ""}).id, Cleaned({"\u00C4 7", "", ""}).id);
}

TEST(Users, KeepQuotesSlashesAndMarkup) {
  const StoreUser odd{"1/2\\3", "O'Brien \"Bob\"", "<b>&amp;</b>"};
  EXPECT_EQ(Cleaned(odd), odd);
  EXPECT_EQ(FaultIdOf(odd), 0);
}

TEST(Users, NeedANumberButNoName) {
  EXPECT_EQ(FaultIdOf({"", "Berg", "Anna"}), 9431);
  EXPECT_EQ(FaultIdOf(Cleaned({" \u200B ", "Berg", "Anna"})), 9431);
  EXPECT_EQ(FaultIdOf({"4711", "", ""}), 0);
}

TEST(Users, MayHaveLongNumbersAndNamesUpToALimit) {
  EXPECT_EQ(FaultIdOf({std::string(50, '1'), std::string(100, 'x'), std::string(100, 'y')}), 0);
  EXPECT_EQ(FaultIdOf({std::string(51, '1'), "", ""}), 9432);
  EXPECT_EQ(FaultIdOf({"1", std::string(10'000, 'x'), ""}), 9433);
  EXPECT_EQ(FaultIdOf({"1", "", std::string(101, 'x')}), 9433);
}

TEST(Users, HaveNoNumberThatStandsForNobody) {
  EXPECT_EQ(FaultIdOf({"unbekannt", "Berg", "Anna"}), 9434);
  EXPECT_EQ(FaultIdOf({"Unbekannt", "Berg", "Anna"}), 0);
}

QString WithoutIsolation(QString text) { return text.remove(QChar(0x2068)).remove(QChar(0x2069)); }

TEST(Users, AreShownWithNameFirstNameAndNumber) {
  EXPECT_EQ(WithoutIsolation(Shown({"4711", "Berg", "Anna"})), "Berg, Anna (4711)");
  EXPECT_EQ(WithoutIsolation(Shown({"4711", "Berg", ""})), "Berg (4711)");
  EXPECT_EQ(WithoutIsolation(Shown({"4711", "", "Anna"})), "Anna (4711)");
  EXPECT_EQ(WithoutIsolation(Shown({"4711", "", ""})), "4711");
}

TEST(Users, CannotTurnTheDirectionOfWhatStandsAroundTheirNames) {
  const QString shown = Shown({"4711", "\u202EBerg\u2069", "Anna"});
  EXPECT_EQ(WithoutIsolation(shown), "Berg, Anna (4711)");
  EXPECT_EQ(shown.count(QChar(0x2068)), 3);
  EXPECT_EQ(shown.count(QChar(0x2069)), 3);
}

TEST(Users, AreSortedAsTheLanguageSorts) {
  std::vector<StoreUser> users = {{"10", "Zorn", ""},
                                  {"9", "Zorn", ""},
                                  {"3", "Özil", ""},
                                  {"2", "Abel", "Ben"},
                                  {"1", "abel", "Ida"}};
  Sort(users, QLocale(QLocale::German));
  std::vector<std::string> numbers;
  for (const StoreUser& user : users) numbers.push_back(user.id);
  EXPECT_EQ(numbers.back(), "10");
  EXPECT_EQ(numbers[3], "9");
  EXPECT_EQ(numbers[2], "3");
}

}  // namespace
}  // namespace melvado

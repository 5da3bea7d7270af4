// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "record_mutator.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "base/numbers.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

/// A record under the knife, with the places of its fields as long as it still has its length.
struct Patient {
  Array& list;
  int n;  ///< entries of the training it was

  int Entry(int i) const { return 1 + i; }
  int Weight(int i) const { return 1 + n + i; }
  int Size() const { return 1 + 2 * n; }
  int Board(int i, int field) const { return 2 + 2 * n + 3 * i + field; }
  int Counter(int i, int field) const { return 2 + 5 * n + 4 * i + field; }
  int Caption(int i) const { return 2 + 9 * n + i; }
  int FehlMax() const { return 5 + 9 * n; }

  void Set(int at, TaggedValue value) {
    if (at < static_cast<int>(list.size())) list[static_cast<std::size_t>(at)] = std::move(value);
  }
  int Number(int at) const {
    if (at >= static_cast<int>(list.size())) return 0;
    const TaggedValue& value = list[static_cast<std::size_t>(at)];
    if (!value.IsString()) return 0;
    const std::string& text = value.String();
    const bool digits = !text.empty() && text.size() < 6 &&
                        text.find_first_not_of("0123456789", text[0] == '-') == text.npos;
    return digits && text != "-" ? std::stoi(text) : 0;
  }
};

using Cut = void (*)(Patient&, Dice&);

struct Mutation {
  const char* name;
  Cut cut;
};

int Place(const Array& list, Dice& dice) { return dice.Below(static_cast<int>(list.size())); }

std::string RandomBytes(Dice& dice) {
  std::string bytes(static_cast<std::size_t>(dice.Below(12)), '\0');
  for (char& byte : bytes) byte = static_cast<char>(dice.Below(256));
  return bytes;
}

const std::vector<std::string>& Words() {
  static const std::vector<std::string> words = {
      "",     " ",    "viel", "two", "true", "True", "False", "NIL", "nan", "inf",  "-inf",
      "-",    "+",    ".",    "1,5", "0x10", "1e1",  "1e400", "--1", "3 4", "\n4",  "\xD9\xA1",
      "[51s", "4\\0", "4;",   "½",   "None", "null", "12a",   "a12", "1 ",  " 1.0", "\xFF\xFE"};
  return words;
}

const std::vector<std::string>& Numbers() {
  static const std::vector<std::string> numbers = {"0",
                                                   "1",
                                                   "2",
                                                   "3",
                                                   "4",
                                                   "8",
                                                   "9",
                                                   "10",
                                                   "16",
                                                   "17",
                                                   "24",
                                                   "25",
                                                   "64",
                                                   "65",
                                                   "134",
                                                   "135",
                                                   "-1",
                                                   "-4",
                                                   "-8",
                                                   "-16",
                                                   "32767",
                                                   "-32767",
                                                   "32768",
                                                   "-32768",
                                                   "65535",
                                                   "65536",
                                                   "2147483647",
                                                   "2147483648",
                                                   "-2147483648",
                                                   "4294967297",
                                                   "-2147483649",
                                                   "16777216",
                                                   "-16777216",
                                                   "-0",
                                                   "+5",
                                                   "007",
                                                   "5.0",
                                                   "4.5",
                                                   "-16.5",
                                                   "-12.1",
                                                   "1e3",
                                                   "9223372036854775807",
                                                   "99999999999999999999",
                                                   "0.0000001",
                                                   "-0.00001",
                                                   "340282366920938463463374607431768211456"};
  return numbers;
}

TaggedValue Nested(int depth) {
  TaggedValue value = Array{"true", "4"};
  for (int i = 0; i < depth; ++i) value = Array{"true", std::move(value)};
  return value;
}

TaggedValue OtherKind(Dice& dice) {
  switch (dice.Below(7)) {
    case 0:
      return {};
    case 1:
      return dice.From(-40000, 40000);
    case 2:
      return std::numeric_limits<std::int64_t>::min() + dice.Below(2);
    case 3:
      return dice.Below(25) + 0.5;
    case 4:
      return dice.OneIn(2) ? std::numeric_limits<double>::quiet_NaN()
                           : std::numeric_limits<double>::infinity();
    case 5:
      return Array{};
    default:
      return Nested(dice.Below(60));
  }
}

void ToWord(Patient& p, Dice& dice) { p.Set(Place(p.list, dice), dice.Of(Words())); }
void ToNumber(Patient& p, Dice& dice) { p.Set(Place(p.list, dice), dice.Of(Numbers())); }
void ToBytes(Patient& p, Dice& dice) { p.Set(Place(p.list, dice), RandomBytes(dice)); }
void ToOtherKind(Patient& p, Dice& dice) { p.Set(Place(p.list, dice), OtherKind(dice)); }

void Truncate(Patient& p, Dice& dice) {
  p.list.resize(static_cast<std::size_t>(Place(p.list, dice)));
}
void Extend(Patient& p, Dice& dice) {
  for (int i = dice.From(1, 20); i > 0; --i) p.list.emplace_back(dice.Of(Numbers()));
}
void ExtendByFar(Patient& p, Dice& dice) {
  p.list.resize(static_cast<std::size_t>(dice.From(1000, 20000)), dice.Of(Numbers()));
}
void Insert(Patient& p, Dice& dice) {
  p.list.insert(p.list.begin() + Place(p.list, dice), dice.Of(Numbers()));
}
void Erase(Patient& p, Dice& dice) {
  if (!p.list.empty()) p.list.erase(p.list.begin() + Place(p.list, dice));
}
void Swap(Patient& p, Dice& dice) {
  std::swap(p.list[static_cast<std::size_t>(Place(p.list, dice))],
            p.list[static_cast<std::size_t>(Place(p.list, dice))]);
}
void Duplicate(Patient& p, Dice& dice) {
  p.Set(Place(p.list, dice), TaggedValue(p.list[static_cast<std::size_t>(Place(p.list, dice))]));
}
void Shift(Patient& p, Dice& dice) {
  const int at = Place(p.list, dice);
  p.Set(at, DecimalText(p.Number(at) + dice.From(-3, 3)));
}
void Pad(Patient& p, Dice& dice) {
  const int at = Place(p.list, dice);
  const std::string number = DecimalText(p.Number(at));
  p.Set(at, dice.Of<std::string>({" " + number, number + " ", "0" + number, "+" + number,
                                  number + ".0", number + "e0", number + std::string(1, '\0')}));
}
void AsIntegers(Patient& p, Dice&) {
  for (std::size_t i = 1; i < p.list.size(); ++i) p.list[i] = p.Number(static_cast<int>(i));
}
void OnlyFirst(Patient& p, Dice& dice) {
  p.list = {dice.Of<std::string>({"true", "true", "False", "NIL", "", "TRUE", "1"})};
}
void Empty(Patient& p, Dice&) { p.list.clear(); }

void EntryOutside(Patient& p, Dice& dice) {
  p.Set(p.Entry(dice.Below(p.n)),
        dice.Of<std::string>({"0", "25", "-1", "32767", DecimalText(p.n + 1)}));
}
void EntryTwice(Patient& p, Dice& dice) {
  // In both places of the row, as a list would have it that is only wrong in this.
  const int row = dice.Below(p.n);
  const std::string entry = DecimalText(p.Number(p.Entry(dice.Below(p.n))));
  p.Set(p.Entry(row), entry);
  p.Set(p.Counter(row, 0), entry);
}
void RowsSwapped(Patient& p, Dice& dice) {
  if (static_cast<int>(p.list.size()) <= p.FehlMax()) return;
  const int a = dice.Below(p.n);
  const int b = dice.Below(p.n);
  const auto swap = [&](int x, int y) {
    std::swap(p.list[static_cast<std::size_t>(x)], p.list[static_cast<std::size_t>(y)]);
  };
  swap(p.Entry(a), p.Entry(b));
  if (dice.OneIn(2)) swap(p.Weight(a), p.Weight(b));
  for (int field = 0; field < 4; ++field) swap(p.Counter(a, field), p.Counter(b, field));
}
void WeightExtreme(Patient& p, Dice& dice) {
  p.Set(p.Weight(dice.Below(p.n)),
        dice.Of<std::string>({"32767", "-32767", "32768", "-32768", "0", "192", "-200"}));
}
void ManyTasks(Patient& p, Dice& dice) {
  // The last rows as after thousands of tasks in which they were always right, which is no state to
  // be expected, but one that can be: its bag holds several ten thousand copies.
  constexpr int kTasks = 8196;  // whole tasks with any number of chords
  for (int i = std::max(0, p.n - dice.From(1, 3)); i < p.n; ++i) {
    p.Set(p.Weight(i), dice.OneIn(2) ? "-32700" : "-20000");
    p.Set(p.Counter(i, 1), DecimalText(p.Number(p.Counter(i, 1)) + kTasks));
    p.Set(p.Counter(i, 2), DecimalText(-8 * (p.Number(p.Counter(i, 1)))));
    p.Set(p.Caption(0), DecimalText(p.Number(p.Caption(0)) + kTasks));
  }
}
void Weight(Patient& p, Dice& dice) {
  p.Set(p.Weight(dice.Below(p.n)), DecimalText(dice.From(-40, 60)));
}
void WeightsShifted(Patient& p, Dice& dice) {
  const int by = dice.From(-6, 6);
  for (int i = 0; i < p.n; ++i) p.Set(p.Weight(i), DecimalText(p.Number(p.Weight(i)) + by));
}
void Ended(Patient& p, Dice& dice) {
  const int weight = dice.OneIn(2) ? 0 : 8;
  for (int i = 0; i < p.n; ++i) p.Set(p.Weight(i), DecimalText(weight));
}
void OtherSize(Patient& p, Dice& dice) {
  p.Set(p.Size(), dice.Of<std::string>({"0", "1", "24", "25", "-1", DecimalText(p.n + 1),
                                        DecimalText(p.n - 1), "32767"}));
}
void OtherBoardLength(Patient& p, Dice& dice) {
  // n and m that differ, with a list as long as they say.
  if (static_cast<int>(p.list.size()) <= p.FehlMax()) return;
  const auto board = p.list.begin() + p.Board(dice.Below(p.n), 0);
  const bool more = dice.OneIn(2);
  if (more) {
    const Array entry(board, board + 3);
    p.list.insert(board, entry.begin(), entry.end());
  } else {
    p.list.erase(board, board + 3);
  }
  p.list[static_cast<std::size_t>(p.Size())] = DecimalText(more ? p.n + 1 : p.n - 1);
}
void SmallerBoard(Patient& p, Dice&) {
  // A list of one entry less throughout.
  if (static_cast<int>(p.list.size()) <= p.FehlMax() || p.n < 2) return;
  const int last = p.n - 1;
  const auto erase = [&](int at, int count) {
    p.list.erase(p.list.begin() + at, p.list.begin() + at + count);
  };
  erase(p.Counter(last, 0), 4);
  erase(p.Board(last, 0), 3);
  p.list[static_cast<std::size_t>(p.Size())] = DecimalText(last);
  erase(p.Weight(last), 1);
  erase(p.Entry(last), 1);
  --p.n;
}
void OneEntry(Patient& p, Dice&) {
  p.list = {"true", "1", "30", "1", "3", "1", "0", "1", "1", "-8", "0", "1", "0", "0", "0"};
  p.n = 1;
}
void Kind(Patient& p, Dice& dice) {
  p.Set(p.Board(dice.Below(p.n), 0), dice.Of<std::string>({"0", "2", "9", "-3", "3", "5", "8"}));
}
void Row(Patient& p, Dice& dice) {
  p.Set(p.Board(dice.Below(p.n), 1),
        dice.Of<std::string>({"0", "65", "134", "32767", DecimalText(dice.From(1, 64))}));
}
void Group(Patient& p, Dice& dice) {
  p.Set(p.Board(dice.Below(p.n), 2),
        dice.Of<std::string>({"0", "9", "-1", "10", DecimalText(dice.From(1, 8))}));
}
void OtherChord(Patient& p, Dice& dice) {
  const int i = dice.Below(p.n);
  const int j = dice.Below(p.n);
  const bool next_row = dice.OneIn(2);
  for (int field = 0; field < 3; ++field) {
    const int value = p.Number(p.Board(j, field)) + (next_row && field == 1 ? 1 : 0);
    p.Set(p.Board(i, field), DecimalText(value));
  }
}
void Counter(Patient& p, Dice& dice) {
  p.Set(p.Counter(dice.Below(p.n), dice.Below(4)), dice.Of(Numbers()));
}
void CounterSlightly(Patient& p, Dice& dice) {
  const int at = p.Counter(dice.Below(p.n), dice.From(1, 3));
  p.Set(at, DecimalText(p.Number(at) + dice.From(-2, 2)));
}
void Score(Patient& p, Dice& dice) {
  p.Set(p.Counter(dice.Below(p.n), 2),
        "-" + DecimalText(dice.Below(64)) + "." + DecimalText(dice.Below(100)));
}
void Caption(Patient& p, Dice& dice) {
  const int at = p.Caption(dice.Below(3));
  p.Set(at, DecimalText(p.Number(at) + dice.From(0, 5)));
}
void FehlMax(Patient& p, Dice& dice) {
  p.Set(p.FehlMax(), dice.Of<std::string>({"0", "1", "2", "4", "6", "8", "10", "-2", "32767"}));
}

const std::vector<Mutation>& MutationsOfA1() {
  static const std::vector<Mutation> all = {{"a word", ToWord},
                                            {"a number", ToNumber},
                                            {"bytes", ToBytes},
                                            {"another kind", ToOtherKind},
                                            {"cut off", Truncate},
                                            {"extended", Extend},
                                            {"very long", ExtendByFar},
                                            {"an element more", Insert},
                                            {"an element less", Erase},
                                            {"two elements swapped", Swap},
                                            {"an element copied", Duplicate},
                                            {"a number slightly off", Shift},
                                            {"a number in another form", Pad},
                                            {"integers", AsIntegers},
                                            {"only the first", OnlyFirst},
                                            {"empty", Empty},
                                            {"an entry outside", EntryOutside},
                                            {"an entry twice", EntryTwice},
                                            {"rows swapped", RowsSwapped},
                                            {"an extreme weight", WeightExtreme},
                                            {"thousands of tasks", ManyTasks},
                                            {"a weight", Weight},
                                            {"all weights shifted", WeightsShifted},
                                            {"at its end", Ended},
                                            {"another akk_zahl", OtherSize},
                                            {"n and m that differ", OtherBoardLength},
                                            {"a smaller board", SmallerBoard},
                                            {"one entry", OneEntry},
                                            {"a Klangtyp", Kind},
                                            {"a row", Row},
                                            {"a group", Group},
                                            {"another chord", OtherChord},
                                            {"a counter", Counter},
                                            {"a counter slightly off", CounterSlightly},
                                            {"a score", Score},
                                            {"a caption", Caption},
                                            {"fehl_max", FehlMax}};
  return all;
}

const std::vector<Mutation>& MutationsOfE1() {
  static const std::vector<Mutation> all = {
      {"E1: a word", ToWord},           {"E1: a number", ToNumber},
      {"E1: bytes", ToBytes},           {"E1: another kind", ToOtherKind},
      {"E1: cut off", Truncate},        {"E1: extended", Extend},
      {"E1: an element less", Erase},   {"E1: two elements swapped", Swap},
      {"E1: slightly off", Shift},      {"E1: slightly off", Shift},
      {"E1: only the first", OnlyFirst}};
  return all;
}

void Operate(const std::vector<Mutation>& mutations, Patient& patient, Dice& dice,
             MutatedTraining& result) {
  if (patient.list.empty() || patient.n < 1) return;
  const Mutation& mutation = dice.Of(mutations);
  mutation.cut(patient, dice);
  result.mutations.push_back(mutation.name);
}

}  // namespace

MutatedTraining Mutate(const std::vector<SavedTraining>& trainings, Dice& dice) {
  MutatedTraining result;
  result.origin = dice.Below(static_cast<int>(trainings.size()));
  const SavedTraining& origin = trainings[static_cast<std::size_t>(result.origin)];
  Array e1 = origin.e1;
  Array a1 = origin.a1;
  if (dice.OneIn(50)) {
    result.mutations.push_back("none");
  } else if (dice.OneIn(50)) {
    e1 = dice.Of(trainings).e1;
    result.mutations.push_back("the settings of another training");
  } else {
    const bool settings_too = dice.OneIn(10);
    if (settings_too) {
      Patient patient{e1, 1};
      for (int i = dice.From(1, 2); i > 0; --i) Operate(MutationsOfE1(), patient, dice, result);
    }
    if (!settings_too || dice.OneIn(3)) {
      Patient patient{a1, (static_cast<int>(a1.size()) - 6) / 9};
      const int cuts = dice.OneIn(3) ? dice.From(2, 4) : 1;
      for (int i = 0; i < cuts; ++i) Operate(MutationsOfA1(), patient, dice, result);
    }
  }
  result.e1_changed = e1 != origin.e1;
  result.e1 = std::move(e1);
  result.a1 = std::move(a1);
  if (dice.OneIn(200)) {
    (dice.OneIn(4) ? result.e1 : result.a1) = dice.OneIn(2) ? OtherKind(dice) : dice.Of(Words());
    result.e1_changed = true;
    result.mutations.push_back("no list");
  }
  return result;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "training_facts.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <stdexcept>

#include "catalogue/expected_chords.h"

namespace vmod17 {
namespace {

constexpr int kTiles = 24;
constexpr int kTilesOfVoicings = 16;
constexpr int kTwoHands = 8;

int StartingWeight(int n) { return n >= 8 ? 4 : 30 / n; }

int SumOfPositive(const std::vector<int>& weights) {
  return std::accumulate(weights.begin(), weights.end(), 0,
                         [](int sum, int weight) { return sum + std::max(0, weight); });
}

template <typename Values>
bool Holds(const Values& values, int value) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

/// Each of 1 to n once.
bool IsPermutation(std::vector<int> entries, int n) {
  std::sort(entries.begin(), entries.end());
  std::vector<int> all(static_cast<std::size_t>(n));
  std::iota(all.begin(), all.end(), 1);
  return entries == all;
}

std::string FaultOfBoard(const TrainingFacts& facts, const ExerciseSettings& settings) {
  const int most = settings.akk_form == 1 ? kTilesOfVoicings : kTiles;
  if (facts.n < 1 || facts.n > most) return "the size of the board";
  std::array<int, 3> before{};
  for (const auto& entry : facts.board) {
    const auto& [kind, row, group] = entry;
    const bool listed =
        std::any_of(kExpectedChords.begin(), kExpectedChords.end(),
                    [kind = kind, row = row, group = group](const ExpectedChord& c) {
                      return c.klangtyp == kind && c.row == row && c.group == group;
                    });
    if (!listed) return "a board entry that is no chord";
    if (!Holds(settings.Klangtypen(), kind)) return "a kind that was not chosen";
    if (group != 0 && !Holds(settings.Gruppen(), group)) return "a group that was not chosen";
    if ((kind == kTwoHands) != (settings.akk_form == 1)) return "a voicing among chords";
    if (!(before < entry)) return "board entries out of order";
    before = entry;
  }
  return "";
}

/// What the counters say of the clicks. A chord that is asked takes one right click, after as many
/// wrong ones as are allowed less one at the most, or all of them. Clicks of a task that was left
/// open count as well: one such task for each finished one at the most.
std::string FaultOfClicks(const TrainingFacts& facts, const ExerciseSettings& settings) {
  const auto& [right, wrong, repeats] = facts.captions;
  const int tasks = facts.Asked() / settings.akk_anzahl;
  if (tasks < 1 || tasks * settings.akk_anzahl != facts.Asked()) return "no whole tasks";
  const int slots = tasks * settings.akk_anzahl;
  const int allowed = facts.fehl_max / 2;
  if (right > slots + tasks * (settings.akk_anzahl - 1)) return "too many right clicks";
  if (wrong > (slots + tasks * settings.akk_anzahl) * allowed) return "too many wrong clicks";
  if (right < slots && wrong < (slots - right) * allowed) return "chords without their clicks";
  if (right < slots && allowed == 0) return "chords that were never named";
  int chosen = 0;
  for (const auto& row : facts.counters) chosen += static_cast<int>(row[2]);
  if (settings.best_art == 1 && chosen > 0) return "chords chosen where groups are";
  if (chosen > wrong) return "more wrong chords than wrong clicks";
  return repeats < 0 ? "repeats below 0" : "";
}

}  // namespace

TrainingFacts TrainingFacts::Of(const TaggedValue& a1) {
  const TaggedValue::Array& list = a1.Elements();
  TrainingFacts facts;
  facts.n = (static_cast<int>(list.size()) - 6) / 9;
  if (static_cast<int>(list.size()) != 9 * facts.n + 6) throw std::runtime_error("its length");
  auto at = list.begin();
  const auto text = [&] { return (at++)->String(); };
  const auto number = [&] { return std::stoi(text()); };
  if (text() != "true") throw std::runtime_error("no training");
  for (int i = 0; i < facts.n; ++i) facts.entries.push_back(number());
  for (int i = 0; i < facts.n; ++i) facts.weights.push_back(number());
  if (number() != facts.n) throw std::runtime_error("two sizes");
  for (int i = 0; i < facts.n; ++i) {
    const int kind = number();
    const int row = number();
    facts.board.push_back({kind, row, number()});
  }
  for (int i = 0; i < facts.n; ++i) {
    if (number() != facts.entries[static_cast<std::size_t>(i)]) {
      throw std::runtime_error("counters of another entry");
    }
    auto& row = facts.counters.emplace_back();
    for (float& value : row) value = std::stof(text());
  }
  for (int& caption : facts.captions) caption = number();
  facts.fehl_max = number();
  return facts;
}

int TrainingFacts::Asked() const {
  return std::accumulate(counters.begin(), counters.end(), 0,
                         [](int sum, const auto& row) { return sum + static_cast<int>(row[0]); });
}

std::string FaultOf(const TrainingFacts& facts, const ExerciseSettings& settings) {
  if (const std::string fault = FaultOfBoard(facts, settings); !fault.empty()) return fault;
  if (!IsPermutation(facts.entries, facts.n)) return "entries that are not those of the board";
  if (!std::is_sorted(facts.weights.rbegin(), facts.weights.rend())) return "weights out of order";
  const int rest = SumOfPositive(facts.weights);
  if (rest < 1 || rest >= facts.n * StartingWeight(facts.n) * 2) return "a training at its end";
  const int choices = settings.best_art == 0 ? facts.n : settings.grp_anzahl;
  if (facts.fehl_max != 2 * std::min(4, choices - 1)) return "fehl_max";
  for (const auto& [asked, score, chosen] : facts.counters) {
    if (asked < 0 || chosen < 0 || score > 0) return "a counter with the wrong sign";
    if (asked == 0 && score != 0) return "a score without a task";
  }
  return FaultOfClicks(facts, settings);
}

std::string FaultOf(const Material& material) {
  const int n = material.mat_posten;
  if (static_cast<int>(material.mat_tab.size()) != n + 1) return "the size of the material";
  std::vector<int> entries;
  std::vector<int> weights;
  for (int i = 1; i <= n; ++i) {
    entries.push_back(material.mat_tab[static_cast<std::size_t>(i)][0]);
    weights.push_back(material.mat_tab[static_cast<std::size_t>(i)][1]);
  }
  if (!IsPermutation(entries, n)) return "the entries of the material";
  if (material.mat_soll != StartingWeight(n)) return "mat_soll";
  if (!std::is_sorted(weights.rbegin(), weights.rend())) return "the order of the material";
  const int rest = SumOfPositive(weights);
  if (rest != material.mat_rest) return "mat_rest";
  for (std::size_t i = 1; i < material.mat_ar.size(); ++i) {
    if (material.mat_ar[i] < 1 || material.mat_ar[i] > n) return "a strange entry in the bag";
  }
  if (material.mat_anzahl != std::max(0, static_cast<int>(material.mat_ar.size()) - 1)) {
    return "mat_anzahl";
  }
  // Above this the bag stays as it was.
  if (rest >= 8 * n - 1 || rest < 1) return "";
  const int offset = weights.back() < 1 ? 1 - weights.back() : 0;
  std::vector<int> bag = {0};
  for (std::size_t i = 0; i < weights.size(); ++i) {
    bag.insert(bag.end(), static_cast<std::size_t>(weights[i] + offset), entries[i]);
  }
  return bag == material.mat_ar ? "" : "the bag";
}

}  // namespace vmod17

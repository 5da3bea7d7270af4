// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>
#include <vector>

namespace vmod17 {

/// What a student noted of one slot.
struct NotedSlot {
  int entry = 0;           ///< board entry that was asked
  std::vector<int> wrong;  ///< what was clicked wrongly, in that order
  int repeats = 0;
  int tenths = 0;  ///< time of the first click
};

/// A student's own books of a run: from what was asked and clicked they follow its weights,
/// counters and marks. They share nothing with the program, and reckon in whole tenths of a point.
class StudentBook {
 public:
  /// What a run is made of.
  struct Run {
    int entries = 0;
    int choices = 0;  ///< tiles, or groups
    bool training = false;
    bool by_chord = true;
  };
  /// A mark as a fraction.
  struct Mark {
    int s = 0;
    int d = 1;
    double Percent() const { return 100.0 * s / d; }
  };

  void Begin(const Run& run) {
    *this = StudentBook();
    run_ = run;
    wrong_clicks_ = kept_confusions_ = std::min(4, run.choices - 1);
    start_ = run.entries * 4 >= 30 ? 4 : 30 / run.entries;
    for (int e = 1; e <= run.entries; ++e) weights_[e] = start_;
  }
  /// The training goes on where so many confusions of a slot are counted.
  void Continue(int kept_confusions) { kept_confusions_ = kept_confusions; }

  void Note(const NotedSlot& slot) {
    const int s = Points(slot);
    weights_[slot.entry] = Whole(weights_[slot.entry] * 10 + s);
    asked_[slot.entry] += 1;
    scores_[slot.entry].push_back((s < 0 ? 2 * s : s) - 80);
    if (s <= 0 || !run_.by_chord) return;
    const int kept = std::min(kept_confusions_, static_cast<int>(slot.wrong.size()));
    for (int k = 0; k < kept; ++k) {
      ++chosen_[slot.wrong[k]];
      ++weights_[slot.wrong[k]];
    }
  }

  // A training.
  int start() const { return start_; }
  const std::map<int, int>& weights() const { return weights_; }
  int Rest() const {
    return std::accumulate(weights_.begin(), weights_.end(), 0,
                           [](int sum, const auto& w) { return sum + std::max(0, w.second); });
  }
  int Bound() const { return run_.entries * start_ * 2; }
  bool Solved() const { return Rest() == 0; }
  bool TooHard() const { return Rest() >= Bound(); }
  bool Over() const { return run_.training && (Solved() || TooHard()); }

  int Asked(int entry) const { return asked_[entry]; }
  int Chosen(int entry) const { return chosen_[entry]; }
  int wrong_clicks() const { return wrong_clicks_; }

  /// None for an entry that does not count.
  std::optional<Mark> MarkOf(int entry) const {
    const int a2 = chosen_[entry];
    const int f = a2 > 0 ? 1 : 0;
    const int m = a2 > 0 ? std::min(0, a2 + a2 - 8) : 0;
    const std::vector<int>& scores = scores_[entry];
    if (run_.training) {
      if (asked_[entry] == 0 && a2 == 0) return std::nullopt;
      const int sum = std::accumulate(scores.begin(), scores.end(), 0);
      return Mark{Whole(sum + 10 * m), -16 * (asked_[entry] + f)};
    }
    std::vector<int> best = scores;
    best.resize(std::max<std::size_t>(2, best.size()), 0);
    std::ranges::sort(best);
    return Mark{Whole(best[0] + best[1] + 10 * m), f == 1 ? -48 : -32};
  }

  /// The surcharge in tenths of a point.
  static int Surcharge(int tenths) { return tenths <= 20 ? 0 : 10 + (tenths - 20) / 2; }

 private:
  static constexpr int kEntries = 25;

  int Points(const NotedSlot& slot) const {
    if (slot.wrong.empty()) {
      return std::min(0, -40 + 10 * slot.repeats + Surcharge(slot.tenths));
    }
    const int clicks = static_cast<int>(slot.wrong.size());
    return std::min(20 * clicks + 10 * slot.repeats, 20 * wrong_clicks_);
  }
  static int Whole(int tenths) { return static_cast<int>(std::nearbyint(tenths / 10.0)); }

  Run run_;
  int start_ = 0;
  int wrong_clicks_ = 0;     ///< of a slot
  int kept_confusions_ = 0;  ///< of these, how many are counted
  std::map<int, int> weights_;
  std::array<int, kEntries> asked_{};
  std::array<int, kEntries> chosen_{};
  std::array<std::vector<int>, kEntries> scores_;
};

}  // namespace vmod17

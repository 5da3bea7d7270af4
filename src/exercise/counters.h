// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <vector>

namespace vmod17 {

/// The columns of `Auswertung`.
enum AuswertungSpalte { kGefragt = 0, kNoten = 1, kFalschGewaehlt = 2, kImMaterial = 3 };

/// The best score: right at the first click, in time and without a repeat.
inline constexpr float kBesteNote = -16;
/// Taken from the points of a slot to make its score, so that none is above 0.
inline constexpr float kNotenAbzug = 8;

/// The counters of a run: a table of Singles, by item (a board entry) and column.
///
/// | column | training                          | test and exam             |
/// |--------|-----------------------------------|---------------------------|
/// | 0      | how often the item was asked      | second-lowest score       |
/// | 1      | sum of its scores                 | lowest score              |
/// | 2      | how often it was wrongly chosen   | the same                  |
/// | 3      | how often it is in the run's pool | the same                  |
///
/// A score is 0 or below; the lowest is the best. Errors of all operations: RunTimeError
/// kOutOfRange for an index outside the table.
class Auswertung {
 public:
  /// Allocates items 0 to `items` and columns 0 to `columns`, all 0. The bounds are rounded, halves
  /// to even.
  void init_arr(float items, float columns);
  void Clear();
  void Save(int i, int j, float value) { At(i, j) = value; }
  void read(int i, int j, float& value) const { value = const_cast<Auswertung&>(*this).At(i, j); }
  void Increment(int i, int j) { At(i, j) += 1; }
  /// Adds to column 1.
  void Add(int i, float value) { At(i, 1) += value; }
  /// Keeps the two lowest values of an item, the lowest in column 1.
  void SaveBest(int i, float value);
  void store() const {}

  bool allocated() const { return !arr.empty(); }

 private:
  float& At(int i, int j);

  std::vector<std::vector<float>> arr;
};

/// A list of best values, by item from 1. The program keeps one and never writes to it.
class Ergebnis {
 public:
  /// Allocates elements 0 to `n`, all 0.
  void init_arr(int n) { arr.assign(static_cast<std::size_t>(n) + 1, 0); }
  /// Keeps the greater of the value and what stands there.
  void SaveBest(int i, int value);
  void read(int i, int& value) const { value = const_cast<Ergebnis&>(*this).At(i); }
  /// Sets the elements from 1 on to 0.
  void Clear();
  void store() const {}

  bool allocated() const { return !arr.empty(); }

 private:
  int& At(int i);

  std::vector<int> arr;
};

/// The two instances of the program. They outlive the runs that fill them.
struct RunCounters {
  Auswertung auswertung_obj;
  Ergebnis ergebnis_obj;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/stored_training.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/numbers.h"
#include "base/record_reader.h"
#include "exercise/training_weights.h"

namespace vmod17 {
namespace {

constexpr int kHoechsteZahl = 32767;           // of a stored Integer
constexpr float kHoechsterZaehler = 16777215;  // up to here a Single counts by ones
constexpr int kAbnahmeJeFrage = 4;  // what a right answer takes from a weight at the most

/// The number of entries, from the length of the list, as it follows when material and board have
/// the same number.
int PostenVon(const TaggedValue::Array& ablage_ar) {
  return RoundHalfEven((static_cast<double>(ablage_ar.size()) - 1 - 1 - 3 - 1) / 9);
}

/// Follows from the number of choices, as it does with a new board.
int FehlMaxFuer(const ExerciseSettings& settings, int akk_zahl) {
  SlotLimits limits;
  limits.Setze(settings.best_art == 0 ? akk_zahl : settings.grp_anzahl);
  return limits.fehl_max;
}

class Pruefer {
 public:
  Pruefer(const RecordReader& reader, const ExerciseSettings& settings)
      : reader_(reader), settings_(settings) {}

  void Pruefe(const StoredTraining& training) const {
    PruefeEintraege(training);
    PruefeGewichte(training);
    PruefeZaehler(training);
  }

 private:
  void PruefeEintraege(const StoredTraining& training) const {
    std::set<int> entries;
    for (const auto& [entry, gewicht] : training.mat_tab) entries.insert(entry);
    if (entries.size() != training.mat_tab.size()) reader_.Unusable("a board entry twice");
  }

  void PruefeGewichte(const StoredTraining& training) const {
    const int posten = static_cast<int>(training.mat_tab.size());
    const int soll = SollFuer(posten);
    int rest = 0;
    for (std::size_t i = 0; i < training.mat_tab.size(); ++i) {
      const int gewicht = training.mat_tab[i][1];
      const auto [gefragt, noten, gewaehlt] = training.auswertung[i];
      const auto a0 = static_cast<int>(gefragt);
      const int mitte = soll + static_cast<int>(gewaehlt);
      if (gewicht < mitte - kAbnahmeJeFrage * a0 || gewicht > mitte + training.fehl_max * a0) {
        reader_.Unusable("a weight that no answers give");
      }
      if (i > 0 && gewicht > training.mat_tab[i - 1][1]) reader_.Unusable("weights out of order");
      rest += std::max(0, gewicht);
    }
    if (rest < 1 || rest >= GrenzeFuer(posten, soll)) {
      reader_.Unusable("a training that has ended");
    }
  }

  void PruefeZaehler(const StoredTraining& training) const {
    int gefragt = 0;
    int gewaehlt = 0;
    for (const auto& [a0, a1, a2] : training.auswertung) {
      gefragt += static_cast<int>(a0);
      gewaehlt += static_cast<int>(a2);
      const float schlechteste = static_cast<float>(training.fehl_max) - kNotenAbzug;
      if (a1 < kBesteNote * a0 || a1 > schlechteste * a0 || (a1 == 0 && std::signbit(a1))) {
        reader_.Unusable("a score that no run has");
      }
    }
    // It was saved after a finished task.
    if (gefragt < 1 || gefragt % settings_.akk_anzahl != 0) reader_.Unusable("half a task");
    PruefeKlicks(training, gefragt);
    if (gewaehlt > (settings_.best_art == 0 ? training.falsch : 0)) {
      reader_.Unusable("more wrong chords than wrong clicks");
    }
  }

  /// Every chord that was asked was named in the end, or lost by all its wrong clicks. Between two
  /// savings a task at least was finished and one may have been left open, whose clicks count too.
  void PruefeKlicks(const StoredTraining& training, int gefragt) const {
    const int stufen = training.fehl_max / SlotLimits::kFehlSchritt;
    const int verloren = stufen > 0 ? training.falsch / stufen : 0;
    if (gefragt > training.richtig + verloren) reader_.Unusable("too few clicks");
    const int offen = gefragt / settings_.akk_anzahl * (settings_.akk_anzahl - 1);
    if (training.richtig > gefragt + offen || training.falsch > 2 * gefragt * stufen) {
      reader_.Unusable("too many clicks");
    }
  }

  const RecordReader& reader_;
  const ExerciseSettings& settings_;
};

}  // namespace

TaggedValue::Array StoredTraining::Write() const {
  TaggedValue::Array list{"true"};
  const auto zahl = [&](int value) { list.emplace_back(DecimalText(value)); };
  for (const auto& [entry, gewicht] : mat_tab) zahl(entry);
  for (const auto& [entry, gewicht] : mat_tab) zahl(gewicht);
  zahl(static_cast<int>(akk_tab.size()));
  for (const BoardEntry& entry : akk_tab) {
    zahl(entry.klangtyp);
    zahl(entry.row);
    zahl(entry.group);
  }
  for (std::size_t i = 0; i < mat_tab.size(); ++i) {
    zahl(mat_tab[i][0]);
    for (const float value : auswertung[i]) list.emplace_back(SingleText(value));
  }
  zahl(richtig);
  zahl(falsch);
  zahl(wiederholt);
  zahl(fehl_max);
  return list;
}

StoredTraining StoredTraining::Read(const TaggedValue::Array& ablage_ar,
                                    const ExerciseSettings& settings) {
  RecordReader reader(ablage_ar, "A1");
  if (reader.Text() != "true") reader.Unusable("no training");
  const int n = PostenVon(ablage_ar);
  if (n < 1 || n > kBrettGroesse) reader.Unusable("too few or many entries");

  StoredTraining training;
  for (int i = 0; i < n; ++i) training.mat_tab.push_back({reader.Whole(1, n), 0});
  for (auto& row : training.mat_tab) row[1] = reader.Whole(-kHoechsteZahl, kHoechsteZahl);
  reader.Whole(n, n);
  for (int i = 0; i < n; ++i) {
    BoardEntry entry;
    entry.klangtyp = reader.Whole(kTriade, kVoicing);
    entry.row = reader.Whole(1, kKlangZahl);
    entry.group = reader.Whole(0, kGruppen);
    training.akk_tab.push_back(entry);
  }
  for (const auto& [eintrag, gewicht] : training.mat_tab) {
    reader.Whole(eintrag, eintrag);
    const auto gefragt = static_cast<float>(reader.Whole(0, kHoechsteZahl));
    const float noten = reader.Single(-kHoechsterZaehler, 0);
    const auto gewaehlt = static_cast<float>(reader.Whole(0, kHoechsteZahl));
    training.auswertung.push_back({gefragt, noten, gewaehlt});
  }
  training.richtig = reader.Whole(0, kHoechsteZahl);
  training.falsch = reader.Whole(0, kHoechsteZahl);
  training.wiederholt = reader.Whole(0, kHoechsteZahl);
  const int fehl_max = FehlMaxFuer(settings, n);
  training.fehl_max = reader.Whole(fehl_max, fehl_max);
  reader.End();
  Pruefer(reader, settings).Pruefe(training);
  if (training.Write() != ablage_ar) reader.Unusable("numbers in a form that is never written");
  return training;
}

}  // namespace vmod17

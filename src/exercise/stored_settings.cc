// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/stored_settings.h"

#include "base/numbers.h"
#include "base/record_reader.h"
#include "catalogue/chord_table.h"

namespace vmod17 {
namespace {

using Feld = int ExerciseSettings::*;

constexpr int kHoechstensKlaenge = kVoicing - kTriade;
constexpr int kHoechstesProgramm = 127;

/// Goes through the list from front to back. `hand` writes it or reads it.
template <typename Hand>
void Gehe(Hand& hand) {
  for (const auto& [feld, von, bis] : StoredSettings::kPlaetze) {
    if (feld == nullptr) {
      hand.Nichts();
    } else {
      hand.Nimm(feld, hand.Zahl(feld, von, bis));
    }
  }
  const int klaenge = hand.Zahl(&ExerciseSettings::klang_anzahl, 0, kHoechstensKlaenge);
  for (int i = 0; i < klaenge; ++i) hand.Klang(i);
  hand.Nimm(&ExerciseSettings::klang_anzahl, klaenge);

  const int art = hand.Zahl(&ExerciseSettings::klangfarb_art, 0, 1);
  for (int kanal = ErsterKanal(art); kanal <= LetzterKanal(art); ++kanal) hand.Programm(kanal);
  hand.Nimm(&ExerciseSettings::klangfarb_art, art);
  hand.Staerke();

  const int gruppen = hand.Zahl(&ExerciseSettings::grp_anzahl, 0, kGruppen);
  hand.Nimm(&ExerciseSettings::grp_anzahl, gruppen);
  for (int i = 0; i < gruppen; ++i) hand.Gruppe(i);
}

class Schreiber {
 public:
  Schreiber(const StoredSettings& stored, TaggedValue::Array& satz)
      : stored_(stored), satz_(satz) {}

  void Nichts() { satz_.emplace_back(); }
  int Zahl(Feld feld, int, int) { return Schreibe(stored_.settings.*feld); }
  void Nimm(Feld, int) {}
  void Klang(int i) { Schreibe(stored_.klaenge, i); }
  void Programm(int kanal) { Schreibe(stored_.settings.patch_ar.at(kanal)); }
  void Staerke() { Schreibe(stored_.staerke); }
  void Gruppe(int i) { Schreibe(stored_.gruppen, i); }

 private:
  int Schreibe(int zahl) {
    satz_.emplace_back(DecimalText(zahl));
    return zahl;
  }
  void Schreibe(const std::vector<std::string>& namen, int i) {
    satz_.emplace_back(i < static_cast<int>(namen.size()) ? namen[i] : "");
  }

  const StoredSettings& stored_;
  TaggedValue::Array& satz_;
};

class Leser {
 public:
  Leser(const TaggedValue::Array& satz, StoredSettings::Nehmer& nehmer)
      : reader_(satz, "E1"), nehmer_(nehmer) {}

  void Nichts() { reader_.Next(); }
  int Zahl(Feld, int von, int bis) { return reader_.Number(von, bis); }
  void Nimm(Feld feld, int wert) { nehmer_.NimmZahl(feld, wert); }
  void Klang(int) { nehmer_.NimmKlang(reader_.Text()); }
  void Programm(int kanal) { nehmer_.NimmProgramm(kanal, reader_.Number(0, kHoechstesProgramm)); }
  void Staerke() { nehmer_.NimmStaerke(reader_.Number(0, StoredSettings::kHoechsteStaerke)); }
  void Gruppe(int) { nehmer_.NimmGruppe(reader_.Text()); }

 private:
  RecordReader reader_;
  StoredSettings::Nehmer& nehmer_;
};

}  // namespace

TaggedValue::Array StoredSettings::Write() const {
  TaggedValue::Array satz;
  Schreiber schreiber(*this, satz);
  Gehe(schreiber);
  return satz;
}

void StoredSettings::Read(const TaggedValue::Array& einst_satz, Nehmer& nehmer) {
  Leser leser(einst_satz, nehmer);
  Gehe(leser);
}

}  // namespace vmod17

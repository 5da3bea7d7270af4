// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <string>

#include "catalogue/chord_board.h"
#include "exercise/settings_record.h"
#include "forms/control_array.h"
#include "forms/pressable.h"

namespace vmod17 {

/// The tiles or group buttons with which a run is answered, by what is named in it. A choice is the
/// number of a tile, or of a group.
class AnswerField {
 public:
  AnswerField(const ExerciseSettings& settings, const ChordBoard& board,
              const ControlArray<Panel>& klang_pan, const ControlArray<Picture>& jz_kl,
              const ControlArray<Panel>& akk_group)
      : settings_(settings),
        board_(board),
        klang_pan_(klang_pan),
        jz_kl_(jz_kl),
        akk_group_(akk_group) {}

  Pressable& operator[](int choice) const {
    return NachAkkorden() ? static_cast<Pressable&>(jz_kl_[choice]) : akk_group_[choice];
  }
  /// What a reader of the screen calls a choice.
  std::string Name(int choice) const {
    return NachAkkorden() ? jz_kl_[choice].spoken : akk_group_[choice].caption;
  }

  /// Opens what is not struck; `aus_ar` as in `RunState`.
  void AntwortenFreigeben(const std::array<int, kBrettGroesse + 1>& aus_ar);
  void OeffneAlle();
  void Sperre();
  void Streiche(int choice);

  /// What is marked stays so until the next task. Where a task has several chords a mark tells of
  /// which `slot` it is, since all choices open again for each.
  void Markiere(int choice, AnswerMark::Kind kind, int slot);
  void LoescheMarken();

 private:
  bool NachAkkorden() const { return settings_.best_art == 0; }
  void Oeffne(int kachel);
  void Schliesse(int kachel);

  const ExerciseSettings& settings_;
  const ChordBoard& board_;
  const ControlArray<Panel>& klang_pan_;
  const ControlArray<Picture>& jz_kl_;
  const ControlArray<Panel>& akk_group_;
};

}  // namespace vmod17

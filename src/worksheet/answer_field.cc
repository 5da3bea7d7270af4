// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "worksheet/answer_field.h"

namespace vmod17 {
namespace {

constexpr Color kOffen = Rgb(128, 255, 128);

}  // namespace

void AnswerField::AntwortenFreigeben(const std::array<int, kBrettGroesse + 1>& aus_ar) {
  if (NachAkkorden()) {
    for (int e = 1; e <= board_.akk_zahl; ++e) {
      if (aus_ar[e] == 0) Oeffne(e);
    }
  } else {
    for (const int g : settings_.Gruppen()) {
      if (aus_ar.at(g) == 0) akk_group_[g].enabled = true;
    }
  }
}

void AnswerField::OeffneAlle() {
  if (NachAkkorden()) {
    for (int e = 1; e <= board_.akk_zahl; ++e) Oeffne(e);
  } else {
    for (int g = 1; g <= kGruppen; ++g) akk_group_[g].enabled = true;
  }
}

void AnswerField::Sperre() {
  if (NachAkkorden()) {
    for (int e = 1; e <= board_.akk_zahl; ++e) Schliesse(e);
  } else {
    for (int g = 1; g <= kGruppen; ++g) akk_group_[g].enabled = false;
  }
}

void AnswerField::Streiche(int choice) {
  if (NachAkkorden()) {
    Schliesse(choice);
  } else {
    akk_group_[choice].enabled = false;
  }
}

void AnswerField::Markiere(int choice, AnswerMark::Kind kind, int slot) {
  (*this)[choice].marks.push_back({kind, settings_.akk_anzahl > 1 ? slot : 0});
}

void AnswerField::LoescheMarken() {
  for (int e = 1; e <= kBrettGroesse; ++e) jz_kl_[e].marks.clear();
  for (int g = 1; g <= kGruppen; ++g) akk_group_[g].marks.clear();
}

void AnswerField::Oeffne(int kachel) {
  jz_kl_[kachel].back_color = Colors::kWhite;
  jz_kl_[kachel].enabled = true;
  klang_pan_[kachel].back_color = kOffen;
}

void AnswerField::Schliesse(int kachel) {
  jz_kl_[kachel].back_color = Colors::kGrey;
  jz_kl_[kachel].enabled = false;
  klang_pan_[kachel].back_color = Colors::kRed;
}

}  // namespace vmod17

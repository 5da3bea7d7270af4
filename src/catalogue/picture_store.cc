// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/picture_store.h"

#include <string>

#include "base/run_time_error.h"

namespace vmod17 {

PictureId PictureStore::jakk(int klang) { return Get(kNotation, klang); }

PictureId PictureStore::jbez(int klang) { return Get(kSymbol, klang); }

PictureId PictureStore::Get(std::string_view set, int klang) {
  if (klang < first_ || klang > last_) {
    throw RunTimeError(ErrorNumber::kOutOfRange, "no picture " + std::to_string(klang),
                       "vmod17.PictureStore");
  }
  loaded_ = true;
  return {set, klang};
}

}  // namespace vmod17

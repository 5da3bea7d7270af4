// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "base/tagged_value.h"

namespace vmod17 {

/// Records of trainings as the worksheet stores them, in a language whose words are "[51s]".
inline const TaggedValue::Array& VollesTraining() {
  static const TaggedValue::Array satz = {"1",            // 0 sequence
                                          "7",            // 1 tempo
                                          "3",            // 2 chords a task
                                          "1",            // 3 direction
                                          "0",            // 4 material
                                          "0",            // 5 what is named
                                          "1",            // 6 display
                                          "1",            // 7 root
                                          "1",            // 8 width of the Tonraum
                                          "2",            // 9 its place
                                          "1",            // 10 tuning
                                          TaggedValue(),  // 11 not used
                                          "1",            // 12 accent
                                          "3",            // 13 arpeggio tempo
                                          "2",           "[57s]",  "[60s]",  // 14 kinds
                                          "0",           "12",               // 17 timbre
                                          "55",                              // 19 loudness
                                          "3",           "[379s]", "[380s]",
                                          "[201s]"};  // 20 groups
  return satz;
}

inline const TaggedValue::Array& DreiklangTraining() {
  static const TaggedValue::Array satz = {"0", "1",     "1", "3", "0",           "0", "0",
                                          "0", "0",     "1", "0", TaggedValue(), "0", "2",
                                          "1", "[51s]", "0", "0", "100",         "0"};
  return satz;
}

inline const TaggedValue::Array& VoicingTraining() {
  static const TaggedValue::Array satz = {
      "0", "4", "2", "2", "1",  "1",  "0",  "0",  "1",  "1",  "0", TaggedValue(), "0",     "1", "1",
      "",  "1", "1", "2", "33", "44", "55", "66", "77", "90", "2", "[380s]",      "[609s]"};
  return satz;
}

}  // namespace vmod17

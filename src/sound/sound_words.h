// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "base/notice.h"
#include "base/text_ids.h"

namespace vmod17 {

/// Stands where the user waits for the output.
inline const Notice kKlangKommt{text_id::kPreparingSound, "Preparing the sound ...", {}};
/// What was asked for was not played.
inline const Notice kKlangFehlt{
    text_id::kNothingPlayed,
    "Nothing could be played: the sound output is not ready. Check the loudspeakers, the "
    "headphones or the MIDI device, then try again. Nothing has been counted.",
    {}};

/// Stands where the sound was lost in the middle of a run.
inline const Notice kKlangVerloren{
    text_id::kSoundLost,
    "There is no sound any more. The clock stands, and nothing is counted. As soon as there is "
    "sound again, the exercise goes on by itself and plays an open task once more. Check the "
    "loudspeakers, the headphones or the MIDI device.",
    {}};

}  // namespace vmod17

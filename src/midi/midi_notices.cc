// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_notices.h"

#include "base/text_ids.h"

namespace vmod17 {
namespace {

std::string Joined(const std::vector<std::string>& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

}  // namespace

Notice NoSoundfontNotice(const std::vector<std::string>& tried) {
  if (!tried.empty()) {
    return {text_id::kSoundfontDamaged,
            "The exercise makes no sound: the file with the sounds of the instruments (soundfont) "
            "is damaged: %1. Install the package fluid-soundfont-gm again, then start the program "
            "again.",
            {Joined(tried)}};
  }
  return {text_id::kSoundfontMissing,
          "The exercise makes no sound: the file with the sounds of the instruments (soundfont) is "
          "missing. Install the package fluid-soundfont-gm, then start the program again.",
          {}};
}

Notice OtherSoundfontNotice(const std::string& chosen, const std::string& playing) {
  return {text_id::kSoundfontReplaced,
          "The soundfont that was chosen, %1, is missing or damaged. %2 plays in its place. Choose "
          "another soundfont in Melvado.",
          {chosen, playing}};
}

Notice NoAudioNotice(const std::vector<std::string>& drivers) {
  return {text_id::kNoSoundOutput,
          "The exercise makes no sound: no sound output was found (tried: %1). Check that "
          "loudspeakers or headphones are connected and chosen in the sound settings of the "
          "system, then start the program again.",
          {Joined(drivers)}};
}

Notice AudioLostNotice() {
  return {text_id::kSoundOutputStopped,
          "The sound output has stopped. Check the loudspeakers or headphones and the sound "
          "settings of the system, then try again.",
          {}};
}

Notice PortVanishedNotice(const std::string& name) {
  return {
      text_id::kMidiDeviceGone,
      "The MIDI device \"%1\" is not there any more. Check its cable and whether it is switched "
      "on, then try again.",
      {name}};
}

Notice NoSuchDeviceNotice(int number, int count) {
  return {text_id::kMidiDeviceUnknown,
          "MIDI device number %1 does not exist; there are %2 devices. Choose another MIDI device "
          "in Melvado.",
          {std::to_string(number), std::to_string(count)}};
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <atomic>
#include <memory>

namespace vmod17 {

/// The sound libraries of the system write their complaints to the terminal, above all on a machine
/// without a sound card, where trying and failing is the normal course. From this call on
/// FluidSynth, ALSA and JACK are quiet. Call it before the first thread; more calls do nothing.
void SilenceSoundLibraries();

/// A connection to the JACK server that runs. It never starts one.
class JackServer {
 public:
  /// Null when no server runs. May take some milliseconds, with a server some hundred.
  static std::unique_ptr<JackServer> Find();
  ~JackServer();
  JackServer(const JackServer&) = delete;
  JackServer& operator=(const JackServer&) = delete;

  /// False from the moment at which the server ended or died, which its other clients may not see:
  /// they go on finding the ports of the dead server.
  bool Runs() const { return runs_; }
  /// Frames a second.
  int SampleRate() const;

 private:
  explicit JackServer(void* client) : client_(client) {}

  void* const client_;
  std::atomic<bool> runs_ = true;
};

/// Starts the audio part of SDL, which FluidSynth leaves to its caller. False when there is none.
bool StartSdlAudio();

}  // namespace vmod17

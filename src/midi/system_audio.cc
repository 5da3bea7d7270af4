// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/system_audio.h"

#include <fluidsynth.h>

#include <cstdint>
#include <initializer_list>

#if defined(__linux__)
#include <dlfcn.h>
#endif

namespace vmod17 {
namespace {

// FluidSynth and RtMidi bring these libraries into the process, or were built without them. Looked
// up by name they are no dependency of ours, and a build without them works as well.
template <typename Function>
Function* FindFunction([[maybe_unused]] const char* name) {
#if defined(__linux__)
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
#else
  return nullptr;
#endif
}

using AlsaErrorHandler = void(const char* file, int line, const char* function, int error,
                              const char* format, ...);
using JackMessage = void(const char* text);

constexpr int kJackNoStartServer = 1;
constexpr std::uint32_t kSdlAudio = 0x10;

void DropAlsaError(const char*, int, const char*, int, const char*, ...) {}
void DropJackMessage(const char*) {}
void DropFluidMessage(int, const char*, void*) {}

}  // namespace

void SilenceSoundLibraries() {
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    fluid_set_log_function(level, &DropFluidMessage, nullptr);
  }
  if (auto* set = FindFunction<int(AlsaErrorHandler*)>("snd_lib_error_set_handler"))
    set(&DropAlsaError);
  if (auto* set = FindFunction<void(JackMessage*)>("jack_set_error_function"))
    set(&DropJackMessage);
  if (auto* set = FindFunction<void(JackMessage*)>("jack_set_info_function")) set(&DropJackMessage);
}

std::unique_ptr<JackServer> JackServer::Find() {
  auto* open = FindFunction<void*(const char*, int, int*, ...)>("jack_client_open");
  auto* on_shutdown = FindFunction<void(void*, void (*)(void*), void*)>("jack_on_shutdown");
  if (!open || !on_shutdown) return nullptr;
  void* client = open("melvado-watch", kJackNoStartServer, nullptr);
  if (!client) return nullptr;
  std::unique_ptr<JackServer> server(new JackServer(client));
  on_shutdown(
      client, [](void* self) { static_cast<JackServer*>(self)->runs_ = false; }, server.get());
  return server;
}

JackServer::~JackServer() {
  // The library stumbles over what it shared with a server that is gone; better to leave that be.
  if (!runs_) return;
  if (auto* close = FindFunction<int(void*)>("jack_client_close")) close(client_);
}

int JackServer::SampleRate() const {
  auto* rate = FindFunction<std::uint32_t(void*)>("jack_get_sample_rate");
  return rate ? static_cast<int>(rate(client_)) : 0;
}

bool StartSdlAudio() {
  auto* hint = FindFunction<int(const char*, const char*)>("SDL_SetHint");
  auto* init = FindFunction<int(std::uint32_t)>("SDL_InitSubSystem");
  if (!hint || !init) return false;
  // Ctrl+C must go on ending the program.
  hint("SDL_NO_SIGNAL_HANDLERS", "1");
  return init(kSdlAudio) == 0;
}

}  // namespace vmod17

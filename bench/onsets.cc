// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Renders arpeggios and block chords at all tempi and reports how far the onsets that are heard lie
// from the times that were queued, in samples relative to the first note. A note begins where the
// sound with it first differs from the sound without it.
//
//   onsets      writes one line a tempo and divisor, and the largest deviation of all

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "midi/midi_device_output.h"

namespace vmod17 {
namespace {

constexpr double kRate = 48000;
constexpr int kVoices = 7;
constexpr int kTempi[] = {4000, 3000, 2000, 1500, 1200, 1000, 856, 750, 666, 600};
constexpr int kDivisors[] = {8, 12, 16, 24, 32};

/// A loop with nothing but posted handlers, which wait for `Yield`: who posts may hold a lock.
class PostingLoop : public EventLoop {
 public:
  int StartTimer(int, Repeat, Handler) override { return 1; }
  void StopTimer(int) override {}
  void Post(Handler handler) override { posted_.push_back(std::move(handler)); }
  void WhenIdle(Handler) override {}
  void Yield() override {
    for (const Handler& handler : std::exchange(posted_, {})) handler();
  }
  void WaitForEvent(double) override {}
  float Clock() const override { return 0; }
  DateTime Now() const override { return {}; }

 private:
  std::vector<Handler> posted_;
};

class NoPorts : public MidiPorts {
 public:
  std::vector<std::string> Names() override { return {}; }
  std::unique_ptr<MidiPort> Open(const std::string&) override { return nullptr; }
};

struct Note {
  int note;
  double start;
};

std::vector<float> Render(const std::vector<Note>& notes, double ms) {
  PostingLoop loop;
  MidiOptions options;
  options.audio = SynthAudio::kRendered;
  options.sample_rate = kRate;
  options.ports = std::make_shared<NoPorts>();
  const auto output = MakeMidiOutput(options, loop, [](const Notice& notice) {
    std::fprintf(stderr, "%s\n", notice.english.c_str());
    std::exit(EXIT_FAILURE);
  });
  const auto queue = [&](double zeit, int status, int note) {
    output->Set(MidiMember::Status, status);
    output->Set(MidiMember::Daten1, note);
    output->Set(MidiMember::Daten2, 100);
    output->Set(MidiMember::Zeit, zeit);
    output->Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kEinreihen));
  };
  output->Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kOeffnen));
  loop.Yield();
  for (const Note& note : notes) queue(note.start, 0x90, note.note);
  queue(2 * ms, 0x80, 0);
  const auto frames = static_cast<std::size_t>(ms * kRate / 1000);
  std::vector<float> left(frames);
  std::vector<float> right(frames);
  output->Render(left.data(), right.data(), 4801);
  output->Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kStart));
  output->Render(left.data(), right.data(), static_cast<int>(frames));
  return left;
}

double FirstDifference(const std::vector<float>& one, const std::vector<float>& other) {
  return static_cast<double>(std::ranges::mismatch(one, other).in1 - one.begin());
}

/// Frames that the sample of a note takes to leave 0.
double Lead(int note) {
  const std::vector<float> alone = Render({{note, 0}}, 100);
  return FirstDifference(alone, std::vector<float>(alone.size(), 0.0f));
}

/// The largest deviation of a chord whose notes begin `step` milliseconds after each other.
double Deviation(double step, const std::vector<double>& leads) {
  const double ms = step * kVoices + 100;
  std::vector<Note> notes;
  std::vector<float> before = Render({}, ms);
  double first = 0;
  double worst = 0;
  for (int i = 0; i < kVoices; ++i) {
    notes.push_back({48 + 4 * i, step * i});
    std::vector<float> with = Render(notes, ms);
    const double onset = FirstDifference(before, with) - leads[static_cast<std::size_t>(i)];
    if (i == 0) first = onset;
    worst = std::max(worst, std::abs(onset - first - step * i * kRate / 1000));
    before = std::move(with);
  }
  return worst;
}

}  // namespace
}  // namespace vmod17

int main() {
  using namespace vmod17;
  std::vector<double> leads;
  for (int i = 0; i < kVoices; ++i) leads.push_back(Lead(48 + 4 * i));
  double worst = Deviation(0, leads);
  std::printf("block chord: %.1f samples\n", worst);
  for (const int tempo : kTempi) {
    for (const int divisor : kDivisors) {
      const double step = std::nearbyint(static_cast<float>(tempo) / static_cast<float>(divisor));
      const double deviation = Deviation(step, leads);
      std::printf("%4d ms / %2d = %3.0f ms: %4.1f samples\n", tempo, divisor, step, deviation);
      worst = std::max(worst, deviation);
    }
  }
  std::printf("largest deviation: %.1f samples of %d allowed\n", worst, 64);
  return worst <= 64 ? EXIT_SUCCESS : EXIT_FAILURE;
}

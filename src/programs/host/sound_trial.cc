// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/sound_trial.h"

#include <array>
#include <chrono>
#include <utility>

namespace melvado {
namespace {

using vmod17::EventLoop;
using vmod17::MakeMidiOutput;
using vmod17::MidiBefehl;
using vmod17::MidiBytes;
using vmod17::MidiDeviceOutput;
using vmod17::MidiMember;
using vmod17::MidiOptions;
using vmod17::Notice;
using vmod17::SoundFacts;

constexpr std::array<int, 4> kChord = {60, 64, 67, 70};  // C7
constexpr double kChordMs = 1400;
constexpr double kWholeMs = 2000;  // with the notes dying away
constexpr int kVelocity = 100;
// An output tells the end of its queue within 4 s of the sound card's death; this is for one that
// never does.
constexpr int kPatienceMs = 10'000;
// What was done meanwhile is told by the same thread, which may hang in a device.
constexpr int kPatienceForFactsMs = 2000;
constexpr std::chrono::milliseconds kTimeToLetGo{2000};

void Do(MidiDeviceOutput& output, MidiBefehl befehl) {
  output.Set(MidiMember::Befehl, static_cast<int>(befehl));
}

}  // namespace

void SoundTest::Start(const std::string& port, const std::string& soundfont, Done done) {
  Stop();
  port_ = port;
  done_ = std::move(done);
  MidiOptions options = options_;
  options.soundfont = soundfont;
  output_ =
      MakeMidiOutput(options, loop_, [this](const Notice& notice) { troubles_.push_back(notice); });
  int number = -1;
  if (!port.empty()) {
    const std::optional<int> found = output_->NumberOf(port);
    if (!found) {
      // Not before the caller has returned.
      patience_ =
          loop_.StartTimer(0, EventLoop::Repeat::kOnce, [this] { End(JudgeMissing(port_)); });
      return;
    }
    number = *found;
  }
  output_->QueueEmpty = [this] { AskForFacts(); };
  output_->Set(MidiMember::GeraetNr, number);
  Do(*output_, MidiBefehl::kOeffnen);
  QueueChord();
  Do(*output_, MidiBefehl::kStart);
  patience_ = loop_.StartTimer(kPatienceMs, EventLoop::Repeat::kOnce, [this] { LosePatience(); });
}

void SoundTest::QueueChord() {
  output_->Set(MidiMember::Zeit, 0);
  Send(MidiBytes::kProgram, 0, 0);
  for (const int note : kChord) Send(MidiBytes::kNoteOn, note, kVelocity);
  output_->Set(MidiMember::Zeit, kChordMs);
  for (const int note : kChord) Send(MidiBytes::kNoteOff, note, 0);
  output_->Set(MidiMember::Zeit, kWholeMs);
  Send(MidiBytes::kNoteOff, kChord[0], 0);
}

void SoundTest::Send(int status, int data1, int data2) {
  output_->Set(MidiMember::Status, status);
  output_->Set(MidiMember::Daten1, data1);
  output_->Set(MidiMember::Daten2, data2);
  Do(*output_, MidiBefehl::kEinreihen);
}

void SoundTest::AskForFacts() {
  output_->AskFacts(
      [this](const SoundFacts& facts) { End(Judge(port_, facts, troubles_, kWholeMs)); });
}

void SoundTest::LosePatience() {
  patience_ = loop_.StartTimer(kPatienceForFactsMs, EventLoop::Repeat::kOnce, [this] {
    LetGo();
    gone_ = {};  // nobody need wait for what hangs
    End(Judge(port_, SoundFacts(), troubles_, kWholeMs));
  });
  AskForFacts();
}

void SoundTest::End(const Verdict& verdict) {
  const Done done = std::exchange(done_, nullptr);
  loop_.StopTimer(std::exchange(patience_, 0));
  LetGo();
  if (done) done(verdict);
}

void SoundTest::Stop() {
  loop_.StopTimer(std::exchange(patience_, 0));
  done_ = nullptr;
  LetGo();
  // Whoever stops a test wants the device for somebody else. One that hangs is waited for once.
  if (gone_.valid()) gone_.wait_for(kTimeToLetGo);
  gone_ = {};
  troubles_.clear();
}

void SoundTest::LetGo() {
  if (output_) gone_ = vmod17::LetGo(std::move(output_));
}

}  // namespace melvado

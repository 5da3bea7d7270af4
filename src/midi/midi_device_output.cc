// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_device_output.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <mutex>
#include <thread>
#include <utility>

#include "midi/player.h"
#include "midi/sound_thread.h"
#include "midi/synth_renderer.h"
#include "midi/system_audio.h"

namespace vmod17 {
namespace {

constexpr const char* kSynthName = "Synthesizer (FluidSynth)";
constexpr double kFullVolume = 65535;

double SteadyMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

int Rounded(double value) { return static_cast<int>(std::lround(value)); }

/// FNV-1a, cut to what a 32-bit signed number holds above 0.
int IdOfName(const std::string& name) {
  std::uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return static_cast<int>(hash & 0x7FFFFFFFu);
}

SynthSetup SetupOf(const MidiOptions& options) {
  SynthSetup setup{options.audio,         options.soundfont,   options.usual_soundfonts,
                   options.audio_drivers, options.sample_rate, options.beside};
  if (!setup.beside && options.audio == SynthAudio::kRendered) {
    setup.beside = [](const std::function<void()>& work) { work(); };
  }
  return setup;
}

}  // namespace

/// The way from an output's threads to the program, until it is cut.
class ProgramLink : public std::enable_shared_from_this<ProgramLink> {
 public:
  explicit ProgramLink(EventLoop& loop) : loop_(&loop) {}

  /// Any thread.
  void Post(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    if (!loop_) return;
    loop_->Post([link = shared_from_this(), work = std::move(work)] {
      if (!link->IsCut()) work();
    });
  }
  /// The program's thread, so that nothing of the output is being delivered.
  void Cut() {
    const std::lock_guard lock(mutex_);
    loop_ = nullptr;
  }

 private:
  bool IsCut() {
    const std::lock_guard lock(mutex_);
    return loop_ == nullptr;
  }

  std::mutex mutex_;
  EventLoop* loop_;
};

MidiDeviceOutput::MidiDeviceOutput(const MidiOptions& options, EventLoop& loop, Notify notify)
    : program_(std::make_shared<ProgramLink>(loop)),
      notify_(std::move(notify)),
      audio_(options.audio),
      sample_rate_(options.sample_rate),
      ports_(options.ports ? options.ports : MakeSystemMidiPorts()),
      volume_(std::make_unique<SynthVolume>()) {
  SilenceSoundLibraries();
  programs_.fill(-1);
  Player::Hooks hooks;
  if (audio_ == SynthAudio::kRendered) {
    hooks.now = [this] { return rendered_ms_; };
  } else {
    hooks.now = &SteadyMs;
  }
  hooks.post = [this](std::function<void()> work) { Do(std::move(work)); };
  hooks.notify = [this](const Notice& notice) {
    program_->Post([this, notice] {
      if (notify_) notify_(notice);
    });
  };
  hooks.lost = [this](const Notice& notice) {
    program_->Post([this, notice] {
      if (!KlangWechsel && notify_) notify_(notice);
    });
  };
  hooks.klang = [this](MidiKlangStand stand) {
    program_->Post([this, stand] {
      klang_stand_ = stand;
      if (KlangWechsel) KlangWechsel();
    });
  };
  player_ = std::make_unique<Player>(SetupOf(options), *ports_, *volume_, std::move(hooks));
  if (audio_ == SynthAudio::kDriver) {
    thread_ = std::make_unique<SoundThread>([this] { return player_->RunDue(); });
  }
}

MidiDeviceOutput::~MidiDeviceOutput() {
  FallSilent();
  if (thread_) thread_->End();
  player_.reset();
}

void MidiDeviceOutput::FallSilent() { program_->Cut(); }

void MidiDeviceOutput::Do(std::function<void()> work) {
  if (thread_) {
    thread_->Do(std::move(work));
  } else {
    work();
    player_->RunDue();
  }
}

void MidiDeviceOutput::BeginLoading() {
  Do([this] {
    player_->BeginLoading();
    ports_->Prepare();
  });
}

void MidiDeviceOutput::UseSoundfont(const std::string& path) {
  Do([this, path] { player_->UseSoundfont(path); });
}

void MidiDeviceOutput::AskFacts(std::function<void(const SoundFacts&)> answer) {
  Do([this, answer = std::move(answer)] {
    program_->Post([answer, facts = player_->Facts()] { answer(facts); });
  });
}

void MidiDeviceOutput::Set(MidiMember member, double value) {
  switch (member) {
    case MidiMember::Befehl:
      Command(static_cast<MidiBefehl>(Rounded(value)));
      break;
    case MidiMember::GeraetNr:
      geraet_nr_ = Rounded(value);
      break;
    case MidiMember::VolumeLinks:
    case MidiMember::VolumeRechts:
      SetVolume(member, value);
      break;
    case MidiMember::Status:
      status_ = value;
      break;
    case MidiMember::Daten1:
      daten1_ = value;
      break;
    case MidiMember::Daten2:
      daten2_ = value;
      break;
    case MidiMember::Zeit:
      zeit_ = value;
      break;
    case MidiMember::Marke:
      marke_ = value;
      break;
    case MidiMember::GeraetName:
    case MidiMember::GeraetKennung:
    case MidiMember::GeraeteZahl:
    case MidiMember::OffenStand:
    case MidiMember::QueueStand:
    case MidiMember::KlangStand:
    case MidiMember::QueueZeit:
      break;  // to be read only
  }
}

double MidiDeviceOutput::Get(MidiMember member) const {
  switch (member) {
    case MidiMember::GeraetNr:
      return geraet_nr_;
    case MidiMember::GeraetKennung:
      return Kennung();
    case MidiMember::VolumeLinks:
      return volume_links_;
    case MidiMember::VolumeRechts:
      return volume_rechts_;
    case MidiMember::GeraeteZahl:
      return static_cast<double>(DeviceNames().size());
    case MidiMember::OffenStand:
      return open_ ? 1 : 0;
    case MidiMember::QueueStand:
      return static_cast<int>(queue_stand_);
    case MidiMember::KlangStand:
      return static_cast<int>(klang_stand_);
    case MidiMember::QueueZeit:
      return started_ ? started_->Time() : 0;
    case MidiMember::Befehl:
    case MidiMember::GeraetName:
    case MidiMember::Status:
    case MidiMember::Daten1:
    case MidiMember::Daten2:
    case MidiMember::Zeit:
    case MidiMember::Marke:
      break;  // to be written only, or no number
  }
  return 0;
}

void MidiDeviceOutput::Command(MidiBefehl befehl) {
  switch (befehl) {
    case MidiBefehl::kOeffnen:
      Open();
      break;
    case MidiBefehl::kSchliessen:
      Drop();
      open_ = false;
      Do([this] { player_->Close(); });
      break;
    case MidiBefehl::kStart:
      Start();
      break;
    case MidiBefehl::kStopp:
      queue_.clear();
      Drop();
      break;
    case MidiBefehl::kEinreihen:
      queue_.push_back({zeit_, Message(), Rounded(marke_)});
      break;
    case MidiBefehl::kSenden:
      SendNow();
      break;
  }
}

void MidiDeviceOutput::Open() {
  open_ = true;
  Do([this, choice = Choice(), programs = programs_] { player_->Open(choice, programs); });
}

void MidiDeviceOutput::Drop() {
  ++generation_;
  queue_stand_ = MidiQueueStand::kRuht;
  Do([this] { player_->Stop(); });
}

void MidiDeviceOutput::Start() {
  ++generation_;
  queue_stand_ = MidiQueueStand::kWartet;
  const std::vector<TimedMessage> messages = std::exchange(queue_, {});
  for (const TimedMessage& message : messages) Remember(message.bytes);
  const auto tell = [this, generation = generation_](MidiQueueStand stand) {
    program_->Post([this, generation, stand] {
      if (generation == generation_) Take(stand);
    });
  };
  auto queue = std::make_shared<MidiQueue>(messages, tell);
  started_ = queue;
  Do([this, queue] { player_->Start(queue); });
}

void MidiDeviceOutput::Take(MidiQueueStand stand) {
  queue_stand_ = stand;
  if (stand == MidiQueueStand::kRuht && QueueEmpty) QueueEmpty();
}

void MidiDeviceOutput::SendNow() {
  const MidiBytes message = Message();
  Remember(message);
  Do([this, message] { player_->Send(message); });
}

MidiBytes MidiDeviceOutput::Message() const {
  return {Rounded(status_), Rounded(daten1_) & 0x7F, Rounded(daten2_) & 0x7F};
}

void MidiDeviceOutput::Remember(const MidiBytes& message) {
  if (!message.IsChannelMessage() || message.kind() != MidiBytes::kProgram) return;
  programs_[static_cast<std::size_t>(message.channel())] = message.data1;
}

void MidiDeviceOutput::SetVolume(MidiMember member, double value) {
  const double volume = std::clamp(value, 0.0, kFullVolume);
  const bool is_left = member == MidiMember::VolumeLinks;
  (is_left ? volume_links_ : volume_rechts_) = volume;
  (is_left ? volume_->left : volume_->right) = static_cast<float>(volume / kFullVolume);
  if (volume_news_.exchange(true)) return;
  Do([this] {
    volume_news_ = false;
    player_->ChangeVolume();
  });
}

std::vector<std::string> MidiDeviceOutput::DeviceNames() const {
  names_ = ports_->Names();
  names_.push_back(kSynthName);
  return names_;
}

std::optional<int> MidiDeviceOutput::NumberOf(const std::string& part) const {
  ports_->Await();
  const std::optional<int> number = FindDevice(DeviceNames(), part);
  if (number) number_told_ = {*number, names_.at(static_cast<std::size_t>(*number))};
  return number;
}

const std::string* MidiDeviceOutput::NameOf(int number) const {
  if (names_.empty()) DeviceNames();
  const int count = static_cast<int>(names_.size());
  const int index = number == -1 ? count - 1 : number;
  if (index < 0 || index >= count) return nullptr;
  return &names_[static_cast<std::size_t>(index)];
}

std::string MidiDeviceOutput::GeraetName() const {
  const std::string* name = NameOf(geraet_nr_);
  return name ? *name : "";
}

int MidiDeviceOutput::Kennung() const {
  const std::string* name = NameOf(geraet_nr_);
  if (!name) return 0;
  return geraet_nr_ == -1 ? -1 : IdOfName(*name);
}

DeviceChoice MidiDeviceOutput::Choice() const {
  const bool was_told = number_told_ && number_told_->first == geraet_nr_;
  const std::string* name = was_told ? &number_told_->second : NameOf(geraet_nr_);
  if (!name) {
    return {DeviceChoice::Kind::kNone, "", geraet_nr_, static_cast<int>(names_.size())};
  }
  if (*name == kSynthName) return {DeviceChoice::Kind::kSynth, "", 0, 0};
  return {DeviceChoice::Kind::kPort, *name, 0, 0};
}

void MidiDeviceOutput::Render(float* left, float* right, int frames) {
  for (int done = 0; done < frames;) {
    const int piece = std::min(frames - done, kSynthBlock);
    player_->RunDue();
    player_->Render(left + done, right + done, piece);
    rendered_ms_ += piece * 1000.0 / sample_rate_;
    done += piece;
  }
}

std::future<void> LetGo(std::unique_ptr<MidiDeviceOutput> output) {
  output->FallSilent();
  std::packaged_task<void()> go([output = std::move(output)]() mutable { output.reset(); });
  std::future<void> gone = go.get_future();
  std::thread(std::move(go)).detach();
  return gone;
}

std::unique_ptr<MidiDeviceOutput> MakeMidiOutput(const MidiOptions& options, EventLoop& loop,
                                                 Notify notify) {
  return std::make_unique<MidiDeviceOutput>(options, loop, std::move(notify));
}

}  // namespace vmod17

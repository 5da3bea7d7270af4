// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What the program may rely on, whether the output plays or only remembers.

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "fake_ports.h"
#include "rendered_output.h"
#include "support/recording_midi_output.h"

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

class Subject {
 public:
  virtual ~Subject() = default;
  virtual MidiOutput& output() = 0;
  /// Delivers what is under way.
  virtual void Deliver() = 0;
  /// Lets a queue that was started begin, and tell so.
  virtual void LetBegin() = 0;
  /// Lets two seconds pass.
  virtual void LetPlay() = 0;
  /// From now on the device that is opened is not ready, until `BecomeReady`.
  virtual void LoadSlowly() = 0;
  virtual void BecomeReady() = 0;
  /// The device that is opened next cannot be heard, until `Mend`.
  virtual void Break() = 0;
  virtual void Mend() = 0;
};

class RecordingSubject : public Subject {
 public:
  RecordingSubject() { output_.geraete = {"Port", "Synthesizer"}; }
  MidiOutput& output() override { return output_; }
  void Deliver() override {}
  void LetBegin() override {}
  void LetPlay() override { output_.FinishQueue(); }
  void LoadSlowly() override { output_.SetDevice(RecordingMidiOutput::Device::kLoads); }
  void BecomeReady() override { output_.SetDevice(RecordingMidiOutput::Device::kReady); }
  void Break() override { output_.LoseSound(); }
  void Mend() override { output_.ReturnSound(); }

 private:
  RecordingMidiOutput output_;
};

class RenderedSubject : public Subject {
 public:
  explicit RenderedSubject(int device)
      : soundfont_((fs::temp_directory_path() /
                    ("melvado-contract-" + std::to_string(std::random_device()()) + ".sf2"))
                       .string()),
        rendered_(Options()) {
    Mend();
    rendered_.output.Set(MidiMember::GeraetNr, device);
  }
  ~RenderedSubject() override { fs::remove(soundfont_); }
  MidiOutput& output() override { return rendered_.output; }
  void Deliver() override { rendered_.loop.Yield(); }
  void LetBegin() override { rendered_.Render(10); }
  void LetPlay() override { rendered_.Render(2000); }
  void LoadSlowly() override { slow_ = true; }
  void BecomeReady() override {
    slow_ = false;
    if (loading_) std::exchange(loading_, nullptr)();
  }
  void Break() override {
    fs::remove(soundfont_);
    ports_->names.clear();
  }
  void Mend() override {
    fs::create_symlink(ExistingSoundfonts(UsualSoundfonts()).at(0), soundfont_);
    ports_->names = {"Port"};
  }

 private:
  MidiOptions Options() {
    MidiOptions options = RenderedOptions(ports_);
    options.usual_soundfonts = {soundfont_};
    options.beside = [this](std::function<void()> work) {
      loading_ = std::move(work);
      if (!slow_) BecomeReady();
    };
    return options;
  }

  const std::string soundfont_;
  std::shared_ptr<FakePorts> ports_ = std::make_shared<FakePorts>();
  std::function<void()> loading_;
  bool slow_ = false;
  RenderedOutput rendered_;
};

struct Maker {
  std::string name;
  std::function<std::unique_ptr<Subject>()> make;
};

class MidiOutputContract : public ::testing::TestWithParam<Maker> {
 protected:
  MidiOutputContract() : subject_(GetParam().make()), output_(subject_->output()) {
    output_.QueueEmpty = [this] { ++queue_empty_; };
  }

  void Do(MidiBefehl befehl) { output_.Set(MidiMember::Befehl, static_cast<int>(befehl)); }
  MidiQueueStand Stand() const {
    return static_cast<MidiQueueStand>(output_.Get(MidiMember::QueueStand));
  }
  void QueueNote() {
    output_.Set(MidiMember::Status, 0x90);
    output_.Set(MidiMember::Daten1, 60);
    output_.Set(MidiMember::Daten2, 100);
    output_.Set(MidiMember::Zeit, 0);
    Do(MidiBefehl::kEinreihen);
    output_.Set(MidiMember::Status, 0x80);
    output_.Set(MidiMember::Zeit, 500.5);
    Do(MidiBefehl::kEinreihen);
  }

  std::unique_ptr<Subject> subject_;
  MidiOutput& output_;
  int queue_empty_ = 0;
};

TEST_P(MidiOutputContract, IsOpenBetweenOpeningAndClosing) {
  EXPECT_EQ(output_.Get(MidiMember::OffenStand), 0);
  Do(MidiBefehl::kOeffnen);
  EXPECT_GE(output_.Get(MidiMember::OffenStand), 1);
  Do(MidiBefehl::kSchliessen);
  EXPECT_EQ(output_.Get(MidiMember::OffenStand), 0);
  Do(MidiBefehl::kSchliessen);
  EXPECT_EQ(output_.Get(MidiMember::OffenStand), 0);
}

TEST_P(MidiOutputContract, NamesAndIdentifiesEachDeviceOfTheList) {
  const int count = static_cast<int>(output_.Get(MidiMember::GeraeteZahl));
  ASSERT_EQ(count, 2);
  std::vector<std::string> names;
  std::vector<double> ids;
  for (int number = 0; number < count; ++number) {
    output_.Set(MidiMember::GeraetNr, number);
    EXPECT_EQ(output_.Get(MidiMember::GeraetNr), number);
    names.push_back(output_.GeraetName());
    ids.push_back(output_.Get(MidiMember::GeraetKennung));
  }
  EXPECT_NE(names[0], names[1]);
  EXPECT_NE(ids[0], ids[1]);
  output_.Set(MidiMember::GeraetNr, -1);
  EXPECT_EQ(output_.GeraetName(), names[1]);
}

TEST_P(MidiOutputContract, HasNoNameForANumberWithoutADevice) {
  output_.Get(MidiMember::GeraeteZahl);
  for (const int number : {-2, 2, 999}) {
    output_.Set(MidiMember::GeraetNr, number);
    EXPECT_EQ(output_.GeraetName(), "");
    EXPECT_EQ(output_.Get(MidiMember::GeraetKennung), 0);
  }
}

TEST_P(MidiOutputContract, PlaysInTimeOnANumberWithoutADevice) {
  output_.Get(MidiMember::GeraeteZahl);
  output_.Set(MidiMember::GeraetNr, 7);
  Do(MidiBefehl::kOeffnen);
  EXPECT_GE(output_.Get(MidiMember::OffenStand), 1);
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(MidiOutputContract, KeepsBothVolumesWithinTheirRange) {
  EXPECT_EQ(output_.Get(MidiMember::VolumeLinks), 65535);
  EXPECT_EQ(output_.Get(MidiMember::VolumeRechts), 65535);
  output_.Set(MidiMember::VolumeLinks, 500);
  output_.Set(MidiMember::VolumeRechts, 70000);
  EXPECT_EQ(output_.Get(MidiMember::VolumeLinks), 500);
  EXPECT_EQ(output_.Get(MidiMember::VolumeRechts), 65535);
  output_.Set(MidiMember::VolumeRechts, -1);
  EXPECT_EQ(output_.Get(MidiMember::VolumeRechts), 0);
}

TEST_P(MidiOutputContract, TellsTheEndOfAQueueOnceAndNotInsideTheStart) {
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  EXPECT_EQ(queue_empty_, 0);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(MidiOutputContract, TellsTheEndOfAnEmptyQueue) {
  Do(MidiBefehl::kOeffnen);
  Do(MidiBefehl::kStart);
  EXPECT_EQ(queue_empty_, 0);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(MidiOutputContract, NeverTellsTheEndOfAStoppedQueue) {
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  Do(MidiBefehl::kStopp);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 0);
}

TEST_P(MidiOutputContract, NeverTellsTheEndOfAQueueWhoseDeviceWasClosed) {
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  Do(MidiBefehl::kSchliessen);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 0);
}

TEST_P(MidiOutputContract, TellsOneEndWhenAQueueIsStartedOverAnother) {
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(MidiOutputContract, MayBeStartedAgainFromItsQueueEmpty) {
  Do(MidiBefehl::kOeffnen);
  output_.QueueEmpty = [this] {
    if (++queue_empty_ > 1) return;
    QueueNote();
    Do(MidiBefehl::kStart);
  };
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->LetPlay();
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 2);
}

TEST_P(MidiOutputContract, PlaysWithoutAListenerForTheEnd) {
  output_.QueueEmpty = nullptr;
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->LetPlay();
  EXPECT_GE(output_.Get(MidiMember::OffenStand), 1);
}

TEST_P(MidiOutputContract, SaysHowTheQueueFaresFromItsStartToItsEnd) {
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
  std::vector<MidiQueueStand> told;
  output_.QueueEmpty = [&] { told.push_back(Stand()); };
  Do(MidiBefehl::kStart);
  subject_->LetBegin();
  EXPECT_EQ(Stand(), MidiQueueStand::kLaeuft);
  subject_->LetPlay();
  EXPECT_THAT(told, ::testing::ElementsAre(MidiQueueStand::kRuht));
}

TEST_P(MidiOutputContract, SaysThatAQueueRestsThatWasStopped) {
  for (const MidiBefehl befehl : {MidiBefehl::kStopp, MidiBefehl::kSchliessen}) {
    Do(MidiBefehl::kOeffnen);
    QueueNote();
    Do(MidiBefehl::kStart);
    subject_->LetBegin();
    Do(befehl);
    EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
    subject_->LetPlay();
    EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
  }
}

TEST_P(MidiOutputContract, SaysThatADeviceCannotBeHeardAndKeepsTime) {
  subject_->Break();
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->LetBegin();
  EXPECT_EQ(Stand(), MidiQueueStand::kStumm);
  EXPECT_EQ(queue_empty_, 0);
  subject_->LetPlay();
  EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(MidiOutputContract, TellsWhetherItCanBeHeard) {
  std::vector<MidiKlangStand> told;
  const auto stand = [this] {
    return static_cast<MidiKlangStand>(output_.Get(MidiMember::KlangStand));
  };
  EXPECT_EQ(stand(), MidiKlangStand::kUnbekannt);
  output_.KlangWechsel = [&] {
    if (stand() != MidiKlangStand::kUnbekannt) told.push_back(stand());
  };
  const auto open_anew = [this] {
    for (const auto befehl : {MidiBefehl::kStopp, MidiBefehl::kSchliessen, MidiBefehl::kOeffnen}) {
      Do(befehl);
    }
    subject_->Deliver();
  };
  using enum MidiKlangStand;
  open_anew();
  open_anew();
  EXPECT_THAT(told, testing::ElementsAre(kDa));
  subject_->Break();
  open_anew();
  open_anew();
  EXPECT_THAT(told, testing::ElementsAre(kDa, kWeg));
  subject_->Mend();
  open_anew();
  EXPECT_THAT(told, testing::ElementsAre(kDa, kWeg, kDa));
}

const Maker kRecording{"Recording", [] { return std::make_unique<RecordingSubject>(); }};
const Maker kSynthesizer{"Synthesizer", [] { return std::make_unique<RenderedSubject>(1); }};
const Maker kPort{"Port", [] { return std::make_unique<RenderedSubject>(0); }};

INSTANTIATE_TEST_SUITE_P(Outputs, MidiOutputContract,
                         ::testing::Values(kRecording, kSynthesizer, kPort),
                         [](const auto& subject) { return subject.param.name; });

/// Of outputs that take their time until they can sound, as a port never does.
class SlowMidiOutputContract : public MidiOutputContract {};

TEST_P(SlowMidiOutputContract, LetsTheQueueWaitForItsDeviceAndLosesNothingOfIt) {
  subject_->LoadSlowly();
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  for (int i = 0; i < 3; ++i) {
    subject_->LetPlay();
    EXPECT_EQ(Stand(), MidiQueueStand::kWartet);
  }
  EXPECT_EQ(queue_empty_, 0);
  subject_->BecomeReady();
  subject_->LetBegin();
  EXPECT_EQ(Stand(), MidiQueueStand::kLaeuft);
  EXPECT_EQ(queue_empty_, 0);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

TEST_P(SlowMidiOutputContract, ForgetsAQueueThatWasDroppedWhileItWaited) {
  subject_->LoadSlowly();
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  Do(MidiBefehl::kStopp);
  EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
  subject_->BecomeReady();
  subject_->LetPlay();
  EXPECT_EQ(Stand(), MidiQueueStand::kRuht);
  EXPECT_EQ(queue_empty_, 0);
}

TEST_P(SlowMidiOutputContract, SaysThatItCannotBeHeardWhenLoadingFails) {
  subject_->LoadSlowly();
  Do(MidiBefehl::kOeffnen);
  QueueNote();
  Do(MidiBefehl::kStart);
  subject_->Break();
  subject_->BecomeReady();
  subject_->LetBegin();
  EXPECT_EQ(Stand(), MidiQueueStand::kStumm);
  subject_->LetPlay();
  EXPECT_EQ(queue_empty_, 1);
}

INSTANTIATE_TEST_SUITE_P(Outputs, SlowMidiOutputContract,
                         ::testing::Values(kRecording, kSynthesizer),
                         [](const auto& subject) { return subject.param.name; });

}  // namespace
}  // namespace vmod17

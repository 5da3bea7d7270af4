// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What the program may rely on, whether the output plays or only remembers.

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>

#include "fake_ports.h"
#include "rendered_output.h"
#include "support/recording_midi_output.h"

namespace vmod17 {
namespace {

class Subject {
 public:
  virtual ~Subject() = default;
  virtual MidiOutput& output() = 0;
  /// Delivers what is under way.
  virtual void Deliver() = 0;
  /// Lets two seconds pass.
  virtual void LetPlay() = 0;
};

class RecordingSubject : public Subject {
 public:
  RecordingSubject() { output_.geraete = {"Port", "Synthesizer"}; }
  MidiOutput& output() override { return output_; }
  void Deliver() override {}
  void LetPlay() override { output_.FinishQueue(); }

 private:
  RecordingMidiOutput output_;
};

class RenderedSubject : public Subject {
 public:
  explicit RenderedSubject(int device) : rendered_(Options()) {
    rendered_.output.Set(MidiMember::GeraetNr, device);
  }
  MidiOutput& output() override { return rendered_.output; }
  void Deliver() override { rendered_.loop.Yield(); }
  void LetPlay() override { rendered_.Render(2000); }

 private:
  static MidiOptions Options() {
    auto ports = std::make_shared<FakePorts>();
    ports->names = {"Port"};
    return RenderedOptions(ports);
  }
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

INSTANTIATE_TEST_SUITE_P(
    Outputs, MidiOutputContract,
    ::testing::Values(Maker{"Recording", [] { return std::make_unique<RecordingSubject>(); }},
                      Maker{"Synthesizer", [] { return std::make_unique<RenderedSubject>(1); }},
                      Maker{"Port", [] { return std::make_unique<RenderedSubject>(0); }}),
    [](const auto& subject) { return subject.param.name; });

}  // namespace
}  // namespace vmod17

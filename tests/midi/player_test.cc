// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The watch over a sound card, in virtual time.

#include "midi/player.h"

#include <gmock/gmock.h>

#include <array>

#include "fake_ports.h"
#include "midi/midi_notices.h"
#include "midi/soundfonts.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using enum MidiKlangStand;

/// A player on a sound card that dies and comes back.
class SoundCard : public ::testing::Test {
 protected:
  static constexpr double kLook = 250;  // ms, at which the sound thread wants to look at the latest

  static constexpr auto Now = [](std::function<void()> work) { work(); };

  SynthSetup Rendered() {
    SynthSetup setup;
    setup.audio = SynthAudio::kRendered;
    setup.soundfonts = UsualSoundfonts();
    setup.beside = [this](std::function<void()> load) {
      loads_.push_back(std::move(load));
      if (!hangs_) FinishLoading();
    };
    return setup;
  }
  Player::Hooks Hooks() {
    Player::Hooks hooks;
    hooks.now = [this] { return now_; };
    hooks.post = Now;
    hooks.notify = [this](const Notice& notice) { notices_.push_back(notice.text_id); };
    hooks.lost = [this](const Notice& notice) { lost_.push_back(notice.text_id); };
    hooks.klang = [this](MidiKlangStand stand) { told_.push_back(stand); };
    return hooks;
  }
  void FinishLoading() {
    for (const auto& load : std::exchange(loads_, {})) load();
  }
  void Open() {
    Programs programs;
    programs.fill(-1);
    player_.Open({DeviceChoice::Kind::kSynth, "", 0, 0}, programs);
    player_.RunDue();
  }
  /// What the program does before each playing, and to try again.
  void Reset() {
    player_.Stop();
    player_.Close();
    Open();
  }
  void Start(double ms) {
    player_.Start(std::make_shared<MidiQueue>(
        std::vector<TimedMessage>{{0, {0x90, 60, 100}}, {ms, {0x80, 60, 0}}},
        [this](MidiQueueStand stand) {
          queue_.push_back(stand);
          if (stand == MidiQueueStand::kStumm) told_when_mute_ = told_.back();
        }));
  }
  /// Lets time pass on a card that takes sound.
  void Play(double ms) {
    std::array<float, kSynthBlock> left{};
    std::array<float, kSynthBlock> right{};
    for (const double end = now_ + ms; now_ < end; now_ += kSynthBlock / 48.0) {
      player_.RunDue();
      player_.Render(left.data(), right.data(), kSynthBlock);
    }
  }
  /// Lets time pass on a card that takes none.
  void StandStill(double ms) {
    for (const double end = now_ + ms; now_ < end;) {
      now_ += std::min(kLook, end - now_);
      const double next = player_.RunDue();
      if (told_.back() == kDa) {
        EXPECT_LE(next, kLook) << "it must be looked after";
      }
    }
  }

  double now_ = 0;
  bool hangs_ = false;
  std::vector<std::function<void()>> loads_;
  std::vector<int> notices_;
  std::vector<int> lost_;
  std::vector<MidiKlangStand> told_;
  std::vector<MidiQueueStand> queue_;
  MidiKlangStand told_when_mute_ = kUnbekannt;
  FakePorts ports_;
  const SynthVolume volume_{};
  Player player_{Rendered(), ports_, volume_, Hooks()};
};

TEST_F(SoundCard, IsThereAsLongAsItTakesSound) {
  Open();
  Play(60'000);
  EXPECT_THAT(told_, ElementsAre(kDa));
}

TEST_F(SoundCard, IsMissedWithinTwoSecondsWhetherOrNotItPlays) {
  Open();
  Play(1100);
  StandStill(1000);
  EXPECT_THAT(told_, ElementsAre(kDa));
  StandStill(1000);
  EXPECT_THAT(told_, ElementsAre(kDa, kWeg));
  EXPECT_THAT(lost_, ElementsAre(9154));
  StandStill(60'000);
  EXPECT_THAT(told_, SizeIs(2));
  EXPECT_THAT(notices_, IsEmpty());
}

TEST_F(SoundCard, IsToBeTriedAgainByWhoeverIsToldThatItStopped) {
  // Nothing tries by itself where these words are read.
  for (const Notice& notice : {AudioLostNotice(), PortVanishedNotice("Piano")}) {
    EXPECT_THAT(notice.english, EndsWith(", then try again."));
  }
}

TEST_F(SoundCard, ThatDiesUnderAQueueSilencesIt) {
  Open();
  Start(5000);
  Play(2000);
  StandStill(2000);
  EXPECT_THAT(queue_, ElementsAre(MidiQueueStand::kLaeuft, MidiQueueStand::kStumm));
  EXPECT_THAT(told_, ElementsAre(kDa, kWeg));
  EXPECT_EQ(told_when_mute_, kWeg) << "the reason comes first";
}

TEST_F(SoundCard, ThatDiesInTheStartOfAQueueSilencesItToo) {
  Open();
  Play(1100);
  Start(5000);
  StandStill(2000);
  EXPECT_THAT(queue_, ElementsAre(MidiQueueStand::kStumm));
}

TEST_F(SoundCard, IsNotMissedByAProcessThatWasStopped) {
  Open();
  Play(1000);
  for (int i = 0; i < 10; ++i) {
    now_ += 600'000;
    player_.RunDue();
    Play(10);
  }
  EXPECT_THAT(told_, ElementsAre(kDa));
}

TEST_F(SoundCard, IsGivenTimeUntilItFlows) {
  Open();
  StandStill(3500);
  Play(100);
  StandStill(3500);
  Play(1000);
  EXPECT_THAT(told_, ElementsAre(kDa));
  StandStill(2000);
  EXPECT_THAT(told_, ElementsAre(kDa, kWeg));
}

TEST_F(SoundCard, IsThereAgainWhenItIsOpenedAnewAndCanDieAgain) {
  Open();
  for (int i = 0; i < 3; ++i) {
    Play(1100);
    StandStill(2000);
    Reset();
  }
  EXPECT_EQ(told_, (std::vector{kDa, kWeg, kDa, kWeg, kDa, kWeg, kDa}));
  EXPECT_THAT(lost_, SizeIs(3));
}

TEST_F(SoundCard, IsUnknownWhileItsDriverHangs) {
  Open();
  Play(1100);
  StandStill(2000);
  hangs_ = true;
  for (int i = 0; i < 5; ++i) {
    Reset();
    StandStill(2000);
  }
  EXPECT_THAT(told_, ElementsAre(kDa, kWeg, kUnbekannt));
  EXPECT_THAT(loads_, SizeIs(1)) << "one that hangs is enough";
  FinishLoading();
  player_.RunDue();
  EXPECT_THAT(told_, ElementsAre(kDa, kWeg, kUnbekannt, kDa));
}

}  // namespace
}  // namespace vmod17

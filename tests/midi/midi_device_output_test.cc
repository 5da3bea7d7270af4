// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_device_output.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <utility>

#include "fake_ports.h"
#include "midi/player.h"
#include "rendered_output.h"

namespace vmod17 {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::SizeIs;

float Peak(const std::vector<float>& samples) {
  float peak = 0;
  for (const float sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

MidiOptions NoPorts() { return RenderedOptions(std::make_shared<FakePorts>()); }

/// A file of our own in a folder that goes with the test.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& content) {
    path_ = (fs::temp_directory_path() /
             ("melvado-midi-test-" + std::to_string(std::random_device()()) + ".sf2"))
                .string();
    std::ofstream(path_, std::ios::binary) << content;
  }
  ~TemporaryFile() { fs::remove(path_); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

std::string RandomBytes(std::size_t count) {
  std::mt19937 random(17);
  std::string bytes(count, '\0');
  std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
  return bytes;
}

/// Begins like a soundfont and goes on like none.
std::string DamagedSoundfont() { return "RIFF\x10\x27\x01\x01sfbk" + RandomBytes(70000); }

float PlayOneNote(RenderedOutput& rendered) {
  rendered.Open(-1);
  rendered.QueueNote(60, 0, 300);
  rendered.Do(MidiBefehl::kStart);
  return Peak(rendered.Render(400));
}

TEST(MidiDeviceOutput, SoundsOnAMachineWithoutAnyMidiDevice) {
  RenderedOutput rendered(NoPorts());
  EXPECT_EQ(rendered.output.Get(MidiMember::GeraeteZahl), 1);
  EXPECT_GT(PlayOneNote(rendered), 0.02f);
  EXPECT_THAT(rendered.notices, IsEmpty());
}

TEST(MidiDeviceOutput, OpensTheSynthesizerAsTheDefaultMapper) {
  auto ports = std::make_shared<FakePorts>();
  ports->names = {"Expander"};
  RenderedOutput rendered(RenderedOptions(ports));
  EXPECT_GT(PlayOneNote(rendered), 0.02f);
  EXPECT_THAT(ports->got, IsEmpty());
}

TEST(MidiDeviceOutput, SeesADeviceThatIsPluggedInWhenTheListIsReadAgain) {
  auto ports = std::make_shared<FakePorts>();
  RenderedOutput rendered(RenderedOptions(ports));
  EXPECT_EQ(rendered.output.Get(MidiMember::GeraeteZahl), 1);
  ports->names = {"Expander"};
  EXPECT_EQ(rendered.output.Get(MidiMember::GeraeteZahl), 2);
  rendered.output.Set(MidiMember::GeraetNr, 0);
  EXPECT_EQ(rendered.output.GeraetName(), "Expander");
}

TEST(MidiDeviceOutput, TellsThatANumberNamesNoDeviceAndPlaysInTime) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(4);
  rendered.Reset();
  rendered.QueueNote(60, 0, 300);
  rendered.Do(MidiBefehl::kStart);
  EXPECT_EQ(Peak(rendered.Render(290)), 0);
  EXPECT_EQ(rendered.queue_empty, 0);
  rendered.Render(20);
  EXPECT_EQ(rendered.queue_empty, 1);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9156);
  EXPECT_THAT(rendered.notices[0].details, ::testing::ElementsAre("4", "1"));
}

TEST(MidiDeviceOutput, KeepsTimeInSilenceWithoutASoundfontAndTellsItOnce) {
  MidiOptions options = NoPorts();
  options.soundfont = "/nowhere/soundfont.sf2";
  options.usual_soundfonts = {"/nowhere/other.sf2", ""};
  RenderedOutput rendered(options);
  EXPECT_EQ(PlayOneNote(rendered), 0);
  EXPECT_EQ(rendered.queue_empty, 1);
  rendered.Reset();
  rendered.QueueNote(60, 0, 300);
  rendered.Do(MidiBefehl::kStart);
  EXPECT_EQ(Peak(rendered.Render(298)), 0);
  EXPECT_EQ(rendered.queue_empty, 1);
  rendered.Render(4);
  EXPECT_EQ(rendered.queue_empty, 2);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9152);
  EXPECT_THAT(rendered.notices[0].english, ::testing::HasSubstr("fluid-soundfont-gm"));
}

TEST(MidiDeviceOutput, NamesTheDamagedSoundfontWhenThereIsNoOther) {
  const TemporaryFile damaged(DamagedSoundfont());
  MidiOptions options = NoPorts();
  options.soundfont = damaged.path();
  options.usual_soundfonts = {};
  RenderedOutput rendered(options);
  EXPECT_EQ(PlayOneNote(rendered), 0);
  EXPECT_EQ(rendered.queue_empty, 1);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9151);
  EXPECT_THAT(rendered.notices[0].details, ::testing::ElementsAre(damaged.path()));
}

TEST(MidiDeviceOutput, TakesTheNextSoundfontAfterADamagedOne) {
  const TemporaryFile damaged(DamagedSoundfont());
  const TemporaryFile noise(RandomBytes(5000));
  MidiOptions options = NoPorts();
  options.soundfont = damaged.path();
  options.usual_soundfonts.insert(options.usual_soundfonts.begin(), noise.path());
  RenderedOutput rendered(options);
  EXPECT_GT(PlayOneNote(rendered), 0.02f);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9157);
  EXPECT_EQ(rendered.notices[0].details[0], damaged.path());
}

TEST(MidiDeviceOutput, TakesASoundfontThatIsBrokenOffForDamaged) {
  const auto existing = ExistingSoundfonts(UsualSoundfonts());
  ASSERT_THAT(existing, ::testing::Not(IsEmpty()));
  std::string head(1 << 20, '\0');
  std::ifstream(existing[0], std::ios::binary).read(head.data(), 1 << 20);
  const TemporaryFile broken(head);
  MidiOptions options = NoPorts();
  options.soundfont = broken.path();
  options.usual_soundfonts = {};
  RenderedOutput rendered(options);
  EXPECT_EQ(PlayOneNote(rendered), 0);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9151);
}

TEST(MidiDeviceOutput, KeepsAQueueThatWasDroppedBetweenItsEndAndTheDeliveryQuiet) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  rendered.QueueNote(60, 0, 10);
  rendered.Do(MidiBefehl::kStart);
  std::vector<float> left(4800);
  std::vector<float> right(4800);
  rendered.output.Render(left.data(), right.data(), 4800);  // the end is posted, not delivered
  rendered.Do(MidiBefehl::kStopp);
  rendered.loop.Yield();
  EXPECT_EQ(rendered.queue_empty, 0);
}

TEST(MidiDeviceOutput, TellsHowFarItsQueueIsAndBeginsAnewWithEach) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  EXPECT_EQ(rendered.output.Get(MidiMember::QueueZeit), 0);
  for (int queue = 0; queue < 2; ++queue) {
    rendered.QueueNote(60, 0, 3000);
    rendered.Do(MidiBefehl::kStart);
    EXPECT_EQ(rendered.output.Get(MidiMember::QueueZeit), 0);
    rendered.Render(500);
    EXPECT_NEAR(rendered.output.Get(MidiMember::QueueZeit), 500, 5);
    rendered.Render(1000);
    EXPECT_NEAR(rendered.output.Get(MidiMember::QueueZeit), 1500, 5);
  }
}

TEST(MidiDeviceOutput, LeavesNoEventBehindWhenItGoes) {
  PostingLoop loop;
  int events = 0;
  {
    MidiDeviceOutput output(NoPorts(), loop, [&](const Notice&) { ++events; });
    output.QueueEmpty = [&] { ++events; };
    output.Set(MidiMember::GeraetNr, 5);
    output.Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kOeffnen));
    output.Set(MidiMember::Befehl, static_cast<int>(MidiBefehl::kStart));
  }
  loop.Yield();
  EXPECT_EQ(events, 0);
}

TEST(MidiDeviceOutput, DropsTheCollectedQueueWithAStop) {
  RenderedOutput rendered(NoPorts());
  rendered.Open(-1);
  rendered.QueueNote(60, 0, 300);
  rendered.Do(MidiBefehl::kStopp);
  rendered.Do(MidiBefehl::kStart);
  EXPECT_EQ(Peak(rendered.Render(400)), 0);
}

TEST(MidiDeviceOutput, LoadsAheadOfTheFirstOpening) {
  RenderedOutput rendered(NoPorts());
  rendered.Program(0, 73);
  rendered.output.BeginLoading();
  rendered.output.BeginLoading();
  EXPECT_GT(PlayOneNote(rendered), 0.02f);
}

/// An output whose synthesiser is loaded when the test says so.
class SlowOutput : public ::testing::TestWithParam<double> {
 protected:
  MidiOptions Options() {
    MidiOptions options = NoPorts();
    options.beside = [this](std::function<void()> work) { loading_ = std::move(work); };
    return options;
  }
  void Load() { std::exchange(loading_, nullptr)(); }
  MidiQueueStand Stand() const {
    return static_cast<MidiQueueStand>(rendered_.output.Get(MidiMember::QueueStand));
  }

  std::function<void()> loading_;
  RenderedOutput rendered_{Options()};
};

TEST_P(SlowOutput, LosesNoNoteHoweverLongItLoads) {
  rendered_.Open(-1);
  rendered_.QueueNote(60, 0, 300);
  rendered_.QueueNote(64, 400, 300);
  rendered_.Do(MidiBefehl::kStart);
  EXPECT_EQ(Peak(rendered_.Render(GetParam())), 0);
  EXPECT_EQ(Stand(), MidiQueueStand::kWartet);
  Load();
  EXPECT_GT(Peak(rendered_.Render(100)), 0.02f);
  EXPECT_EQ(Stand(), MidiQueueStand::kLaeuft);
  rendered_.Render(250);
  EXPECT_GT(Peak(rendered_.Render(345)), 0.02f);
  EXPECT_EQ(rendered_.queue_empty, 0);
  rendered_.Render(10);
  EXPECT_EQ(rendered_.queue_empty, 1);
}

INSTANTIATE_TEST_SUITE_P(Loads, SlowOutput, ::testing::Values(100, 2400, 5000, 60000));

TEST(MidiDeviceOutput, LooksForASoundfontAgainWithEachOpening) {
  MidiOptions options = NoPorts();
  const std::string path =
      (fs::temp_directory_path() / ("melvado-late-" + std::to_string(std::random_device()())))
          .string();
  options.usual_soundfonts = {path};
  RenderedOutput rendered(options);
  EXPECT_EQ(PlayOneNote(rendered), 0);
  fs::create_symlink(ExistingSoundfonts(UsualSoundfonts()).at(0), path);
  rendered.Reset();
  EXPECT_GT(PlayOneNote(rendered), 0.02f);
  fs::remove(path);
  EXPECT_THAT(rendered.notices, SizeIs(1));
}

/// A player of the synthesiser, in virtual time, with a timbre of its own for each channel.
class TimbresOfAPlayer : public ::testing::Test {
 protected:
  TimbresOfAPlayer() {
    Programs programs;
    programs.fill(-1);
    for (int channel = 0; channel < kUsedChannels; ++channel) {
      programs[static_cast<std::size_t>(channel)] = 70 + channel;
    }
    player_.Open({DeviceChoice::Kind::kSynth, "", 0, 0}, programs);
  }
  static SynthSetup Rendered() {
    SynthSetup setup;
    setup.audio = SynthAudio::kRendered;
    setup.soundfonts = UsualSoundfonts();
    setup.beside = [](const std::function<void()>& work) { work(); };
    return setup;
  }
  void Start() {
    player_.Start(std::make_shared<MidiQueue>(
        std::vector<TimedMessage>{{0, {0x90, 60, 100}}, {0, {0x92, 64, 100}}, {20, {0x80, 60, 0}}},
        [](MidiQueueStand) {}));
  }
  /// How many timbres the sound thread loads when it is left alone. It wants to be called again at
  /// once as long as there is one.
  int LoadedWhenAlone() {
    int loaded = 0;
    while (player_.RunDue() == 0) ++loaded;
    return loaded;
  }
  void Play() {
    std::vector<float> left(kSynthBlock);
    std::vector<float> right(kSynthBlock);
    for (int block = 0; block < 100; ++block)
      player_.Render(left.data(), right.data(), kSynthBlock);
  }

  FakePorts ports_;
  const SynthVolume volume_;
  Player player_{Rendered(),
                 ports_,
                 volume_,
                 {[] { return 0.0; }, [](const std::function<void()>& work) { work(); },
                  [](const Notice&) {}}};
};

TEST_F(TimbresOfAPlayer, AreLoadedWhileThereIsNothingToDo) {
  EXPECT_EQ(LoadedWhenAlone(), 8);
  EXPECT_EQ(LoadedWhenAlone(), 0);
}

TEST_F(TimbresOfAPlayer, LetAQueueWaitForThoseOfItsChannelsAlone) {
  Start();
  EXPECT_EQ(LoadedWhenAlone(), 0) << "a message of the queue would be held up";
  Play();
  EXPECT_EQ(LoadedWhenAlone(), 6);
}

}  // namespace
}  // namespace vmod17

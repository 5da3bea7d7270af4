// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What an output tells of itself, and what becomes of a soundfont that is chosen, wrong or gone.

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

#include "fake_ports.h"
#include "rendered_output.h"

namespace vmod17 {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SoundFactsTest : public testing::Test {
 protected:
  SoundFactsTest()
      : folder_(fs::temp_directory_path() /
                ("melvado-sound-test-" + std::to_string(std::random_device()()))) {
    fs::create_directory(folder_);
  }
  ~SoundFactsTest() override { fs::remove_all(folder_); }

  /// A soundfont under a name that can be taken away.
  std::string Link(const std::string& name) const {
    const std::string path = (folder_ / name).string();
    fs::create_symlink(ExistingSoundfonts(UsualSoundfonts()).at(0), path);
    return path;
  }

  static SoundFacts Facts(RenderedOutput& rendered) {
    SoundFacts facts;
    rendered.output.AskFacts([&](const SoundFacts& told) { facts = told; });
    rendered.loop.Yield();
    return facts;
  }
  static float Play(RenderedOutput& rendered) {
    rendered.Reset();
    rendered.QueueNote(60, 0, 300);
    rendered.Do(MidiBefehl::kStart);
    float peak = 0;
    for (const float sample : rendered.Render(400)) peak = std::max(peak, std::abs(sample));
    return peak;
  }

  const fs::path folder_;
  std::shared_ptr<FakePorts> ports_ = std::make_shared<FakePorts>();
};

TEST_F(SoundFactsTest, NameTheSoundfontThePeakAndTheFramesOfTheSynthesiser) {
  RenderedOutput rendered(RenderedOptions(ports_));
  rendered.Open(-1);
  EXPECT_EQ(Facts(rendered).peak, 0.0f);
  const float peak = Play(rendered);
  const SoundFacts facts = Facts(rendered);
  EXPECT_EQ(facts.device, SoundFacts::Device::kSynth);
  EXPECT_EQ(facts.soundfont, ExistingSoundfonts(UsualSoundfonts()).at(0));
  EXPECT_GE(facts.peak.value_or(0), peak);
  EXPECT_LT(facts.peak.value_or(1), 1.0f);
  EXPECT_EQ(facts.frames, 19'200u);
  EXPECT_EQ(facts.notes, 1);
}

TEST_F(SoundFactsTest, AreEmptyForASynthesiserThatCouldNotBeLoaded) {
  MidiOptions options = RenderedOptions(ports_);
  options.usual_soundfonts = {};
  RenderedOutput rendered(options);
  rendered.Open(-1);
  Play(rendered);
  const SoundFacts facts = Facts(rendered);
  EXPECT_EQ(facts.soundfont, "");
  EXPECT_EQ(facts.frames, 0u);
  EXPECT_EQ(facts.notes, 0);
}

TEST_F(SoundFactsTest, CountWhatAPortTakesUntilItIsGone) {
  ports_->names = {"Piano"};
  RenderedOutput rendered(RenderedOptions(ports_));
  rendered.Open(0);
  Play(rendered);
  SoundFacts facts = Facts(rendered);
  EXPECT_EQ(facts.device, SoundFacts::Device::kPort);
  EXPECT_EQ(facts.port, "Piano");
  EXPECT_TRUE(facts.is_there);
  EXPECT_EQ(facts.sent, static_cast<int>(ports_->got.size()));
  ports_->names = {};
  Play(rendered);
  facts = Facts(rendered);
  EXPECT_FALSE(facts.is_there);
  EXPECT_EQ(facts.sent, static_cast<int>(ports_->got.size()));
}

TEST_F(SoundFactsTest, KnowNothingAfterTheirOutputIsGone) {
  PostingLoop loop;
  int told = 0;
  {
    MidiDeviceOutput output(RenderedOptions(ports_), loop, [](const Notice&) {});
    output.AskFacts([&](const SoundFacts&) { ++told; });
  }
  loop.Yield();
  EXPECT_EQ(told, 0);
}

TEST_F(SoundFactsTest, NameTheSoundfontThatWasChosen) {
  const std::string chosen = Link("chosen.sf2");
  RenderedOutput rendered(RenderedOptions(ports_));
  rendered.output.UseSoundfont(chosen);
  rendered.Open(-1);
  EXPECT_GT(Play(rendered), 0.02f);
  EXPECT_EQ(Facts(rendered).soundfont, chosen);
  EXPECT_THAT(rendered.notices, IsEmpty());
}

TEST_F(SoundFactsTest, TellThatAnotherSoundfontPlaysForOneThatIsMissing) {
  RenderedOutput rendered(RenderedOptions(ports_));
  rendered.output.UseSoundfont((folder_ / "missing.sf2").string());
  rendered.Open(-1);
  EXPECT_GT(Play(rendered), 0.02f);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9157);
  EXPECT_EQ(rendered.notices[0].details[1], Facts(rendered).soundfont);
}

TEST_F(SoundFactsTest, TellThatASoundfontWasTakenAwayWhileItPlayed) {
  const std::string chosen = Link("chosen.sf2");
  RenderedOutput rendered(RenderedOptions(ports_));
  rendered.output.UseSoundfont(chosen);
  rendered.Open(-1);
  EXPECT_GT(Play(rendered), 0.02f);
  fs::remove(chosen);
  rendered.Program(0, 73);
  EXPECT_GT(Play(rendered), 0.02f);
  ASSERT_THAT(rendered.notices, SizeIs(1));
  EXPECT_EQ(rendered.notices[0].text_id, 9157);
  EXPECT_NE(Facts(rendered).soundfont, chosen);
}

TEST_F(SoundFactsTest, ASoundfontIsTriedByLoadingIt) {
  EXPECT_TRUE(LoadsAsSoundfont(Link("good.sf2")));
  EXPECT_FALSE(LoadsAsSoundfont((folder_ / "missing.sf2").string()));
  EXPECT_FALSE(LoadsAsSoundfont(folder_.string()));
  const std::string bad = (folder_ / "bad.sf2").string();
  std::ofstream(bad, std::ios::binary) << "RIFF\x10\x27\x01\x01sfbk and so on";
  EXPECT_FALSE(LoadsAsSoundfont(bad));
}

}  // namespace
}  // namespace vmod17

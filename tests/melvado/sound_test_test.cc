// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "melvado/sound_test.h"

#include <filesystem>
#include <optional>

#include "melvado_testing.h"
#include "platform/midi/soundfonts.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class SoundTestTest : public testing::Test {
 protected:
  MidiOptions Options() {
    MidiOptions options;
    options.ports = ports_;
    options.audio_drivers = {"sdl2"};
    return options;
  }

  Verdict Play(MidiOptions options, const std::string& port, const std::string& soundfont = "") {
    std::optional<Verdict> verdict;
    SoundTest test(std::move(options), loop_);
    test.Start(port, soundfont, [&](const Verdict& said) { verdict = said; });
    EXPECT_TRUE(test.runs());
    EXPECT_TRUE(ServeUntil([&] { return verdict.has_value(); }));
    EXPECT_FALSE(test.runs());
    return verdict.value_or(Verdict());
  }

  QtEventLoop loop_;
  std::shared_ptr<PluggedPorts> ports_ = std::make_shared<PluggedPorts>();
};

TEST_F(SoundTestTest, PlaysFourNotesOnTheSynthesiser) {
  const Verdict verdict = Play(Options(), "");
  EXPECT_TRUE(verdict.left_the_program);
  ASSERT_THAT(verdict.Ids(), ElementsAre(9442, 9444));
  EXPECT_EQ(verdict.words[0].details[0], "4");
  EXPECT_EQ(verdict.words[0].details[1], "SDL");
}

TEST_F(SoundTestTest, SaysThatASoundfontIsGoneAndPlaysOnAnother) {
  const Verdict verdict = Play(Options(), "", "/nowhere/Flügel.sf2");
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9442, 9157, 9444));
}

TEST_F(SoundTestTest, SaysThatThereIsNoSoundOutput) {
  MidiOptions options = Options();
  options.audio_drivers = {"no such driver"};
  const Verdict verdict = Play(std::move(options), "");
  EXPECT_FALSE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9441, 9153));
}

TEST_F(SoundTestTest, PlaysFourNotesOnAPort) {
  ports_->Plug({"Piano", "Expander"});
  const Verdict verdict = Play(Options(), "Expander");
  EXPECT_TRUE(verdict.left_the_program);
  EXPECT_THAT(verdict.Ids(), ElementsAre(9448, 9449));
  int notes = 0;
  for (const MidiBytes& message : ports_->Got()) notes += message.kind() == MidiBytes::kNoteOn;
  EXPECT_EQ(notes, 4);
}

TEST_F(SoundTestTest, SaysThatAPortIsNotThere) {
  EXPECT_THAT(Play(Options(), "Piano").Ids(), ElementsAre(9441, 9450));
}

TEST_F(SoundTestTest, SaysThatAPortWasPulledOutWhileItPlayed) {
  ports_->Plug({"Piano"});
  std::optional<Verdict> verdict;
  SoundTest test(Options(), loop_);
  test.Start("Piano", "", [&](const Verdict& said) { verdict = said; });
  ASSERT_TRUE(ServeUntil([&] { return !ports_->Got().empty(); }));
  ports_->Plug({});
  ASSERT_TRUE(ServeUntil([&] { return verdict.has_value(); }));
  EXPECT_FALSE(verdict->left_the_program);
  EXPECT_THAT(verdict->Ids(), Contains(9155));
}

TEST_F(SoundTestTest, SaysNothingOnceItIsStopped) {
  SoundTest test(Options(), loop_);
  int said = 0;
  test.Start("Piano", "", [&](const Verdict&) { ++said; });
  test.Stop();
  EXPECT_FALSE(test.runs());
  Serve();
  EXPECT_EQ(said, 0);
}

}  // namespace
}  // namespace vmod17

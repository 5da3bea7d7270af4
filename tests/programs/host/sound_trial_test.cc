// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/sound_trial.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <optional>

#include "melvado_testing.h"
#include "midi/soundfonts.h"

namespace melvado {
namespace {

using vmod17::MidiBytes;
using vmod17::MidiOptions;
using vmod17::MidiPort;
using vmod17::MidiPorts;
using vmod17::QtEventLoop;

using ::testing::Contains;
using ::testing::ElementsAre;

/// Two ports, of which the driver of "Piano" hangs until the test lets it go on.
class HangingPorts : public MidiPorts {
 public:
  enum class In { kOpen, kSend };
  explicit HangingPorts(In where) : where_(where) {}

  bool Hangs() {
    const std::lock_guard lock(mutex_);
    return hangs_;
  }
  void GoOn() {
    const std::lock_guard lock(mutex_);
    goes_on_ = true;
    wake_.notify_all();
  }

  std::vector<std::string> Names() override { return {"Piano", "Expander"}; }
  std::unique_ptr<MidiPort> Open(const std::string& name) override {
    if (name != "Piano") return std::make_unique<Port>(nullptr);
    if (where_ == In::kOpen) Hang();
    return std::make_unique<Port>(where_ == In::kSend ? this : nullptr);
  }

 private:
  class Port : public MidiPort {
   public:
    explicit Port(HangingPorts* hanging) : hanging_(hanging) {}
    bool Send(const MidiBytes&) override {
      if (hanging_ != nullptr) hanging_->Hang();
      return true;
    }
    bool IsThere() override { return true; }

   private:
    HangingPorts* const hanging_;
  };

  void Hang() {
    std::unique_lock lock(mutex_);
    hangs_ = true;
    // A test that fails must end, too.
    wake_.wait_for(lock, std::chrono::seconds(30), [this] { return goes_on_; });
    hangs_ = false;
  }

  const In where_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool hangs_ = false;
  bool goes_on_ = false;
};

/// A loop whose time runs faster.
class HastyLoop : public QtEventLoop {
 public:
  int StartTimer(int ms, Repeat repeat, Handler handler) override {
    return QtEventLoop::StartTimer(ms / 50, repeat, std::move(handler));
  }
};

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

TEST_F(SoundTestTest, LetsGoOfItsDeviceWithTheVerdict) {
  ports_->Plug({"Piano"});
  for (const char* port : {"Piano", ""}) {
    SoundTest test(Options(), loop_);
    const auto without_output = ports_.use_count();
    bool said = false;
    test.Start(port, "", [&](const Verdict&) { said = true; });
    EXPECT_GT(ports_.use_count(), without_output);
    ASSERT_TRUE(ServeUntil([&] { return said; }));
    EXPECT_TRUE(ServeUntil([&] { return ports_.use_count() == without_output; })) << port;
  }
}

TEST_F(SoundTestTest, MayStartAnotherOrGoWhileItSaysItsVerdict) {
  ports_->Plug({"Piano", "Expander"});
  auto test = std::make_unique<SoundTest>(Options(), loop_);
  std::vector<std::string> played;
  test->Start("Piano", "", [&](const Verdict& first) {
    played.push_back(first.words[0].details[0]);
    test->Start("Expander", "", [&](const Verdict& second) {
      played.push_back(second.words[0].details[0]);
      test.reset();
    });
  });
  ASSERT_TRUE(ServeUntil([&] { return test == nullptr; }));
  EXPECT_THAT(played, ElementsAre("Piano", "Expander"));
}

TEST_F(SoundTestTest, SaysSoWhenADriverHangsAndDoesNotWaitForIt) {
  for (const auto where : {HangingPorts::In::kOpen, HangingPorts::In::kSend}) {
    const auto ports = std::make_shared<HangingPorts>(where);
    {
      HastyLoop loop;
      MidiOptions options = Options();
      options.ports = ports;
      SoundTest test(std::move(options), loop);
      std::optional<Verdict> verdict;
      test.Start("Piano", "", [&](const Verdict& said) { verdict = said; });
      ASSERT_TRUE(ServeUntil([&] { return verdict.has_value(); }));
      EXPECT_THAT(verdict->Ids(), ElementsAre(9441, 9450));
      EXPECT_TRUE(ports->Hangs());
    }
    // The loop has gone as well. What the driver does now reaches nobody.
    EXPECT_TRUE(ports->Hangs());
    ports->GoOn();
    EXPECT_TRUE(ServeUntil([&] { return ports.use_count() == 1; }));
  }
}

TEST_F(SoundTestTest, CanBeStoppedWhileADriverHangsAndTestsAnotherDevice) {
  const auto ports = std::make_shared<HangingPorts>(HangingPorts::In::kOpen);
  MidiOptions options = Options();
  options.ports = ports;
  SoundTest test(std::move(options), loop_);
  test.Start("Piano", "", [](const Verdict&) { ADD_FAILURE(); });
  ASSERT_TRUE(ServeUntil([&] { return ports->Hangs(); }));
  test.Stop();
  std::optional<Verdict> verdict;
  test.Start("Expander", "", [&](const Verdict& said) { verdict = said; });
  ASSERT_TRUE(ServeUntil([&] { return verdict.has_value(); }));
  EXPECT_TRUE(verdict->left_the_program);
  EXPECT_TRUE(ports->Hangs());
  ports->GoOn();
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
}  // namespace melvado

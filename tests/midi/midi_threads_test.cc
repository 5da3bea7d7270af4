// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The output with its threads, waiting for what they post.

#include <gmock/gmock.h>

#include <algorithm>
#include <future>
#include <limits>

#include "fake_ports.h"
#include "midi/midi_device_output.h"
#include "midi/sound_thread.h"
#include "posting_loop.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class ThreadedOutput {
 public:
  explicit ThreadedOutput(std::vector<std::string> drivers, std::vector<std::string> soundfonts)
      : output(Options(drivers, soundfonts), loop,
               [this](const Notice& notice) { notices.push_back(notice); }) {
    output.QueueEmpty = [this] { ++queue_empty; };
  }

  static MidiOptions Options(std::vector<std::string> drivers,
                             std::vector<std::string> soundfonts) {
    MidiOptions options;
    options.audio_drivers = std::move(drivers);
    options.usual_soundfonts = std::move(soundfonts);
    options.ports = std::make_shared<FakePorts>();
    return options;
  }

  void Do(MidiBefehl befehl) { output.Set(MidiMember::Befehl, static_cast<int>(befehl)); }
  void QueueChord() {
    for (const int note : {48, 52, 55}) {
      output.Set(MidiMember::Daten1, note);
      output.Set(MidiMember::Daten2, 100);
      output.Set(MidiMember::Status, 0x90);
      output.Set(MidiMember::Zeit, 0);
      Do(MidiBefehl::kEinreihen);
      output.Set(MidiMember::Status, 0x80);
      output.Set(MidiMember::Zeit, 20);
      Do(MidiBefehl::kEinreihen);
    }
  }
  void PlayToTheEnd() {
    const int before = queue_empty;
    QueueChord();
    Do(MidiBefehl::kStart);
    loop.DeliverUntil([&] { return queue_empty > before; });
  }

  PostingLoop loop;
  std::vector<Notice> notices;
  int queue_empty = 0;
  MidiDeviceOutput output;
};

TEST(MidiThreads, PlayThroughTheDriverThatTakesNoCallback) {
  ThreadedOutput threaded({"no such driver", "sdl2"}, UsualSoundfonts());
  threaded.output.BeginLoading();
  threaded.Do(MidiBefehl::kOeffnen);
  threaded.PlayToTheEnd();
  threaded.Do(MidiBefehl::kStopp);
  threaded.Do(MidiBefehl::kSchliessen);
  threaded.Do(MidiBefehl::kOeffnen);
  threaded.PlayToTheEnd();
  EXPECT_EQ(threaded.queue_empty, 2);
  EXPECT_THAT(threaded.notices, SizeIs(0));
}

TEST(MidiThreads, KeepTimeWithoutAnAudioDriverAndTellItOnce) {
  ThreadedOutput threaded({"no such driver"}, UsualSoundfonts());
  threaded.Do(MidiBefehl::kOeffnen);
  threaded.loop.DeliverUntil([&] { return !threaded.notices.empty(); });
  threaded.PlayToTheEnd();
  threaded.Do(MidiBefehl::kSchliessen);
  threaded.Do(MidiBefehl::kOeffnen);
  threaded.PlayToTheEnd();
  ASSERT_THAT(threaded.notices, SizeIs(1));
  EXPECT_EQ(threaded.notices[0].text_id, 9153);
  EXPECT_THAT(threaded.notices[0].details, ElementsAre("no such driver"));
}

TEST(MidiThreads, PlayAQueueThatWasStartedBeforeTheFailureOfLoading) {
  ThreadedOutput threaded({"no such driver"}, {});
  threaded.Do(MidiBefehl::kOeffnen);
  threaded.PlayToTheEnd();
  threaded.loop.DeliverUntil([&] { return !threaded.notices.empty(); });
  EXPECT_EQ(threaded.notices[0].text_id, 9152);
}

TEST(MidiThreads, EndWhileTheSynthesizerLoads) {
  for (int i = 0; i < 5; ++i) {
    ThreadedOutput threaded({"sdl2"}, UsualSoundfonts());
    threaded.output.BeginLoading();
    threaded.Do(MidiBefehl::kOeffnen);
    threaded.QueueChord();
    threaded.Do(MidiBefehl::kStart);
    threaded.Do(MidiBefehl::kStopp);
    EXPECT_EQ(threaded.queue_empty, 0);
  }
}

TEST(SoundThread, DoesItsWorkInOrder) {
  std::vector<int> done;
  std::promise<void> last;
  SoundThread thread([] { return std::numeric_limits<double>::infinity(); });
  for (int i = 0; i < 100; ++i) thread.Do([&done, i] { done.push_back(i); });
  thread.Do([&] { last.set_value(); });
  last.get_future().wait();
  thread.End();
  ASSERT_THAT(done, SizeIs(100));
  EXPECT_TRUE(std::ranges::is_sorted(done));
}

TEST(SoundThread, TakesWorkAfterItsEndWithoutDoingIt) {
  bool done = false;
  SoundThread thread([] { return std::numeric_limits<double>::infinity(); });
  thread.End();
  thread.Do([&] { done = true; });
  thread.End();
  EXPECT_FALSE(done);
}

}  // namespace
}  // namespace vmod17

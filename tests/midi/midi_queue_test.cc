// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/midi_queue.h"

#include <gmock/gmock.h>

#include <limits>
#include <vector>

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TimedMessage NoteOn(double zeit, int note) { return {zeit, {0x90, note, 100}, 0}; }

void TellNobody(MidiQueueStand) {}

/// Notes sent, one inner list for each call of the sink.
class Listener {
 public:
  MidiQueue::Sink sink = [this](std::span<const MidiBytes> messages) {
    std::vector<int>& call = calls.emplace_back();
    for (const MidiBytes& message : messages) call.push_back(message.data1);
  };
  std::vector<std::vector<int>> calls;
};

TEST(MidiQueue, SendsTheMessagesOfOneTimeInOneGoInTheOrderOfQueueing) {
  MidiQueue queue({NoteOn(100, 60), NoteOn(0, 50), NoteOn(100, 64), NoteOn(100, 55)}, &TellNobody);
  Listener listener;
  queue.Advance(0, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(50)));
  queue.Advance(99.9, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(50)));
  queue.Advance(100, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(50), ElementsAre(60, 64, 55)));
}

TEST(MidiQueue, KeepsFractionsOfAMillisecond) {
  MidiQueue queue({NoteOn(0.25, 60), NoteOn(0.5, 61)}, &TellNobody);
  Listener listener;
  queue.Advance(0.24, listener.sink);
  EXPECT_THAT(listener.calls, IsEmpty());
  queue.Advance(0.25, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60)));
  EXPECT_DOUBLE_EQ(queue.NextTime(), 0.5);
}

TEST(MidiQueue, CatchesUpInTheOrderOfTheTimes) {
  MidiQueue queue({NoteOn(30, 62), NoteOn(10, 60), NoteOn(20, 61)}, &TellNobody);
  Listener listener;
  queue.Advance(1000, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60), ElementsAre(61), ElementsAre(62)));
}

TEST(MidiQueue, StaysWhereItIsWhenItsClockJumpsBack) {
  MidiQueue queue({NoteOn(10, 60), NoteOn(20, 61), NoteOn(30, 62)}, &TellNobody);
  Listener listener;
  queue.Advance(20, listener.sink);
  for (const double ms : {5.0, -1000.0, std::numeric_limits<double>::quiet_NaN(), 20.0}) {
    queue.Advance(ms, listener.sink);
    EXPECT_EQ(queue.Time(), 20);
    EXPECT_EQ(queue.NextTime(), 30);
  }
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60), ElementsAre(61)));
  queue.Advance(30, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60), ElementsAre(61), ElementsAre(62)));
}

TEST(MidiQueue, TakesTimesForOneThatDifferByLessThanAnybodyCanHear) {
  MidiQueue queue({NoteOn(0.1 + 0.2, 60), NoteOn(0.3, 64)}, &TellNobody);
  Listener listener;
  queue.Advance(0.3, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60, 64)));
}

TEST(MidiQueue, IsOverAtOnceWithoutMessages) {
  std::vector<MidiQueueStand> told;
  MidiQueue queue({}, [&](MidiQueueStand stand) { told.push_back(stand); });
  EXPECT_EQ(queue.NextTime(), 0);
  EXPECT_FALSE(queue.IsOver());
  queue.Advance(0, [](std::span<const MidiBytes>) { ADD_FAILURE() << "nothing to send"; });
  EXPECT_TRUE(queue.IsOver());
  EXPECT_THAT(told, ElementsAre(MidiQueueStand::kLaeuft, MidiQueueStand::kRuht));
}

TEST(MidiQueue, TellsItsBeginningAndItsEndOnce) {
  std::vector<MidiQueueStand> told;
  MidiQueue queue({NoteOn(0, 60), NoteOn(50, 61)},
                  [&](MidiQueueStand stand) { told.push_back(stand); });
  Listener listener;
  EXPECT_THAT(told, IsEmpty());
  queue.Advance(0, listener.sink);
  queue.Advance(49, listener.sink);
  EXPECT_THAT(told, ElementsAre(MidiQueueStand::kLaeuft));
  EXPECT_FALSE(queue.IsOver());
  queue.Advance(50, listener.sink);
  queue.Advance(60, listener.sink);
  EXPECT_THAT(told, ElementsAre(MidiQueueStand::kLaeuft, MidiQueueStand::kRuht));
  EXPECT_TRUE(queue.IsOver());
}

TEST(MidiQueue, TellsHowFarItIsBetweenItsMessagesToo) {
  MidiQueue queue({NoteOn(0, 60), NoteOn(4000, 61)}, &TellNobody);
  Listener listener;
  EXPECT_EQ(queue.Time(), 0);
  for (const double ms : {10, 1500, 4000}) {
    queue.Advance(ms, listener.sink);
    EXPECT_EQ(queue.Time(), ms);
  }
}

TEST(MidiQueue, NeverSaysThatItSoundsWhenItIsMute) {
  std::vector<MidiQueueStand> told;
  MidiQueue queue({NoteOn(0, 60)}, [&](MidiQueueStand stand) { told.push_back(stand); });
  queue.Mute();
  queue.Mute();
  queue.Advance(0, [](std::span<const MidiBytes>) {});
  EXPECT_THAT(told, ElementsAre(MidiQueueStand::kStumm, MidiQueueStand::kRuht));
}

TEST(MidiQueue, IsMuteFromTheStartWhenItsFirstMessageIsLost) {
  std::vector<MidiQueueStand> told;
  MidiQueue queue({NoteOn(0, 60), NoteOn(50, 61)},
                  [&](MidiQueueStand stand) { told.push_back(stand); });
  queue.Advance(0, [&](std::span<const MidiBytes>) { queue.Mute(); });
  EXPECT_THAT(told, ElementsAre(MidiQueueStand::kStumm));
}

TEST(MidiQueue, KnowsTheChannelsThatItUses) {
  const MidiQueue queue({{0, {0x93, 60, 100}}, {9, {0x83, 60, 0}}, {0, {0x90, 64, 100}}},
                        &TellNobody);
  EXPECT_THAT(queue.Channels(), ElementsAre(0, 3));
}

TEST(MidiQueue, CountsATimeBelowZeroAsZero) {
  MidiQueue queue({NoteOn(-5, 60), NoteOn(std::numeric_limits<double>::quiet_NaN(), 61)},
                  &TellNobody);
  Listener listener;
  queue.Advance(0, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60, 61)));
}

TEST(MidiQueue, HoldsAPlayingOfAnHour) {
  MidiQueue queue({NoteOn(3'600'000, 60)}, &TellNobody);
  Listener listener;
  queue.Advance(3'599'999, listener.sink);
  EXPECT_THAT(listener.calls, IsEmpty());
  queue.Advance(3'600'000, listener.sink);
  EXPECT_THAT(listener.calls, ElementsAre(ElementsAre(60)));
}

}  // namespace
}  // namespace vmod17

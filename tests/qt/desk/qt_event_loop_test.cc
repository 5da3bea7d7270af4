// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_event_loop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace vmod17 {
namespace {

/// Serves events until something holds; a loop that never gets there fails the test, not the run.
template <typename Condition>
bool Serve(QtEventLoop& loop, const Condition& holds) {
  for (int i = 0; i < 1000 && !holds(); ++i) loop.WaitForEvent(10);
  return holds();
}

TEST(QtEventLoop, DeliversPostedHandlersInTheirOrder) {
  QtEventLoop loop;
  std::string order;
  for (const char letter : {'a', 'b', 'c'}) loop.Post([&order, letter] { order += letter; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(Serve(loop, [&] { return order.size() == 3; }));
  EXPECT_EQ(order, "abc");
}

TEST(QtEventLoop, DeliversOnItsOwnThreadWhatAnotherThreadPosts) {
  QtEventLoop loop;
  std::thread::id delivered;
  std::thread([&] { loop.Post([&] { delivered = std::this_thread::get_id(); }); }).join();
  EXPECT_TRUE(Serve(loop, [&] { return delivered != std::thread::id(); }));
  EXPECT_EQ(delivered, std::this_thread::get_id());
}

TEST(QtEventLoop, ServesTimersWhileAHandlerWaits) {
  QtEventLoop loop;
  std::vector<int> depths;
  loop.Deliver([&] {
    loop.StartTimer(1, EventLoop::Repeat::kOnce, [&] { depths.push_back(loop.depth()); });
    EXPECT_TRUE(Serve(loop, [&] { return !depths.empty(); }));
    EXPECT_EQ(loop.depth(), 1);
  });
  EXPECT_EQ(depths, std::vector{2});
  EXPECT_EQ(loop.depth(), 0);
}

TEST(QtEventLoop, KeepsIdleHandlersUntilNoHandlerWaitsAnyMore) {
  QtEventLoop loop;
  bool idle = false;
  loop.Deliver([&] {
    bool inner = false;
    loop.StartTimer(1, EventLoop::Repeat::kOnce, [&] {
      loop.WhenIdle([&] { idle = true; });
      inner = true;
    });
    EXPECT_TRUE(Serve(loop, [&] { return inner; }));
    loop.Yield();
    EXPECT_FALSE(idle);
  });
  EXPECT_TRUE(idle);
}

TEST(QtEventLoop, RunsAnIdleHandlerThatIsAskedForOutsideOfAllOthers) {
  QtEventLoop loop;
  bool idle = false;
  loop.WhenIdle([&] { idle = true; });
  EXPECT_TRUE(Serve(loop, [&] { return idle; }));
}

TEST(QtEventLoop, RepeatsATimerUntilItsOwnHandlerStopsIt) {
  QtEventLoop loop;
  int fired = 0;
  int timer = 0;
  timer = loop.StartTimer(1, EventLoop::Repeat::kAlways, [&] {
    if (++fired == 3) loop.StopTimer(timer);
  });
  EXPECT_GT(timer, 0);
  EXPECT_TRUE(Serve(loop, [&] { return fired == 3; }));
  bool later = false;
  loop.StartTimer(20, EventLoop::Repeat::kOnce, [&] { later = true; });
  EXPECT_TRUE(Serve(loop, [&] { return later; }));
  EXPECT_EQ(fired, 3);
}

TEST(QtEventLoop, DoesNotDeliverATimerThatWasStopped) {
  QtEventLoop loop;
  bool fired = false;
  bool later = false;
  loop.StopTimer(loop.StartTimer(1, EventLoop::Repeat::kOnce, [&] { fired = true; }));
  loop.StopTimer(4711);
  loop.StartTimer(15, EventLoop::Repeat::kOnce, [&] { later = true; });
  EXPECT_TRUE(Serve(loop, [&] { return later; }));
  EXPECT_FALSE(fired);
}

TEST(QtEventLoop, HandsOnWhatAHandlerThrows) {
  QtEventLoop loop;
  std::string told;
  loop.on_error = [&](std::exception_ptr error) {
    try {
      std::rethrow_exception(error);
    } catch (const std::exception& e) {
      told = e.what();
    }
  };
  loop.Post([] { throw std::runtime_error("broken"); });
  EXPECT_TRUE(Serve(loop, [&] { return !told.empty(); }));
  EXPECT_EQ(told, "broken");
  EXPECT_EQ(loop.depth(), 0);
}

TEST(QtEventLoop, LetsAnExceptionPassWhenNobodyTakesIt) {
  QtEventLoop loop;
  EXPECT_THROW(loop.Deliver([] { throw std::runtime_error("broken"); }), std::runtime_error);
  EXPECT_EQ(loop.depth(), 0);
}

TEST(QtEventLoop, HasTheViewRefreshedAfterEachHandlerAndAtEachYield) {
  QtEventLoop loop;
  int refreshed = 0;
  loop.after_event = [&] { ++refreshed; };
  loop.Deliver([] {});
  EXPECT_EQ(refreshed, 1);
  loop.Yield();
  EXPECT_EQ(refreshed, 2);
}

TEST(QtEventLoop, ReturnsFromAWaitInWhichNothingHappens) {
  QtEventLoop loop;
  loop.WaitForEvent(2.5);
  loop.WaitForEvent(0);
  EXPECT_EQ(loop.depth(), 0);
}

TEST(QtEventLoop, StartsTheClockAnewAtMidnight) {
  QtEventLoop loop(86399.99);
  const float before = loop.Clock();
  EXPECT_TRUE(Serve(loop, [&] { return loop.Clock() < 86000; }));
  EXPECT_GE(loop.Clock(), 0);
  EXPECT_LT(ClockDifference(before, loop.Clock()), 60);
}

TEST(QtEventLoop, NeverShowsTheFullDayOnItsClock) {
  // As a Single this is 86400.
  EXPECT_LT(QtEventLoop(86399.9999).Clock(), 86400);
}

TEST(QtEventLoop, TellsATimeOfDayThatExists) {
  const double seconds = QtEventLoop::SecondsSinceMidnight();
  EXPECT_GE(seconds, 0);
  EXPECT_LT(seconds, 86400);
  const DateTime now = QtEventLoop().Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
}

TEST(QtEventLoop, RunsUntilItIsToldToQuit) {
  QtEventLoop loop;
  bool reached = false;
  loop.Post([&] {
    reached = true;
    loop.Quit();
  });
  loop.Run();
  EXPECT_TRUE(reached);
}

TEST(QtEventLoop, DoesNotRunAtAllOnceItWasToldToQuit) {
  QtEventLoop loop;
  bool reached = false;
  loop.Post([&] { reached = true; });
  loop.Quit();
  loop.Run();
  EXPECT_FALSE(reached);
  // An application that was told to exit opens no loop any more, for no other test either, before
  // it has run once.
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QCoreApplication::exec();
}

}  // namespace
}  // namespace vmod17

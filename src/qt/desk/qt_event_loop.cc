// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_event_loop.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimer>
#include <cmath>
#include <utility>

namespace vmod17 {
namespace {

constexpr double kDay = 86400;

}  // namespace

QtEventLoop::QtEventLoop(double start_seconds)
    : start_seconds_(start_seconds), start_(std::chrono::steady_clock::now()) {}

QtEventLoop::~QtEventLoop() = default;

int QtEventLoop::StartTimer(int ms, Repeat repeat, Handler handler) {
  const int number = ++last_timer_;
  auto timer = std::make_unique<QTimer>();
  timer->setTimerType(Qt::PreciseTimer);
  timer->setSingleShot(repeat == Repeat::kOnce);
  QObject::connect(timer.get(), &QTimer::timeout, &receiver_,
                   [this, number, repeat] { Fire(number, repeat); });
  timer->start(ms);
  timers_[number] = {std::move(timer), std::make_shared<const Handler>(std::move(handler))};
  return number;
}

void QtEventLoop::StopTimer(int timer) {
  const auto found = timers_.find(timer);
  if (found == timers_.end()) return;
  // The timer may be the one whose signal is being delivered: it must outlive that.
  found->second.timer->stop();
  found->second.timer.release()->deleteLater();
  timers_.erase(found);
}

void QtEventLoop::Fire(int timer, Repeat repeat) {
  const auto found = timers_.find(timer);
  if (found == timers_.end()) return;
  const std::shared_ptr<const Handler> handler = found->second.handler;
  if (repeat == Repeat::kOnce) StopTimer(timer);
  Deliver(*handler);
}

void QtEventLoop::Post(Handler handler) {
  QMetaObject::invokeMethod(
      &receiver_, [this, handler = std::move(handler)] { Deliver(handler); }, Qt::QueuedConnection);
}

void QtEventLoop::WhenIdle(Handler handler) {
  idle_.push_back(std::move(handler));
  if (depth_ == 0) Post([] {});
}

void QtEventLoop::Call(const Handler& handler) {
  ++delivered_;
  ++depth_;
  try {
    handler();
  } catch (...) {
    if (!on_error) {
      --depth_;
      throw;
    }
    on_error(std::current_exception());
  }
  --depth_;
}

void QtEventLoop::Deliver(const Handler& handler) {
  Call(handler);
  if (depth_ == 0) RunIdleHandlers();
  if (after_event) after_event();
}

void QtEventLoop::RunIdleHandlers() {
  while (!idle_.empty()) {
    const std::vector<Handler> due = std::exchange(idle_, {});
    for (const Handler& handler : due) Call(handler);
  }
}

void QtEventLoop::Yield() {
  if (after_event) after_event();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtEventLoop::WaitForEvent(double ms) {
  if (after_event) after_event();
  const unsigned before = delivered_;
  if (ms <= 0) {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    return;
  }
  bool over = false;
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &receiver_, [&over] { over = true; });
  timer.start(static_cast<int>(std::ceil(ms)));
  while (!over && !quit_ && delivered_ == before) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

float QtEventLoop::Clock() const {
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start_;
  const auto clock = static_cast<float>(std::fmod(start_seconds_ + passed.count(), kDay));
  // Rounding to a Single can reach the full day, which is 0 of the next one.
  return clock < static_cast<float>(kDay) ? clock : 0.0f;
}

DateTime QtEventLoop::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

double QtEventLoop::SecondsSinceMidnight() {
  return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtEventLoop::Run() {
  if (quit_) return;
  running_ = true;
  QCoreApplication::exec();
  running_ = false;
}

void QtEventLoop::Quit() {
  quit_ = true;
  // Ends the loops of open message boxes too, also before `Run`.
  QCoreApplication::exit();
}

}  // namespace vmod17

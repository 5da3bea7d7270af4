// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/courier.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace vmod17 {
namespace {

TEST(Courier, RunsErrandsInTheirOrderAndBringsWhatTheyReturn) {
  Courier courier;
  const auto order = std::make_shared<std::vector<int>>();
  for (int i = 0; i < 100; ++i) courier.Send([order, i] { order->push_back(i); });
  EXPECT_EQ(courier.Send([order] { return order->size(); }).get(), 100u);
  for (int i = 0; i < 100; ++i) EXPECT_EQ((*order)[static_cast<std::size_t>(i)], i);
}

TEST(Courier, BringsTheErrorOfAnErrandAndGoesOn) {
  Courier courier;
  const auto broken = courier.Send([]() -> int { throw std::runtime_error("broken"); });
  EXPECT_THROW(broken.get(), std::runtime_error);
  EXPECT_EQ(courier.Send([] { return 7; }).get(), 7);
}

TEST(Courier, KeepsNothingOfAnErrandThatIsDone) {
  Courier courier;
  auto owned = std::make_shared<int>(7);
  const std::weak_ptr<int> left = owned;
  const auto answer = courier.Send([owned = std::move(owned)] { return *owned; });
  EXPECT_EQ(answer.get(), 7);
  courier.Send([] {}).wait();
  EXPECT_TRUE(left.expired());
}

TEST(Courier, IsNotWaitedForWhenItIsLetGoAndFinishesWhatItWasSentFor) {
  std::promise<void> go;
  const std::shared_future<void> gone = go.get_future().share();
  auto courier = std::make_unique<Courier>();
  const auto first = courier->Send([gone] {
    gone.wait();
    return 1;
  });
  const auto second = courier->Send([] { return 2; });
  courier.reset();
  EXPECT_EQ(first.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  go.set_value();
  EXPECT_EQ(first.get(), 1);
  EXPECT_EQ(second.get(), 2);
}

}  // namespace
}  // namespace vmod17

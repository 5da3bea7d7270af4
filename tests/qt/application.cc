// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// One application for all tests of the process, as the toolkit wants it.
class ApplicationEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    // The same letters on every machine, and no windows in the way of who runs the tests.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    // The tests compare with pixels.
    QApplication::setStyle("Fusion");
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[9] = "qt_tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const kEnvironment =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

// The drivers of the databases are found through the application object. What a machine keeps of a
// user goes into a folder of the test's own, also that of the processes that it starts.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir data;
  qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

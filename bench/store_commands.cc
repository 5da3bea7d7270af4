// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long the host's commands take on a SQLite file with a long log.
//
//     store_commands ROUNDS [FOLDER]
//
// The file is made in the folder, which decides on which disk; by default in the temporary one.
// Prints the median and the slowest of each command in ms.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "store/host_store.h"

namespace {

using Array = vmod17::TaggedValue::Array;

constexpr int kLines = 20'000;  // about a quarter of the log's size
constexpr int kElements = 400;  // a training of 24 chords has fewer

void Measure(const char* name, int rounds, const std::function<void(int)>& command) {
  std::vector<double> ms;
  for (int i = 0; i < rounds; ++i) {
    QElapsedTimer clock;
    clock.start();
    command(i);
    ms.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
  std::sort(ms.begin(), ms.end());
  std::printf("%-8s median %.3f ms, slowest %.3f ms\n", name, ms[ms.size() / 2], ms.back());
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: store_commands ROUNDS [FOLDER]\n");
    return 2;
  }
  const QCoreApplication application(argc, argv);
  const int rounds = std::atoi(argv[1]);
  const QTemporaryDir folder(argc > 2 ? QString(argv[2]) + "/store-XXXXXX" : QString());
  vmod17::StoreOptions options;
  options.address = folder.filePath("store.sqlite").toStdString();
  vmod17::HostStore store(std::move(options));
  const auto service = store.Service();
  vmod17::TaggedValue result;
  for (int i = 0; i < kLines; ++i) service->Action("LOGMESS", "vmod17 1.0.0000", result);
  const Array training(kElements, vmod17::TaggedValue("17"));
  Measure("STORE", rounds, [&](int i) {
    Array value = training;
    value[0] = std::to_string(i);
    service->Action("STORE", Array{"vmod17", "A1", value}, result);
  });
  Measure("READ", rounds, [&](int) { service->Action("READ", Array{"vmod17", "A1"}, result); });
  Measure("LOGMESS", rounds, [&](int) { service->Action("LOGMESS", "vmod17 1.0.0000", result); });
  Measure("LOGERR", rounds, [&](int) {
    service->Action("LOGERR", Array{"mat_wahl", 1004, "nothing to draw", "vmod17"}, result);
  });
  return 0;
}

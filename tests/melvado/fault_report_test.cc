// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "melvado/fault_report.h"

#include <gmock/gmock.h>

namespace vmod17 {
namespace {

TEST(FaultReport, HasTheFactsAndTheLogWithoutUsers) {
  FaultFacts facts{"1.0.0", "Debian 12", "Deutsch", "/home/a/store.sqlite", "Piano", "a.sf2", ""};
  std::vector<LogEntry> log(2);
  log[0].at = "2026-03-09 08:05:01";
  log[0].user = "4711";
  log[0].text = "vmod17 1.0.0000";
  log[1] = {
      LogEntry::Kind::kError, "2026-03-09 08:06:00", "4711", "mat_wahl", 1004, "nichts", "vmod17"};
  EXPECT_EQ(FaultReport(facts, log),
            "Melvado 1.0.0\nSystem: Debian 12\nLanguage: Deutsch\nStore: /home/a/store.sqlite\n"
            "Sound output: Piano\nSoundfont: a.sf2\n\nLog, newest last:\n"
            "2026-03-09 08:05:01  vmod17 1.0.0000\n"
            "2026-03-09 08:06:00  ERROR 1004 in mat_wahl: nichts [vmod17]\n");
  facts.verdict = "No sound.";
  EXPECT_THAT(FaultReport(facts, {}), testing::HasSubstr("\nSound test: No sound.\n"));
}

}  // namespace
}  // namespace vmod17

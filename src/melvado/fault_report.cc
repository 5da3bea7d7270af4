// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "melvado/fault_report.h"

namespace vmod17 {
namespace {

std::string Line(const LogEntry& entry) {
  std::string line = entry.at + "  ";
  if (entry.kind == LogEntry::Kind::kMessage) return line + entry.text;
  return line + "ERROR " + std::to_string(entry.number) + " in " + entry.place + ": " + entry.text +
         " [" + entry.source + "]";
}

}  // namespace

std::string FaultReport(const FaultFacts& facts, const std::vector<LogEntry>& log) {
  std::string report = "Melvado " + facts.version + "\nSystem: " + facts.system +
                       "\nLanguage: " + facts.language + "\nStore: " + facts.store +
                       "\nSound output: " + facts.output + "\nSoundfont: " + facts.soundfont + '\n';
  if (!facts.verdict.empty()) report += "Sound test: " + facts.verdict + '\n';
  report += "\nLog, newest last:\n";
  for (const LogEntry& entry : log) report += Line(entry) + '\n';
  return report;
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/fault_report.h"

#include <QRegularExpression>
#include <QString>
#include <algorithm>

namespace melvado {
namespace {

using vmod17::LogEntry;

constexpr std::size_t kMostLines = 1000;

std::string Line(const LogEntry& entry) {
  std::string line = entry.at + "  ";
  if (entry.kind == LogEntry::Kind::kMessage) return line + entry.text;
  return line + "ERROR " + std::to_string(entry.number) + " in " + entry.place + ": " + entry.text +
         " [" + entry.source + "]";
}

/// Also in what the log and the sound test quote.
std::string WithoutNames(const std::string& text, const std::string& home) {
  QString rest = QString::fromStdString(text);
  if (home.size() > 1) {
    // The name of another user's folder may begin with the same letters.
    const QString whole = QRegularExpression::escape(QString::fromStdString(home)) + "(?!\\w)";
    rest.replace(QRegularExpression(whole, QRegularExpression::UseUnicodePropertiesOption), "~");
  }
  // A password may hold any character, so that of a line with an address all goes up to the last
  // sign that can be its end.
  static const QRegularExpression kUserOfServer("(postgres(?:ql)?://).*@",
                                                QRegularExpression::CaseInsensitiveOption);
  rest.replace(kUserOfServer, "\\1");
  static const QRegularExpression kPassword("(password\\s*=\\s*)\\S+",
                                            QRegularExpression::CaseInsensitiveOption);
  rest.replace(kPassword, "\\1...");
  return rest.toStdString();
}

}  // namespace

std::string FaultReport(const FaultFacts& facts, const std::vector<LogEntry>& log) {
  std::string report = "Melvado " + facts.version + "\nSystem: " + facts.system +
                       "\nLanguage: " + facts.language + "\nStore: " + facts.store +
                       "\nSound output: " + facts.output + "\nSoundfont: " + facts.soundfont + '\n';
  if (!facts.verdict.empty()) report += "Sound test: " + facts.verdict + '\n';
  const std::size_t taken = std::min(log.size(), kMostLines);
  report += "\nLog, newest last";
  if (taken < log.size()) {
    report += " (" + std::to_string(taken) + " of " + std::to_string(log.size()) + " lines)";
  }
  report += ":\n";
  for (std::size_t i = log.size() - taken; i < log.size(); ++i) report += Line(log[i]) + '\n';
  return WithoutNames(report, facts.home);
}

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>
#include <vector>

#include "programs/host/host.h"
#include "qt/desk/qt_event_loop.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace melvado {

/// The log as a table, newest last, with the whole of the chosen line below, and a button that
/// copies it as a fault report.
///
/// Its widgets have names: lines, line, note, refresh, copy, close.
class LogWindow : public QDialog {
 public:
  /// `host` and `loop` outlive the window.
  LogWindow(Host& host, vmod17::QtEventLoop& loop, QWidget* parent);

  /// Reads the log and shows it from its end. `factor` is the number of pixels of a unit.
  void Open(double factor);

 private:
  QPushButton* MakeButton(const char* name, std::function<void()> act);
  void ShowWords();
  void Read();
  void ShowLine(int row);
  void Copy();
  QString ShownTime(const std::string& at) const;

  Host& host_;
  vmod17::QtEventLoop& loop_;
  std::vector<vmod17::LogEntry> entries_;
  QTableWidget* lines_;
  QPlainTextEdit* line_;
  QLabel* note_;
  QPushButton* refresh_;
  QPushButton* copy_;
  QPushButton* close_;
};

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "ports/file_dialog.h"

class QFileDialog;

namespace vmod17 {

/// The system's dialogs for files, in front of the program's window. The first one begins in the
/// user's documents, each further one in the folder that was chosen last.
class QtFileDialog : public FileDialog {
 public:
  enum class Kind { kOfTheSystem, kOfTheToolkit };

  /// `window`  the window that a dialog belongs to, asked anew for each; may be null, and may
  ///           answer null
  /// `kind`    the toolkit's own dialogs look alike everywhere and can be worked from a test
  explicit QtFileDialog(std::function<QWidget*()> window, Kind kind = Kind::kOfTheSystem)
      : window_(std::move(window)), kind_(kind) {}

  std::optional<std::string> AskToSave(const std::string& title,
                                       const std::string& proposal) override;
  std::optional<std::string> AskToOpen(const std::string& title, const std::string& extension,
                                       const std::string& folder) override;

 private:
  QWidget* Window() const { return window_ ? window_() : nullptr; }
  void Prepare(QFileDialog& dialog, const QString& extension) const;
  std::optional<std::string> Show(QFileDialog& dialog);

  std::function<QWidget*()> window_;
  Kind kind_;
  QString folder_;  // empty before the first answer
};

}  // namespace vmod17

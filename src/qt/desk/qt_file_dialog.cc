// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace vmod17 {

std::optional<std::string> QtFileDialog::AskToSave(const std::string& title,
                                                   const std::string& proposal) {
  QFileDialog dialog(Window(), QString::fromStdString(title));
  const QString name = QString::fromStdString(proposal);
  const QString extension = QFileInfo(name).suffix();
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  Prepare(dialog, extension);
  dialog.setDefaultSuffix(extension);
  dialog.selectFile(name);
  return Show(dialog);
}

std::optional<std::string> QtFileDialog::AskToOpen(const std::string& title,
                                                   const std::string& extension,
                                                   const std::string& folder) {
  QFileDialog dialog(Window(), QString::fromStdString(title));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  Prepare(dialog, QString::fromStdString(extension));
  if (!folder.empty()) dialog.setDirectory(QString::fromStdString(folder));
  return Show(dialog);
}

void QtFileDialog::Prepare(QFileDialog& dialog, const QString& extension) const {
  if (kind_ == Kind::kOfTheToolkit) dialog.setOption(QFileDialog::DontUseNativeDialog);
  if (dialog.parentWidget() != nullptr) dialog.setFont(dialog.parentWidget()->font());
  dialog.setNameFilter("*." + extension);
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString first = QDir(documents).exists() ? documents : QDir::homePath();
  dialog.setDirectory(QDir(folder_).exists() && !folder_.isEmpty() ? folder_ : first);
}

/// Shows the dialog; the keyboard comes back to the window even where no window manager sees to it.
std::optional<std::string> QtFileDialog::Show(QFileDialog& dialog) {
  const bool accepted = dialog.exec() == QDialog::Accepted;
  if (QWidget* window = dialog.parentWidget(); window != nullptr && window->isVisible()) {
    window->activateWindow();
  }
  const QStringList files = dialog.selectedFiles();
  if (!accepted || files.isEmpty()) return std::nullopt;
  folder_ = QFileInfo(files.front()).absolutePath();
  return QFileInfo(files.front()).absoluteFilePath().toStdString();
}

}  // namespace vmod17

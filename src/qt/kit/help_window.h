// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/wording.h"
#include "qt/kit/press_widget.h"

namespace vmod17 {

/// The help: pages in a window of their own, beside which the program can be used.
///
/// A page is a plain HTML file, `<folder>/<language code>/<page>.html`, such as
/// "help/de/arbeitsblatt1.html"; links, pictures and style sheets in it are named relative to it.
/// Each file is taken from the first folder that has it, so that a teacher needs to keep only those
/// that he has changed. Nothing that lies outside the folders is shown, by whatever link or name,
/// and no page that the toolkit would take seconds to lay out.
///
/// Over a dialog that waits for an answer it belongs to that dialog, which would block it
/// otherwise; with the end of the dialog it is a window of its own again.
///
/// A QApplication must exist before it and outlive it.
class HelpWindow : public QWidget {
 public:
  /// `folders`  where the pages are looked for, the first of them first; need not exist
  explicit HelpWindow(std::vector<std::filesystem::path> folders);
  ~HelpWindow() override;

  /// Says what the window says by itself. Asked for each page, since the language is known only
  /// some time after the start.
  Wording say = InEnglish;
  /// The window that the help belongs to, from which it takes its size and to which it hands the
  /// keyboard back; may be null, and may answer null.
  std::function<QWidget*()> owner;

  /// Shows a page and brings the window to the front, also of a modal dialog. Without the page in
  /// that language the English one is shown, which says so, and without that a sentence that tells
  /// where it was looked for.
  ///
  /// `page`    name without folder and ending, such as "arbeitsblatt1"
  /// `locale`  such as "de_DE" or "de"; "" stands for English
  void Show(const std::string& page, const std::string& locale);

  /// The file on display; empty without one.
  std::filesystem::path Page() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Browser;
  enum Button { kContents, kBack, kForward, kButtons };

  std::filesystem::path Find(const QString& file) const;
  std::string LanguageOf(const std::string& page) const;
  QString Said(const Notice& notice) const;
  QString Missing() const;
  QString TooLarge() const;
  QString WithNote(const QString& file, const QString& page) const;
  void Open(const std::string& page);
  void TakeType();
  void TakeWords();
  void Arrange();
  void BringToFront();
  void StandBefore(QWidget* dialog);

  const std::vector<std::filesystem::path> folders_;
  PageStyle style_;
  Browser* browser_;
  std::array<PressWidget*, kButtons> buttons_{};
  std::string page_;  // that was asked for last
  std::string locale_;
  double zoom_ = 1;  // of the type, by the user's choice
  bool placed_ = false;
  bool moves_ = false;        // from one dialog to another, not out of sight
  QPointer<QWidget> dialog_;  // to which the window belongs
};

}  // namespace vmod17

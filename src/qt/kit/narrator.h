// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>
#include <QPointer>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "qt/kit/spoken_line.h"

namespace vmod17 {

/// Decides what a reader of the screen speaks of what the program does in its window.
///
/// A reader speaks by itself of whatever the focus moves to, and breaks off for it what it was
/// saying. That would do where the user moves the focus. Where the program moves it, because the
/// control that had it went out of reach, the reader is to say first what the user waits for:
/// whether the answer was right. So the words come with the name of the new place at their end, in
/// place of the move itself.
///
/// A closed list whose entry changes under the focus is told by the words too, since readers do not
/// heed what the toolkit tells of it.
///
/// While the user listens to what is played, nothing of the kind comes at all. The reader's focus
/// rests on a blank meanwhile, and to go there silences what it was saying.
///
/// At the most one in a process, whose other events all go through.
class Narrator {
 public:
  explicit Narrator(QWidget& window);
  ~Narrator();
  Narrator(const Narrator&) = delete;
  Narrator& operator=(const Narrator&) = delete;

  /// Around all that the program changes in the window.
  ///
  /// `listening`  whether the user listens from now on
  /// `said`       sentences to be spoken, UTF-8; kept until the user no longer listens
  void Begin(bool listening);
  void End(const std::vector<std::string>& said);

 private:
  class Blank;
  /// Where the focus went, as the toolkit tells it.
  struct Place {
    QPointer<QObject> object;
    int child = -1;
  };

  static void Filter(QAccessibleEvent* event);
  static void PassOn(QAccessibleEvent* event);
  bool Heed(const QAccessibleEvent& event);
  void TellFocus();
  QString NameOfFocus() const;

  QAccessible::UpdateHandler before_;
  SpokenLine line_;
  Blank* blank_;
  QStringList said_;
  std::optional<Place> untold_;  ///< where the focus went without the reader's knowledge
  bool new_entry_ = false;       ///< the program changed the closed list that has the focus
  bool changing_ = false;        ///< between `Begin` and `End`
  bool listening_ = false;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "exercise/run_events.h"
#include "forms/controls.h"
#include "ports/system.h"
#include "ports/xml_document.h"
#include "shell/shell.h"

namespace vmod17 {

/// The record of one run, task by task and click by click: an XML document that grows in memory and
/// is saved once, at the end. Errors of all operations unless they say otherwise: RunTimeError
/// kInvalidCall before `LessonNeu`, and those of the document.
class LessonRecord {
 public:
  /// `ueb_typ_caption` gives the caption of the chosen exercise type.
  LessonRecord(Shell& shell, XmlDocumentFactory make_document,
               std::function<std::string()> ueb_typ_caption);

  /// Begins a new record, whose file name holds the present time.
  void LessonNeu();
  /// Enters a task: its chords, and the answer that its first slot waits for. An error ends it
  /// silently; the run goes on.
  void LessonAufgabe(const TaskAsked& aufgabe);
  /// Completes the answer that was waited for, and begins the next one unless the task is over.
  void LessonAntwort(const AnswerGiven& antwort);
  /// Marks, each time, that the sound was lost: with the present time, and the number of the lesson
  /// that was begun last, 0 before the first. An error ends it silently; the run goes on.
  void LessonOhneKlang();
  /// Completes the record with the settings in words, and saves it. The form is disabled for good,
  /// and shows `WaitMeldung` meanwhile.
  void LessonEnde(Form& form, Control& WaitMeldung, const TaggedValue::Array& einst_liste);

  /// The folder for records: the variable "temp", else "TEMP", else "TMPDIR", else the system's.
  static std::string TempOrdner(const System& system);

 private:
  std::unique_ptr<XmlElement> RootChild(const char* name) const;
  std::unique_ptr<XmlElement> Answers() const;

  Shell& shell_;
  XmlDocumentFactory make_document_;
  std::function<std::string()> ueb_typ_caption_;
  std::unique_ptr<XmlDocument> xml_dok;
  std::unique_ptr<XmlElement> xml_lesson;
};

}  // namespace vmod17

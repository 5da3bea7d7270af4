// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "exercise/lesson_record.h"

#include <exception>
#include <utility>

#include "base/numbers.h"
#include "base/run_time_error.h"

namespace vmod17 {
namespace {

std::string StampForFile(const DateTime& t) {
  return PaddedText(t.year, 2) + PaddedText(t.month, 2) + PaddedText(t.day, 2) +
         PaddedText(t.hour, 2) + PaddedText(t.minute, 2) + PaddedText(t.second, 2);
}

/// "21.11.2026 14:03:22". The record is read by programs, so the form follows no locale.
std::string StampForRecord(const DateTime& t) {
  return PaddedText(t.day, 2) + "." + PaddedText(t.month, 2) + "." + PaddedText(t.year, 4) + " " +
         PaddedText(t.hour, 2) + ":" + PaddedText(t.minute, 2) + ":" + PaddedText(t.second, 2);
}

std::unique_ptr<XmlElement> Append(XmlElement& parent, const char* name,
                                   const std::optional<std::string>& value = std::nullopt) {
  return parent.Children()->Add(value, name);
}

std::unique_ptr<XmlElement> Child(XmlElement& parent, const char* name) {
  return parent.Children()->ByName(name)->Item(1);
}

/// Begins an answer, the one with number `lfd` of its slot, which stands in the attribute `name`.
void Begin(XmlElement& answers, int lfd, const char* name, int slot) {
  const auto attributes = Append(answers, "answer")->Attributes();
  attributes->Add(DecimalText(lfd), "lfd");
  attributes->Add(DecimalText(slot), name);
}

void LessonEigenschaft(XmlElement& element, const std::string& key, const std::string& value) {
  const auto property = Append(element, "property");
  Append(*property, "key", key);
  Append(*property, "value", value);
}

}  // namespace

LessonRecord::LessonRecord(Shell& shell, XmlDocumentFactory make_document,
                           std::function<std::string()> ueb_typ_caption)
    : shell_(shell),
      make_document_(std::move(make_document)),
      ueb_typ_caption_(std::move(ueb_typ_caption)) {}

void LessonRecord::LessonNeu() {
  xml_lesson.reset();
  xml_dok = make_document_();
  xml_dok->SetRootName("exercise");
  xml_dok->SetFileName(TempOrdner(shell_.system) + "\\MVX" + StampForFile(shell_.loop.Now()) +
                       ".xml");
  const auto root = xml_dok->RootChildren();
  const auto properties = root->Add(std::nullopt, "properties");
  Append(*properties, "programm", "VMOD17");
  Append(*properties, "ukey", shell_.server.LoginDaten()[0].String());
  root->Add(std::nullopt, "settings");
  root->Add(std::nullopt, "lessons");
}

void LessonRecord::LessonAufgabe(const TaskAsked& aufgabe) {
  try {
    xml_lesson = Append(*RootChild("lessons"), "lesson");
    const auto properties = Append(*xml_lesson, "properties");
    Append(*xml_lesson, "answers");
    int number = 0;
    for (const auto& [eintrag, akkord, ton] : aufgabe.akkorde) {
      const auto property = Append(*properties, "property");
      property->Attributes()->Add(DecimalText(++number), "number");
      Append(*property, "AkkTyp", DecimalText(akkord.klangtyp));
      Append(*property, "AkklNr", DecimalText(akkord.row));
      Append(*property, "GrpNr", DecimalText(akkord.group));
      Append(*property, "GeslNr", DecimalText(akkord.klang));
    }
    Begin(*Answers(), 1, "Akk", 1);
  } catch (const std::exception&) {
    // The lesson stays as far as it has come: a record is no reason to stop a run.
  }
}

void LessonRecord::LessonOhneKlang() {
  try {
    const int lessons = RootChild("lessons")->Children()->ByName("lesson")->Count();
    const auto mark =
        Append(*RootChild("properties"), "sound_lost", StampForRecord(shell_.loop.Now()));
    mark->Attributes()->Add(DecimalText(lessons), "lesson");
  } catch (const std::exception&) {
    // See `LessonAufgabe`.
  }
}

void LessonRecord::LessonAntwort(const AnswerGiven& antwort) {
  const auto answers = Answers();
  const auto begun = answers->Children()->ByName("answer");
  const auto answer = begun->Item(begun->Count());
  LessonEigenschaft(*answer, "Dauer Antwort", SingleText(antwort.antw_dauer));
  LessonEigenschaft(*answer, "Anz Whlg", DecimalText(antwort.anz_whlg));
  LessonEigenschaft(*answer, "Antwort", antwort.richtig ? "true" : "false");
  // The slot stands under one name on its first answer and under another on the later ones.
  switch (antwort.danach) {
    case LaufStatus::kWeitererVersuch:
      return Begin(*answers, antwort.antw_lfd + 1, "Akkord", antwort.slot);
    case LaufStatus::kNaechsterSlot:
      return Begin(*answers, 1, "interval", antwort.slot + 1);
    case LaufStatus::kAufgabeFertig:
    case LaufStatus::kNochKeine:
    case LaufStatus::kTrainingZuEnde:
    case LaufStatus::kTestZuEnde:
      return;
  }
}

void LessonRecord::LessonEnde(Form& form, Control& WaitMeldung,
                              const TaggedValue::Array& einst_liste) {
  // Read before events are served: in them the first screen may go.
  const std::string ueb_typ = ueb_typ_caption_();
  form.enabled = false;
  form.pointer = Form::Pointer::kHourglass;
  WaitMeldung.visible = true;
  shell_.loop.Yield();

  const auto properties = RootChild("properties");
  Append(*properties, "exercise", ueb_typ);
  Append(*properties, "timestamp", StampForRecord(shell_.loop.Now()));
  xml_dok->RootAttributes()->Add(
      "Untersuchung: " + shell_.texts.ueb_typ_name_ar.at(shell_.state.uebTyp), "description");
  const auto settings = RootChild("settings");
  const TaggedValue liste = einst_liste;
  const int paare = RoundHalfEven(LeadingNumber(liste[0].String()) / 2.0);
  for (int k = 1; k <= paare; ++k) {
    const auto setting = Append(*settings, "setting");
    Append(*setting, "key", liste[2 * k - 1].String());
    Append(*setting, "value", liste[2 * k].String());
  }
  xml_dok->Save();

  form.pointer = Form::Pointer::kDefault;
  WaitMeldung.visible = false;
}

std::string LessonRecord::TempOrdner(const System& system) {
  for (const char* name : {"temp", "TEMP", "TMPDIR"}) {
    if (const auto value = system.Environment(name); value && !value->empty()) return *value;
  }
  return system.TemporaryFolder();
}

std::unique_ptr<XmlElement> LessonRecord::RootChild(const char* name) const {
  if (!xml_dok) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "no lesson record was begun",
                       "vmod17.LessonRecord");
  }
  return xml_dok->RootChildren()->ByName(name)->Item(1);
}

std::unique_ptr<XmlElement> LessonRecord::Answers() const {
  if (!xml_lesson) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "no lesson was begun", "vmod17.LessonRecord");
  }
  return Child(*xml_lesson, "answers");
}

}  // namespace vmod17

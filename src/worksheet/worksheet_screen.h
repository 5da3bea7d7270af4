// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "catalogue/chord_board.h"
#include "catalogue/picture_store.h"
#include "exercise/counters.h"
#include "exercise/exercise_names.h"
#include "exercise/lesson_record.h"
#include "exercise/settings_record.h"
#include "exercise/stored_training.h"
#include "ports/timer.h"
#include "settings/settings_screen.h"
#include "shell/shell.h"
#include "sound/chord_playback.h"
#include "sound/mod_midi.h"
#include "sound/wait_sign.h"
#include "worksheet/answer_field.h"
#include "worksheet/judging.h"
#include "worksheet/run_state.h"
#include "worksheet/task_selection.h"

namespace vmod17 {

/// `arbeitsblatt1`, the worksheet: the screen of a run, and the run itself. Its routines stand in
/// several files: worksheet_screen.cc builds it, run_flow.cc leads from task to task and out,
/// lost_sound.cc stops it while nothing can be heard, answers.cc shows how the clicks were judged,
/// spoken.cc tells of them to whom does not see, training.cc and timed_run.cc hold what is theirs
/// alone.
class Arbeitsblatt1 : public Form {
 public:
  /// What the screen works on.
  struct Parts {
    ExerciseSettings& settings;
    const ExerciseNames& names;
    ChordTable& table;
    ChordBoard& board;
    PictureStores& pictures;
    ModMIDI& midi;
    Random& random;
    RunCounters& counters;
    LessonRecord& record;
    Einstellung1& einstellung1;
  };

  Arbeitsblatt1(Shell& shell, const Parts& parts);

  Frame PicUebTyp{*this, "PicUebTyp"};
  ControlArray<Picture> PicUetyp{*this, "PicUetyp", 0, 1};
  Button cmdHilfe{*this, "cmdHilfe"};
  Label Uhr{*this, "Uhr"};
  ControlArray<Frame> jzakk_box{*this, "jzakk_box", 0, 1};
  Label LbAkkGrp{*this, "LbAkkGrp"};
  ControlArray<Panel> klang_pan{*this, "klang_pan", 1, kBrettGroesse};
  ControlArray<Picture> jz_kl{*this, "jz_kl", 1, kBrettGroesse};
  ControlArray<Picture> Akkbez{*this, "Akkbez", 1, kBrettGroesse};
  ControlArray<Panel> akk_group{*this, "akk_group", 1, kGruppen};
  Frame aktionsbox{*this, "aktionsbox"};
  ControlArray<Label> nrakk{*this, "nrakk", 0, kSlots};
  ControlArray<Panel> ergebnis{*this, "ergebnis", 1, kSlots};
  ControlArray<Picture> erg{*this, "erg", 1, kSlots};
  ControlArray<Label> akk_lfdnr{*this, "akk_lfdnr", 1, kSlots};
  ControlArray<Label> true_false{*this, "true_false", 0, 1};
  ControlArray<Label> zaehler{*this, "zaehler", 0, 1};
  Button CmdNextAufg{*this, "CmdNextAufg"};
  Label LbNextAufg{*this, "LbNextAufg"};
  Panel wieder{*this, "wieder"};
  Panel wieder2{*this, "wieder2"};
  Label whlgzaehler{*this, "whlgzaehler"};
  Panel zurueck{*this, "zurueck"};
  Gauge matboxanz{*this, "matboxanz"};
  ControlArray<Label> ergebnis_anz{*this, "ergebnis_anz", 0, 2};
  Label stop_uhr{*this, "stop_uhr"};
  Label lab_aufgaben{*this, "lab_aufgaben"};
  Button cmd_test_aus{*this, "cmd_test_aus"};
  Button cmd_test_ein{*this, "cmd_test_ein"};
  Frame WaitMeldung{*this, "WaitMeldung"};
  Label WaitMeld{*this, "WaitMeld"};
  Timer start;
  Timer spieltimer;
  Timer WahlAutomat;
  Timer Uhrzeit;
  Timer testtimer;
  Timer tonart_Timer;
  Timer klangsuche;  ///< looks for the sound that was lost

  const RunState& run() const { return run_; }
  /// Between two tasks, where there is time to tell the student something.
  bool Wartet() const { return loaded() && vmod17::Wartet(run_, parts_.settings); }

  void Form_Load() override;
  void Form_Unload() override;
  void Form_Close() override;
  Layout LayOut(Size page, const TextMeasure& measure) const override;

  void start_Timer();
  void spieltimer_Timer();
  void WahlAutomat_Timer();
  void Uhrzeit_Timer();
  void testtimer_Timer();
  void klangsuche_Timer();
  void CmdNextAufg_Click();
  void wieder_Click();
  void wieder2_Click();
  void zurueck_Click();
  void cmdHilfe_Click();
  void cmd_test_aus_Click();
  void cmd_test_ein_Click();
  void midi_QueueEmpty() {}

  /// Leaves a run that is cut off from outside, where nobody can be asked: its record is completed,
  /// and a training is stored unless it would take another one's place.
  void Abbrechen();

  /// Draws the next task, enters it in the record and plays it. One that cannot be heard is offered
  /// again.
  void mat_wahl();
  /// A click: on tile `index` of the board, or on group `index`.
  void akk_antw(int index);

 private:
  /// The question that stands before the student, whether to save the training or to end the test.
  enum class Frage { kKeine, kSichern, kTestende };

  // worksheet_screen.cc
  void Verdrahte();
  void StelleInRahmen();
  void TexteSetzen();
  void BaueAuf();
  void BereiteModusVor();
  BoardSelection Auswahl() const;
  void BaueAntwortfeld();
  void BaueKacheln();
  void BenenneKacheln();
  void BaueGruppen();
  void BereiteSlotsVor();
  void ZeigeUhrzeit();
  void ZeigeTeststand(bool sichtbar);

  // run_flow.cc
  void ZeigeAufgabe();
  void LegeLoesungBereit(int slot);
  /// Plays the task. False when it cannot be heard. The student has been told then, unless
  /// `KlangIstVerloren`.
  bool Spiele(SpielArt art);
  /// Starts the playing of `spiel_art`. `dauert` is called when the output keeps it waiting.
  Spielstand BeginneSpiel(const std::function<void()>& dauert);
  void BeendeSpiel();
  void MeldeStumm();
  void BieteUngehoerteAn();
  void SpieleUngehoerte();
  void BieteErsteAufgabeAn();
  void NaechsteAufgabeAnbieten();
  void BieteWeiterAn();
  /// After a control repeat: it can be asked for again, and the next task too.
  void BieteWiederAn();
  void NimmAngebotZurueck();
  void HalteAn();
  void OeffneErgebnisse(RunEnd end);
  void BeendeAufzeichnung();
  void Verlasse();
  void MeldeEnde();
  /// Whether the training or test is over; what was asked last may still be heard again.
  bool IstZuEnde() const {
    return run_.lauf_status == LaufStatus::kTrainingZuEnde ||
           run_.lauf_status == LaufStatus::kTestZuEnde;
  }
  void ZeigeZaehler();
  /// The finished task can be heard again.
  void BieteKontrolleAn();
  /// Runs a routine of weight; an error in it ends the run.
  void Bewache(const std::string& tag, const std::function<void()>& body);
  void Scheitere();

  // lost_sound.cc
  /// The output has fallen silent, or can be heard again.
  void KlangWechsel();
  void MerkeKlang();
  /// The sound is gone that was there in this run. Where there never was any, none is lost.
  bool KlangIstVerloren() const {
    return run_.klang_war_da && parts_.midi.KlangStand() == MidiKlangStand::kWeg;
  }
  /// Stops the clock and closes the answers until there is sound again.
  void VerliereKlang(KlangVerlust bei);
  /// The playing has not come to its end.
  void VerliereSpiel();
  void SucheKlang(KlangVerlust bei);
  void NimmWiederAuf();
  void SpieleNach(KlangVerlust bei);

  // answers.cc
  void ZeigeAntwort(const AnswerGiven& antwort);
  void ZeigeRichtig(const AnswerGiven& antwort);
  void ZeigeFalsch(const AnswerGiven& antwort);
  void ZeigeAufgabenende(const TaskClosed& ende);
  void ZeigeLoesung(const AnswerGiven& antwort, Color rahmen);
  /// Has a reader of the screen call a slot by how it stands: the words of `wie`, whose first
  /// detail is the slot.
  void BenenneSlot(int slot, Notice wie);

  // spoken.cc
  /// What a student who does not see the screen is told of a click.
  void SageUrteil(const AnswerGiven& antwort);
  void SageAufgabenende(const TaskClosed& ende);
  /// That the answers are open, once it is quiet again.
  void SageAntwortbereit();
  std::string Loesung(const AnswerGiven& antwort) const;
  std::string OffenerAkkord() const;
  std::string Stand() const;

  // training.cc
  void BeginneTraining();
  void NimmTrainingAuf();
  void SetzeTrainingFort();
  void ZeigeTraining();
  void ZeigeMaterial();
  /// The words for how a training stands.
  Label& Trainingsanzeige(TrainingStand stand) const;
  void ZeigeTrainingsstand(TrainingStand stand);
  void BeendeTraining();
  bool IstZuSichern() const;
  void BieteSichernAn();
  bool WillSichern(const std::string& frage);
  void MeldeSicherungsfehler(const std::exception_ptr& error);
  void SichereTraining();
  void LegeTrainingAb();
  StoredTraining Trainingsstand() const;

  // timed_run.cc
  void BeginneTest();
  void ZeigeRestaufgaben();
  void BeendeTest();
  void ZaehleTestzeit();
  void ZeigeRestzeit();
  void BeendeTestNachZeit();
  bool TestLaeuft() const;
  bool WillTestBeenden();

  bool IstTraining() const { return parts_.settings.IstTraining(); }
  bool IstFortsetzung() const { return parts_.settings.uebmodus == kModusFortsetzung; }
  bool IstTest() const { return parts_.settings.IstTest(); }
  bool NachAkkorden() const { return parts_.settings.best_art == 0; }

  Shell& shell_;
  Parts parts_;
  RunState run_;
  TaskSelection selection_;
  ChordPlayback playback_;
  Judging judging_;
  StoredTraining fortsetzung_;  ///< what a continued training was stored as
  AnswerField antwortfeld_;
  WaitSign warten_;
  Frage frage_ = Frage::kKeine;
  std::unique_ptr<MidiEvent> midi_ereignis;
};

}  // namespace vmod17

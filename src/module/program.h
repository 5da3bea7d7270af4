// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "catalogue/chord_board.h"
#include "catalogue/picture_store.h"
#include "exercise/counters.h"
#include "exercise/exercise_names.h"
#include "exercise/lesson_record.h"
#include "exercise/settings_record.h"
#include "ports/form_view.h"
#include "ports/host_service.h"
#include "ports/midi_output.h"
#include "ports/printer.h"
#include "ports/random.h"
#include "ports/xml_document.h"
#include "results/results_screen.h"
#include "settings/settings_screen.h"
#include "shell/first_screen.h"
#include "shell/shell.h"
#include "sound/mod_midi.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {

/// What the program runs on.
struct Platform {
  EventLoop& loop;
  System& system;
  MessageBox& messages;
  FormView& view;
  MidiOutput& output;
  Random& random;
  FileDialog& dialog;
  SettingsFiles& settings_files;
  Printer& printer;
  HostServiceFactory make_host_service;
  LanguageListFactory make_language_list;
  XmlDocumentFactory make_document;
};

/// The whole program: owns all state and all screens, and leads from one screen to the next.
class Program : private Navigation {
 public:
  Program(const Platform& platform, ProgramIdentity identity);
  ~Program() override;

  /// Loads the first screen; all else follows from events.
  void Start();
  /// True once no screen is loaded any more: the program is over.
  bool Ended() const { return screens_.empty(); }
  /// Told when the last screen has gone.
  std::function<void()> OnEnd;

  /// True in a moment that a message would not spoil: a screen stands, and no task is being played
  /// or answered.
  bool Quiet() const;

  /// Unloads all screens and takes leave of the host, from any state. The host has its word once
  /// `OnEnd` has returned.
  void Leave();

  TextLookup& texts() { return texts_; }
  const ExerciseNames& names() const { return names_; }
  ModServer& server() { return server_; }
  ErrorReport& errors() { return errors_; }
  ExerciseSettings& settings() { return settings_; }
  ChordBoard& board() { return board_; }
  /// The screens that are loaded; null for one that is not.
  GrdEinst* grd_einst() const { return grd_einst_.get(); }
  Einstellung1* einstellung1() const { return einstellung1_.get(); }
  Arbeitsblatt1* arbeitsblatt1() const { return arbeitsblatt1_.get(); }
  Testergebnis* testergebnis() const { return testergebnis_.get(); }

 private:
  void OpenSettings() override;
  void OpenWorksheet() override;
  void OpenResults(RunEnd end, std::function<void(const std::string&)> closed) override;
  void ShowFirstScreen() override;
  void ShowSettings() override;

  template <typename Screen, typename... Args>
  void Load(std::unique_ptr<Screen>& screen, Args&&... args);
  void Retire(Form& form);

  Platform platform_;
  AppState state_;
  TextLookup texts_;
  ModServer server_;
  ErrorReport errors_;
  LoadedScreens screens_;
  Shell shell_;
  ChordTable table_;
  ChordBoard board_{table_};
  PictureStores pictures_;
  ExerciseNames names_;
  ExerciseSettings settings_;
  RunCounters counters_;
  ModMIDI midi_;
  LessonRecord record_;
  std::vector<std::unique_ptr<Form>> retired_;  // unloaded, but a handler may still run in them
  std::unique_ptr<GrdEinst> grd_einst_;
  std::unique_ptr<Einstellung1> einstellung1_;
  std::unique_ptr<Arbeitsblatt1> arbeitsblatt1_;
  std::unique_ptr<Testergebnis> testergebnis_;
};

}  // namespace vmod17

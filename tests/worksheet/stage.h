// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "exercise/exercise_names.h"
#include "settings/settings_screen.h"
#include "shell/shell.h"
#include "support/fake_platform.h"
#include "support/memory_host.h"
#include "support/memory_xml_document.h"
#include "support/recording_midi_output.h"
#include "support/scripted_random.h"
#include "support/simulated_loop.h"
#include "worksheet/worksheet_screen.h"

namespace vmod17 {

/// The shell on fakes, without any screen.
class ShellHarness : public Navigation {
 public:
  SimulatedLoop loop{100};
  FakeSystem system;
  ScriptedMessageBox messages;
  MemoryHost host;
  FakeLanguages languages;
  AppState state;
  TextLookup texts{languages.Factory(), system};
  ModServer server{host.Factory(), {"vmod17", 1, 0, 0}};
  ExerciseNames names;
  ErrorReport errors{server, texts, messages};
  LoadedScreens screens;
  Shell shell{loop, system, messages, state, texts, server, errors, screens, *this};
  int settings_shown = 0;

  ShellHarness() {
    server.HostVerbinden();
    texts.WeitereTexte = [this](const TextLookup& all) { names.Fuelle(all); };
    texts.SprachenLaden();
    texts.SpracheWaehlen("Deutsch");
    texts.TexteLaden();
    state.FillTables();
    state.uebTyp = 1;
  }

  void OpenSettings() override {}
  void OpenWorksheet() override {}
  void OpenResults(RunEnd, std::function<void(const std::string&)>) override {}
  void ShowFirstScreen() override {}
  void ShowSettings() override { ++settings_shown; }
};

/// A worksheet whose parts a test can look into: the counters and the picture stores too, which the
/// program keeps to itself.
class Stage : public ShellHarness {
 public:
  RecordingMidiOutput output{&loop};
  ScriptedRandom random;
  ChordTable table;
  ChordBoard board{table};
  PictureStores pictures;
  ExerciseSettings settings;
  RunCounters counters;
  ModMIDI midi{loop, server};
  MemoryXmlLibrary documents;
  LessonRecord record{shell, documents.Factory(), [] { return std::string("bestimmen"); }};
  ScriptedFileDialog dialog;
  MemorySettingsFiles settings_files;
  Einstellung1 einstellung{
      shell, {settings, names, midi, output, counters, record, random, dialog, settings_files}};
  Arbeitsblatt1 sheet{
      shell,
      {settings, names, table, board, pictures, midi, random, counters, record, einstellung}};

  /// Sets the settings screen up; the settings can be changed then.
  Stage() {
    screens.Load(einstellung);
    loop.Advance(200);
    settings.klang_anzahl = 1;
    settings.klang_ausw_ar[1] = kTriade;
    record.LessonNeu();
  }
  /// Loads the worksheet and lets it build itself.
  void Begin() {
    screens.Load(sheet);
    loop.Advance(200);
  }
  void PlayTask() {
    sheet.CmdNextAufg.Press();
    loop.Advance(sheet.spieltimer.interval + 1);
  }
};

}  // namespace vmod17

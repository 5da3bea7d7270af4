// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <string>
#include <utility>

#include "module/program.h"
#include "support/fake_platform.h"
#include "support/memory_host.h"
#include "support/memory_xml_document.h"
#include "support/recording_midi_output.h"
#include "support/scripted_random.h"
#include "support/simulated_loop.h"

namespace vmod17 {

/// The whole program on fakes, in virtual time.
class ProgramFixture {
 public:
  explicit ProgramFixture(double clock = 10 * 3600) : ProgramFixture(clock, {}, {}) {}
  /// With documents or a host of another kind in place of the fixture's own.
  ProgramFixture(double clock, XmlDocumentFactory make_document, HostServiceFactory make_host)
      : loop(clock),
        program({loop, system, messages, view, output, random, dialog, settings_files, printer,
                 make_host ? std::move(make_host) : host.Factory(), languages.Factory(),
                 make_document ? std::move(make_document) : documents.Factory()},
                {"vmod17", 1, 0, 0}) {}
  /// What a test has watched with is gone by now.
  ~ProgramFixture() { loop.meanwhile = nullptr; }

  SimulatedLoop loop;
  FakeSystem system;
  ScriptedMessageBox messages;
  NoView view;
  RecordingMidiOutput output{&loop};
  ScriptedRandom random;
  ScriptedFileDialog dialog;
  MemorySettingsFiles settings_files;
  FakePrinter printer;
  MemoryHost host;
  FakeLanguages languages;
  MemoryXmlLibrary documents;
  bool ended = false;
  Program program;

  GrdEinst& first() { return *program.grd_einst(); }
  Einstellung1& settings_screen() { return *program.einstellung1(); }
  Arbeitsblatt1& worksheet() { return *program.arbeitsblatt1(); }
  Testergebnis& results() { return *program.testergebnis(); }
  ExerciseSettings& settings() { return program.settings(); }
  const RunState& run() { return worksheet().run(); }

  /// To the first screen, the settings screen, the worksheet: each shown and waiting.
  void ToFirstScreen() {
    program.OnEnd = [this] { ended = true; };
    program.Start();
    loop.Advance(100);
  }
  void ToSettings() {
    ToFirstScreen();
    first().cmdOK.Press();
    loop.Advance(200);
  }
  void ToWorksheet() {
    ToSettings();
    StartRun();
  }
  /// From the settings screen to the worksheet.
  void StartRun() {
    settings_screen().cmdOK.Press();
    loop.Advance(200);
  }
  /// Calls the next task and lets it play to its end.
  void PlayTask() {
    if (settings().abfolge == 0) {
      worksheet().CmdNextAufg.Press();
    } else {
      loop.Advance(worksheet().WahlAutomat.interval);
    }
    loop.Advance(PlayingTime());
  }
  /// Until `spieltimer` has fired, in ms.
  double PlayingTime() { return worksheet().spieltimer.interval + 1; }
  /// The board entry asked for in a slot.
  int Asked(int slot) { return run().task.aufg_akk_ar.at(slot); }
  /// Another board entry than the one asked for in the open slot, that is not struck; `skip` of
  /// them are passed over.
  int Wrong(int skip = 0) {
    for (int e = 1; e <= program.board().akk_zahl; ++e) {
      if (e == Asked(run().akk_nr) || !worksheet().jz_kl[e].enabled) continue;
      if (skip-- == 0) return e;
    }
    return 0;
  }
  bool ClickRight() { return worksheet().jz_kl[Asked(run().akk_nr)].Press(); }
  bool ClickWrong() { return worksheet().jz_kl[Wrong()].Press(); }
};

}  // namespace vmod17

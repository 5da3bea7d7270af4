// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/shell.h"
#include "support/fake_platform.h"
#include "support/memory_host.h"
#include "support/simulated_loop.h"

namespace vmod17 {

/// A screen without controls, for tests of what is done with screens.
class PlainScreen : public Form {
 public:
  explicit PlainScreen(std::string name) : Form(std::move(name)) {}
  std::function<void()> on_load;
  std::function<void()> on_unload;

  void Form_Load() override {
    if (on_load) on_load();
  }
  void Form_Unload() override {
    if (on_unload) on_unload();
  }
  void Form_Close() override {}
};

/// Opens nothing and remembers what it was asked for.
class RecordingNavigation : public Navigation {
 public:
  std::vector<std::string> asked;
  /// Runs when a screen is asked for.
  std::function<void()> meanwhile;

  void OpenSettings() override { Note("OpenSettings"); }
  void OpenWorksheet() override { Note("OpenWorksheet"); }
  void OpenResults(RunEnd, std::function<void(const std::string&)>) override {
    Note("OpenResults");
  }
  void ShowFirstScreen() override { Note("ShowFirstScreen"); }
  void ShowSettings() override { Note("ShowSettings"); }

 private:
  void Note(const char* what) {
    asked.emplace_back(what);
    if (meanwhile) meanwhile();
  }
};

/// What a single screen stands on, all of it fake.
struct ShellFixture {
  SimulatedLoop loop;
  FakeSystem system;
  ScriptedMessageBox messages;
  MemoryHost host;
  FakeLanguages languages;
  RecordingNavigation navigation;
  AppState state;
  TextLookup texts{languages.Factory(), system};
  ModServer server{host.Factory(), {"vmod17", 1, 0, 0}};
  ErrorReport errors{server, texts, messages};
  LoadedScreens screens;
  Shell shell{loop, system, messages, state, texts, server, errors, screens, navigation};
};

}  // namespace vmod17

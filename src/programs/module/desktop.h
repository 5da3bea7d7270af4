// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <string>

#include "midi/midi_device_output.h"
#include "module/program.h"
#include "programs/shared/front_matter.h"
#include "programs/shared/texts.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/desk/qt_language.h"
#include "qt/desk/qt_system.h"
#include "qt/desk/single_instance.h"
#include "qt/kit/theme.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/qt_printer.h"
#include "qt/view/qt_view.h"
#include "shell/notices.h"
#include "shell/uniform_random.h"
#include "shell/unsaved_records.h"
#include "store/host_store.h"
#include "xml/pugi_settings_files.h"

namespace vmod17 {

/// The program on a desktop: the real platform, and the program on top of it. A QApplication must
/// exist before it and outlive it.
class Desktop {
 public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Starts the program and serves it until it ends. Returns the exit status of the process: 0, or
  /// 1 after an error that nothing in the program could deal with. Where the user is at work with
  /// it already, brings that process to the front and returns 0 at once; `kStatusNotShown` where
  /// that process does not answer, and the user does not want it ended.
  int Run();
  /// Gives back what the program holds, after `Run`. False where the sound hangs: then a thread
  /// stands in a driver, and the process must end without the end handlers of the libraries.
  bool End();
  /// Ends the program from any state, as its user would: a run is left and its record saved.
  void Leave();
  /// The last resort for an error that left its handler, to which the loop hands it: logs it, tells
  /// it and ends the program with status 1.
  void RunTimeReport(const std::exception_ptr& error);

 private:
  void Tell(const Notice& notice);
  StoreOptions HostOptions();
  Platform MakePlatform();
  XmlDocumentFactory MakeDocuments();
  std::optional<int> StatusWithoutStart();
  bool ReturnToHost();
  void TakeOutputFromEnvironment();
  void TakeSoundfont();
  void AfterEvent();
  void SpeakAsTheLanguage();
  void TellOfLanguages();
  std::string Say(const Notice& notice);

  QtEventLoop loop_;
  QtSystem system_;
  UniformRandom random_;
  QtLanguageList languages_;
  Theme theme_;
  ChordPictures pictures_;
  QtView view_{loop_, pictures_};
  FrontMatter front_{[this] { return view_.Window(); },
                     [this](const Notice& notice) { return Say(notice); }};
  PugiSettingsFiles settings_files_;
  QtPrinter printer_{loop_, pictures_, SystemPrintTargets(loop_)};
  std::unique_ptr<Notices> notices_;  // before those that tell, so that it goes after them
  std::unique_ptr<UnsavedRecords> unsaved_records_;
  std::unique_ptr<MidiDeviceOutput> output_;
  HostStore store_;
  std::unique_ptr<Program> program_;
  std::unique_ptr<SingleInstance> instance_;
  std::optional<Texts> early_texts_;  // of a message that stands before the program
  bool started_ = false;
  bool screen_was_shown_ = false;
  bool failed_ = false;
};

}  // namespace vmod17

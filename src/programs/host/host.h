// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "midi/midi_options.h"
#include "ports/event_loop.h"
#include "programs/host/fault_report.h"
#include "programs/host/module_process.h"
#include "programs/host/outputs.h"
#include "programs/host/sound_trial.h"
#include "programs/host/users.h"
#include "programs/shared/texts.h"
#include "qt/desk/qt_language.h"
#include "store/host_store.h"

namespace melvado {

/// What a host is made of; empty members stand for what is usual.
struct HostSetup {
  std::string store;  ///< see `ParseStoreAddress`
  int store_patience_ms = vmod17::StoreOptions().busy_timeout_ms;
  std::vector<std::filesystem::path> language_folders;
  std::vector<std::string> locales;  ///< what the desktop's user reads, best first
  std::string module;                ///< path of the program
  int time_to_start_ms = kTimeToStartMs;
  vmod17::MidiOptions sound;        ///< its soundfont is the one named from outside, or ""
  std::optional<std::string> midi;  ///< an output named from outside, taken over once
};

/// What the host knows and does, without a window: who learns, in which language, on which output,
/// and the module that runs. All members are called on the program's one thread.
///
/// What is chosen is stored at once. A store that cannot take it says so through `tell`, and the
/// choice holds as long as the host runs, also for the module. While another program holds the
/// store, the choice stays as it was.
class Host {
 public:
  /// `loop` outlives the host.
  Host(HostSetup setup, vmod17::EventLoop& loop);
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  /// The user should be told this. Notices from before it was set are told when it is.
  void SetTell(vmod17::Notify tell);
  /// What is shown has changed: outputs have come or gone.
  std::function<void()> changed;

  const vmod17::Texts& texts() const { return texts_; }

  // --- Who is learning
  /// Sorted; with who is chosen, even if somebody has taken him off the list meanwhile.
  std::vector<vmod17::StoreUser> Users();
  /// The number of who is chosen, "" for nobody.
  std::string ChosenUser();
  void ChooseUser(const std::string& id);
  /// Adds and chooses. Returns why it cannot be done; nothing when it is.
  std::optional<vmod17::Notice> AddUser(const vmod17::StoreUser& typed);
  /// Changes the names of the user with this number. Returns why it cannot be done.
  std::optional<vmod17::Notice> ChangeUser(const vmod17::StoreUser& typed);
  void RemoveUser(const std::string& id);

  // --- Language
  std::vector<std::string> Languages() const;
  std::string Language() const { return language_; }
  void ChooseLanguage(const std::string& name);

  // --- Sound
  const OutputChoice& outputs() const { return outputs_; }
  /// A test that runs ends without a verdict.
  ///
  /// `name`  of an output, "" for the synthesiser
  void ChooseOutput(const std::string& name);
  /// Looks whether a device has come or gone. Cheap.
  void RefreshOutputs();
  /// The chosen soundfont, "" for the system's.
  std::string Soundfont();
  bool SoundfontIsThere();
  /// Named from outside, which goes before any choice.
  bool SoundfontIsNamed() const { return !setup_.sound.soundfont.empty(); }
  /// Takes a soundfont that can be loaded, or ""; a test that runs ends then. Returns why another
  /// one is not taken.
  std::optional<vmod17::Notice> ChooseSoundfont(const std::string& path);
  void TestSound(std::function<void()> done);
  bool TestRuns() const { return test_.runs(); }
  const std::optional<Verdict>& verdict() const { return verdict_; }

  // --- The module
  std::function<void()> on_module_shown;
  /// The module has given control back; `on_module_end` follows when its process has ended.
  std::function<void()> on_module_back;
  std::function<void(const ModuleEnd&)> on_module_end;
  void StartModule();
  /// What the module is given of the choices.
  std::string Session() { return store_.Session(); }
  bool ModuleRuns() const { return module_.runs(); }
  /// See `ModuleProcess::starts`.
  bool ModuleStarts() const { return module_.starts(); }
  bool ModuleIsShown() const { return module_.is_shown(); }
  qint64 module_process() const { return module_.process_id(); }
  /// See `ModuleProcess::leaving`.
  int ModulesThatLeave() const { return module_.leaving(); }
  /// Ends the module that does not answer.
  void EndModule(int time_to_save_ms = kTimeToSaveMs) { module_.EndSilent(time_to_save_ms); }
  /// False when there is none to be brought, or it does not answer in some seconds.
  bool BringModuleToFront();

  // --- Backups
  /// Whether what is stored lies in a file of this machine, which alone can be restored here.
  bool KeepsAFile() const;
  /// The folder of that file.
  std::string StoreFolder() const;
  /// Puts a backup in the place of what is stored, if it is fit for that and `agree` says so to the
  /// question of it. Returns what is to be said of it; nothing when it was not agreed to.
  std::optional<vmod17::Notice> RestoreBackup(
      const std::string& path, const std::function<bool(const vmod17::Notice&)>& agree);

  // --- The log
  /// Logs an error of the host itself.
  void LogError(const std::string& place, int number, const std::string& text,
                const std::string& source);
  /// The whole of it, some 10,000 lines; see `StoreOptions::log_limit_bytes`.
  std::vector<vmod17::LogEntry> Log();
  std::string Report();

 private:
  vmod17::StoreOptions HostStoreOptions();
  void TellLater(const vmod17::Notice& notice);
  void PostUntold();
  std::optional<vmod17::Notice> Store(const std::function<void()>& work);
  void Choose(const std::function<void()>& work);
  void SpeakLanguage();
  void ModuleIsBack();
  void ModuleEnded(const ModuleEnd& end);
  FaultFacts Facts();

  HostSetup setup_;
  vmod17::EventLoop& loop_;
  std::shared_ptr<int> alive_ = std::make_shared<int>(0);
  vmod17::Notify tell_;
  std::vector<vmod17::Notice> untold_;
  vmod17::QtLanguageList languages_;
  vmod17::Texts texts_;
  std::string language_;
  std::shared_ptr<vmod17::MidiPorts> ports_;
  vmod17::HostStore store_;
  OutputChoice outputs_;
  SoundTest test_;
  std::optional<Verdict> verdict_;
  ModuleProcess module_;
};

}  // namespace melvado

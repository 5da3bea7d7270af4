// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/host.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSysInfo>
#include <algorithm>
#include <limits>
#include <utility>

#include "base/text_ids.h"
#include "midi/midi_ports.h"
#include "midi/soundfonts.h"
#include "programs/shared/places.h"
#include "programs/shared/version.h"
#include "qt/desk/single_instance.h"
#include "store/store_address.h"
#include "store/store_backup.h"
#include "store/store_notices.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::EventLoop;
using vmod17::ExistingSoundfonts;
using vmod17::HostStore;
using vmod17::kVersionMajor;
using vmod17::kVersionMinor;
using vmod17::kVersionRevision;
using vmod17::LanguageColumn;
using vmod17::LoadsAsSoundfont;
using vmod17::LockedStoreNotice;
using vmod17::LogEntry;
using vmod17::MakeSystemMidiPorts;
using vmod17::ModuleKey;
using vmod17::Notice;
using vmod17::Notify;
using vmod17::ParseStoreAddress;
using vmod17::RunTimeError;
using vmod17::SingleInstance;
using vmod17::StoreAddress;
using vmod17::StoreBackup;
using vmod17::StoreInUseNotice;
using vmod17::StoreOptions;
using vmod17::StoreUser;
using vmod17::TaggedValue;
using vmod17::Texts;

constexpr const char* kFirstLanguage = "Deutsch";

std::string Version() {
  return std::to_string(kVersionMajor) + '.' + std::to_string(kVersionMinor) + '.' +
         std::to_string(kVersionRevision);
}

HostSetup Completed(HostSetup setup) {
  // One connection to the system's ports serves the list and the tests.
  if (!setup.sound.ports) setup.sound.ports = MakeSystemMidiPorts();
  return setup;
}

}  // namespace

Host::Host(HostSetup setup, EventLoop& loop)
    : setup_(Completed(std::move(setup))),
      loop_(loop),
      languages_(setup_.language_folders),
      texts_(languages_),
      ports_(setup_.sound.ports),
      store_(HostStoreOptions()),
      test_(setup_.sound, loop) {
  module_.on_shown = [this] {
    if (on_module_shown) on_module_shown();
  };
  module_.on_back = [this] { ModuleIsBack(); };
  module_.on_end = [this](const ModuleEnd& end) { ModuleEnded(end); };
  ports_->Prepare();
  if (setup_.midi) {
    Choose([this] { store_.SetMidiDevice(*setup_.midi); });
  }
  SpeakLanguage();
  RefreshOutputs();
  TaggedValue slot;
  store_.Service()->Action("LOGMESS", "melvado " + Version(), slot);
  for (const Notice& notice : languages_.Notices()) TellLater(notice);
}

Host::~Host() = default;

StoreOptions Host::HostStoreOptions() {
  StoreOptions options;
  options.address = setup_.store;
  options.busy_timeout_ms = setup_.store_patience_ms;
  options.users_at_start = true;
  options.desktop_language = [this] { return languages_.BestFor(setup_.locales); };
  options.language_installed = [this](const std::string& name) {
    const std::vector<std::string> names = Languages();
    return std::ranges::find(names, name) != names.end();
  };
  options.notify = [this](const Notice& notice) { TellLater(notice); };
  return options;
}

void Host::SetTell(Notify tell) {
  tell_ = std::move(tell);
  PostUntold();
}

void Host::PostUntold() {
  if (!tell_) return;
  loop_.Post([this, alive = std::weak_ptr(alive_)] {
    if (alive.expired()) return;
    for (const Notice& notice : std::exchange(untold_, {})) tell_(notice);
  });
}

void Host::TellLater(const Notice& notice) {
  // Whoever is told shows a message, which must not come in the middle of what is being done.
  untold_.push_back(notice);
  PostUntold();
}

/// Returns that the store is locked, in place of the store's own word, which comes once only.
std::optional<Notice> Host::Store(const std::function<void()>& work) {
  const std::size_t before = untold_.size();
  try {
    work();
    return std::nullopt;
  } catch (const RunTimeError&) {
    untold_.erase(untold_.begin() + static_cast<std::ptrdiff_t>(before), untold_.end());
    return LockedStoreNotice(ParseStoreAddress(setup_.store).Display());
  }
}

void Host::Choose(const std::function<void()>& work) {
  if (const auto trouble = Store(work)) TellLater(*trouble);
}

// --- Who is learning

std::vector<StoreUser> Host::Users() {
  std::vector<StoreUser> users = store_.Users();
  const std::optional<StoreUser> chosen = store_.User();
  const auto is_chosen = [&](const StoreUser& user) { return user.id == chosen->id; };
  if (chosen && std::ranges::none_of(users, is_chosen)) users.push_back(*chosen);
  Sort(users, texts_.locale());
  return users;
}

std::string Host::ChosenUser() {
  const std::optional<StoreUser> user = store_.User();
  return user ? user->id : "";
}

void Host::ChooseUser(const std::string& id) {
  StoreUser chosen;
  for (const StoreUser& user : Users()) {
    if (user.id == id) chosen = user;
  }
  Choose([&] { store_.SetUser(chosen); });
}

std::optional<Notice> Host::AddUser(const StoreUser& typed) {
  const StoreUser user = Cleaned(typed);
  if (const auto fault = FaultOf(user)) return fault;
  bool added = true;
  const auto trouble = Store([&] { added = store_.SaveUser(user, HostStore::UserIs::kNew); });
  if (trouble) return trouble;
  if (!added) return NumberTakenNotice(user.id);
  ChooseUser(user.id);
  return std::nullopt;
}

std::optional<Notice> Host::ChangeUser(const StoreUser& typed) {
  const StoreUser user = Cleaned(typed);
  if (const auto fault = FaultOf(user)) return fault;
  return Store([&] { store_.SaveUser(user, HostStore::UserIs::kKnown); });
}

void Host::RemoveUser(const std::string& id) {
  Choose([&] { store_.RemoveUser(id); });
}

// --- Language

std::vector<std::string> Host::Languages() const {
  std::vector<std::string> names;
  for (const LanguageColumn& column : languages_.Table()) names.push_back(column[1]);
  return names;
}

/// The language that the module will be answered.
void Host::SpeakLanguage() {
  TaggedValue name = kFirstLanguage;
  store_.Service()->Action("LANG", "", name);
  language_ = name.String();
  texts_.Speak(language_);
}

void Host::ChooseLanguage(const std::string& name) {
  Choose([&] { store_.SetLanguage(name); });
  SpeakLanguage();
}

// --- Sound

void Host::ChooseOutput(const std::string& name) {
  test_.Stop();  // its verdict would be taken for that on the new output
  Choose([&] { store_.SetMidiDevice(name); });
  verdict_.reset();
  RefreshOutputs();
}

void Host::RefreshOutputs() {
  OutputChoice now = ListOutputs(ports_->Names(), store_.MidiDevice());
  if (now == outputs_) return;
  outputs_ = std::move(now);
  if (changed) changed();
}

std::string Host::Soundfont() {
  return SoundfontIsNamed() ? setup_.sound.soundfont : store_.Soundfont();
}

bool Host::SoundfontIsThere() {
  const std::string path = Soundfont();
  return path.empty() || !ExistingSoundfonts({path}).empty();
}

std::optional<Notice> Host::ChooseSoundfont(const std::string& path) {
  if (!path.empty() && !LoadsAsSoundfont(path)) {
    return Notice{text_id::kNotASoundfont,
                  "The file %1 is no soundfont that can be played, or it is damaged. The soundfont "
                  "stays as it was.",
                  {path}};
  }
  if (const auto trouble = Store([&] { store_.SetSoundfont(path); })) return trouble;
  test_.Stop();
  verdict_.reset();
  return std::nullopt;
}

void Host::TestSound(std::function<void()> done) {
  verdict_.reset();
  const auto end = [this, done = std::move(done)](const Verdict& verdict) {
    verdict_ = verdict;
    done();
  };
  const Output& chosen = outputs_.outputs[static_cast<std::size_t>(outputs_.chosen)];
  test_.Start(chosen.name, Soundfont(), end);
}

// --- The module

void Host::StartModule() {
  if (module_.runs()) return;
  test_.Stop();  // a sound card may serve one program at a time
  module_.Start(QString::fromStdString(setup_.module), QString::fromStdString(setup_.store),
                QString::fromStdString(Session()), setup_.time_to_start_ms);
}

bool Host::BringModuleToFront() {
  return SingleInstance::BringToFront(ModuleKey(setup_.store, ChosenUser()));
}

void Host::ModuleIsBack() {
  RefreshOutputs();
  if (on_module_back) on_module_back();
}

/// What the module could not log any more is logged for it.
void Host::ModuleEnded(const ModuleEnd& end) {
  std::string what;
  if (end.kind == ModuleEnd::Kind::kNotStarted) {
    what = setup_.module + " could not be started: " + end.reason.toStdString();
  } else if (end.crashed) {
    what = "vmod17 was ended by signal " + std::to_string(end.code);
  } else if (end.kind == ModuleEnd::Kind::kEnded) {
    what = "vmod17 did not answer, and its user had it ended";
  } else if (end.kind == ModuleEnd::Kind::kHung) {
    what = "vmod17 had given control back, but its process stayed and was killed";
  } else if (end.kind == ModuleEnd::Kind::kBroken) {
    what = "vmod17 ended without a word, with status " + std::to_string(end.code);
  }
  if (!what.empty()) LogError("Host.ModuleEnded", end.code, what, "melvado");
  store_.LookForTheRest();
  RefreshOutputs();
  if (on_module_end) on_module_end(end);
}

// --- Backups

bool Host::KeepsAFile() const {
  return ParseStoreAddress(setup_.store).kind == StoreAddress::Kind::kFile;
}

std::string Host::StoreFolder() const {
  return QFileInfo(ParseStoreAddress(setup_.store).path).absolutePath().toStdString();
}

std::optional<Notice> Host::RestoreBackup(const std::string& path,
                                          const std::function<bool(const Notice&)>& agree) {
  const StoreAddress address = ParseStoreAddress(setup_.store);
  if (module_.runs()) return StoreInUseNotice(address.Display());
  StoreBackup backup(QString::fromStdString(path), address.path);
  if (auto refusal = backup.Prepare()) return refusal;
  const std::string changed_on =
      texts_.locale()
          .toString(QFileInfo(QString::fromStdString(path)).lastModified(), QLocale::ShortFormat)
          .toStdString();
  const Notice question{
      text_id::kRestoreBackupQuestion,
      "Put the backup %1 (last changed: %2) in the place of %3? Users, settings, trainings and the "
      "log are those of the backup then. What is stored now is kept under another name.",
      {path, changed_on, address.Display()}};
  if (!agree(question)) return std::nullopt;
  if (auto refusal = store_.Restore(backup)) return refusal;
  const std::string aside = backup.aside().toStdString();
  TaggedValue slot;
  store_.Service()->Action("LOGMESS", "restored " + path + ", before: " + aside, slot);
  test_.Stop();
  verdict_.reset();
  SpeakLanguage();
  RefreshOutputs();
  return Notice{text_id::kBackupRestored,
                "The backup %1 has been restored. What was stored before has been kept under the "
                "name %2.",
                {path, aside}};
}

// --- The log

void Host::LogError(const std::string& place, int number, const std::string& text,
                    const std::string& source) {
  TaggedValue slot;
  store_.Service()->Action("LOGERR", TaggedValue::Array{place, number, text, source}, slot);
}

std::vector<LogEntry> Host::Log() { return store_.Log(std::numeric_limits<int>::max()); }

FaultFacts Host::Facts() {
  FaultFacts facts;
  facts.version = Version();
  facts.system = QSysInfo::prettyProductName().toStdString() + ", " +
                 QSysInfo::kernelType().toStdString() + ' ' +
                 QSysInfo::kernelVersion().toStdString() + ", " +
                 QSysInfo::currentCpuArchitecture().toStdString() + ", Qt " + qVersion() + " on " +
                 QGuiApplication::platformName().toStdString();
  facts.language = language_;
  facts.home = QDir::homePath().toStdString();
  facts.store = ParseStoreAddress(setup_.store).Display();
  const Output& chosen = outputs_.outputs[static_cast<std::size_t>(outputs_.chosen)];
  facts.output = chosen.name.empty() ? "built-in synthesiser" : chosen.name;
  if (!chosen.is_there) facts.output += " (not connected)";
  const std::string soundfont = Soundfont();
  facts.soundfont = soundfont.empty() ? "the system's" : soundfont;
  if (!SoundfontIsThere()) facts.soundfont += " (missing)";
  if (verdict_) {
    Texts english(languages_);
    for (const Notice& notice : verdict_->words) {
      facts.verdict += (facts.verdict.empty() ? "" : " ") + english.Say(notice).toStdString();
    }
  }
  return facts;
}

std::string Host::Report() { return FaultReport(Facts(), Log()); }

}  // namespace melvado

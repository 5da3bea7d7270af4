// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/module/desktop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <chrono>
#include <exception>
#include <future>
#include <utility>

#include "base/text_ids.h"
#include "programs/shared/places.h"
#include "programs/shared/version.h"
#include "qt/desk/raise_window.h"
#include "store/store_address.h"
#include "xml/pugi_document.h"

namespace vmod17 {
namespace {

// Until a window that is shown has been painted too: the desktop is asked first.
constexpr int kTimeToPaintMs = 100;
// For a sound card that is given back in order. One that hangs is left to the end of the process.
constexpr std::chrono::milliseconds kTimeToLetGo{2000};

ProgramIdentity Identity() {
  return {QFileInfo(QCoreApplication::applicationFilePath()).baseName().toStdString(),
          kVersionMajor, kVersionMinor, kVersionRevision};
}

/// A view of the installed languages as the list that the text lookup makes for itself.
class SharedLanguages : public LanguageList {
 public:
  explicit SharedLanguages(const LanguageList& list) : list_(list) {}
  std::vector<LanguageColumn> Table() const override { return list_.Table(); }
  std::unique_ptr<Language> Create(const std::string& class_name) const override {
    return list_.Create(class_name);
  }

 private:
  const LanguageList& list_;
};

}  // namespace

Desktop::Desktop()
    : languages_(LanguageFolders()),
      output_(MakeMidiOutput(MidiOptions(), loop_, [this](const Notice& notice) { Tell(notice); })),
      store_(HostOptions()),
      program_(std::make_unique<Program>(MakePlatform(), Identity())) {
  notices_ = std::make_unique<Notices>(
      loop_, front_.messages, [this](const Notice& notice) { return Say(notice); },
      [this] { return program_->Quiet(); });
  unsaved_records_ = std::make_unique<UnsavedRecords>(*notices_, front_.messages, front_.dialog,
                                                      program_->texts());
  loop_.after_event = [this] { AfterEvent(); };
  loop_.on_error = [this](const std::exception_ptr& error) { RunTimeReport(error); };
  view_.on_help = [this](const std::string& form_name) {
    front_.ShowHelp(form_name, program_->texts().Gebietsschema());
  };
  front_.messages.before = [this] { view_.Refresh(); };
  program_->OnEnd = [this] {
    unsaved_records_->Offer();
    loop_.Quit();
  };
}

Desktop::~Desktop() { End(); }

bool Desktop::End() {
  if (!output_) return true;
  unsaved_records_.reset();
  notices_.reset();
  program_.reset();
  return LetGo(std::move(output_)).wait_for(kTimeToLetGo) == std::future_status::ready;
}

void Desktop::Tell(const Notice& notice) {
  if (notices_) notices_->Tell(notice);
}

int Desktop::Run() {
  if (const auto status = StatusWithoutStart()) return *status;
  loop_.Deliver([this] {
    TakeOutputFromEnvironment();
    TakeSoundfont();
    started_ = true;
    program_->Start();
  });
  loop_.Run();
  return failed_ ? 1 : 0;
}

void Desktop::Leave() {
  loop_.Deliver([this] {
    unsaved_records_->SaveUnasked();
    program_->Leave();
  });
  // Also where no screen stands: before the first one, or over a question after the last.
  loop_.Quit();
}

std::optional<int> Desktop::StatusWithoutStart() {
  const std::string address = system_.Environment(kStoreVariable).value_or("");
  const std::optional<StoreUser> user = store_.User();
  instance_ = std::make_unique<SingleInstance>(ModuleKey(address, user ? user->id : ""));
  instance_->come_to_front = [this] { RaiseWindow(view_.Window()); };
  const Notice question{
      text_id::kExerciseSilentQuestion,
      "The exercise is open already, but does not answer. If it is only busy, wait for it. Do you "
      "want to end it and start it again? What has not been stored there may be lost.",
      {}};
  const SingleInstance::Claimed claimed = front_.Claim(*instance_, question);
  if (system_.Environment(kHostVariable)) {
    if (claimed == SingleInstance::Claimed::kAnswered) SayToHost(ModuleLine::kOpen);
    if (claimed == SingleInstance::Claimed::kSilent) SayToHost(ModuleLine::kMenu);
  }
  return FrontMatter::StatusWithoutStart(claimed);
}

/// Before the program has started, in the language that its first screen will take.
std::string Desktop::Say(const Notice& notice) {
  if (started_) return program_->texts().Words(notice);
  if (!early_texts_) early_texts_.emplace(languages_).SpeakAs(*store_.Service());
  return early_texts_->Say(notice).toStdString();
}

bool Desktop::ReturnToHost() {
  instance_->Release();
  if (!system_.Environment(kHostVariable)) return false;
  SayToHost(ModuleLine::kMenu);
  return true;
}

StoreOptions Desktop::HostOptions() {
  StoreOptions options;
  options.address = system_.Environment(kStoreVariable).value_or("");
  options.session = system_.Environment(kSessionVariable).value_or("");
  options.desktop_language = [this] { return languages_.DesktopLanguage(); };
  options.language_installed = [this](const std::string& name) {
    const auto table = languages_.Table();
    return std::any_of(table.begin(), table.end(),
                       [&](const LanguageColumn& column) { return column[1] == name; });
  };
  options.midi_number = [this](const std::string& name) { return output_->NumberOf(name); };
  options.menue = [this] { return ReturnToHost(); };
  options.notify = [this](const Notice& notice) { Tell(notice); };
  options.clock = [this] { return loop_.Now(); };
  return options;
}

Platform Desktop::MakePlatform() {
  return {loop_,
          system_,
          front_.messages,
          view_,
          *output_,
          random_,
          front_.dialog,
          settings_files_,
          printer_,
          [this] { return store_.Service(); },
          [this] { return std::make_unique<SharedLanguages>(languages_); },
          MakeDocuments()};
}

/// Each run begins a document, and is told of its own troubles.
XmlDocumentFactory Desktop::MakeDocuments() {
  XmlDocumentFactory make = PugiDocumentFactory(
      UserDataFolder(), [this](const Notice& notice) { Tell(notice); },
      [this](std::shared_ptr<UnsavedRecord> record) {
        if (unsaved_records_) unsaved_records_->Keep(std::move(record));
      });
  return [this, make = std::move(make)] {
    store_.TellAnew();
    return make();
  };
}

/// The output is remembered by the host. The variable sets it from outside, by a part of its name;
/// an empty one goes back to the built-in synthesiser.
void Desktop::TakeOutputFromEnvironment() {
  const auto name = system_.Environment(kOutputVariable);
  if (!name) return;
  try {
    store_.SetMidiDevice(*name);
  } catch (const RunTimeError&) {
    // The store has told by itself what is wrong with it.
  }
}

/// What is named from outside goes before what was chosen in the host.
void Desktop::TakeSoundfont() {
  const auto named = system_.Environment(kSoundfontVariable);
  output_->UseSoundfont(named ? *named : store_.Soundfont());
}

void Desktop::AfterEvent() {
  view_.Refresh();
  if (screen_was_shown_) return;
  const GrdEinst* first = program_->grd_einst();
  if (first == nullptr || !first->visible) return;
  screen_was_shown_ = true;
  if (system_.Environment(kHostVariable)) SayToHost(ModuleLine::kShown);
  SpeakAsTheLanguage();
  // What takes time begins once the user has something to look at.
  loop_.Post([this] {
    output_->BeginLoading();
    loop_.StartTimer(kTimeToPaintMs, EventLoop::Repeat::kOnce, FrontMatter::TakeIcon);
    TellOfLanguages();
  });
}

/// Numbers and dates are written as in the language of the texts, whatever the desktop speaks.
void Desktop::SpeakAsTheLanguage() {
  const std::string& name = program_->texts().Gebietsschema();
  if (!name.empty()) QLocale::setDefault(QLocale(QString::fromStdString(name)));
}

void Desktop::TellOfLanguages() {
  for (const Notice& notice : languages_.Notices()) Tell(notice);
  if (program_->texts().Sprachtext(text_id::kColon) == TextLookup::kOhneWort) {
    Tell({text_id::kNoWordsFound,
          "No words were found for the language of this program, which is why its texts "
          "read \"VOID\". Install the program again, or start it in another language.",
          {}});
  }
}

void Desktop::RunTimeReport(const std::exception_ptr& error) {
  if (std::exchange(failed_, true)) return;  // the report itself failed
  const RunTimeError what = AsRunTimeError(error);
  try {
    program_->errors().LogFehler(what, "run_time", ErrorReport::Zeigen::kNein);
  } catch (const std::exception&) {
    // The message below is what is left.
  }
  const Notice ends{text_id::kProgramEndsWithError,
                    "The program has met an error that it cannot deal with, and ends.",
                    {}};
  front_.messages.Warn(Say(ends) + "\n\n" + what.what() + " (" + std::to_string(what.number()) +
                           ", " + what.source() + ")",
                       "Melvado");
  try {
    program_->Leave();
  } catch (const std::exception&) {
  }
  loop_.Quit();
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QApplication>
#include <QLocale>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>
#include <utility>

#include "base/text_ids.h"
#include "programs/host/home_window.h"
#include "programs/shared/end_on_signal.h"
#include "programs/shared/front_matter.h"
#include "programs/shared/places.h"
#include "programs/shared/texts.h"
#include "qt/desk/application_setup.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/desk/qt_system.h"
#include "qt/kit/theme.h"
#include "shell/error_report.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::AsRunTimeError;
using vmod17::EndOnSignal;
using vmod17::FrontMatter;
using vmod17::HostKey;
using vmod17::HostStore;
using vmod17::kOutputVariable;
using vmod17::kSoundfontVariable;
using vmod17::kStoreVariable;
using vmod17::LanguageFolders;
using vmod17::Notice;
using vmod17::QtEventLoop;
using vmod17::QtLanguageList;
using vmod17::QtSystem;
using vmod17::RunTimeError;
using vmod17::SingleInstance;
using vmod17::StoreOptions;
using vmod17::Texts;
using vmod17::Theme;

HostSetup SetupOfThisMachine() {
  const QtSystem system;
  HostSetup setup;
  setup.store = system.Environment(kStoreVariable).value_or("");
  setup.language_folders = LanguageFolders();
  for (const QString& locale : QLocale::system().uiLanguages()) {
    setup.locales.push_back(locale.toStdString());
  }
  setup.module = QCoreApplication::applicationDirPath().toStdString() + "/vmod17";
  setup.sound.soundfont = system.Environment(kSoundfontVariable).value_or("");
  setup.midi = system.Environment(kOutputVariable);
  return setup;
}

/// The texts in the language that the host will speak, for what is said before it stands.
class EarlyTexts {
 public:
  explicit EarlyTexts(const HostSetup& setup) : languages_(setup.language_folders) {
    StoreOptions options;
    options.address = setup.store;
    options.busy_timeout_ms = kPatienceMs;
    options.server_patience_ms = kPatienceMs;
    options.desktop_language = [this, &setup] { return languages_.BestFor(setup.locales); };
    texts_.SpeakAs(*HostStore(std::move(options)).Service());
  }
  const Texts& texts() const { return texts_; }

 private:
  // The process that is silent may hold the store, and wait for the server as this one would.
  static constexpr int kPatienceMs = 500;

  const QtLanguageList languages_;
  Texts texts_{languages_};
};

int Run() {
  const Theme theme;
  QtEventLoop loop;
  const EndOnSignal end_on_signal([&loop] { loop.Quit(); });
  HostSetup setup = SetupOfThisMachine();
  std::unique_ptr<Host> host;
  std::optional<EarlyTexts> early_texts;
  const auto texts = [&]() -> const Texts& {
    if (host) return host->texts();
    if (!early_texts) early_texts.emplace(setup);
    return early_texts->texts();
  };
  QPointer<QWidget> in_front;
  FrontMatter front([&in_front] { return in_front.data(); },
                    [&texts](const Notice& notice) { return texts().Say(notice).toStdString(); });

  SingleInstance instance(HostKey(setup.store));
  const Notice question{
      text_id::kHostSilentQuestion,
      "Melvado is open already, but does not answer. If it is only busy, wait for it. Do you want "
      "to end it and start it again? What has not been stored there may be lost.",
      {}};
  const SingleInstance::Claimed claimed = front.Claim(instance, question);
  if (const auto status = FrontMatter::StatusWithoutStart(claimed)) return *status;

  host = std::make_unique<Host>(std::move(setup), loop);
  loop.on_error = [&](const std::exception_ptr& error) {
    const RunTimeError what = AsRunTimeError(error);
    host->LogError("run_time", what.number(), what.what(), what.source());
    front.Warn({text_id::kUnexpectedError,
                "An error has occurred that the program did not expect (%1). It is in the log; you "
                "can go on. Please send the fault report from the log.",
                {what.what()}});
  };
  HomeWindow window(*host, loop, front.messages, front.dialog);
  in_front = &window;
  window.on_help = [&](const std::string& page) {
    front.ShowHelp(page, host->texts().locale().name().toStdString());
  };
  window.on_module_shown = [&front] { front.HideHelp(); };
  window.on_quit = [&loop] { loop.Quit(); };
  instance.come_to_front = [&window] { window.ComeToFront(); };
  window.Open();
  // Once the user has something to look at.
  QTimer::singleShot(0, &window, [&] {
    FrontMatter::TakeIcon();
    host->SetTell([&front](const Notice& notice) { front.Warn(notice); });
  });
  loop.Run();
  return 0;
}

}  // namespace
}  // namespace melvado

int main(int argc, char* argv[]) {
  const auto application = vmod17::MakeApplication(argc, argv);
  return melvado::Run();
}

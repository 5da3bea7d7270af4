// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTimer>
#include <memory>
#include <optional>
#include <utility>

#include "programs/host/home_window.h"
#include "programs/shared/end_on_signal.h"
#include "programs/shared/places.h"
#include "qt/desk/application_setup.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/desk/qt_file_dialog.h"
#include "qt/desk/qt_message_box.h"
#include "qt/desk/qt_system.h"
#include "qt/desk/single_instance.h"
#include "qt/kit/help_window.h"
#include "qt/kit/theme.h"
#include "shell/error_report.h"

namespace melvado {
namespace {

using vmod17::AsRunTimeError;
using vmod17::ClaimOrAsk;
using vmod17::EndOnSignal;
using vmod17::HelpFolders;
using vmod17::HelpWindow;
using vmod17::HostKey;
using vmod17::HostStore;
using vmod17::kStatusNotShown;
using vmod17::LanguageFolders;
using vmod17::Notice;
using vmod17::QtEventLoop;
using vmod17::QtFileDialog;
using vmod17::QtLanguageList;
using vmod17::QtMessageBox;
using vmod17::QtSystem;
using vmod17::RunTimeError;
using vmod17::SingleInstance;
using vmod17::StoreOptions;
using vmod17::TaggedValue;
using vmod17::Theme;

HostSetup SetupOfThisMachine() {
  const QtSystem system;
  HostSetup setup;
  setup.store = system.Environment("MELVADO_STORE").value_or("");
  setup.language_folders = LanguageFolders();
  for (const QString& locale : QLocale::system().uiLanguages()) {
    setup.locales.push_back(locale.toStdString());
  }
  setup.module = QCoreApplication::applicationDirPath().toStdString() + "/vmod17";
  setup.sound.soundfont = system.Environment("MELVADO_SOUNDFONT").value_or("");
  setup.midi = system.Environment("MELVADO_MIDI");
  return setup;
}

/// Made when it is first asked for: most starts need none.
void ShowHelp(std::unique_ptr<HelpWindow>& help, QWidget& window, const Host& host,
              const std::string& page) {
  if (!help) {
    help = std::make_unique<HelpWindow>(HelpFolders());
    help->owner = [&window] { return &window; };
    help->words = [&host] {
      const HelpWindow::Words english;
      const auto word = [&host](int id, const std::string& text) {
        return host.texts().Say(id, text.c_str()).toStdString();
      };
      return HelpWindow::Words{word(9421, english.title),    word(9391, english.contents),
                               word(9392, english.back),     word(9393, english.forward),
                               word(9394, english.missing),  word(9631, english.english_only),
                               word(9634, english.too_large)};
    };
  }
  help->Show(page, host.texts().locale().name().toStdString());
}

/// The words in which the host would speak, had it started.
class EarlyWords {
 public:
  explicit EarlyWords(const HostSetup& setup) : languages_(setup.language_folders) {
    StoreOptions options;
    options.address = setup.store;
    options.busy_timeout_ms = kEarlyPatienceMs;
    options.server_patience_ms = kEarlyPatienceMs;
    options.desktop_language = [this, &setup] { return languages_.BestFor(setup.locales); };
    TaggedValue name;
    try {
      HostStore(std::move(options)).Service()->Action("LANG", "", name);
      texts_.Speak(name.String());
    } catch (const RunTimeError&) {
      // English, then.
    }
  }
  const Texts& texts() const { return texts_; }

 private:
  // The process that is silent may hold the store, and wait for the server as this one would.
  static constexpr int kEarlyPatienceMs = 500;

  const QtLanguageList languages_;
  Texts texts_{languages_};
};

QtMessageBox::Words ButtonsIn(const Texts& texts) {
  return {texts.Say(432, "OK").toStdString(), texts.Say(9001, "Yes").toStdString(),
          texts.Say(9002, "No").toStdString()};
}

/// Two hosts of a store would hide what the other has chosen.
SingleInstance::Claimed ClaimFor(const HostSetup& setup, SingleInstance& instance) {
  std::optional<EarlyWords> early;
  const auto texts = [&]() -> const Texts& {
    if (!early) early.emplace(setup);
    return early->texts();
  };
  QtMessageBox messages(nullptr);
  messages.words = [&] { return ButtonsIn(texts()); };
  const Notice question{
      9257,
      "Melvado is open already, but does not answer. If it is only busy, wait for it. Do you want "
      "to end it and start it again? What has not been stored there may be lost.",
      {}};
  return ClaimOrAsk(instance, messages, question,
                    [&](const Notice& notice) { return texts().Say(notice).toStdString(); });
}

int Run() {
  const Theme theme;
  QtEventLoop loop;
  const EndOnSignal end_on_signal([&loop] { loop.Quit(); });
  HostSetup setup = SetupOfThisMachine();
  SingleInstance instance(HostKey(setup.store));
  switch (ClaimFor(setup, instance)) {
    case SingleInstance::Claimed::kFirst:
      break;
    case SingleInstance::Claimed::kAnswered:
      return 0;
    case SingleInstance::Claimed::kSilent:
      return kStatusNotShown;
  }

  QWidget* front = nullptr;
  QtMessageBox messages([&front] { return front; });
  QtFileDialog dialog([&front] { return front; });
  Host host(std::move(setup), loop);
  messages.words = [&host] { return ButtonsIn(host.texts()); };
  loop.on_error = [&](const std::exception_ptr& error) {
    const RunTimeError what = AsRunTimeError(error);
    host.LogError("run_time", what.number(), what.what(), what.source());
    const QString said = QString::fromStdString(what.what());
    messages.Warn(host.texts()
                      .Say(9467,
                           "An error has occurred that the program did not expect (%1). It is in "
                           "the log; you can go on. Please send the fault report from the log.",
                           {said})
                      .toStdString(),
                  "Melvado");
  };
  HomeWindow window(host, loop, messages, dialog);
  front = &window;
  std::unique_ptr<HelpWindow> help;
  window.on_help = [&](const std::string& page) { ShowHelp(help, window, host, page); };
  window.on_module_shown = [&help] {
    if (help) help->hide();
  };
  window.on_quit = [&loop] { loop.Quit(); };
  instance.come_to_front = [&window] { window.ComeToFront(); };
  window.Open();
  // Once the user has something to look at.
  QTimer::singleShot(0, &window, [&] {
    QApplication::setWindowIcon(QIcon(":/melvado.svg"));
    host.SetTell([&](const Notice& notice) {
      messages.Warn(host.texts().Say(notice).toStdString(), "Melvado");
    });
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

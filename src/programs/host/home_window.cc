// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/home_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "base/text_ids.h"
#include "base/usual_words.h"
#include "programs/host/log_window.h"
#include "programs/host/user_dialog.h"
#include "programs/shared/version.h"
#include "qt/desk/raise_window.h"
#include "qt/kit/help_window.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::DropDownWidget;
using vmod17::FileDialog;
using vmod17::HelpWindow;
using vmod17::kVersionMajor;
using vmod17::kVersionMinor;
using vmod17::kVersionRevision;
using vmod17::MessageBox;
using vmod17::Notice;
using vmod17::PressWidget;
using vmod17::QtEventLoop;
using vmod17::StoreUser;
using vmod17::Texts;
using vmod17::TextWidget;

constexpr int kPollMs = 1500;

/// The toolkit tells of each name that is set, also of the one that it has.
void Name(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

template <typename Widget>
void SetWords(Widget& widget, const QString& text) {
  widget.SetCaption(text);
  Name(widget, text);
}

QString FileName(const std::string& path) {
  return QFileInfo(QString::fromStdString(path)).fileName();
}

}  // namespace

HomeWindow::HomeWindow(Host& host, QtEventLoop& loop, MessageBox& messages, FileDialog& dialog)
    : host_(host),
      loop_(loop),
      messages_(messages),
      dialog_(dialog),
      poll_(std::make_unique<QTimer>()) {
  setObjectName("melvado_home");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(HomePage::LeastSize());
  page_.version->SetCaption(
      QString("Melvado %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
  // The person who looks after a server restores it there.
  page_.restore->setVisible(host_.KeepsAFile());
  ConnectWidgets();
  ConnectHost();
  Refresh();
  qApp->installEventFilter(this);
}

HomeWindow::~HomeWindow() {
  host_.changed = nullptr;
  host_.on_module_shown = nullptr;
  host_.on_module_back = nullptr;
  host_.on_module_end = nullptr;
}

// --- Connecting

void HomeWindow::On(PressWidget& button, std::function<void()> act) {
  connect(&button, &QAbstractButton::clicked, this, [this, act = std::move(act)] { Act(act); });
}

void HomeWindow::On(DropDownWidget& list, std::function<void(int)> choose) {
  connect(&list, &QComboBox::currentIndexChanged, this,
          [this, choose = std::move(choose)](int index) {
            if (!filling_ && index >= 0) Act([&] { choose(index); });
          });
}

void HomeWindow::ConnectWidgets() {
  On(*page_.user, [this](int index) {
    host_.ChooseUser(index == 0 ? "" : users_[static_cast<std::size_t>(index - 1)].id);
  });
  On(*page_.add_user, [this] { AskForUser(false); });
  On(*page_.change_user, [this] { AskForUser(true); });
  On(*page_.remove_user, [this] { RemoveUser(); });
  On(*page_.language, [this](int index) {
    host_.ChooseLanguage(host_.Languages()[static_cast<std::size_t>(index)]);
  });
  On(*page_.output, [this](int index) {
    host_.ChooseOutput(host_.outputs().outputs[static_cast<std::size_t>(index)].name);
  });
  On(*page_.test, [this] { Test(); });
  On(*page_.soundfont, [this] { ChooseSoundfont(); });
  On(*page_.usual_soundfont, [this] { TakeSoundfont(""); });
  On(*page_.start, [this] { Start(); });
  On(*page_.help, [this] {
    if (on_help) on_help("melvado");
  });
  On(*page_.log, [this] { ShowLog(); });
  On(*page_.restore, [this] { RestoreBackup(); });
  On(*page_.quit, [this] { close(); });
}

void HomeWindow::ConnectHost() {
  host_.changed = [this] { Refresh(); };
  host_.on_module_shown = [this] { GiveWay(); };
  host_.on_module_back = [this] { loop_.Deliver([this] { Return(); }); };
  host_.on_module_end = [this](const ModuleEnd& end) {
    loop_.Deliver([this, end] { ModuleEnded(end); });
  };
  poll_->setInterval(kPollMs);
  connect(poll_.get(), &QTimer::timeout, this, [this] {
    if (isVisible()) loop_.Deliver([this] { host_.RefreshOutputs(); });
  });
}

// --- Showing

void HomeWindow::Act(const std::function<void()>& action) {
  loop_.Deliver([this, &action] {
    action();
    Refresh();
  });
}

void HomeWindow::Refresh() {
  narrator_.Begin(host_.TestRuns());
  const bool output_noted = !page_.output_note->caption().isEmpty();
  const bool verdict_known = verdict_is_good_.has_value();
  filling_ = true;
  ShowWords();
  ShowUsers();
  ShowLanguages();
  ShowOutputs();
  ShowSoundfont();
  ShowVerdict();
  ShowStart();
  filling_ = false;
  // What happens away from the focus.
  std::vector<std::string> said;
  const auto say = [&](const TextWidget& line) { said.push_back(line.caption().toStdString()); };
  if (!output_noted) say(*page_.output_note);
  if (!verdict_known && verdict_is_good_) say(*page_.verdict);
  narrator_.End(said);
}

void HomeWindow::ShowWords() {
  const Texts& texts = host_.texts();
  setWindowTitle("Melvado");
  SetWords(*page_.title, "Melvado");
  SetWords(*page_.subtitle, texts.Say(text_id::kEarTraining, "Ear training"));
  SetWords(*page_.user_heading, texts.Say(text_id::kWhoIsPractising, "Who is practising?"));
  SetWords(*page_.add_user, texts.Say(text_id::kAdd, "Add…"));
  SetWords(*page_.change_user, texts.Say(text_id::kChange, "Change…"));
  SetWords(*page_.remove_user, texts.Say(text_id::kRemove, "Remove…"));
  SetWords(*page_.language_heading, texts.Say(text_id::kLanguage, "Language"));
  SetWords(*page_.output_heading, texts.Say(text_id::kSoundOutput, "Sound output"));
  SetWords(*page_.test, texts.Say(text_id::kTestTheSound, "Test the sound"));
  SetWords(*page_.soundfont, texts.Say(text_id::kChooseSoundfontButton, "Choose a soundfont…"));
  SetWords(*page_.usual_soundfont, texts.Say(text_id::kSystemSoundfont, "Soundfont of the system"));
  SetWords(*page_.log, texts.Say(text_id::kLog, "Log"));
  SetWords(*page_.restore, texts.Say(text_id::kRestoreBackup, "Restore a backup…"));
  SetWords(*page_.quit, texts.Say(text_id::kQuitHost, "Quit"));
  SetWords(*page_.help, texts.Say(vmod17::kHelpWord));
  Name(*page_.user, page_.user_heading->caption());
  Name(*page_.language, page_.language_heading->caption());
  Name(*page_.output, page_.output_heading->caption());
}

void HomeWindow::ShowUsers() {
  users_ = host_.Users();
  const std::string chosen = host_.ChosenUser();
  QStringList entries{host_.texts().Say(text_id::kNobody, "Nobody (without a name)")};
  int index = 0;
  for (const StoreUser& user : users_) {
    if (user.id == chosen) index = static_cast<int>(entries.size());
    entries << Shown(user);
  }
  page_.Fill(*page_.user, entries, index);
  page_.change_user->setEnabled(index > 0);
  page_.remove_user->setEnabled(index > 0);
  // Who has just been added or changed is told where the focus went.
  page_.start->setAccessibleDescription(page_.user_heading->caption() + " " + entries[index]);
}

void HomeWindow::ShowLanguages() {
  const std::vector<std::string> names = host_.Languages();
  const auto found = std::ranges::find(names, host_.Language());
  QStringList entries;
  for (const std::string& name : names) entries << QString::fromStdString(name);
  page_.Fill(*page_.language, entries,
             found == names.end() ? -1 : static_cast<int>(found - names.begin()));
}

void HomeWindow::ShowOutputs() {
  const Texts& texts = host_.texts();
  const OutputChoice& choice = host_.outputs();
  QStringList entries;
  for (const Output& output : choice.outputs) {
    const QString name = QString::fromStdString(output.name);
    if (name.isEmpty()) {
      entries << texts.Say(text_id::kBuiltInSynthesiser, "Built-in synthesiser");
    } else {
      entries << (output.is_there
                      ? name
                      : texts.Say(text_id::kOutputNotConnected, "%1 (not connected)", {name}));
    }
  }
  page_.Fill(*page_.output, entries, choice.chosen);
  const Output& chosen = choice.outputs[static_cast<std::size_t>(choice.chosen)];
  const QString note =
      chosen.is_there
          ? QString()
          : texts.Say(text_id::kSynthesiserPlaysInstead,
                      "%1 is not connected. The built-in synthesiser plays in its place.",
                      {QString::fromStdString(chosen.name)});
  SetWords(*page_.output_note, note);
  page_.output->setAccessibleDescription(note);
}

void HomeWindow::ShowSoundfont() {
  const Texts& texts = host_.texts();
  const std::string path = host_.Soundfont();
  QString note;
  if (path.empty()) {
    note = texts.Say(text_id::kSystemSoundfontPlays, "The soundfont of the system plays.");
  } else if (host_.SoundfontIsThere()) {
    note = texts.Say(text_id::kSoundfontOf, "Soundfont: %1", {FileName(path)});
  } else {
    note = texts.Say(text_id::kChosenSoundfontMissing,
                     "The soundfont %1 is missing. That of the system plays in its place.",
                     {FileName(path)});
  }
  SetWords(*page_.soundfont_note, note);
  page_.soundfont->setAccessibleDescription(note);
  page_.soundfont->setEnabled(!host_.SoundfontIsNamed() && !host_.TestRuns());
  page_.usual_soundfont->setEnabled(!host_.SoundfontIsNamed() && !path.empty() &&
                                    !host_.TestRuns());
}

void HomeWindow::ShowVerdict() {
  const Texts& texts = host_.texts();
  QString text;
  verdict_is_good_.reset();
  if (host_.TestRuns()) {
    text = texts.Say(text_id::kChordIsPlaying, "A chord is being played…");
  } else if (const auto& verdict = host_.verdict()) {
    for (const Notice& notice : verdict->words) {
      text += (text.isEmpty() ? "" : " ") + texts.Say(notice);
    }
    verdict_is_good_ = verdict->left_the_program;
  } else {
    text = texts.Say(text_id::kWhatSoundTestDoes,
                     "The sound test plays a chord and tells what became of it.");
  }
  update();
  SetWords(*page_.verdict, text);
  // It stays where the focus is, and says what became of the test.
  page_.test->setEnabled(true);
  page_.test->setDown(host_.TestRuns());
  page_.test->setAccessibleDescription(text);
}

void HomeWindow::ShowStart() {
  const bool runs = host_.ModuleRuns();
  SetWords(*page_.start, runs ? host_.texts().Say(text_id::kStarting, "Starting…")
                              : host_.texts().Say(text_id::kModuleTitle, "Jazz-Akkorde bestimmen"));
  page_.start->setDown(runs);
  for (QWidget* widget : std::initializer_list<QWidget*>{page_.user, page_.add_user, page_.language,
                                                         page_.output, page_.restore}) {
    widget->setEnabled(!runs);
  }
  if (!runs) return;
  for (QWidget* widget :
       {page_.change_user, page_.remove_user, page_.test, page_.soundfont, page_.usual_soundfont}) {
    widget->setEnabled(false);
  }
}

void HomeWindow::Open() {
  if (!std::exchange(was_open_, true)) {
    // Where nothing manages windows, none is maximised either.
    if (const QScreen* display = screen()) setGeometry(display->availableGeometry());
    setWindowState(Qt::WindowMaximized);
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  activateWindow();
  page_.start->setFocus(Qt::OtherFocusReason);
  poll_->start();
}

/// The module's window stands.
void HomeWindow::GiveWay() {
  if (log_) log_->hide();
  hide();
  if (on_module_shown) on_module_shown();
}

void HomeWindow::ComeToFront() {
  const bool asks = host_.ModuleRuns() && !host_.ModuleStarts() && !asks_to_end_;
  if (asks && host_.BringModuleToFront()) {
    if (host_.ModuleIsShown()) GiveWay();
    return;
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  vmod17::RaiseWindow(this);
  if (!asks) return;
  asks_to_end_ = true;
  QTimer::singleShot(0, this, [this] {
    AskToEndModule();
    asks_to_end_ = false;
  });
}

void HomeWindow::AskToEndModule() {
  if (!host_.ModuleRuns()) return;
  const QString question = host_.texts().Say(
      text_id::kEndSilentExerciseQuestion,
      "The exercise does not answer. If it is only busy, wait for it. Do you want to end it? What "
      "has not been stored there may be lost.");
  if (messages_.Ask(question.toStdString(), "Melvado", MessageBox::Answer::kNo) ==
      MessageBox::Answer::kYes) {
    host_.EndModule();
  }
}

// --- Doing

void HomeWindow::AskForUser(bool known) {
  StoreUser user;
  if (known) {
    const std::string chosen = host_.ChosenUser();
    for (const StoreUser& one : users_) {
      if (one.id == chosen) user = one;
    }
  }
  UserDialog dialog(this, host_.texts(), user, [this, known](const StoreUser& typed) {
    return known ? host_.ChangeUser(typed) : host_.AddUser(typed);
  });
  const bool taken = dialog.exec() == QDialog::Accepted;
  activateWindow();
  if (taken) page_.start->setFocus(Qt::OtherFocusReason);
}

void HomeWindow::RemoveUser() {
  const std::string chosen = host_.ChosenUser();
  for (const StoreUser& user : users_) {
    if (user.id != chosen) continue;
    const QString question =
        host_.texts().Say(text_id::kRemoveUserQuestion,
                          "Remove %1 from the list? The stored trainings are kept: whoever is "
                          "added with this number again goes on with them.",
                          {Shown(user)});
    if (messages_.Ask(question.toStdString(), "Melvado", MessageBox::Answer::kNo) ==
        MessageBox::Answer::kYes) {
      host_.RemoveUser(user.id);
      page_.user->setFocus(Qt::OtherFocusReason);
    }
    return;
  }
}

void HomeWindow::ChooseSoundfont() {
  // The kinds of soundfonts, as the name filter writes several.
  constexpr const char* kEndings = "sf2 *.sf3 *.SF2 *.SF3";
  const QString title = host_.texts().Say(text_id::kChooseSoundfont, "Choose a soundfont");
  const std::optional<std::string> path = dialog_.AskToOpen(title.toStdString(), kEndings, "");
  if (path) TakeSoundfont(*path);
}

void HomeWindow::TakeSoundfont(const std::string& path) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const std::optional<Notice> fault = host_.ChooseSoundfont(path);
  QGuiApplication::restoreOverrideCursor();
  // The other button of the two is locked where the soundfont of the system plays.
  page_.soundfont->setFocus(Qt::OtherFocusReason);
  if (fault) messages_.Warn(host_.texts().Say(*fault).toStdString(), "Melvado");
}

void HomeWindow::Test() {
  if (host_.TestRuns()) return;
  host_.TestSound([this] { Refresh(); });
}

void HomeWindow::Start() {
  if (host_.ModuleRuns()) return;
  host_.StartModule();
}

/// The user is here again.
void HomeWindow::Return() {
  if (asks_to_end_) messages_.Withdraw();
  Refresh();
  if (!isVisible()) Open();
  page_.start->setFocus(Qt::OtherFocusReason);
}

void HomeWindow::ModuleEnded(const ModuleEnd& end) {
  // The user may be at work in the next one. What was wrong with this one is in the log.
  if (host_.ModuleRuns()) return;
  const Texts& texts = host_.texts();
  switch (end.kind) {
    case ModuleEnd::Kind::kMenu:
    case ModuleEnd::Kind::kHung:
      return;  // the user has been here since the module gave control back
    case ModuleEnd::Kind::kEnded:
      return Return();
    case ModuleEnd::Kind::kOpenBefore:
      Return();
      messages_.Warn(
          texts
              .Say(text_id::kExerciseIsOpen,
                   "The exercise is open already. After OK its window comes to the front.")
              .toStdString(),
          "Melvado");
      // It has come once, but the message and this window have covered it.
      host_.BringModuleToFront();
      return;
    case ModuleEnd::Kind::kNotStarted:
      Return();
      return messages_.Warn(
          texts
              .Say(text_id::kExerciseNotStarted,
                   "The exercise could not be started (%1). Install the program again; if that "
                   "does not help, send the fault report from the log.",
                   {end.reason})
              .toStdString(),
          "Melvado");
    case ModuleEnd::Kind::kBroken:
      Return();
      break;
  }
  const QString question =
      texts.Say(text_id::kExerciseEndedUnexpectedly,
                "The exercise has ended unexpectedly. What was stored before is still there. Do "
                "you want to see the end of the log?");
  if (messages_.Ask(question.toStdString(), "Melvado", MessageBox::Answer::kYes) ==
      MessageBox::Answer::kYes)
    ShowLog();
}

void HomeWindow::ShowLog() {
  if (!log_) log_ = std::make_unique<LogWindow>(host_, loop_, this);
  log_->Open(page_.style.factor);
}

void HomeWindow::RestoreBackup() {
  const Texts& texts = host_.texts();
  // Whoever made a backup named it; what was put aside has its date for an extension.
  constexpr const char* kAnyExtension = "*";
  const std::optional<std::string> path =
      dialog_.AskToOpen(texts.Say(text_id::kChooseBackup, "Choose a backup").toStdString(),
                        kAnyExtension, host_.StoreFolder());
  if (!path) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const std::optional<Notice> outcome = host_.RestoreBackup(*path, [&](const Notice& question) {
    QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    const MessageBox::Answer answer =
        messages_.Ask(texts.Say(question).toStdString(), "Melvado", MessageBox::Answer::kNo);
    QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
    return answer == MessageBox::Answer::kYes;
  });
  QGuiApplication::restoreOverrideCursor();
  if (!outcome) return;
  Refresh();  // behind the message stands already what was restored
  messages_.Warn(texts.Say(*outcome).toStdString(), "Melvado");
}

// --- Events and painting

void HomeWindow::resizeEvent(QResizeEvent*) { page_.Arrange(); }

void HomeWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  page_.Paint(painter, verdict_is_good_);
}

/// From every window but the help's, which knows by itself what was asked for.
bool HomeWindow::AskHelp(const QWidget& asked, const QKeyEvent& key) {
  const QWidget* const window = asked.window();
  if (key.key() != Qt::Key_F1 || !on_help) return false;
  if (dynamic_cast<const HelpWindow*>(window) != nullptr) return false;
  const char* page = "melvado";
  if (dynamic_cast<const UserDialog*>(QApplication::activeModalWidget()) != nullptr) {
    page = "user";
  } else if (log_ && window == log_.get()) {
    page = "log";
  }
  if (!key.isAutoRepeat()) on_help(page);
  return true;
}

void HomeWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (on_quit) on_quit();
}

void HomeWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->isAutoRepeat()) return;
  if (enter) {
    Act([this] { Start(); });
  } else if (event->matches(QKeySequence::Quit)) {
    close();
  } else {
    event->ignore();
  }
}

bool HomeWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress;
  if (key && watched->isWidgetType() &&
      AskHelp(static_cast<const QWidget&>(*watched), static_cast<const QKeyEvent&>(*event))) {
    return true;
  }
  if (!key && event->type() != QEvent::MouseButtonPress) return false;
  if (page_.style.keyboard != key) {
    page_.style.keyboard = key;
    if (QWidget* focus = focusWidget()) focus->update();
  }
  // Where no window manager passes the focus around, keys can reach a window that has none.
  if (key && QApplication::activeWindow() == nullptr && isVisible()) activateWindow();
  return false;
}

}  // namespace melvado

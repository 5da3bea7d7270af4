// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/home_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "base/usual_words.h"
#include "programs/host/log_window.h"
#include "programs/host/user_dialog.h"
#include "programs/shared/version.h"
#include "qt/desk/raise_window.h"
#include "qt/kit/help_window.h"
#include "qt/kit/look.h"
#include "qt/kit/signs.h"
#include "qt/kit/window_factor.h"

namespace melvado {
namespace {

namespace look = vmod17::look;
using vmod17::Align;
using vmod17::Dress;
using vmod17::Dressed;
using vmod17::DropDownWidget;
using vmod17::FileDialog;
using vmod17::HelpWindow;
using vmod17::kVersionMajor;
using vmod17::kVersionMinor;
using vmod17::kVersionRevision;
using vmod17::MessageBox;
using vmod17::Notice;
using vmod17::Placement;
using vmod17::PressWidget;
using vmod17::QtEventLoop;
using vmod17::Rect;
using vmod17::StoreUser;
using vmod17::Texts;
using vmod17::TextWidget;

// All lengths in units, counted from the upper left corner of the canvas.
constexpr QSizeF kCanvas{1024, 700};
constexpr double kLeft = 72;
constexpr double kWidth = 880;
constexpr double kGap = 20;
constexpr double kColumn = (kWidth - kGap) / 2;
constexpr double kRight = kLeft + kColumn + kGap;
constexpr double kPadding = 24;
constexpr double kField = kColumn - 2 * kPadding;
constexpr Rect kBanner{kLeft, 14, kWidth, 112};
constexpr Rect kUserCard{kLeft, 142, kColumn, 272};
constexpr Rect kSoundCard{kRight, 142, kColumn, 272};
constexpr Rect kVerdictCard{kLeft, 428, kWidth, 108};
constexpr Rect kStart{kLeft, 552, kWidth, 78};
constexpr double kFooter = 646;
constexpr double kSmallest = 0.85;  // pixels of a unit in the smallest window
constexpr double kWidestEntry = 560;

constexpr int kPollMs = 1500;

Placement ButtonPlace(const Rect& rect, double text = 15) {
  return {.rect = rect, .text = text, .align = Align::kCenter};
}

/// The toolkit tells of each name that is set, also of the one that it has.
void Name(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void SetWords(QWidget& widget, Dressed& dress, const QString& text) {
  dress.SetCaption(text);
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
  setMinimumSize((kCanvas * kSmallest).toSize());
  title_ = Make<TextWidget>(
      "title",
      {.rect = {kLeft + 36, 30, 560, 44}, .dress = Dress::kOnBanner, .text = 32, .bold = true});
  subtitle_ = Make<TextWidget>(
      "subtitle", {.rect = {kLeft + 36, 76, 560, 30}, .dress = Dress::kOnBanner, .text = 17});
  BuildUsers();
  BuildSound();
  start_ = MakeButton(
      "start",
      {.rect = kStart, .dress = Dress::kPrimary, .text = 26, .align = Align::kCenter, .bold = true},
      [this] { Start(); });
  BuildFooter();
  OrderTabs();
  Connect();
  Refresh();
  qApp->installEventFilter(this);
}

HomeWindow::~HomeWindow() {
  host_.changed = nullptr;
  host_.on_module_shown = nullptr;
  host_.on_module_back = nullptr;
  host_.on_module_end = nullptr;
}

// --- Building

template <typename Widget>
Widget* HomeWindow::Make(const char* name, const Placement& place) {
  auto* const widget = new Widget(this, style_, place);
  widget->setObjectName(name);
  parts_.push_back({widget, widget, place.rect});
  return widget;
}

PressWidget* HomeWindow::MakeButton(const char* name, const Placement& place,
                                    std::function<void()> act) {
  auto* const button = Make<PressWidget>(name, place);
  connect(button, &QAbstractButton::clicked, this, [this, act = std::move(act)] { Act(act); });
  return button;
}

DropDownWidget* HomeWindow::MakeList(const char* name, const Rect& rect,
                                     std::function<void(int)> choose) {
  auto* const list = Make<DropDownWidget>(name, {.rect = rect, .text = 16});
  connect(list, &QComboBox::currentIndexChanged, this,
          [this, choose = std::move(choose)](int index) {
            if (!filling_ && index >= 0) Act([&] { choose(index); });
          });
  return list;
}

TextWidget* HomeWindow::MakeHeading(const char* name, const Rect& rect) {
  return Make<TextWidget>(name, {.rect = rect, .dress = Dress::kHeading, .text = 17, .bold = true});
}

void HomeWindow::BuildUsers() {
  const double x = kUserCard.left + kPadding;
  const double y = kUserCard.top + 16;
  user_heading_ = MakeHeading("user_heading", {x, y, kField, 28});
  user_ = MakeList("user", {x, y + 34, kField, 40}, [this](int index) {
    host_.ChooseUser(index == 0 ? "" : users_[static_cast<std::size_t>(index - 1)].id);
  });
  const double third = (kField - 2 * 10) / 3;
  add_user_ =
      MakeButton("add_user", ButtonPlace({x, y + 86, third, 38}), [this] { AskForUser(false); });
  change_user_ = MakeButton("change_user", ButtonPlace({x + third + 10, y + 86, third, 38}),
                            [this] { AskForUser(true); });
  remove_user_ = MakeButton("remove_user", ButtonPlace({x + 2 * (third + 10), y + 86, third, 38}),
                            [this] { RemoveUser(); });
  language_heading_ = MakeHeading("language_heading", {x, y + 158, kField, 28});
  language_ = MakeList("language", {x, y + 192, kField, 40}, [this](int index) {
    host_.ChooseLanguage(host_.Languages()[static_cast<std::size_t>(index)]);
  });
}

void HomeWindow::BuildSound() {
  const double x = kSoundCard.left + kPadding;
  const double y = kSoundCard.top + 16;
  const double half = (kField - 10) / 2;
  output_heading_ = MakeHeading("output_heading", {x, y, kField, 28});
  output_ = MakeList("output", {x, y + 34, kField, 40}, [this](int index) {
    host_.ChooseOutput(host_.outputs().outputs[static_cast<std::size_t>(index)].name);
  });
  output_note_ = Make<TextWidget>(
      "output_note", {.rect = {x, y + 78, kField, 44}, .dress = Dress::kHint, .text = 14});
  test_ = MakeButton("test", ButtonPlace({x, y + 128, kField, 42}, 16), [this] { Test(); });
  soundfont_ = MakeButton("soundfont", ButtonPlace({x, y + 180, half, 36}, 14),
                          [this] { ChooseSoundfont(); });
  usual_soundfont_ =
      MakeButton("usual_soundfont", ButtonPlace({x + half + 10, y + 180, half, 36}, 14),
                 [this] { TakeSoundfont(""); });
  soundfont_note_ = Make<TextWidget>(
      "soundfont_note", {.rect = {x, y + 218, kField, 30}, .dress = Dress::kQuiet, .text = 13});
  verdict_ = Make<TextWidget>(
      "verdict", {.rect = kVerdictCard.Adjusted(kPadding, 8, -kPadding, -10), .text = 16});
}

void HomeWindow::BuildFooter() {
  const auto quiet = [](double x, double width) {
    return Placement{.rect = {x, kFooter, width, 40},
                     .dress = Dress::kQuiet,
                     .text = 15,
                     .align = Align::kCenter};
  };
  help_ = MakeButton("help", quiet(kLeft, 150), [this] {
    if (on_help) on_help("melvado");
  });
  log_button_ = MakeButton("log", quiet(kLeft + 162, 150), [this] { ShowLog(); });
  restore_ = MakeButton("restore", quiet(kLeft + 324, 240), [this] { RestoreBackup(); });
  // The person who looks after a server restores it there.
  restore_->setVisible(host_.KeepsAFile());
  quit_ = MakeButton("quit", quiet(kLeft + kWidth - 150, 150), [this] { close(); });
  version_ = Make<TextWidget>("version", {.rect = {kLeft + 576, kFooter + 4, 142, 32},
                                          .dress = Dress::kQuiet,
                                          .text = 13,
                                          .align = Align::kCenter});
  version_->SetCaption(
      QString("Melvado %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
}

/// From the button that most users need only, then down the columns.
void HomeWindow::OrderTabs() {
  const QList<QWidget*> order = {start_,    user_,       add_user_, change_user_, remove_user_,
                                 language_, output_,     test_,     soundfont_,   usual_soundfont_,
                                 help_,     log_button_, restore_,  quit_};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void HomeWindow::Connect() {
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
  const bool output_noted = !output_note_->caption().isEmpty();
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
  if (!output_noted) say(*output_note_);
  if (!verdict_known && verdict_is_good_) say(*verdict_);
  narrator_.End(said);
}

void HomeWindow::ShowWords() {
  const Texts& texts = host_.texts();
  setWindowTitle("Melvado");
  SetWords(*title_, *title_, "Melvado");
  SetWords(*subtitle_, *subtitle_, texts.Say(9401, "Ear training"));
  SetWords(*user_heading_, *user_heading_, texts.Say(9402, "Who is practising?"));
  SetWords(*add_user_, *add_user_, texts.Say(9404, "Add…"));
  SetWords(*change_user_, *change_user_, texts.Say(9405, "Change…"));
  SetWords(*remove_user_, *remove_user_, texts.Say(9406, "Remove…"));
  SetWords(*language_heading_, *language_heading_, texts.Say(9407, "Language"));
  SetWords(*output_heading_, *output_heading_, texts.Say(9408, "Sound output"));
  SetWords(*test_, *test_, texts.Say(9411, "Test the sound"));
  SetWords(*soundfont_, *soundfont_, texts.Say(9412, "Choose a soundfont…"));
  SetWords(*usual_soundfont_, *usual_soundfont_, texts.Say(9413, "Soundfont of the system"));
  SetWords(*log_button_, *log_button_, texts.Say(9419, "Log"));
  SetWords(*restore_, *restore_, texts.Say(9208, "Restore a backup…"));
  SetWords(*quit_, *quit_, texts.Say(9420, "Quit"));
  SetWords(*help_, *help_, texts.Say(vmod17::kHelpWord));
  Name(*user_, user_heading_->caption());
  Name(*language_, language_heading_->caption());
  Name(*output_, output_heading_->caption());
}

void HomeWindow::Fill(DropDownWidget& list, const QStringList& entries, int chosen) {
  const QFontMetricsF metrics(look::Type(16, look::Weight::kNormal));
  QStringList shown;
  for (const QString& entry : entries) {
    shown << metrics.elidedText(entry, Qt::ElideRight, kWidestEntry);
  }
  QStringList present;
  for (int i = 0; i < list.count(); ++i) present << list.itemText(i);
  if (present != shown) {
    list.clear();
    list.addItems(shown);
  }
  if (list.currentIndex() != chosen) list.setCurrentIndex(chosen);
  // The closed list is narrower than the open one.
  list.SetCaption(metrics.elidedText(list.currentText(), Qt::ElideRight, kField - 40));
}

void HomeWindow::ShowUsers() {
  users_ = host_.Users();
  const std::string chosen = host_.ChosenUser();
  QStringList entries{host_.texts().Say(9403, "Nobody (without a name)")};
  int index = 0;
  for (const StoreUser& user : users_) {
    if (user.id == chosen) index = static_cast<int>(entries.size());
    entries << Shown(user);
  }
  Fill(*user_, entries, index);
  change_user_->setEnabled(index > 0);
  remove_user_->setEnabled(index > 0);
  // Who has just been added or changed is told where the focus went.
  start_->setAccessibleDescription(user_heading_->caption() + " " + entries[index]);
}

void HomeWindow::ShowLanguages() {
  const std::vector<std::string> names = host_.Languages();
  const auto found = std::ranges::find(names, host_.Language());
  QStringList entries;
  for (const std::string& name : names) entries << QString::fromStdString(name);
  Fill(*language_, entries, found == names.end() ? -1 : static_cast<int>(found - names.begin()));
}

void HomeWindow::ShowOutputs() {
  const Texts& texts = host_.texts();
  const OutputChoice& choice = host_.outputs();
  QStringList entries;
  for (const Output& output : choice.outputs) {
    const QString name = QString::fromStdString(output.name);
    if (name.isEmpty()) {
      entries << texts.Say(9409, "Built-in synthesiser");
    } else {
      entries << (output.is_there ? name : texts.Say(9410, "%1 (not connected)", {name}));
    }
  }
  Fill(*output_, entries, choice.chosen);
  const Output& chosen = choice.outputs[static_cast<std::size_t>(choice.chosen)];
  const QString note =
      chosen.is_there
          ? QString()
          : texts.Say(9416, "%1 is not connected. The built-in synthesiser plays in its place.",
                      {QString::fromStdString(chosen.name)});
  SetWords(*output_note_, *output_note_, note);
  output_->setAccessibleDescription(note);
}

void HomeWindow::ShowSoundfont() {
  const Texts& texts = host_.texts();
  const std::string path = host_.Soundfont();
  QString note;
  if (path.empty()) {
    note = texts.Say(9415, "The soundfont of the system plays.");
  } else if (host_.SoundfontIsThere()) {
    note = texts.Say(9414, "Soundfont: %1", {FileName(path)});
  } else {
    note = texts.Say(9430, "The soundfont %1 is missing. That of the system plays in its place.",
                     {FileName(path)});
  }
  SetWords(*soundfont_note_, *soundfont_note_, note);
  soundfont_->setAccessibleDescription(note);
  soundfont_->setEnabled(!host_.SoundfontIsNamed() && !host_.TestRuns());
  usual_soundfont_->setEnabled(!host_.SoundfontIsNamed() && !path.empty() && !host_.TestRuns());
}

void HomeWindow::ShowVerdict() {
  const Texts& texts = host_.texts();
  QString text;
  verdict_is_good_.reset();
  if (host_.TestRuns()) {
    text = texts.Say(9417, "A chord is being played…");
  } else if (const auto& verdict = host_.verdict()) {
    for (const Notice& notice : verdict->words) {
      text += (text.isEmpty() ? "" : " ") + texts.Say(notice);
    }
    verdict_is_good_ = verdict->left_the_program;
  } else {
    text = texts.Say(9418, "The sound test plays a chord and tells what became of it.");
  }
  update();
  SetWords(*verdict_, *verdict_, text);
  // It stays where the focus is, and says what became of the test.
  test_->setEnabled(true);
  test_->setDown(host_.TestRuns());
  test_->setAccessibleDescription(text);
}

void HomeWindow::ShowStart() {
  const bool runs = host_.ModuleRuns();
  SetWords(*start_, *start_,
           runs ? host_.texts().Say(9422, "Starting…")
                : host_.texts().Say(347, "Jazz-Akkorde bestimmen"));
  start_->setDown(runs);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{user_, add_user_, language_, output_, restore_}) {
    widget->setEnabled(!runs);
  }
  if (!runs) return;
  for (QWidget* widget : {change_user_, remove_user_, test_, soundfont_, usual_soundfont_}) {
    widget->setEnabled(false);
  }
}

std::vector<std::string> HomeWindow::CaptionsThatDoNotFit() {
  std::vector<std::string> names;
  for (const Part& part : parts_) {
    if (!part.dress->CaptionFits()) names.push_back(part.widget->objectName().toStdString());
  }
  return names;
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
  start_->setFocus(Qt::OtherFocusReason);
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
      9260,
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
  if (taken) start_->setFocus(Qt::OtherFocusReason);
}

void HomeWindow::RemoveUser() {
  const std::string chosen = host_.ChosenUser();
  for (const StoreUser& user : users_) {
    if (user.id != chosen) continue;
    const QString question =
        host_.texts().Say(9429,
                          "Remove %1 from the list? The stored trainings are kept: whoever is "
                          "added with this number again goes on with them.",
                          {Shown(user)});
    if (messages_.Ask(question.toStdString(), "Melvado", MessageBox::Answer::kNo) ==
        MessageBox::Answer::kYes) {
      host_.RemoveUser(user.id);
      user_->setFocus(Qt::OtherFocusReason);
    }
    return;
  }
}

void HomeWindow::ChooseSoundfont() {
  // The kinds of soundfonts, as the name filter writes several.
  constexpr const char* kEndings = "sf2 *.sf3 *.SF2 *.SF3";
  const QString title = host_.texts().Say(9437, "Choose a soundfont");
  const std::optional<std::string> path = dialog_.AskToOpen(title.toStdString(), kEndings, "");
  if (path) TakeSoundfont(*path);
}

void HomeWindow::TakeSoundfont(const std::string& path) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const std::optional<Notice> fault = host_.ChooseSoundfont(path);
  QGuiApplication::restoreOverrideCursor();
  // The other button of the two is locked where the soundfont of the system plays.
  soundfont_->setFocus(Qt::OtherFocusReason);
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
  start_->setFocus(Qt::OtherFocusReason);
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
          texts.Say(9452, "The exercise is open already. After OK its window comes to the front.")
              .toStdString(),
          "Melvado");
      // It has come once, but the message and this window have covered it.
      host_.BringModuleToFront();
      return;
    case ModuleEnd::Kind::kNotStarted:
      Return();
      return messages_.Warn(
          texts
              .Say(9453,
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
      texts.Say(9451,
                "The exercise has ended unexpectedly. What was stored before is still there. Do "
                "you want to see the end of the log?");
  if (messages_.Ask(question.toStdString(), "Melvado", MessageBox::Answer::kYes) ==
      MessageBox::Answer::kYes)
    ShowLog();
}

void HomeWindow::ShowLog() {
  if (!log_) log_ = std::make_unique<LogWindow>(host_, loop_, this);
  log_->Open(style_.factor);
}

void HomeWindow::RestoreBackup() {
  const Texts& texts = host_.texts();
  // Whoever made a backup named it; what was put aside has its date for an extension.
  constexpr const char* kAnyExtension = "*";
  const std::optional<std::string> path = dialog_.AskToOpen(
      texts.Say(9209, "Choose a backup").toStdString(), kAnyExtension, host_.StoreFolder());
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

QRectF HomeWindow::Canvas() const {
  const QSizeF size = kCanvas * style_.factor;
  return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
          size.height()};
}

QRectF HomeWindow::Pixels(const Rect& units) const {
  const double f = style_.factor;
  const QRectF place = look::ToQ(units);
  return QRectF(place.topLeft() * f + Canvas().topLeft(), place.size() * f);
}

void HomeWindow::Arrange() {
  style_.factor =
      std::max(kSmallest, std::min(width() / kCanvas.width(), height() / kCanvas.height()));
  for (const Part& part : parts_) {
    part.widget->setGeometry(Pixels(part.rect).toRect());
    part.widget->update();
  }
  vmod17::SetFactor(*this, style_.factor);
}

void HomeWindow::resizeEvent(QResizeEvent*) { Arrange(); }

void HomeWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const look::Palette& colors = style_.colors();
  painter.fillRect(rect(), colors.page);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = look::kCardRadius * style_.factor;
  const QRectF banner = Pixels(kBanner);
  QPainterPath path;
  path.addRoundedRect(banner, radius, radius);
  look::DrawBanner(painter, banner, path);
  const auto card = [&](const Rect& units, const QColor& fill) {
    look::DrawCard(painter, Pixels(units), colors, fill, style_.factor);
  };
  card(kUserCard, colors.card);
  card(kSoundCard, colors.card);
  card(kVerdictCard, !verdict_is_good_   ? colors.card
                     : *verdict_is_good_ ? colors.good
                                         : colors.bad);
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
  if (style_.keyboard != key) {
    style_.keyboard = key;
    if (QWidget* focus = focusWidget()) focus->update();
  }
  // Where no window manager passes the focus around, keys can reach a window that has none.
  if (key && QApplication::activeWindow() == nullptr && isVisible()) activateWindow();
  return false;
}

}  // namespace melvado

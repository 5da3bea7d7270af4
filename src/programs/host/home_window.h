// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ports/file_dialog.h"
#include "ports/message_box.h"
#include "programs/host/home_page.h"
#include "programs/host/host.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/kit/narrator.h"

class QTimer;

namespace melvado {

class LogWindow;

/// The place where a student starts: who learns, language, sound, and the button that opens the
/// exercise. It shows what the host says and hands on what the user does.
class HomeWindow : public QWidget {
 public:
  /// All outlive the window.
  HomeWindow(Host& host, vmod17::QtEventLoop& loop, vmod17::MessageBox& messages,
             vmod17::FileDialog& dialog);
  ~HomeWindow() override;

  /// Asked for by F1, also in a dialog, and by the button. `page` is that of the window in front:
  /// "melvado", "log" or "user".
  std::function<void(const std::string& page)> on_help;
  /// The module's first screen stands: nothing of the host is to stay on the desktop.
  std::function<void()> on_module_shown;
  /// The user wants to end the program.
  std::function<void()> on_quit;

  /// Shows the window with the focus on the button that leads on: at first as large as the screen,
  /// later as the user has left it.
  void Open();
  /// Brings whatever the user works with to the front: the exercise, or this window, also when the
  /// exercise does not answer.
  void ComeToFront();
  /// The names of captions that are larger than their places.
  std::vector<std::string> CaptionsThatDoNotFit() const { return page_.CaptionsThatDoNotFit(); }
  /// Pixels of a unit.
  double factor() const { return page_.style.factor; }
  LogWindow* log_window() const { return log_.get(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void On(vmod17::PressWidget& button, std::function<void()> act);
  void On(vmod17::DropDownWidget& list, std::function<void(int)> choose);
  void ConnectWidgets();
  void ConnectHost();

  void Refresh();
  void ShowWords();
  void ShowUsers();
  void ShowLanguages();
  void ShowOutputs();
  void ShowSoundfont();
  void ShowVerdict();
  void ShowStart();
  void Act(const std::function<void()>& action);

  void AskForUser(bool known);
  void RemoveUser();
  void ChooseSoundfont();
  void TakeSoundfont(const std::string& path);
  void Test();
  void Start();
  void Return();
  void GiveWay();
  void AskToEndModule();
  void ModuleEnded(const ModuleEnd& end);
  void ShowLog();
  void RestoreBackup();
  bool AskHelp(const QWidget& asked, const QKeyEvent& key);

  Host& host_;
  vmod17::QtEventLoop& loop_;
  vmod17::MessageBox& messages_;
  vmod17::FileDialog& dialog_;
  std::vector<vmod17::StoreUser> users_;
  std::unique_ptr<QTimer> poll_;
  std::unique_ptr<LogWindow> log_;
  vmod17::Narrator narrator_{*this};
  HomePage page_{*this};
  std::optional<bool> verdict_is_good_;  // none: no test has come to its end
  bool filling_ = false;                 // a list changes by the program, not by the user
  bool was_open_ = false;
  bool asks_to_end_ = false;  // a question whether to end the module stands
};

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRectF>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "ports/file_dialog.h"
#include "ports/message_box.h"
#include "programs/host/host.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/kit/narrator.h"
#include "qt/kit/picture_source.h"
#include "qt/kit/widgets.h"

class QTimer;

namespace vmod17 {

class LogWindow;

/// The place where a student starts: who learns, language, sound, and the button that opens the
/// exercise. It shows what the host says and hands on what the user does.
///
/// Its widgets have names: user, add_user, change_user, remove_user, language, output, test,
/// soundfont, usual_soundfont, verdict, start, help, log, restore, quit.
class HomeWindow : public QWidget {
 public:
  /// All outlive the window.
  HomeWindow(Host& host, QtEventLoop& loop, MessageBox& messages, FileDialog& dialog);
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
  std::vector<std::string> CaptionsThatDoNotFit();
  /// Pixels of a unit.
  double factor() const { return style_.factor; }
  LogWindow* log_window() const { return log_.get(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Part {
    QWidget* widget;
    Dressed* dress;
    QRectF rect;
  };

  template <typename Widget>
  Widget* Make(const char* name, const Placement& place);
  PressWidget* MakeButton(const char* name, const Placement& place, std::function<void()> act);
  DropDownWidget* MakeList(const char* name, const QRectF& rect, std::function<void(int)> choose);
  TextWidget* MakeHeading(const char* name, const QRectF& rect);
  void BuildUsers();
  void BuildSound();
  void BuildFooter();
  void OrderTabs();
  void Connect();

  void Arrange();
  QRectF Pixels(const QRectF& units) const;
  QRectF Canvas() const;

  void Refresh();
  void ShowWords();
  void ShowUsers();
  void ShowLanguages();
  void ShowOutputs();
  void ShowSoundfont();
  void ShowVerdict();
  void ShowStart();
  void Fill(DropDownWidget& list, const QStringList& entries, int chosen);
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
  QtEventLoop& loop_;
  MessageBox& messages_;
  FileDialog& dialog_;
  PictureSource pictures_;
  PageStyle style_{pictures_};
  std::vector<Part> parts_;
  std::vector<StoreUser> users_;
  std::unique_ptr<QTimer> poll_;
  std::unique_ptr<LogWindow> log_;
  Narrator narrator_{*this};
  std::optional<bool> verdict_is_good_;  // none: no test has come to its end
  bool filling_ = false;                 // a list changes by the program, not by the user
  bool was_open_ = false;
  bool asks_to_end_ = false;  // a question whether to end the module stands

  TextWidget* title_ = nullptr;
  TextWidget* subtitle_ = nullptr;
  TextWidget* user_heading_ = nullptr;
  DropDownWidget* user_ = nullptr;
  PressWidget* add_user_ = nullptr;
  PressWidget* change_user_ = nullptr;
  PressWidget* remove_user_ = nullptr;
  TextWidget* language_heading_ = nullptr;
  DropDownWidget* language_ = nullptr;
  TextWidget* output_heading_ = nullptr;
  DropDownWidget* output_ = nullptr;
  TextWidget* output_note_ = nullptr;
  PressWidget* test_ = nullptr;
  PressWidget* soundfont_ = nullptr;
  PressWidget* usual_soundfont_ = nullptr;
  TextWidget* soundfont_note_ = nullptr;
  TextWidget* verdict_ = nullptr;
  PressWidget* start_ = nullptr;
  PressWidget* help_ = nullptr;
  PressWidget* log_button_ = nullptr;
  PressWidget* restore_ = nullptr;
  PressWidget* quit_ = nullptr;
  TextWidget* version_ = nullptr;
};

}  // namespace vmod17

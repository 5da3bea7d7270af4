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
#include "qt/kit/drop_down_widget.h"
#include "qt/kit/narrator.h"
#include "qt/kit/press_widget.h"
#include "qt/kit/text_widget.h"

class QTimer;

namespace melvado {

class LogWindow;

/// The place where a student starts: who learns, language, sound, and the button that opens the
/// exercise. It shows what the host says and hands on what the user does.
///
/// Its widgets have names: user, add_user, change_user, remove_user, language, output, test,
/// soundfont, usual_soundfont, verdict, start, help, log, restore, quit.
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
    vmod17::Dressed* dress;
    vmod17::Rect rect;
  };

  template <typename Widget>
  Widget* Make(const char* name, const vmod17::Placement& place);
  vmod17::PressWidget* MakeButton(const char* name, const vmod17::Placement& place,
                                  std::function<void()> act);
  vmod17::DropDownWidget* MakeList(const char* name, const vmod17::Rect& rect,
                                   std::function<void(int)> choose);
  vmod17::TextWidget* MakeHeading(const char* name, const vmod17::Rect& rect);
  void BuildUsers();
  void BuildSound();
  void BuildFooter();
  void OrderTabs();
  void Connect();

  void Arrange();
  QRectF Pixels(const vmod17::Rect& units) const;
  QRectF Canvas() const;

  void Refresh();
  void ShowWords();
  void ShowUsers();
  void ShowLanguages();
  void ShowOutputs();
  void ShowSoundfont();
  void ShowVerdict();
  void ShowStart();
  void Fill(vmod17::DropDownWidget& list, const QStringList& entries, int chosen);
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
  vmod17::PageStyle style_;
  std::vector<Part> parts_;
  std::vector<vmod17::StoreUser> users_;
  std::unique_ptr<QTimer> poll_;
  std::unique_ptr<LogWindow> log_;
  vmod17::Narrator narrator_{*this};
  std::optional<bool> verdict_is_good_;  // none: no test has come to its end
  bool filling_ = false;                 // a list changes by the program, not by the user
  bool was_open_ = false;
  bool asks_to_end_ = false;  // a question whether to end the module stands

  vmod17::TextWidget* title_ = nullptr;
  vmod17::TextWidget* subtitle_ = nullptr;
  vmod17::TextWidget* user_heading_ = nullptr;
  vmod17::DropDownWidget* user_ = nullptr;
  vmod17::PressWidget* add_user_ = nullptr;
  vmod17::PressWidget* change_user_ = nullptr;
  vmod17::PressWidget* remove_user_ = nullptr;
  vmod17::TextWidget* language_heading_ = nullptr;
  vmod17::DropDownWidget* language_ = nullptr;
  vmod17::TextWidget* output_heading_ = nullptr;
  vmod17::DropDownWidget* output_ = nullptr;
  vmod17::TextWidget* output_note_ = nullptr;
  vmod17::PressWidget* test_ = nullptr;
  vmod17::PressWidget* soundfont_ = nullptr;
  vmod17::PressWidget* usual_soundfont_ = nullptr;
  vmod17::TextWidget* soundfont_note_ = nullptr;
  vmod17::TextWidget* verdict_ = nullptr;
  vmod17::PressWidget* start_ = nullptr;
  vmod17::PressWidget* help_ = nullptr;
  vmod17::PressWidget* log_button_ = nullptr;
  vmod17::PressWidget* restore_ = nullptr;
  vmod17::PressWidget* quit_ = nullptr;
  vmod17::TextWidget* version_ = nullptr;
};

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/qt_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QToolTip>
#include <algorithm>
#include <iterator>
#include <utility>

#include "qt/desk/qt_event_loop.h"
#include "qt/kit/look.h"
#include "qt/kit/narrator.h"
#include "qt/kit/window_factor.h"
#include "qt/view/page.h"

namespace vmod17 {
/// The window: a page in a view that scrolls only where the screen is smaller than the page.
class QtView::MainWindow : public QWidget {
 public:
  explicit MainWindow(QtView& view) : view_(view), scroll_(this), stage_(new QWidget) {
    setObjectName("melvado_window");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(480, 360);
    scroll_.setFrameShape(QFrame::NoFrame);
    scroll_.setFocusPolicy(Qt::NoFocus);
    scroll_.setWidget(stage_);
    qApp->installEventFilter(this);
  }

  QWidget* stage() { return stage_; }

  /// Gives the stage the room there is, or what the page needs at the least.
  void FitStage(const QSize& least) {
    scroll_.setGeometry(rect());
    stage_->resize(size().expandedTo(least));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(rect(), look::PresentColors().page);
  }
  void resizeEvent(QResizeEvent*) override { view_.Resized(); }
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    view_.CloseAsked();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (view_.page_ == nullptr || !view_.page_->HandleKey(*event)) event->ignore();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ContextMenu && AskMenuPast(watched, *event)) return true;
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        view_.AskHelp(static_cast<const QKeyEvent&>(*event))) {
      return true;
    }
    if (view_.page_ != nullptr) {
      if (event->type() == QEvent::KeyPress) view_.page_->SetKeyboard(true);
      if (event->type() == QEvent::MouseButtonPress) view_.page_->SetKeyboard(false);
    }
    // Where no window manager passes the focus around, keys can reach a window that has none.
    if (event->type() == QEvent::KeyPress && QApplication::activeWindow() == nullptr) {
      activateWindow();
    }
    return false;
  }

 private:
  /// A widget that is locked swallows the right mouse button; its frame has a menu all the same.
  bool AskMenuPast(QObject* watched, const QEvent& event) {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    Page* const page = view_.page_;
    if (widget == nullptr || page == nullptr || widget->isEnabled()) return false;
    if (!page->isAncestorOf(widget)) return false;
    const auto& asked = static_cast<const QContextMenuEvent&>(event);
    return page->AskMenuAt(page->mapFromGlobal(asked.globalPos()));
  }

  QtView& view_;
  QScrollArea scroll_;
  QWidget* stage_;
};

QtView::QtView(QtEventLoop& loop, PictureSource& pictures)
    : loop_(loop),
      pictures_(pictures),
      window_(std::make_unique<MainWindow>(*this)),
      narrator_(std::make_unique<Narrator>(*window_)) {
  QApplication::setQuitOnLastWindowClosed(false);
}

QtView::~QtView() { SetPointer(nullptr); }

QWidget* QtView::Window() const { return window_.get(); }

void QtView::Attach(Form& form) { screens_.push_back({&form}); }

void QtView::Detach(Form& form) {
  Screen* const screen = Find(&form);
  if (screen == nullptr) return;
  if (Page* page = screen->page) {
    page->Release();
    if (page != page_) page->deleteLater();
  }
  if (page_form_ == &form) page_form_ = nullptr;
  screens_.erase(screens_.begin() + (screen - screens_.data()));
  if (!screens_.empty()) return;
  SetPointer(nullptr);
  window_->hide();
  if (page_ != nullptr) page_->deleteLater();
  page_ = nullptr;
}

QtView::Screen* QtView::Find(const Form* form) {
  const auto found = std::find_if(screens_.begin(), screens_.end(),
                                  [form](const Screen& screen) { return screen.form == form; });
  return found == screens_.end() ? nullptr : &*found;
}

QtView::Screen* QtView::Front() {
  const auto found = std::find_if(screens_.rbegin(), screens_.rend(),
                                  [](const Screen& screen) { return screen.form->visible; });
  return found == screens_.rend() ? nullptr : &*found;
}

void QtView::Refresh() {
  // Showing a window or moving the focus sends events at once, some of which come back here.
  if (refreshing_) return;
  refreshing_ = true;
  narrator_->Begin(Listening());
  ShowFront(Front());
  SetPointer(page_form_);
  narrator_->End(TakeSaid());
  refreshing_ = false;
}

void QtView::ShowFront(Screen* front) {
  if (front == nullptr) {
    if (page_ != nullptr) page_->setAttribute(Qt::WA_TransparentForMouseEvents);
    return;
  }
  if (front->page == nullptr || front->page != page_) {
    Show(*front);
  } else {
    page_->setAttribute(Qt::WA_TransparentForMouseEvents, !front->form->enabled);
    page_->Refresh();
  }
  const QString title = QString::fromStdString(front->form->caption);
  if (window_->windowTitle() != title) window_->setWindowTitle(title);
  if (!window_->isVisible()) ShowWindow();
}

bool QtView::Listening() const {
  return std::any_of(screens_.begin(), screens_.end(), [](const Screen& screen) {
    return screen.form->visible && screen.form->listening;
  });
}

/// The title of a new page, and what the screens have said.
std::vector<std::string> QtView::TakeSaid() {
  std::vector<std::string> all;
  if (new_title_) all.push_back(*std::exchange(new_title_, std::nullopt));
  for (const Screen& screen : screens_) {
    std::vector<std::string> said = screen.form->TakeSaid();
    std::move(said.begin(), said.end(), std::back_inserter(all));
  }
  return all;
}

void QtView::Show(Screen& screen) {
  if (screen.page == nullptr) {
    screen.page = new Page(*screen.form, loop_, pictures_, window_->stage());
  }
  Page* const last = page_;
  const bool last_is_gone = last != nullptr && page_form_ == nullptr;
  page_ = screen.page;
  page_form_ = screen.form;
  ArrangePage();
  page_->setAttribute(Qt::WA_TransparentForMouseEvents, false);
  page_->show();
  page_->raise();
  page_->Refresh();
  page_->TakeFocus();
  // A window that comes with its first page is told by its own title.
  if (window_->isVisible()) new_title_ = screen.form->caption;
  if (last != nullptr) last->hide();
  if (last_is_gone) last->deleteLater();
  if (std::exchange(close_wanted_, false)) loop_.Post([this] { CloseAsked(); });
}

void QtView::ArrangePage() {
  if (page_ == nullptr) return;
  window_->FitStage(page_->LeastSize());
  page_->setGeometry(window_->stage()->rect());
  page_->Arrange(page_->size());
  if (SetFactor(*window_, page_->factor())) QToolTip::setFont(window_->font());
}

void QtView::ShowWindow() {
  // Without a window manager nothing else would make it large.
  if (const QScreen* screen = window_->screen()) window_->setGeometry(screen->availableGeometry());
  window_->showMaximized();
  window_->activateWindow();
  ArrangePage();
  if (page_ != nullptr) page_->TakeFocus();
}

void QtView::Resized() {
  ArrangePage();
  Form* const form = page_form_;
  if (form == nullptr || !form->visible) return;
  loop_.Post([this, form] {
    if (page_form_ != form) return;
    form->Form_Resize();
    const bool wanted = form->window_state == Form::WindowState::kMaximised;
    if (wanted && window_->isVisible() && !window_->isMinimized() && !window_->isMaximized()) {
      window_->showMaximized();
    }
  });
}

void QtView::CloseAsked() {
  Screen* const front = Front();
  if (front == nullptr) {
    // Between two screens the wish waits for the one that comes.
    close_wanted_ = true;
    return;
  }
  if (!front->form->enabled) return;
  Form* const form = front->form;
  loop_.Deliver([form] { form->Form_Close(); });
}

void QtView::SetPointer(const Form* form) {
  const bool busy = form != nullptr && form->pointer == Form::Pointer::kHourglass;
  if (busy == busy_pointer_) return;
  busy_pointer_ = busy;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

bool QtView::AskHelp(const QKeyEvent& key) {
  if (key.key() != Qt::Key_F1 || !on_help) return false;
  const Form* const form = page_form_;
  if (form != nullptr && !key.isAutoRepeat()) on_help(form->name());
  return form != nullptr;
}

}  // namespace vmod17

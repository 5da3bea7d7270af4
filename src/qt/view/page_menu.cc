// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/page_menu.h"

#include <QAction>
#include <QMenu>
#include <QTimer>
#include <utility>

#include "qt/kit/look.h"

namespace vmod17 {
namespace {

PopupMenu* OpenMenu(const Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() != Control::Kind::kPopupMenu) continue;
    auto* const popup = static_cast<PopupMenu*>(control);
    if (popup->open_at != nullptr) return popup;
  }
  return nullptr;
}

}  // namespace

PageMenu::PageMenu(QWidget& page, std::function<void(const EventLoop::Handler&)> deliver)
    : page_(page), deliver_(std::move(deliver)) {}

PageMenu::~PageMenu() { Close(); }

void PageMenu::Close() {
  if (QMenu* menu = std::exchange(shown_, nullptr)) {
    menu->hide();
    menu->deleteLater();
  }
}

void PageMenu::Refresh(const Form& form, const std::function<QPoint(const Control&)>& place_of,
                       double pixels) {
  PopupMenu* const popup = form.visible ? OpenMenu(form) : nullptr;
  if (popup == nullptr) return Close();
  if (shown_ == nullptr) Open(*popup, place_of(*popup->open_at), pixels);
}

void PageMenu::Open(PopupMenu& popup, const QPoint& at, double pixels) {
  auto* const menu = new QMenu(&page_);
  menu->setObjectName(QString::fromStdString(popup.Id()));
  menu->setFont(look::Type(pixels, look::Weight::kNormal));
  QAction* const entry = menu->addAction(QString::fromStdString(popup.caption));
  entry->setCheckable(true);
  entry->setChecked(popup.checked);
  shown_ = menu;
  QObject::connect(entry, &QAction::triggered, menu,
                   [this, &popup] { deliver_([&popup] { popup.Choose(); }); });
  // A menu closes before its entry is told as chosen. Until then it counts as shown, so that it is
  // not opened anew.
  QObject::connect(menu, &QMenu::aboutToHide, menu, [this, menu, &popup] {
    QTimer::singleShot(0, menu, [this, menu, &popup] {
      if (shown_ == menu) deliver_([&popup] { popup.Dismiss(); });
    });
  });
  menu->popup(page_.mapToGlobal(at));
  menu->setActiveAction(entry);  // Enter takes it
}

}  // namespace vmod17

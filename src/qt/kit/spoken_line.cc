// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/spoken_line.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QStatusBar>

namespace vmod17 {

/// An area without a name: what it notifies of are the words in it.
class SpokenLine::Notification : public QWidget {
 public:
  explicit Notification(QWidget* parent) : QWidget(parent), words_(this) {
    words_.setTextFormat(Qt::PlainText);
    hide();
  }
  void Appear(const QString& words) {
    hide();
    words_.setText(words);
    show();
  }

  static QAccessibleInterface* Interface(const QString&, QObject* object) {
    auto* const notification = dynamic_cast<Notification*>(object);
    if (notification == nullptr) return nullptr;
    return new QAccessibleWidget(notification, QAccessible::Notification);
  }

 private:
  QLabel words_;
};

/// A dot behind everything else: it has to be shown to be told of.
SpokenLine::SpokenLine(QWidget& window) : bar_(new QStatusBar(&window)) {
  QAccessible::installFactory(&Notification::Interface);
  bar_->setSizeGripEnabled(false);
  bar_->setAttribute(Qt::WA_TransparentForMouseEvents);
  bar_->setGeometry(0, 0, 1, 1);
  bar_->lower();
  for (Notification*& notification : notifications_) notification = new Notification(bar_);
}

void SpokenLine::Say(const QString& words) {
  if (!QAccessible::isActive() || words.isEmpty()) return;
  notifications_[next_]->Appear(words);
  next_ = (next_ + 1) % notifications_.size();
}

}  // namespace vmod17

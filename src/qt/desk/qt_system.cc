// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_system.h"

#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpression>
#include <QSysInfo>
#include <QWidget>

namespace vmod17 {
namespace {

/// Where a key of the user would arrive: the control with the focus, else the window in front.
QWidget* Front() {
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  if (QWidget* active = QApplication::activeWindow()) {
    return active->focusWidget() != nullptr ? active->focusWidget() : active;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible())
      return window->focusWidget() != nullptr ? window->focusWidget() : window;
  }
  return nullptr;
}

}  // namespace

std::string QtSystem::ComputerName() const { return QSysInfo::machineHostName().toStdString(); }

std::optional<std::string> QtSystem::Environment(const std::string& name) const {
  const QByteArray key = QByteArray::fromStdString(name);
  if (!qEnvironmentVariableIsSet(key.constData())) return std::nullopt;
  return qgetenv(key.constData()).toStdString();
}

std::string QtSystem::TemporaryFolder() const {
  const QByteArray named = qgetenv("TMPDIR");
  return named.isEmpty() ? "/tmp" : named.toStdString();
}

std::string QtSystem::DecimalPoint() const { return QLocale().decimalPoint().toStdString(); }

std::string QtSystem::DateTimeText(const DateTime& time) const {
  const QDateTime moment(QDate(time.year, time.month, time.day),
                         QTime(time.hour, time.minute, time.second), Qt::UTC);
  return QLocale().toString(moment, QLocale::ShortFormat).toStdString();
}

void QtSystem::SendKeys(const std::string& keys) {
  static const QRegularExpression function_key("^\\{F([1-9]|1[0-2])\\}$");
  const QRegularExpressionMatch match = function_key.match(QString::fromStdString(keys));
  QWidget* const front = Front();
  if (!match.hasMatch() || front == nullptr) return;
  const int key = Qt::Key_F1 + match.captured(1).toInt() - 1;
  QCoreApplication::postEvent(front, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  QCoreApplication::postEvent(front, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
}

}  // namespace vmod17

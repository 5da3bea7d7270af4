// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>
#include <QMetaProperty>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <vector>

namespace vmod17 {

/// All that a reader of the screen can find, from an element downwards.
inline void ForEachAccessible(QAccessibleInterface& from,
                              const std::function<void(QAccessibleInterface&)>& visit) {
  visit(from);
  for (int i = 0; i < from.childCount(); ++i) {
    if (QAccessibleInterface* const child = from.child(i)) ForEachAccessible(*child, visit);
  }
}

inline QString NameOf(const QAccessibleInterface& element) {
  return element.object() == nullptr ? QString() : element.object()->objectName();
}

/// The words of an element.
inline QStringList WordsOf(const QAccessibleInterface& element) {
  QStringList words;
  for (const QAccessible::Text kind :
       {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
    const QString word = element.text(kind);
    if (!word.isEmpty()) words << word;
  }
  return words;
}

/// Every text that a widget hands out to whoever asks for its properties.
inline QStringList TextProperties(const QWidget& widget) {
  QStringList texts;
  const QMetaObject* const meta = widget.metaObject();
  for (int i = 0; i < meta->propertyCount(); ++i) {
    const QMetaProperty property = meta->property(i);
    // How a widget is called and dressed by the program tells nothing.
    const QByteArray name = property.name();
    if (name == "objectName" || name == "styleSheet" || name == "format") continue;
    if (property.typeId() != QMetaType::QString) continue;
    const QString text = property.read(&widget).toString();
    if (!text.isEmpty()) texts << QString("%1=%2").arg(name, text);
  }
  return texts;
}

/// Writes down the events that reach an assistive technology, while it lives.
class HeardEvents {
 public:
  struct Event {
    QAccessible::Event type;
    QString widget;
    QString name;
    QString description;
    bool visible;
  };

  HeardEvents() {
    events_.clear();
    QAccessible::setActive(true);
    before_ = QAccessible::installUpdateHandler(&HeardEvents::Take);
  }
  ~HeardEvents() {
    QAccessible::installUpdateHandler(before_);
    QAccessible::setActive(false);
  }
  HeardEvents(const HeardEvents&) = delete;
  HeardEvents& operator=(const HeardEvents&) = delete;

  const std::vector<Event>& All() const { return events_; }

 private:
  static void Take(QAccessibleEvent* event) {
    const auto* const widget = qobject_cast<const QWidget*>(event->object());
    if (widget == nullptr) return;
    events_.push_back({event->type(), widget->objectName(), widget->accessibleName(),
                       widget->accessibleDescription(), widget->isVisible()});
  }

  static inline std::vector<Event> events_;
  QAccessible::UpdateHandler before_;
};

}  // namespace vmod17

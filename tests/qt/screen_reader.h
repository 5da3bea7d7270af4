// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>
#include <string>

namespace vmod17 {

/// Stands in for a reader of the screen: hears the toolkit's events, and writes down what the
/// readers of today speak of them: not the entry of a closed list nor a new description, of which
/// the toolkit sends no words. It must be there before what it is to hear.
class ScreenReader {
 public:
  ScreenReader() {
    QAccessible::setActive(true);
    at_work_ = this;
    before_ = QAccessible::installUpdateHandler(&ScreenReader::Take);
  }
  ~ScreenReader() {
    QAccessible::installUpdateHandler(before_);
    at_work_ = nullptr;
    QAccessible::setActive(false);
  }
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;

  /// What was spoken since the last time.
  std::string Spoken() {
    const QString spoken = spoken_.join(" | ");
    spoken_.clear();
    return spoken.toStdString();
  }
  /// Whether there is anything new. A blank is spoken too, and silences what came before.
  bool Silent() const { return spoken_.isEmpty(); }

 private:
  static void Take(QAccessibleEvent* event) { at_work_->Hear(*event); }

  void Hear(QAccessibleEvent& event) {
    QAccessibleInterface* const source = event.accessibleInterface();
    if (source == nullptr) return;
    switch (event.type()) {
      case QAccessible::Focus:
        focus_ = source;
        return Speak(source->text(QAccessible::Name));
      case QAccessible::NameChanged:
        if (IsInFocus(source) || source->role() == QAccessible::Window) {
          Speak(source->text(QAccessible::Name));
        }
        return;
      case QAccessible::ValueChanged:
        if (source->role() == QAccessible::ComboBox) return;
        if (IsInFocus(source) || source->role() == QAccessible::ProgressBar) {
          Speak(source->text(QAccessible::Value));
        }
        return;
      case QAccessible::ObjectShow:
        if (source->role() == QAccessible::Notification) SpeakLabels(*source);
        return;
      default:
        return;
    }
  }
  bool IsInFocus(QAccessibleInterface* source) const { return source == focus_; }
  void SpeakLabels(QAccessibleInterface& area) {
    for (int i = 0; i < area.childCount(); ++i) Speak(area.child(i)->text(QAccessible::Name));
  }
  void Speak(const QString& words) {
    if (!words.isEmpty()) spoken_ << words;
  }

  static inline ScreenReader* at_work_ = nullptr;
  QAccessible::UpdateHandler before_;
  QAccessibleInterface* focus_ = nullptr;  // only compared
  QStringList spoken_;
};

}  // namespace vmod17

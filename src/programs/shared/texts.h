// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLocale>
#include <QString>
#include <initializer_list>
#include <memory>
#include <string>

#include "base/notice.h"
#include "ports/host_service.h"
#include "ports/language.h"

namespace vmod17 {

/// The texts of a program by text id, in a language that can change while it runs. A text that the
/// language lacks is said in English.
class Texts {
 public:
  /// `list` outlives the texts.
  explicit Texts(const LanguageList& list) : list_(list) {}

  /// Takes the language of this name; one that is not installed or cannot be made leaves English.
  void Speak(const std::string& name);
  /// Takes the language that the store has for the module; English where it has no answer.
  void SpeakAs(HostService& store);

  /// The text, with what stands for %1, %2 and so on.
  QString Say(int id, const char* english, std::initializer_list<QString> details = {}) const;
  QString Say(const Notice& notice) const;

  /// How the language writes dates and numbers.
  const QLocale& locale() const { return locale_; }

 private:
  const LanguageList& list_;
  std::unique_ptr<Language> language_;
  QLocale locale_ = QLocale(QLocale::English);
};

}  // namespace vmod17

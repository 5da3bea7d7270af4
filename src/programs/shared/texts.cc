// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/texts.h"

#include "base/run_time_error.h"
#include "shell/words_of.h"

namespace vmod17 {

void Texts::Speak(const std::string& name) {
  language_.reset();
  locale_ = QLocale(QLocale::English);
  for (const LanguageColumn& column : list_.Table()) {
    if (column[1] != name) continue;
    try {
      language_ = list_.Create("melvadolang." + name);
      locale_ = QLocale(QString::fromStdString(column[0]));
    } catch (const RunTimeError&) {
      // It was there when the list was made. The texts are English then.
    }
    return;
  }
}

void Texts::SpeakAs(HostService& store) {
  TaggedValue name;
  try {
    store.Action("LANG", "", name);
    Speak(name.String());
  } catch (const RunTimeError&) {
    // English, then.
  }
}

QString Texts::Say(int id, const char* english, std::initializer_list<QString> details) const {
  Notice notice{id, english, {}};
  for (const QString& detail : details) notice.details.push_back(detail.toStdString());
  return Say(notice);
}

QString Texts::Say(const Notice& notice) const {
  return QString::fromStdString(WordsOf(language_.get(), notice));
}

}  // namespace vmod17

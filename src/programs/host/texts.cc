// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/texts.h"

#include <QStringList>

#include "base/run_time_error.h"

namespace melvado {
namespace {

using vmod17::LanguageColumn;
using vmod17::Notice;
using vmod17::RunTimeError;

QString Filled(QString text, const QStringList& details) {
  // From the last one down: a detail may hold what looks like a place for another.
  for (qsizetype i = details.size(); i > 0; --i) {
    const QString place = '%' + QString::number(i);
    const qsizetype at = text.indexOf(place);
    if (at >= 0) text.replace(at, place.size(), details[i - 1]);
  }
  return text;
}

}  // namespace

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

QString Texts::Word(int id, const QString& english) const {
  if (!language_) return english;
  try {
    const std::string word = language_->Wort(std::to_string(id) + 's');
    return word.empty() ? english : QString::fromStdString(word);
  } catch (const RunTimeError&) {
    return english;
  }
}

QString Texts::Say(int id, const char* english, std::initializer_list<QString> details) const {
  return Filled(Word(id, QString::fromUtf8(english)), QStringList(details));
}

QString Texts::Say(const Notice& notice) const {
  QStringList details;
  for (const std::string& detail : notice.details) details << QString::fromStdString(detail);
  return Filled(Word(notice.text_id, QString::fromStdString(notice.english)), details);
}

}  // namespace melvado

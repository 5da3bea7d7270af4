// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/users.h"

#include <algorithm>

#include "base/text_ids.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::Notice;
using vmod17::StoreUser;

// Whoever answers so to the module is taken for nobody.
constexpr const char* kUnknownUser = "unbekannt";

QString Without(const QString& text, bool (*unwanted)(QChar)) {
  QString rest;
  for (const QChar c : text) {
    if (!unwanted(c)) rest += c;
  }
  return rest;
}

bool IsControl(QChar c) { return c.category() == QChar::Other_Control; }
bool IsUnseen(QChar c) { return IsControl(c) || c.category() == QChar::Other_Format; }

/// Marks that turn the direction of what follows, also beyond the name. Letters that run from the
/// right do so without them.
bool TurnsDirection(QChar c) {
  return c == QChar(0x061C) || c == QChar(0x200E) || c == QChar(0x200F) ||
         (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}
/// Others that are not seen join or part the letters of some scripts.
bool IsUnwantedInNames(QChar c) { return IsControl(c) || TurnsDirection(c); }

std::string Clean(const std::string& typed, bool (*unwanted)(QChar)) {
  // A line break parts words, so blanks are set straight first.
  const QString text = QString::fromStdString(typed).simplified();
  return Without(text, unwanted)
      .normalized(QString::NormalizationForm_C)
      .simplified()
      .toStdString();
}

/// Set apart from what stands around it.
QString Isolated(const std::string& text) {
  constexpr QChar kFirstStrong(0x2068);
  constexpr QChar kEnd(0x2069);
  return kFirstStrong + Without(QString::fromStdString(text).simplified(), TurnsDirection) + kEnd;
}

}  // namespace

StoreUser Cleaned(const StoreUser& typed) {
  return {Clean(typed.id, IsUnseen), Clean(typed.name, IsUnwantedInNames),
          Clean(typed.first_name, IsUnwantedInNames)};
}

std::optional<Notice> FaultOf(const StoreUser& user) {
  if (user.id.empty()) {
    return Notice{text_id::kNumberIsNeeded,
                  "Please enter the matriculation number: the trainings are kept under it.",
                  {}};
  }
  if (QString::fromStdString(user.id).size() > kLongestNumber) {
    return Notice{text_id::kNumberTooLong,
                  "The matriculation number is too long. It may have up to %1 characters.",
                  {std::to_string(kLongestNumber)}};
  }
  for (const std::string& name : {user.name, user.first_name}) {
    if (QString::fromStdString(name).size() > kLongestName) {
      return Notice{text_id::kNameTooLong,
                    "The name is too long. Name and first name may have up to %1 characters "
                    "each.",
                    {std::to_string(kLongestName)}};
    }
  }
  if (user.id == kUnknownUser) {
    return Notice{text_id::kNumberImpossible,
                  "\"%1\" cannot be a matriculation number. Please choose another one.",
                  {user.id}};
  }
  return std::nullopt;
}

Notice NumberTakenNotice(const std::string& number) {
  return {text_id::kNumberTaken,
          "The matriculation number %1 is in the list already. Choose that user, or enter another "
          "number.",
          {number}};
}

QString Shown(const StoreUser& user) {
  const bool both = !user.name.empty() && !user.first_name.empty();
  QString names = user.name.empty() ? QString() : Isolated(user.name);
  if (both) names += ", ";
  if (!user.first_name.empty()) names += Isolated(user.first_name);
  if (names.isEmpty()) return Isolated(user.id);
  return names + " (" + Isolated(user.id) + ')';
}

void Sort(std::vector<StoreUser>& users, const QLocale& locale) {
  QCollator collator(locale);
  collator.setNumericMode(true);
  const auto compare = [&](const std::string& a, const std::string& b) {
    return collator.compare(QString::fromStdString(a), QString::fromStdString(b));
  };
  std::sort(users.begin(), users.end(), [&](const StoreUser& a, const StoreUser& b) {
    if (const int by_name = compare(a.name, b.name)) return by_name < 0;
    if (const int by_first = compare(a.first_name, b.first_name)) return by_first < 0;
    if (const int by_number = compare(a.id, b.id)) return by_number < 0;
    return a.id < b.id;
  });
}

}  // namespace melvado

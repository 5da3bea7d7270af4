// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/error_report.h"

#include "base/text_ids.h"

namespace vmod17 {
namespace {

constexpr const char* kTitel = "Melvado 2000";

}  // namespace

ErrorReport::ErrorReport(ModServer& server, const TextLookup& texts, MessageBox& messages)
    : server_(server), texts_(texts), messages_(messages) {}

void ErrorReport::Guard(const std::string& tag, const Form& form, const std::function<void()>& body,
                        const std::function<void()>& recovery) {
  bool normal = false;
  try {
    body();
    normal = true;
  } catch (...) {
    // Once leave was taken of the host the program is on its way out, and this error with it.
    if (server_.HostObjekt() == nullptr) return;
    LogFehler(AsRunTimeError(std::current_exception()), tag + form.name(), Zeigen::kNein);
    messages_.Warn(texts_.Sprachtext(text_id::kSomethingWentWrong) + "\n" +
                       texts_.Sprachtext(text_id::kErrorIsInTheLog) + "\n" +
                       texts_.Sprachtext(text_id::kWindowWillClose) + "\n" +
                       texts_.Sprachtext(text_id::kTryAgainOrAskTeacher),
                   kTitel);
  }
  if (!normal) recovery();
}

void ErrorReport::LogFehler(const RunTimeError& error, const std::string& routine, Zeigen zeigen) {
  server_.LogFehler(routine + "." + server_.identity().name, error);
  if (zeigen == Zeigen::kJa) {
    messages_.Warn("Es ist ein Fehler aufgetreten!\nWeitere Informationen befinden sich im LogFile",
                   "Warnung");
  }
}

RunTimeError AsRunTimeError(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const RunTimeError& known) {
    return known;
  } catch (const std::exception& foreign) {
    return {ErrorNumber::kForeign, foreign.what(), "vmod17"};
  } catch (...) {
    return {ErrorNumber::kForeign, "an error of an unknown kind", "vmod17"};
  }
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <exception>
#include <functional>
#include <string>

#include "forms/controls.h"
#include "ports/message_box.h"
#include "shell/mod_server.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// The one way in which a routine of weight deals with an error: log it, tell the user, leave by
/// the normal way out of its screen.
class ErrorReport {
 public:
  ErrorReport(ModServer& server, const TextLookup& texts, MessageBox& messages);

  /// Runs `body`; an error in it is logged under `tag` and the form's name, shown in the four fixed
  /// lines, and followed by `recovery`. Errors: those of `recovery` and of the log.
  void Guard(const std::string& tag, const Form& form, const std::function<void()>& body,
             const std::function<void()>& recovery);

  enum class Zeigen { kNein, kJa };
  /// Logs an error; its place is `routine` + "." + the program's name. With `kJa` it also tells the
  /// user that there is more in the log.
  void LogFehler(const RunTimeError& error, const std::string& routine, Zeigen zeigen);

 private:
  ModServer& server_;
  const TextLookup& texts_;
  MessageBox& messages_;
};

/// An exception of any kind as a RunTimeError; one of another kind gets the number kForeign.
RunTimeError AsRunTimeError(const std::exception_ptr& error);

}  // namespace vmod17

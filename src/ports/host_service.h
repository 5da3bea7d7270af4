// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "base/tagged_value.h"

namespace vmod17 {

// clang-format off
/// The one object through which the program reaches its host. It holds no state of its own: any
/// number of instances may exist, and all see the same store.
///
/// The commands, with their arguments and what they answer in `result`:
///
/// | command   | args                               | answer                                |
/// |-----------|------------------------------------|---------------------------------------|
/// | "MIDI"    | empty                              | string: number of the output to use   |
/// | "READ"    | array: program, key                | the stored array; ["NIL"] for none    |
/// | "STORE"   | array: program, key, value         | untouched; committed on return        |
/// | "LOGIN"   | ""                                 | array: number, name, first name of the user |
/// | "LANG"    | ""                                 | string: name of an installed language |
/// | "LOGMESS" | string: one line                   | untouched                             |
/// | "LOGERR"  | array: place, number, text, source | untouched                             |
/// | "MENUE"   | ""                                 | untouched                             |
// clang-format on
class HostService {
 public:
  virtual ~HostService() = default;

  /// Carries out `command`. `result` comes in with the caller's default and is overwritten only by
  /// an answer. Returns true when the host has an answer for the command.
  /// Errors: RunTimeError kStore when the store refuses, kTypeMismatch for arguments of another
  /// shape than the table's.
  virtual bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) = 0;

  /// Runs `stores`, and keeps what is stored with "STORE" meanwhile, through whichever instance, as
  /// a whole or not at all: records that belong together never stand beside older ones, not even
  /// when the process is killed on the way. All of it is committed on return. A "READ" in `stores`
  /// gives what was stored so far; log lines written there stay in any case.
  /// Errors: those of `stores`, kStore as of "STORE", kInvalidCall for a `Together` in `stores`.
  /// After an error nothing of it is stored.
  virtual void Together(const std::function<void()>& stores) = 0;
};

using HostServiceFactory = std::function<std::unique_ptr<HostService>()>;

}  // namespace vmod17

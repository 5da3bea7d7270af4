// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "ports/host_service.h"

namespace vmod17 {

/// A host in memory. All its services share this object's state, which must outlive them; a test
/// reads and writes it directly.
///
///     MemoryHost host;
///     host.user = {"4711", "Berg", "Anna"};
///     host.Raise("STORE");
///     GrdEinst first_screen(host.Factory(), ...);
///     EXPECT_EQ(host.Sent("MENUE"), 1);
class MemoryHost {
 public:
  struct User {
    std::string id;
    std::string name;
    std::string first_name;
  };
  struct Call {
    std::string command;
    TaggedValue args;
  };
  struct Error {
    std::string place;
    std::int64_t number = 0;
    std::string text;
    std::string source;

    bool operator==(const Error&) const = default;
  };

  // Answers. Without one the command leaves the caller's default and returns false.
  std::optional<std::string> midi;
  std::optional<std::string> language;
  std::optional<User> user;
  bool returns_to_menu = false;
  /// Stored values by user, program and key; the user is "" for nobody.
  std::map<std::tuple<std::string, std::string, std::string>, TaggedValue> records;
  /// Sees each call before it is carried out. What it raises is what the call raises.
  std::function<void(const Call&)> on_call;
  /// Takes the place of every answer to a command, of whatever kind.
  std::map<std::string, TaggedValue, std::less<>> answers;

  // What was received, oldest first.
  std::vector<Call> calls;
  std::vector<std::string> messages;
  std::vector<Error> errors;
  int services_made = 0;

  /// From now on the command returns false and does nothing.
  void Fail(std::string_view command) { troubles_[std::string(command)] = 0; }
  /// From now on the command raises.
  void Raise(std::string_view command, int number = ErrorNumber::kStore) {
    troubles_[std::string(command)] = number;
  }
  /// Ends what `Fail` and `Raise` began.
  void Heal(std::string_view command) { troubles_.erase(std::string(command)); }

  /// How often a command was sent, in vain or not.
  int Sent(std::string_view command) const {
    int count = 0;
    for (const Call& call : calls) count += call.command == command ? 1 : 0;
    return count;
  }

  /// The value that the current user's program `vmod17` has stored under `key`; empty for none.
  TaggedValue Stored(const std::string& key) const {
    const auto found = records.find({UserId(), "vmod17", key});
    return found == records.end() ? TaggedValue() : found->second;
  }
  /// Puts a value there, as an earlier process would have done.
  void SetStored(const std::string& key, TaggedValue value) {
    records[{UserId(), "vmod17", key}] = std::move(value);
  }

  std::unique_ptr<HostService> Service() {
    ++services_made;
    return std::make_unique<Front>(*this);
  }
  HostServiceFactory Factory() {
    return [this] { return Service(); };
  }

 private:
  class Front : public HostService {
   public:
    explicit Front(MemoryHost& host) : host_(host) {}
    bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
      return host_.Action(command, args, result);
    }
    void Together(const std::function<void()>& stores) override { host_.Together(stores); }

   private:
    MemoryHost& host_;
  };

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) {
    calls.push_back({std::string(command), args});
    if (on_call) on_call(Call(calls.back()));
    if (const auto trouble = troubles_.find(command); trouble != troubles_.end()) {
      if (trouble->second == 0) return false;
      throw RunTimeError(trouble->second, "the host refuses " + std::string(command),
                         "vmod17.MemoryHost");
    }
    if (const auto answer = answers.find(command); answer != answers.end()) {
      result = answer->second;
      return true;
    }
    if (command == "READ") return Read(args, result);
    if (command == "STORE") return Store(args);
    if (command == "LOGMESS") return LogMessage(args);
    if (command == "LOGERR") return LogError(args);
    return Answer(command, args, result);
  }

  void Together(const std::function<void()>& stores) {
    if (stores_together_) {
      throw RunTimeError(ErrorNumber::kInvalidCall, "what is stored together is begun already",
                         "vmod17.MemoryHost");
    }
    stores_together_ = true;
    const auto before = records;
    try {
      stores();
    } catch (...) {
      records = before;
      stores_together_ = false;
      throw;
    }
    stores_together_ = false;
  }

  bool Answer(std::string_view command, const TaggedValue& args, TaggedValue& result) const {
    if (!args.IsEmpty()) static_cast<void>(args.String());
    if (command == "MIDI" && midi) {
      result = *midi;
    } else if (command == "LANG" && language) {
      result = *language;
    } else if (command == "LOGIN" && user) {
      result = TaggedValue::Array{user->id, user->name, user->first_name};
    } else {
      return command == "MENUE" && returns_to_menu;
    }
    return true;
  }

  bool Read(const TaggedValue& args, TaggedValue& result) const {
    CheckCount(args, 2);
    const auto found = records.find({UserId(), args[0].String(), args[1].String()});
    result = found == records.end() ? TaggedValue(TaggedValue::Array{"NIL"}) : found->second;
    return true;
  }

  bool Store(const TaggedValue& args) {
    CheckCount(args, 3);
    records[{UserId(), args[0].String(), args[1].String()}] = args[2];
    return true;
  }

  bool LogMessage(const TaggedValue& args) {
    messages.push_back(args.String());
    return true;
  }

  bool LogError(const TaggedValue& args) {
    CheckCount(args, 4);
    errors.push_back({args[0].String(), args[1].Integer(), args[2].String(), args[3].String()});
    return true;
  }

  static void CheckCount(const TaggedValue& args, std::size_t count) {
    if (args.Elements().size() == count) return;
    throw RunTimeError(ErrorNumber::kTypeMismatch, "too few or many arguments",
                       "vmod17.MemoryHost");
  }

  std::string UserId() const { return user ? user->id : std::string(); }

  bool stores_together_ = false;
  std::map<std::string, int, std::less<>> troubles_;  // number to raise, 0 to return false
};

}  // namespace vmod17

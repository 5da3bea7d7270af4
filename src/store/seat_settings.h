// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <map>
#include <string>

namespace vmod17 {

/// Names of the settings of a seat.
inline constexpr const char* kUserId = "user.id";
inline constexpr const char* kUserName = "user.name";
inline constexpr const char* kUserFirstName = "user.first_name";
inline constexpr const char* kLanguage = "language";
inline constexpr const char* kMidiDevice = "midi_device";
inline constexpr const char* kSoundfont = "soundfont";

/// The settings of a seat as they hold in this process. Of one that is known from several places
/// the first of these holds: what was chosen here, what another process has handed on, what still
/// waits for the store, what the store has.
class SeatSettings {
 public:
  using Values = std::map<std::string, std::string>;

  /// `session`  from `Session()` of another process, "" or of another version for nothing
  /// `waiting`  tells what waits for the store; asked once, before anything else is looked at
  SeatSettings(const std::string& session, std::function<Values()> waiting);

  /// What another process has handed on is all that this one needs to know.
  bool AreHandedOn() const { return are_handed_on_; }

  const Values& All();
  /// "" for one that nobody has set.
  std::string Get(const std::string& name);
  void Set(const std::string& name, const std::string& value);
  /// What the store has.
  void AddStored(Values stored);
  /// The store is another one.
  void Clear();

  /// All of them, for a process that this one starts.
  std::string Session();

 private:
  bool are_handed_on_;
  std::function<Values()> waiting_;  // until it was asked
  Values values_;
};

}  // namespace vmod17

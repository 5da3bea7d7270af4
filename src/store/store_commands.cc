// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/store_commands.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <utility>

#include "base/run_time_error.h"
#include "store/date_text.h"
#include "store/host_store.h"
#include "store/sql_connection.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

std::string TextOf(int number) {
  std::array<char, 16> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

// The commands without arguments are sent with an empty value or with a string.
void CheckNoArguments(const TaggedValue& args) {
  if (!args.IsEmpty()) static_cast<void>(args.String());
}

void CheckCount(const TaggedValue& args, std::size_t count) {
  if (args.Elements().size() == count) return;
  throw RunTimeError(ErrorNumber::kTypeMismatch, "a host command with too few or many arguments",
                     "vmod17.HostStore");
}

LogEntry ErrorEntry(const TaggedValue& args) {
  CheckCount(args, 4);
  LogEntry entry;
  entry.kind = LogEntry::Kind::kError;
  entry.place = args[0].String();
  entry.number = args[1].Integer();
  entry.text = args[2].String();
  entry.source = args[3].String();
  return entry;
}

LogEntry MessageEntry(const TaggedValue& args) {
  LogEntry entry;
  entry.text = args.String();
  return entry;
}

}  // namespace

StoreCommands::StoreCommands(HostStore& store, const StoreOptions& options,
                             StoreConnection& connection, PendingWrites& pending,
                             SeatSettings& settings, TroubleReport& trouble)
    : store_(store),
      options_(options),
      connection_(connection),
      pending_(pending),
      settings_(settings),
      trouble_(trouble) {}

bool StoreCommands::Action(std::string_view command, const TaggedValue& args, TaggedValue& result) {
  const StoreConnection::Call call(connection_);
  if (command == "READ") return Read(args, result);
  if (command == "STORE") return Store(args);
  if (command == "LOGMESS") return AppendLog(MessageEntry(args));
  if (command == "LOGERR") return AppendLog(ErrorEntry(args));
  CheckNoArguments(args);
  if (command == "MIDI") return Midi(result);
  if (command == "LOGIN") return Login(result);
  if (command == "LANG") return Lang(result);
  if (command == "MENUE") return Menue();
  return false;
}

void StoreCommands::Together(const std::function<void()>& stores) { pending_.Together(stores); }

bool StoreCommands::Midi(TaggedValue& result) {
  const std::string name = store_.MidiDevice();
  if (name.empty() || !options_.midi_number) return false;
  const std::optional<int> number = options_.midi_number(name);
  if (number) result = TextOf(*number);
  return number.has_value();
}

bool StoreCommands::Login(TaggedValue& result) {
  const std::optional<StoreUser> user = store_.User();
  if (user) result = TaggedValue::Array{user->id, user->name, user->first_name};
  return user.has_value();
}

bool StoreCommands::Lang(TaggedValue& result) {
  const std::string chosen = store_.Language();
  if (!chosen.empty() && (!options_.language_installed || options_.language_installed(chosen))) {
    result = chosen;
    return true;
  }
  const std::optional<std::string> desktop =
      options_.desktop_language ? options_.desktop_language() : std::nullopt;
  if (desktop) result = *desktop;
  return desktop.has_value();
}

/// The next module may read what this one has stored as soon as the host has its word.
bool StoreCommands::Menue() {
  pending_.BringWhatWaits(Patience::kOnlyOnce);
  return options_.menue && options_.menue();
}

RecordKey StoreCommands::KeyOf(const TaggedValue& args, Patience patience) {
  // Whose record it is, is known once the store is open.
  connection_.NeedSettings(patience);
  return {settings_.Get(kUserId), args[0].String(), args[1].String()};
}

std::optional<std::string> StoreCommands::Find(const RecordKey& key) {
  std::optional<std::string> found = pending_.Find(key);
  if (found) return found;
  connection_.With(Patience::kOnlyOnce, [&](StoreTables& tables) {
    found = tables.Read(key);
    pending_.SetSeen(key, found);
  });
  return found;
}

bool StoreCommands::Read(const TaggedValue& args, TaggedValue& result) {
  CheckCount(args, 2);
  RecordKey key;
  std::optional<std::string> stored;
  try {
    key = KeyOf(args, Patience::kOnlyOnce);
    stored = Find(key);
  } catch (const SqlError& error) {
    trouble_.TellUnreadable(error);
    return false;
  }
  try {
    result = stored ? DecodeTaggedValue(*stored) : TaggedValue(TaggedValue::Array{"NIL"});
  } catch (const RunTimeError&) {
    PutAside(key, *stored);
    return false;
  }
  return true;
}

bool StoreCommands::Store(const TaggedValue& args) {
  CheckCount(args, 3);
  RecordKey key{"", args[0].String(), args[1].String()};
  const std::string value = EncodeTaggedValue(args[2]);
  try {
    key = KeyOf(args, Patience::kWait);
  } catch (const SqlError& error) {
    pending_.WriteFailed(error);
  }
  pending_.Store(key, value);
  return true;
}

bool StoreCommands::AppendLog(LogEntry entry) {
  entry.at = TextOf(options_.clock());
  if (const std::optional<StoreUser> user = store_.User()) entry.user = user->id;
  return pending_.AppendLog(std::move(entry));
}

void StoreCommands::PutAside(const RecordKey& key, const std::string& value) {
  const std::string aside = key.key + BrokenSuffix(options_.clock()).toStdString();
  bool renamed = false;
  try {
    renamed = connection_.With(Patience::kOnlyOnce,
                               [&](StoreTables& tables) { tables.Rename(key, value, aside); });
  } catch (const SqlError&) {
    // It stays where it is and is found damaged again.
  }
  LogEntry entry;
  entry.kind = LogEntry::Kind::kError;
  entry.place = "HostStore.READ";
  entry.number = ErrorNumber::kStore;
  entry.text = "the record " + key.key + " of " + key.program + " is damaged";
  entry.source = "vmod17.HostStore";
  AppendLog(std::move(entry));
  trouble_.Tell(DamagedRecordNotice(key.key, renamed ? aside : key.key));
}

}  // namespace vmod17

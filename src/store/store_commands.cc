// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <charconv>

#include "store/host_store.h"
#include "store/outbox.h"
#include "store/seat_settings.h"
#include "store/sql_connection.h"
#include "store/store_address.h"
#include "store/store_file.h"
#include "store/store_notices.h"
#include "store/store_tables.h"
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

class HostStore::Front : public HostService {
 public:
  explicit Front(HostStore& store) : store_(store) {}

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
    return store_.Action(command, args, result);
  }
  void Together(const std::function<void()>& stores) override { store_.Together(stores); }

 private:
  HostStore& store_;
};

/// The next module may read what this one has stored as soon as the host has its word.
bool HostStore::Menue() {
  BringWhatWaits(Patience::kOnlyOnce);
  return options_.menue && options_.menue();
}

std::unique_ptr<HostService> HostStore::Service() { return std::make_unique<Front>(*this); }

// ---- The commands

bool HostStore::Action(std::string_view command, const TaggedValue& args, TaggedValue& result) {
  const OneCall call(*this);
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

void HostStore::Together(const std::function<void()>& stores) {
  if (together_) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "what is stored together is begun already",
                       "vmod17.HostStore");
  }
  // The transaction is begun when all of it is there: no other process waits for `stores`, and a
  // log line in it is no part of what a lock or a full disk takes back.
  together_.emplace();
  try {
    stores();
  } catch (...) {
    together_.reset();
    throw;
  }
  const Records records = *std::exchange(together_, std::nullopt);
  const OneCall call(*this);
  if (!records.empty()) Keep(records);
}

bool HostStore::Midi(TaggedValue& result) {
  const std::string name = MidiDevice();
  if (name.empty() || !options_.midi_number) return false;
  const std::optional<int> number = options_.midi_number(name);
  if (number) result = TextOf(*number);
  return number.has_value();
}

bool HostStore::Login(TaggedValue& result) {
  const std::optional<StoreUser> user = User();
  if (user) result = TaggedValue::Array{user->id, user->name, user->first_name};
  return user.has_value();
}

bool HostStore::Lang(TaggedValue& result) {
  const std::string chosen = Language();
  if (!chosen.empty() && (!options_.language_installed || options_.language_installed(chosen))) {
    result = chosen;
    return true;
  }
  const std::optional<std::string> desktop =
      options_.desktop_language ? options_.desktop_language() : std::nullopt;
  if (desktop) result = *desktop;
  return desktop.has_value();
}

bool HostStore::Read(const TaggedValue& args, TaggedValue& result) {
  CheckCount(args, 2);
  RecordKey key;
  std::optional<std::string> stored;
  try {
    key = KeyOf(args, Patience::kOnlyOnce);
    stored = InMemory(key);
    if (!stored && (stored = InOutbox(key)) && !GoesPastAnother({{key, *stored}})) {
      SetSeen({{key, *stored}});
    }
    if (!stored) {
      WithStore(Patience::kOnlyOnce, [&](StoreTables& tables) {
        stored = tables.Read(key);
        if (outbox_) seen_[key] = FingerprintOf(stored);
      });
    }
  } catch (const SqlError& error) {
    TellUnreadable(error);
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

bool HostStore::Store(const TaggedValue& args) {
  CheckCount(args, 3);
  RecordKey key{"", args[0].String(), args[1].String()};
  const std::string value = EncodeTaggedValue(args[2]);
  try {
    key = KeyOf(args, Patience::kWait);
  } catch (const SqlError& error) {
    WriteFailed(error);
  }
  if (together_) {
    together_->insert_or_assign(key, value);
  } else {
    Keep({{key, value}});
  }
  return true;
}

void HostStore::PutAside(const RecordKey& key, const std::string& value) {
  const std::string aside = key.key + BrokenSuffix(options_.clock()).toStdString();
  bool renamed = false;
  try {
    renamed = WithStore(Patience::kOnlyOnce,
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
  AppendLog(entry);
  Tell(DamagedRecordNotice(key.key, renamed ? aside : key.key));
}

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A program with a store of its own, which does what it reads from its input, a line a command, and
// answers each with a line. Tests start it to have a second process at a store, one without rights,
// one on a full disk, and one to kill.

#include <unistd.h>

#include <QCoreApplication>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "small_files.h"
#include "store/host_store.h"
#include "store/outbox.h"
#include "store/seat.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

class Helper {
 public:
  std::string Answer(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "open") return Open(words);
    if (command == "store") return StoreCopies(words);
    if (command == "pair") return StorePair(words);
    if (command == "read") return Read(words);
    if (command == "log") return Log(words);
    if (command == "logs") return LogMany(words);
    if (command == "notices") return Notices();
    if (command == "run") return BeginRun();
    if (command == "menue") return Menue();
    if (command == "add") return Add(words);
    if (command == "users") return Users();
    if (command == "seat") return SeatHere(words);
    if (command == "post") return Post(words);
    if (command == "nobody") return BecomeNobody();
    if (command == "limit") return LimitFiles(words);
    if (command == "loop") StoreForEver(words);
    return "unknown";
  }

 private:
  // open ADDRESS MILLISECONDS [MILLISECONDS]: patience for a lock, and for a server
  std::string Open(std::istringstream& words) {
    StoreOptions options;
    words >> options.address >> options.busy_timeout_ms;
    if (int patience = 0; words >> patience) options.server_patience_ms = patience;
    options.notify = [this](const Notice& notice) { notices_.push_back(notice.text_id); };
    options.clock = [] { return DateTime{2026, 3, 9, 8, 5, 1}; };
    store_.reset();
    store_ = std::make_unique<HostStore>(std::move(options));
    return "open";
  }

  std::string Menue() {
    TaggedValue slot;
    store_->Service()->Action("MENUE", "", slot);
    return "left";
  }

  // store KEY TEXT COUNT: an array of so many copies of a text
  std::string StoreCopies(std::istringstream& words) {
    std::string key;
    std::string text;
    std::size_t count = 0;
    words >> key >> text >> count;
    return Store(key, Array(count, TaggedValue(text)));
  }

  // pair TEXT COUNT COUNT: such arrays under E1 and A1, together
  std::string StorePair(std::istringstream& words) {
    std::string text;
    std::size_t settings = 0;
    std::size_t state = 0;
    words >> text >> settings >> state;
    return WordFor([&] {
      store_->Service()->Together([&] {
        Send("E1", Array(settings, TaggedValue(text)));
        Send("A1", Array(state, TaggedValue(text)));
      });
    });
  }

  std::string Store(const std::string& key, const TaggedValue& value) {
    return WordFor([&] { Send(key, value); });
  }

  void Send(const std::string& key, const TaggedValue& value) {
    TaggedValue result;
    store_->Service()->Action("STORE", Array{"vmod17", key, value}, result);
  }

  static std::string WordFor(const std::function<void()>& stores) {
    try {
      stores();
      return "stored";
    } catch (const RunTimeError& error) {
      return "raised " + std::to_string(error.number());
    }
  }

  // read KEY: first element and number of elements
  std::string Read(std::istringstream& words) {
    std::string key;
    words >> key;
    TaggedValue result;
    if (!store_->Service()->Action("READ", Array{"vmod17", key}, result)) return "false";
    return result[0].String() + ' ' + std::to_string(result.Elements().size());
  }

  std::string BeginRun() {
    store_->TellAnew();
    return "run";
  }

  // add NUMBER NAME
  std::string Add(std::istringstream& words) {
    StoreUser user;
    words >> user.id >> user.name;
    return store_->SaveUser(user, HostStore::UserIs::kNew) ? "added" : "taken";
  }

  // their numbers
  std::string Users() {
    std::string all;
    for (const StoreUser& user : store_->Users()) all += user.id + ' ';
    return all;
  }

  std::string Log(std::istringstream& words) {
    std::string text;
    words >> text;
    TaggedValue result;
    return store_->Service()->Action("LOGMESS", text, result) ? "kept" : "lost";
  }

  // logs NAME FIRST COUNT LENGTH: so many lines "NAME number ....", counted from the first, of at
  // least so many bytes
  std::string LogMany(std::istringstream& words) {
    std::string name;
    int first = 0;
    int count = 0;
    std::size_t length = 0;
    words >> name >> first >> count >> length;
    int kept = 0;
    for (int number = first; number < first + count; ++number) {
      std::string line = name + ' ' + std::to_string(number) + ' ';
      if (line.size() < length) line.resize(length, '.');
      TaggedValue result;
      if (store_->Service()->Action("LOGMESS", line, result)) ++kept;
    }
    return "kept " + std::to_string(kept);
  }

  std::string Notices() const {
    std::string all;
    for (const int notice : notices_) all += std::to_string(notice) + ' ';
    return all;
  }

  // post FILE KIND: an entry for an outbox
  static std::string Post(std::istringstream& words) {
    std::string path;
    std::string kind;
    words >> path >> kind;
    Outbox outbox(QString::fromStdString(path), [] { return DateTime{2026, 3, 9, 8, 5, 1}; });
    return outbox.Add({{kind, Array{kind}}}) ? "posted" : "refused";
  }

  // seat FOLDER
  static std::string SeatHere(std::istringstream& words) {
    std::string folder;
    words >> folder;
    return SeatIn(QString::fromStdString(folder)).name;
  }

  static std::string BecomeNobody() {
    constexpr uid_t kNobody = 65534;
    const bool done = ::getuid() != 0 || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
    return done ? "nobody" : "refused";
  }

  // A file that may not grow refuses like a disk that is full; 0 lifts the limit.
  std::string LimitFiles(std::istringstream& words) {
    std::int64_t bytes = 0;
    words >> bytes;
    small_files_.reset();
    if (bytes > 0) small_files_.emplace(bytes);
    return "limited";
  }

  // Stores arrays of one number repeated, counting up, and says each number once it is stored.
  [[noreturn]] void StoreForEver(std::istringstream& words) {
    std::string key;
    int number = 0;
    words >> key >> number;
    for (;;) {
      const std::string text = std::to_string(++number);
      if (Store(key, Array(2000, TaggedValue(text))) != "stored") std::exit(1);
      std::cout << text << std::endl;
    }
  }

  std::optional<SmallFiles> small_files_;  // longer than the store, which writes at its end
  std::unique_ptr<HostStore> store_;
  std::vector<int> notices_;
};

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  vmod17::Helper helper;
  for (std::string line; std::getline(std::cin, line);) {
    std::cout << helper.Answer(line) << std::endl;
  }
}

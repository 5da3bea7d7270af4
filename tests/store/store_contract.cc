// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The contracts of the host and of the user list on a store that other processes use as well:
//
//     store_contract ADDRESS NAME [argument of the test program...]
//
// Every test has programs, users, settings and log lines of its own, which bear its name. The
// program says "ready" and begins when it hears a line; says "done", and at the next line looks
// whether all that it wrote is still there as it was written: "kept" and how many values, users and
// log lines, or "lost" and what. In the log stand its name, "begins" or "ends", and how often it
// has written by then, before and after each test.

#include <QCoreApplication>
#include <algorithm>
#include <iostream>
#include <map>
#include <tuple>

#include "host_store_under_test.h"
#include "support/host_contract.h"
#include "user_list_contract.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

std::string address;       // NOLINT: set once, by main
std::string process_name;  // NOLINT

/// All that this process has written and was told is kept.
struct Ledger {
  using Key = std::tuple<std::string, std::string, std::string>;  // user, program, key

  std::map<Key, TaggedValue> values;
  std::vector<StoreUser> users;
  std::vector<std::string> lines;
  int writes = 0;
};

Ledger ledger;  // NOLINT: one a process

StoreOptions SharedOptions(const std::string& seat) {
  StoreOptions options = TestOptions(address);
  options.seat = seat;
  options.busy_timeout_ms = 60'000;
  options.notify = [](const Notice& notice) { ADD_FAILURE() << notice.english; };
  return options;
}

std::string NextMark() {
  static int last = 0;
  return process_name + ' ' + std::to_string(++last) + ": ";
}

std::string LineOf(const LogEntry& entry) {
  if (entry.kind == LogEntry::Kind::kMessage) return entry.text;
  return entry.place + '|' + std::to_string(entry.number) + '|' + entry.text + '|' + entry.source;
}

std::vector<std::string> LinesThatBeginWith(const std::string& mark, HostStore& store) {
  std::vector<std::string> lines;
  for (const LogEntry& entry : store.Log(100'000)) {
    if (std::string line = LineOf(entry); line.starts_with(mark)) lines.push_back(std::move(line));
  }
  return lines;
}

/// Puts the mark of one test on all that its host stores and logs.
class MarkedService : public HostService {
 public:
  MarkedService(std::unique_ptr<HostService> service, std::string mark, std::string user)
      : service_(std::move(service)), mark_(std::move(mark)), user_(std::move(user)) {}

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
    const TaggedValue marked = Marked(command, args);
    const bool done = service_->Action(command, marked, result);
    if (!done) return false;
    if (command == "LOGIN") result.Elements()[0] = result[0].String().substr(mark_.size());
    if (command == "READ" && result != NothingStored()) Unmark(result);
    if (command == "STORE") {
      ledger.values[{user_, marked[0].String(), marked[1].String()}] = marked[2];
    } else if (command == "LOGMESS") {
      ledger.lines.push_back(marked.String());
    } else if (command == "LOGERR") {
      ledger.lines.push_back(marked[0].String() + '|' + std::to_string(marked[1].Integer()) + '|' +
                             marked[2].String() + '|' + marked[3].String());
    } else {
      return true;
    }
    ++ledger.writes;
    return true;
  }

  void Together(const std::function<void()>& stores) override {
    const std::map<Ledger::Key, TaggedValue> before = ledger.values;
    try {
      service_->Together(stores);
    } catch (...) {
      ledger.values = before;
      throw;
    }
  }

 private:
  /// What has not the shape of the command's arguments goes through as it is, to be refused.
  TaggedValue Marked(std::string_view command, const TaggedValue& args) const {
    try {
      if (command == "LOGMESS") return mark_ + args.String();
      if (command == "READ" || command == "STORE" || command == "LOGERR") {
        Array marked = args.Elements();
        if (!marked.empty()) marked[0] = mark_ + marked[0].String();
        if (command == "STORE" && marked.size() == 3) marked[2] = Array{marked[2], mark_};
        return marked;
      }
    } catch (const RunTimeError&) {
    }
    return args;
  }

  void Unmark(TaggedValue& result) const {
    ASSERT_TRUE(result.IsArray());
    ASSERT_EQ(result.Elements().size(), 2u);
    EXPECT_EQ(result[1], TaggedValue(mark_)) << "the value of another test or process";
    const TaggedValue value = result[0];
    result = value;
  }

  std::unique_ptr<HostService> service_;
  const std::string mark_;
  const std::string user_;
};

class SharedHostUnderTest : public HostUnderTest {
 public:
  SharedHostUnderTest() { Restart(); }

  std::unique_ptr<HostService> Service() override {
    return std::make_unique<MarkedService>(store_->Service(), mark_, user_);
  }
  void Restart() override {
    store_.reset();
    StoreOptions options = SharedOptions(mark_);
    options.midi_number = [](const std::string& name) {
      return name == "third" ? std::optional<int>(3) : std::nullopt;
    };
    options.menue = [this] { return started_by_host_; };
    store_ = std::make_unique<HostStore>(std::move(options));
  }
  void SetUser(const std::string& id, const std::string& name,
               const std::string& first_name) override {
    user_ = id.empty() ? id : mark_ + id;
    store_->SetUser({user_, name, first_name});
  }
  void SetLanguage(const std::string& language) override { store_->SetLanguage(language); }
  void SetThirdMidiDevice() override { store_->SetMidiDevice("third"); }
  void SetStartedByHost(bool started) override { started_by_host_ = started; }

  std::vector<std::string> Log() override {
    std::vector<std::string> lines = LinesThatBeginWith(mark_, *store_);
    for (std::string& line : lines) line = line.substr(mark_.size());
    return lines;
  }

 private:
  const std::string mark_ = NextMark();
  std::string user_;
  bool started_by_host_ = false;
  std::unique_ptr<HostStore> store_;
};

INSTANTIATE_TEST_SUITE_P(SharedStore, HostContract,
                         ::testing::Values([] { return std::make_unique<SharedHostUnderTest>(); }));

class SharedStoreForUsers : public StoreForUsers {
 public:
  /// The test is over. Whom it has left on the list has to stay there.
  ~SharedStoreForUsers() override {
    for (const StoreUser& user : HostStore(Options()).Users()) {
      if (user.id.starts_with(mark_)) ledger.users.push_back(user);
    }
  }
  StoreOptions Options() override { return SharedOptions(mark_); }
  std::string Mark() override { return mark_; }

 private:
  const std::string mark_ = NextMark();
};

INSTANTIATE_TEST_SUITE_P(SharedStore, UserListContract,
                         ::testing::Values([] { return std::make_unique<SharedStoreForUsers>(); }));

/// Notes in the log of the store when a test begins and ends.
class Diary : public ::testing::EmptyTestEventListener {
 public:
  void OnTestStart(const ::testing::TestInfo&) override { Write("begins"); }
  void OnTestEnd(const ::testing::TestInfo&) override { Write("ends"); }

 private:
  void Write(const std::string& what) {
    const std::string line = process_name + ' ' + what + ' ' + std::to_string(ledger.writes);
    EXPECT_TRUE(LogLine(store_, line));
    ledger.lines.push_back(line);
  }

  HostStore store_{SharedOptions(process_name)};
};

/// What is no longer there as it was written, or how much there is.
std::string Findings() {
  HostStore store(SharedOptions(process_name + " looks"));
  for (const auto& [key, written] : ledger.values) {
    const auto& [user, program, name] = key;
    if (store.User().value_or(StoreUser()).id != user) store.SetUser({user, "", ""});
    TaggedValue found;
    store.Service()->Action("READ", Array{program, name}, found);
    if (found != written) return "lost the value " + name + " of " + program + user;
  }
  const std::vector<StoreUser> users = store.Users();
  for (const StoreUser& user : ledger.users) {
    if (std::ranges::count(users, user) != 1) return "lost the user " + user.id;
  }
  if (LinesThatBeginWith(process_name, store) != ledger.lines) return "lost lines of the log";
  return "kept " + std::to_string(ledger.values.size()) + ' ' +
         std::to_string(ledger.users.size()) + ' ' + std::to_string(ledger.lines.size());
}

void SayAndWait(const std::string& word) {
  std::cout << word << std::endl;
  std::string go;
  std::getline(std::cin, go);
}

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  // Who starts it may be a part of its tests; it runs all of its own.
  unsetenv("GTEST_TOTAL_SHARDS");
  unsetenv("GTEST_SHARD_INDEX");
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  if (argc != 3) return 2;
  vmod17::address = argv[1];
  vmod17::process_name = argv[2];
  vmod17::SayAndWait("ready");
  vmod17::Diary diary;
  ::testing::TestEventListeners& listeners = ::testing::UnitTest::GetInstance()->listeners();
  listeners.Append(&diary);
  const int status = RUN_ALL_TESTS();
  listeners.Release(&diary);
  vmod17::SayAndWait("done");
  std::cout << vmod17::Findings() << std::endl;
  return status;
}

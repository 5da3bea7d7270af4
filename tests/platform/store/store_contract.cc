// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The contract of the host on a store that other processes use as well:
//
//     store_contract ADDRESS NAME [argument of the test program...]
//
// Every test has the programs, users, settings and log lines of its own that bear its name. Says
// "ready", and begins when it hears a line.

#include <QCoreApplication>
#include <iostream>

#include "host_store_under_test.h"
#include "support/host_contract.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

std::string address;       // NOLINT: set once, by main
std::string process_name;  // NOLINT

/// Puts the mark of one test before all that its host stores and logs.
class MarkedService : public HostService {
 public:
  MarkedService(std::unique_ptr<HostService> service, std::string mark)
      : service_(std::move(service)), mark_(std::move(mark)) {}

  bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
    const bool done = service_->Action(command, Marked(command, args), result);
    if (done && command == "LOGIN") {
      result.Elements()[0] = result[0].String().substr(mark_.size());
    }
    return done;
  }
  void Together(const std::function<void()>& stores) override { service_->Together(stores); }

 private:
  /// What has not the shape of the command's arguments goes through as it is, to be refused.
  TaggedValue Marked(std::string_view command, const TaggedValue& args) const {
    try {
      if (command == "LOGMESS") return mark_ + args.String();
      if (command == "READ" || command == "STORE" || command == "LOGERR") {
        Array marked = args.Elements();
        if (!marked.empty()) marked[0] = mark_ + marked[0].String();
        return marked;
      }
    } catch (const RunTimeError&) {
    }
    return args;
  }

  std::unique_ptr<HostService> service_;
  const std::string mark_;
};

class SharedHostUnderTest : public HostUnderTest {
 public:
  SharedHostUnderTest() { Restart(); }

  std::unique_ptr<HostService> Service() override {
    return std::make_unique<MarkedService>(store_->Service(), mark_);
  }
  void Restart() override {
    store_.reset();
    StoreOptions options = TestOptions(address);
    options.seat = mark_;
    options.busy_timeout_ms = 60'000;
    options.midi_number = [](const std::string& name) {
      return name == "third" ? std::optional<int>(3) : std::nullopt;
    };
    options.menue = [this] { return started_by_host_; };
    options.notify = [](const Notice& notice) { ADD_FAILURE() << notice.english; };
    store_ = std::make_unique<HostStore>(std::move(options));
  }
  void SetUser(const std::string& id, const std::string& name,
               const std::string& first_name) override {
    store_->SetUser({id.empty() ? id : mark_ + id, name, first_name});
  }
  void SetLanguage(const std::string& language) override { store_->SetLanguage(language); }
  void SetThirdMidiDevice() override { store_->SetMidiDevice("third"); }
  void SetStartedByHost(bool started) override { started_by_host_ = started; }

  std::vector<std::string> Log() override {
    std::vector<std::string> log;
    for (const LogEntry& entry : store_->Log(100'000)) {
      const bool message = entry.kind == LogEntry::Kind::kMessage;
      const std::string line = message ? entry.text
                                       : entry.place + '|' + std::to_string(entry.number) + '|' +
                                             entry.text + '|' + entry.source;
      if (line.starts_with(mark_)) log.push_back(line.substr(mark_.size()));
    }
    return log;
  }

 private:
  static int Next() {
    static int last = 0;
    return ++last;
  }

  const std::string mark_ = process_name + ' ' + std::to_string(Next()) + ": ";
  bool started_by_host_ = false;
  std::unique_ptr<HostStore> store_;
};

INSTANTIATE_TEST_SUITE_P(SharedStore, HostContract,
                         ::testing::Values([] { return std::make_unique<SharedHostUnderTest>(); }));

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  if (argc != 3) return 2;
  vmod17::address = argv[1];
  vmod17::process_name = argv[2];
  std::cout << "ready" << std::endl;
  std::string go;
  std::getline(std::cin, go);
  return RUN_ALL_TESTS();
}

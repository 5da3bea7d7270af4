// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "support/memory_host.h"

#include <gtest/gtest.h>

#include "support/host_contract.h"

namespace vmod17 {
namespace {

class MemoryHostUnderTest : public HostUnderTest {
 public:
  std::unique_ptr<HostService> Service() override { return host_.Service(); }
  void Restart() override {}
  void SetUser(const std::string& id, const std::string& name,
               const std::string& first_name) override {
    host_.user.reset();
    if (!id.empty()) host_.user = MemoryHost::User{id, name, first_name};
  }
  void SetLanguage(const std::string& language) override { host_.language = language; }
  void SetThirdMidiDevice() override { host_.midi = "3"; }
  void SetStartedByHost(bool started) override { host_.returns_to_menu = started; }

  // The order of lines among errors is in the calls.
  std::vector<std::string> Log() override {
    std::vector<std::string> log;
    std::size_t error = 0;
    for (const MemoryHost::Call& call : host_.calls) {
      if (call.command == "LOGMESS") log.push_back(call.args.String());
      if (call.command == "LOGERR") log.push_back(Line(host_.errors.at(error++)));
    }
    return log;
  }

 private:
  static std::string Line(const MemoryHost::Error& error) {
    return error.place + '|' + std::to_string(error.number) + '|' + error.text + '|' + error.source;
  }

  MemoryHost host_;
};

INSTANTIATE_TEST_SUITE_P(MemoryHost, HostContract,
                         ::testing::Values([] { return std::make_unique<MemoryHostUnderTest>(); }));

TEST(MemoryHost, RaisesWhereItIsToldToAndHeals) {
  MemoryHost host;
  host.Raise("STORE");
  const TaggedValue args = TaggedValue::Array{"vmod17", "E1", "value"};
  TaggedValue result;
  EXPECT_THROW(host.Service()->Action("STORE", args, result), RunTimeError);
  EXPECT_TRUE(host.Stored("E1").IsEmpty());
  host.Heal("STORE");
  host.Service()->Action("STORE", args, result);
  EXPECT_EQ(host.Stored("E1"), TaggedValue("value"));
}

TEST(MemoryHost, FailsWhereItIsToldTo) {
  MemoryHost host;
  host.midi = "2";
  host.Fail("MIDI");
  TaggedValue result;
  EXPECT_FALSE(host.Service()->Action("MIDI", TaggedValue(), result));
  EXPECT_TRUE(result.IsEmpty());
}

TEST(MemoryHost, AnswersWithWhateverATestPutsInTheAnswersPlace) {
  MemoryHost host;
  host.answers["READ"] = "no array";
  TaggedValue result;
  EXPECT_TRUE(host.Service()->Action("READ", TaggedValue::Array{"vmod17", "E1"}, result));
  EXPECT_EQ(result, TaggedValue("no array"));
}

TEST(MemoryHost, RecordsEveryCallAndCountsItsServices) {
  MemoryHost host;
  const HostServiceFactory factory = host.Factory();
  TaggedValue result;
  factory()->Action("LANG", "", result);
  factory()->Action("LANG", "", result);
  EXPECT_EQ(host.services_made, 2);
  EXPECT_EQ(host.Sent("LANG"), 2);
  EXPECT_EQ(host.Sent("MENUE"), 0);
}

}  // namespace
}  // namespace vmod17

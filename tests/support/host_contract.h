// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ports/host_service.h"

namespace vmod17 {

/// A host in the hands of the contract tests. Beside its services it needs a way to be told what a
/// user would tell the host, and a way to look at the log.
class HostUnderTest {
 public:
  virtual ~HostUnderTest() = default;

  virtual std::unique_ptr<HostService> Service() = 0;
  /// Ends the process that holds the host, as it were, and starts the next one on the same store.
  virtual void Restart() = 0;

  virtual void SetUser(const std::string& id, const std::string& name,
                       const std::string& first_name) = 0;
  virtual void SetLanguage(const std::string& language) = 0;
  /// Sets the MIDI output whose present number is 3.
  virtual void SetThirdMidiDevice() = 0;
  /// Says whether a host has started the program, to which it can return.
  virtual void SetStartedByHost(bool started) = 0;

  /// The log, oldest first: the lines, and of an error its place, number, text and source with a
  /// bar between them.
  virtual std::vector<std::string> Log() = 0;
};

using MakeHost = std::function<std::unique_ptr<HostUnderTest>()>;

/// What every host keeps to. Instantiate it in a test file of the host with a `MakeHost`, each call
/// of which gives a host with an empty store. In one test program only one file may
/// include this header.
class HostContract : public ::testing::TestWithParam<MakeHost> {
 protected:
  using Array = TaggedValue::Array;

  TaggedValue Read(const std::string& key, const std::string& program = "vmod17") {
    TaggedValue result = "untouched";
    EXPECT_TRUE(host_->Service()->Action("READ", Array{program, key}, result));
    return result;
  }

  void Store(const std::string& key, const TaggedValue& value,
             const std::string& program = "vmod17") {
    TaggedValue result = "untouched";
    host_->Service()->Action("STORE", Array{program, key, value}, result);
    EXPECT_EQ(result, TaggedValue("untouched"));
  }

  int NumberRaised(const std::string& command, const TaggedValue& args) {
    TaggedValue result;
    return NumberRaisedBy([&] { host_->Service()->Action(command, args, result); });
  }

  int NumberRaisedTogether(const std::function<void()>& stores) {
    return NumberRaisedBy([&] { host_->Service()->Together(stores); });
  }

  static int NumberRaisedBy(const std::function<void()>& call) {
    try {
      call();
    } catch (const RunTimeError& error) {
      return error.number();
    }
    return 0;
  }

  void ExpectPair(const std::string& settings, const std::string& training) {
    EXPECT_EQ(Read("E1"), TaggedValue(Array{settings}));
    EXPECT_EQ(Read("A1"), TaggedValue(Array{training}));
  }

  std::unique_ptr<HostUnderTest> host_ = GetParam()();
  const TaggedValue kNothingStored = Array{"NIL"};
};

TEST_P(HostContract, AnswersNilForAKeyThatWasNeverStored) { EXPECT_EQ(Read("E1"), kNothingStored); }

TEST_P(HostContract, GivesBackWhatWasStored) {
  Store("E1", Array{"0", "5", "2"});
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"0", "5", "2"}));
}

TEST_P(HostContract, ReplacesWhatWasStoredUnderTheSameKey) {
  Store("A1", Array{"true", "17"});
  Store("A1", Array{"False"});
  EXPECT_EQ(Read("A1"), TaggedValue(Array{"False"}));
}

TEST_P(HostContract, KeepsTheTypesAndTheNestingOfValues) {
  const TaggedValue value =
      Array{TaggedValue(), 1, 1.0, "1", Array{}, Array{Array{"deep", -5}, TaggedValue()}, ""};
  Store("E1", value);
  EXPECT_EQ(Read("E1"), value);
}

TEST_P(HostContract, KeepsNumbersToTheirLimits) {
  const TaggedValue value = Array{std::numeric_limits<std::int64_t>::min(),
                                  std::numeric_limits<std::int64_t>::max(),
                                  0.1,
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::infinity()};
  Store("E1", value);
  EXPECT_EQ(Read("E1"), value);
  Store("E1", Array{-0.0});
  EXPECT_TRUE(std::signbit(Read("E1")[0].Float()));
}

TEST_P(HostContract, KeepsTextOfAnyBytes) {
  const TaggedValue value = Array{"Übung “Vier” 🎵", std::string("a\0b", 3), "\xFF\xC0'\"\\;\n"};
  Store("E1", value);
  EXPECT_EQ(Read("E1"), value);
}

TEST_P(HostContract, KeepsAValueThatIsNoArray) {
  Store("E1", "text");
  EXPECT_EQ(Read("E1"), TaggedValue("text"));
}

TEST_P(HostContract, KeepsTenMegabytes) {
  const TaggedValue value = Array{std::string(10'000'000, '\\')};
  Store("E1", value);
  EXPECT_TRUE(Read("E1") == value);
}

TEST_P(HostContract, KeepsKeysAndProgramsApart) {
  Store("E1", Array{"settings"});
  Store("A1", Array{"training"});
  Store("E1", Array{"other"}, "vmod18");
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"settings"}));
  EXPECT_EQ(Read("A1"), TaggedValue(Array{"training"}));
  EXPECT_EQ(Read("E1", "vmod18"), TaggedValue(Array{"other"}));
  EXPECT_EQ(Read("e1"), kNothingStored);
}

TEST_P(HostContract, KeepsUsersApart) {
  Store("E1", Array{"nobody"});
  host_->SetUser("4711", "Berg", "Anna");
  EXPECT_EQ(Read("E1"), kNothingStored);
  Store("E1", Array{"Anna"});
  host_->SetUser("", "", "");
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"nobody"}));
  host_->SetUser("4711", "Berg", "Anna");
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"Anna"}));
}

TEST_P(HostContract, ShowsAllServicesTheSameStore) {
  const std::unique_ptr<HostService> first = host_->Service();
  const std::unique_ptr<HostService> second = host_->Service();
  TaggedValue result;
  first->Action("STORE", Array{"vmod17", "A1", Array{"true"}}, result);
  EXPECT_TRUE(second->Action("READ", Array{"vmod17", "A1"}, result));
  EXPECT_EQ(result, TaggedValue(Array{"true"}));
}

TEST_P(HostContract, KeepsRecordsAndSettingsAcrossStarts) {
  host_->SetUser("4711", "Berg", "Änna");
  host_->SetLanguage("English");
  Store("E1", Array{"kept"});
  host_->Restart();
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"kept"}));
  TaggedValue result;
  EXPECT_TRUE(host_->Service()->Action("LOGIN", "", result));
  EXPECT_EQ(result, TaggedValue(Array{"4711", "Berg", "Änna"}));
  EXPECT_TRUE(host_->Service()->Action("LANG", "", result));
  EXPECT_EQ(result, TaggedValue("English"));
}

TEST_P(HostContract, LeavesTheDefaultsWhenNothingIsSet) {
  for (const char* command : {"LOGIN", "LANG", "MIDI"}) {
    TaggedValue result = Array{"unbekannt"};
    EXPECT_FALSE(host_->Service()->Action(command, "", result)) << command;
    EXPECT_EQ(result, TaggedValue(Array{"unbekannt"})) << command;
  }
}

TEST_P(HostContract, AnswersTheNumberOfTheMidiOutputAsText) {
  host_->SetThirdMidiDevice();
  TaggedValue result;
  EXPECT_TRUE(host_->Service()->Action("MIDI", TaggedValue(), result));
  EXPECT_EQ(result, TaggedValue("3"));
}

TEST_P(HostContract, ReturnsToTheMenuOnlyIfAHostStartedTheProgram) {
  TaggedValue result = "slot";
  EXPECT_FALSE(host_->Service()->Action("MENUE", "", result));
  host_->SetStartedByHost(true);
  EXPECT_TRUE(host_->Service()->Action("MENUE", "", result));
  EXPECT_EQ(result, TaggedValue("slot"));
}

TEST_P(HostContract, AppendsLinesAndErrorsToTheLog) {
  TaggedValue result = "slot";
  host_->Service()->Action("LOGMESS", "vmod17 1.0.0000", result);
  host_->Service()->Action("LOGERR", Array{"mat_wahl", 1004, "nichts übrig", "vmod17"}, result);
  host_->Service()->Action("LOGMESS", "Ende", result);
  EXPECT_EQ(result, TaggedValue("slot"));
  EXPECT_EQ(host_->Log(), (std::vector<std::string>{"vmod17 1.0.0000",
                                                    "mat_wahl|1004|nichts übrig|vmod17", "Ende"}));
}

TEST_P(HostContract, KeepsAllThatIsStoredTogether) {
  Store("A1", Array{"old"});
  host_->Service()->Together([&] {
    Store("E1", Array{"settings"});
    Store("A1", Array{"first thought"});
    Store("A1", Array{"training"});
  });
  ExpectPair("settings", "training");
  host_->Restart();
  ExpectPair("settings", "training");
}

TEST_P(HostContract, KeepsNothingOfWhatIsStoredTogetherWhenItRaises) {
  Store("E1", Array{"old settings"});
  Store("A1", Array{"old training"});
  EXPECT_EQ(NumberRaisedTogether([&] {
              Store("E1", Array{"settings"});
              Store("N1", Array{"new"});
              throw RunTimeError(ErrorNumber::kNothingToDraw, "no", "test");
            }),
            ErrorNumber::kNothingToDraw);
  ExpectPair("old settings", "old training");
  EXPECT_EQ(Read("N1"), kNothingStored);
  host_->Restart();
  ExpectPair("old settings", "old training");
  EXPECT_EQ(Read("N1"), kNothingStored);
}

TEST_P(HostContract, KeepsNothingOfWhatIsStoredTogetherWhenAStoreIsRefused) {
  TaggedValue result;
  EXPECT_EQ(NumberRaisedTogether([&] {
              Store("E1", Array{"settings"});
              host_->Service()->Action("STORE", Array{"vmod17", "A1"}, result);
            }),
            ErrorNumber::kTypeMismatch);
  EXPECT_EQ(Read("E1"), kNothingStored);
}

TEST_P(HostContract, ReadsWhatIsStoredTogetherBeforeItIsComplete) {
  Store("E1", Array{"old settings"});
  Store("A1", Array{"old training"});
  host_->Service()->Together([&] {
    Store("E1", Array{"settings"});
    ExpectPair("settings", "old training");
    Store("A1", Array{"training"});
    ExpectPair("settings", "training");
  });
}

TEST_P(HostContract, RefusesTogetherInTogether) {
  EXPECT_EQ(NumberRaisedTogether([&] {
              Store("E1", Array{"outer"});
              host_->Service()->Together([&] { Store("A1", Array{"inner"}); });
            }),
            ErrorNumber::kInvalidCall);
  EXPECT_EQ(Read("E1"), kNothingStored);
  EXPECT_EQ(Read("A1"), kNothingStored);
  EXPECT_EQ(NumberRaisedTogether([&] { Store("E1", Array{"next"}); }), 0);
  EXPECT_EQ(Read("E1"), TaggedValue(Array{"next"}));
}

TEST_P(HostContract, StoresAloneAgainAfterTogether) {
  host_->Service()->Together([] {});
  Store("E1", Array{"settings"});
  EXPECT_EQ(NumberRaisedTogether([] { throw RunTimeError(ErrorNumber::kDevice, "no", "test"); }),
            ErrorNumber::kDevice);
  Store("A1", Array{"training"});
  host_->Restart();
  ExpectPair("settings", "training");
}

TEST_P(HostContract, KeepsLogLinesThatAreWrittenWhileItStoresTogether) {
  TaggedValue result;
  const auto log = [&](const char* line) { host_->Service()->Action("LOGMESS", line, result); };
  host_->Service()->Together([&] {
    log("first");
    Store("E1", Array{"settings"});
    log("second");
    Store("A1", Array{"training"});
  });
  EXPECT_EQ(NumberRaisedTogether([&] {
              Store("E1", Array{"newer"});
              log("third");
              throw RunTimeError(ErrorNumber::kDevice, "no", "test");
            }),
            ErrorNumber::kDevice);
  ExpectPair("settings", "training");
  EXPECT_EQ(host_->Log(), (std::vector<std::string>{"first", "second", "third"}));
}

TEST_P(HostContract, RefusesArgumentsOfAnotherShape) {
  const TaggedValue shapes[] = {
      TaggedValue(),   5,           "E1",           Array{},
      Array{"vmod17"}, Array{1, 2}, Array{1, 2, 3}, Array{"vmod17", "E1", "value", "more"}};
  for (const char* command : {"READ", "STORE"}) {
    for (const TaggedValue& shape : shapes) {
      EXPECT_EQ(NumberRaised(command, shape), ErrorNumber::kTypeMismatch) << command;
    }
  }
  EXPECT_EQ(NumberRaised("LOGMESS", Array{"line"}), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(NumberRaised("LOGERR", "line"), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(NumberRaised("LOGERR", Array{"place", "5", "text", "source"}),
            ErrorNumber::kTypeMismatch);
  EXPECT_EQ(NumberRaised("LANG", Array{}), ErrorNumber::kTypeMismatch);
}

TEST_P(HostContract, HasNoAnswerForAWordThatIsNoCommand) {
  TaggedValue result = "slot";
  EXPECT_FALSE(host_->Service()->Action("read", "", result));
  EXPECT_EQ(result, TaggedValue("slot"));
}

}  // namespace vmod17

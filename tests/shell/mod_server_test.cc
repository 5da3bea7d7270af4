// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/mod_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "shell/shell_fixture.h"
#include "support/memory_host.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Array = TaggedValue::Array;

class ModServerTest : public ::testing::Test {
 protected:
  int DeviceAfterConnecting() {
    server_.HostVerbinden();
    return server_.HostMidiGeraet();
  }
  void Connect() {
    server_.HostVerbinden();
    host_.calls.clear();
    host_.messages.clear();
  }
  const MemoryHost::Call& OnlyCall() {
    EXPECT_EQ(host_.calls.size(), 1u);
    return host_.calls.at(0);
  }

  MemoryHost host_;
  ModServer server_{host_.Factory(), {"vmod17", 1, 2, 34}};
};

// --- Connecting -----------------------------------------------------------------------------

TEST_F(ModServerTest, AsksForTheDeviceAndLogsTheStartWhenItConnects) {
  EXPECT_EQ(server_.HostObjekt(), nullptr);
  server_.HostVerbinden();
  ASSERT_EQ(host_.calls.size(), 2u);
  EXPECT_EQ(host_.calls[0].command, "MIDI");
  EXPECT_TRUE(host_.calls[0].args.IsEmpty());
  EXPECT_EQ(host_.calls[1].command, "LOGMESS");
  EXPECT_THAT(host_.messages, ElementsAre("vmod17 1.2.0034"));
  EXPECT_NE(server_.HostObjekt(), nullptr);
  EXPECT_EQ(host_.services_made, 1);
}

TEST_F(ModServerTest, TakesTheDeviceThatTheHostNames) {
  host_.midi = "3";
  EXPECT_EQ(DeviceAfterConnecting(), 3);
}

TEST_F(ModServerTest, TakesTheNumberThatAnAnswerBeginsWith) {
  host_.midi = " 12 Synthesizer";
  EXPECT_EQ(DeviceAfterConnecting(), 12);
}

TEST_F(ModServerTest, TakesDevice0WhenTheAnswerIsEmpty) {
  host_.midi = "";
  EXPECT_EQ(DeviceAfterConnecting(), 0);
}

TEST_F(ModServerTest, TakesDevice0WhenTheAnswerHasNoDigitsAtItsBeginning) {
  host_.midi = "Information 3";
  EXPECT_EQ(DeviceAfterConnecting(), 0);
}

TEST_F(ModServerTest, HasMinus9ForADeviceWhenTheHostHasNoAnswer) {
  host_.Fail("MIDI");
  EXPECT_EQ(DeviceAfterConnecting(), -9);
}

TEST_F(ModServerTest, HasMinus9ForADeviceWhenTheHostRaises) {
  host_.Raise("MIDI");
  EXPECT_EQ(DeviceAfterConnecting(), -9);
}

TEST_F(ModServerTest, HasMinus9ForADeviceWhenTheAnswerIsNoText) {
  host_.answers["MIDI"] = Array{"3"};
  EXPECT_EQ(DeviceAfterConnecting(), -9);
}

TEST_F(ModServerTest, HasMinus9ForADeviceBeforeItConnects) {
  EXPECT_EQ(server_.HostMidiGeraet(), -9);
}

TEST_F(ModServerTest, ConnectsAlthoughTheLogRefusesTheStart) {
  host_.midi = "2";
  host_.Raise("LOGMESS");
  EXPECT_EQ(DeviceAfterConnecting(), 2);
  EXPECT_NE(server_.HostObjekt(), nullptr);
}

TEST_F(ModServerTest, ConnectsAlthoughTheLogHasNoAnswer) {
  host_.midi = "2";
  host_.Fail("LOGMESS");
  EXPECT_EQ(DeviceAfterConnecting(), 2);
}

// --- Language -------------------------------------------------------------------------------

TEST_F(ModServerTest, TakesTheLanguageThatTheHostNames) {
  host_.language = "English";
  Connect();
  EXPECT_EQ(server_.HostSprache(), "English");
  EXPECT_EQ(OnlyCall().command, "LANG");
  EXPECT_EQ(OnlyCall().args, TaggedValue(""));
}

TEST_F(ModServerTest, TakesGermanWhenTheHostHasNoLanguage) {
  Connect();
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
}

TEST_F(ModServerTest, TakesGermanWhenTheQuestionForTheLanguageFails) {
  Connect();
  host_.Fail("LANG");
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
}

TEST_F(ModServerTest, TakesGermanWhenTheQuestionForTheLanguageRaises) {
  Connect();
  host_.Raise("LANG");
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
}

TEST_F(ModServerTest, TakesGermanWhenTheLanguageIsNoText) {
  Connect();
  host_.answers["LANG"] = Array{"English"};
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
}

TEST_F(ModServerTest, DoesNotRememberALanguageFromTheLastAnswer) {
  host_.language = "English";
  Connect();
  EXPECT_EQ(server_.HostSprache(), "English");
  host_.Fail("LANG");
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
  host_.Raise("LANG");
  EXPECT_EQ(server_.HostSprache(), "Deutsch");
}

// --- User -----------------------------------------------------------------------------------

TEST_F(ModServerTest, TakesTheUserThatTheHostNames) {
  Connect();
  host_.user = {"4711", "Berg", "Anna"};
  EXPECT_EQ(server_.LoginDaten(), TaggedValue(Array{"4711", "Berg", "Anna"}));
  EXPECT_EQ(OnlyCall().command, "LOGIN");
  EXPECT_EQ(OnlyCall().args, TaggedValue(""));
}

TEST_F(ModServerTest, KnowsNobodyWhenTheHostLeavesTheDefault) {
  Connect();
  EXPECT_EQ(server_.LoginDaten(), TaggedValue(Array{"unbekannt"}));
}

TEST_F(ModServerTest, KnowsNobodyWhenTheQuestionForTheUserFails) {
  Connect();
  host_.Fail("LOGIN");
  EXPECT_EQ(server_.LoginDaten(), TaggedValue(Array{"unbekannt"}));
}

TEST_F(ModServerTest, WritesUnbekanntWithACapitalWhenTheQuestionForTheUserRaises) {
  Connect();
  host_.Raise("LOGIN");
  EXPECT_EQ(server_.LoginDaten(), TaggedValue(Array{"Unbekannt"}));
}

TEST_F(ModServerTest, WritesUnbekanntWithACapitalWhenTheUserIsNoListOfTexts) {
  Connect();
  for (const TaggedValue& answer :
       {TaggedValue("4711"), TaggedValue(), TaggedValue(Array{}), TaggedValue(Array{4711})}) {
    host_.answers["LOGIN"] = answer;
    EXPECT_EQ(server_.LoginDaten(), TaggedValue(Array{"Unbekannt"}));
  }
}

// --- Reading --------------------------------------------------------------------------------

TEST_F(ModServerTest, ReadsARecordUnderTheNameOfTheProgramWithAServiceOfItsOwn) {
  Connect();
  host_.SetStored("A1", Array{"true", "17"});
  EXPECT_TRUE(server_.LeseAblage("A1"));
  EXPECT_EQ(OnlyCall().command, "READ");
  EXPECT_EQ(OnlyCall().args, TaggedValue(Array{"vmod17", "A1"}));
  EXPECT_EQ(host_.services_made, 2);
  EXPECT_THAT(server_.ablage_ar, ElementsAre(TaggedValue("true"), TaggedValue("17")));
  EXPECT_THAT(server_.einst_satz, IsEmpty());
}

TEST_F(ModServerTest, ReadsStoredSettingsIntoTheirOwnArray) {
  Connect();
  host_.SetStored("E1", Array{"0", "1"});
  EXPECT_TRUE(server_.LeseEinstellung("E1"));
  EXPECT_THAT(server_.einst_satz, ElementsAre(TaggedValue("0"), TaggedValue("1")));
  EXPECT_THAT(server_.ablage_ar, IsEmpty());
}

TEST_F(ModServerTest, CopiesARecordWithAllItsTypes) {
  Connect();
  const Array record = {5, 2.5, TaggedValue(), Array{"deep", 1}, "text"};
  host_.SetStored("A1", record);
  EXPECT_TRUE(server_.LeseAblage("A1"));
  EXPECT_EQ(server_.ablage_ar, record);
}

class FailedReading : public ModServerTest {
 protected:
  void ExpectNothingRead() {
    server_.ablage_ar = {"from an earlier reading"};
    server_.einst_satz = {"from an earlier reading, too"};
    EXPECT_FALSE(server_.LeseAblage("A1"));
    EXPECT_FALSE(server_.LeseEinstellung("E1"));
    EXPECT_EQ(server_.ablage_ar, (Array{"from an earlier reading"}));
    EXPECT_EQ(server_.einst_satz, (Array{"from an earlier reading, too"}));
  }
};

TEST_F(FailedReading, LeavesTheArrayWhenNothingIsStored) {
  Connect();
  ExpectNothingRead();
}

TEST_F(FailedReading, LeavesTheArrayWhenTheHostHasNoAnswer) {
  Connect();
  host_.Fail("READ");
  ExpectNothingRead();
}

TEST_F(FailedReading, LeavesTheArrayWhenTheHostRaises) {
  Connect();
  host_.Raise("READ");
  ExpectNothingRead();
}

TEST_F(FailedReading, LeavesTheArrayWhenTheAnswerIsNoArray) {
  Connect();
  for (const TaggedValue& answer : {TaggedValue("text"), TaggedValue(7), TaggedValue()}) {
    host_.answers["READ"] = answer;
    ExpectNothingRead();
  }
}

TEST_F(FailedReading, LeavesTheArrayWhenTheAnswerIsEmpty) {
  Connect();
  host_.answers["READ"] = Array{};
  ExpectNothingRead();
}

TEST_F(FailedReading, TakesNilForNothingWhateverFollowsIt) {
  Connect();
  host_.answers["READ"] = Array{"NIL", "true"};
  ExpectNothingRead();
}

TEST_F(ModServerTest, TakesOnlyNilInCapitalsForNothing) {
  Connect();
  host_.answers["READ"] = Array{"nil"};
  EXPECT_TRUE(server_.LeseAblage("A1"));
}

TEST(ModServerWithoutServices, ReadsNothing) {
  ModServer server(
      []() -> std::unique_ptr<HostService> {
        throw RunTimeError(ErrorNumber::kCannotCreate, "no host", "test");
      },
      {"vmod17", 1, 0, 0});
  EXPECT_FALSE(server.LeseAblage("A1"));
}

// --- Storing and logging --------------------------------------------------------------------

TEST_F(ModServerTest, StoresAValueUnderTheNameOfTheProgram) {
  Connect();
  server_.Speichere("E1", Array{"0", "5"});
  EXPECT_EQ(OnlyCall().command, "STORE");
  EXPECT_EQ(OnlyCall().args, TaggedValue(Array{"vmod17", "E1", Array{"0", "5"}}));
  EXPECT_EQ(host_.Stored("E1"), TaggedValue(Array{"0", "5"}));
}

TEST_F(ModServerTest, DoesNotMindAStoreWithoutAnAnswer) {
  Connect();
  host_.Fail("STORE");
  EXPECT_NO_THROW(server_.Speichere("E1", Array{"0"}));
}

TEST_F(ModServerTest, PassesOnWhatTheStoreRaises) {
  Connect();
  host_.Raise("STORE", ErrorNumber::kStore);
  try {
    server_.Speichere("E1", Array{"0"});
    FAIL() << "the error was lost";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kStore);
  }
}

TEST_F(ModServerTest, StoresTheSettingsAndThenTheStateOfATraining) {
  Connect();
  server_.einst_satz = {"0", "5"};
  server_.SpeichereTraining("1", {"true", "17"});
  ASSERT_EQ(host_.calls.size(), 2u);
  EXPECT_EQ(host_.calls[0].args, TaggedValue(Array{"vmod17", "E1", Array{"0", "5"}}));
  EXPECT_EQ(host_.calls[1].args, TaggedValue(Array{"vmod17", "A1", Array{"true", "17"}}));
  EXPECT_EQ(host_.Stored("E1"), TaggedValue(Array{"0", "5"}));
  EXPECT_EQ(host_.Stored("A1"), TaggedValue(Array{"true", "17"}));
}

TEST_F(ModServerTest, StoresATrainingUnderTheTypeOfItsExercise) {
  Connect();
  server_.einst_satz = {"0"};
  server_.SpeichereTraining("12", {"true"});
  EXPECT_EQ(host_.Stored("E12"), TaggedValue(Array{"0"}));
  EXPECT_EQ(host_.Stored("A12"), TaggedValue(Array{"true"}));
}

TEST_F(ModServerTest, KeepsTheEarlierTrainingWhenTheStateOfANewOneIsRefused) {
  Connect();
  host_.SetStored("E1", Array{"old settings"});
  host_.SetStored("A1", Array{"old state"});
  host_.on_call = [](const MemoryHost::Call& call) {
    if (call.args[1] == TaggedValue("A1")) throw RunTimeError(ErrorNumber::kStore, "no", "test");
  };
  server_.einst_satz = {"new settings"};
  try {
    server_.SpeichereTraining("1", {"true"});
    FAIL() << "the error was lost";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kStore);
  }
  EXPECT_EQ(host_.Sent("STORE"), 2);
  EXPECT_EQ(host_.Stored("E1"), TaggedValue(Array{"old settings"}));
  EXPECT_EQ(host_.Stored("A1"), TaggedValue(Array{"old state"}));
}

TEST_F(ModServerTest, AppendsALineToTheLog) {
  Connect();
  server_.LogMeldung("Ende");
  EXPECT_EQ(OnlyCall().command, "LOGMESS");
  EXPECT_EQ(OnlyCall().args, TaggedValue("Ende"));
}

TEST_F(ModServerTest, DoesNotMindALogWithoutAnAnswer) {
  Connect();
  host_.Fail("LOGMESS");
  host_.Fail("LOGERR");
  EXPECT_NO_THROW(server_.LogMeldung("Ende"));
  EXPECT_NO_THROW(server_.LogFehler("mat_wahl", RunTimeError(5, "text", "source")));
}

TEST_F(ModServerTest, LogsAnErrorByPlaceNumberTextAndSource) {
  Connect();
  server_.LogFehler("mat_wahl.arbeitsblatt1.vmod17", RunTimeError(1004, "nothing left", "here"));
  EXPECT_EQ(OnlyCall().command, "LOGERR");
  EXPECT_EQ(OnlyCall().args,
            TaggedValue(Array{"mat_wahl.arbeitsblatt1.vmod17", 1004, "nothing left", "here"}));
}

TEST_F(ModServerTest, PassesOnWhatTheLogRaises) {
  Connect();
  host_.Raise("LOGERR");
  EXPECT_THROW(server_.LogFehler("mat_wahl", RunTimeError(5, "text", "source")), RunTimeError);
}

TEST_F(ModServerTest, NeedsTheHostToStoreAndToLog) {
  EXPECT_THROW(server_.Speichere("E1", Array{"0"}), RunTimeError);
  EXPECT_THROW(server_.SpeichereTraining("1", {"true"}), RunTimeError);
  EXPECT_THROW(server_.LogMeldung("Ende"), RunTimeError);
  EXPECT_THAT(host_.calls, IsEmpty());
}

// --- Leaving --------------------------------------------------------------------------------

class HostBeenden : public ModServerTest {
 protected:
  HostBeenden() {
    Connect();
    for (PlainScreen* screen : {&first_, &second_, &third_}) {
      screens_.Load(*screen);
      screen->on_unload = [this, screen] {
        trace_.push_back(screen->name() + (host_.Sent("MENUE") > 0 ? " late" : ""));
      };
    }
  }

  LoadedScreens screens_;
  PlainScreen first_{"grd_einst"};
  PlainScreen second_{"einstellung1"};
  PlainScreen third_{"arbeitsblatt1"};
  std::vector<std::string> trace_;
};

TEST_F(HostBeenden, UnloadsAllScreensLastFirstBeforeItSendsTheCommand) {
  server_.HostBeenden("MENUE", screens_);
  EXPECT_THAT(trace_, ElementsAre("arbeitsblatt1", "einstellung1", "grd_einst"));
  EXPECT_TRUE(screens_.empty());
  EXPECT_EQ(OnlyCall().command, "MENUE");
  EXPECT_EQ(OnlyCall().args, TaggedValue(""));
}

TEST_F(HostBeenden, ReleasesTheHostAndSendsNothingMore) {
  server_.HostBeenden("MENUE", screens_);
  EXPECT_EQ(server_.HostObjekt(), nullptr);
  server_.HostBeenden("MENUE", screens_);
  EXPECT_THROW(server_.LogMeldung("too late"), RunTimeError);
  EXPECT_EQ(host_.calls.size(), 1u);
}

TEST_F(HostBeenden, GoesOnWhenAScreenCannotBeUnloaded) {
  second_.on_unload = [] { throw RunTimeError(ErrorNumber::kDevice, "no", "test"); };
  EXPECT_NO_THROW(server_.HostBeenden("MENUE", screens_));
  EXPECT_THAT(trace_, ElementsAre("arbeitsblatt1", "grd_einst"));
  EXPECT_TRUE(screens_.empty());
  EXPECT_EQ(host_.Sent("MENUE"), 1);
}

TEST_F(HostBeenden, ReleasesTheHostEvenIfTheCommandRaises) {
  host_.Raise("MENUE");
  EXPECT_NO_THROW(server_.HostBeenden("MENUE", screens_));
  EXPECT_EQ(server_.HostObjekt(), nullptr);
}

TEST_F(HostBeenden, DoesNotMindACommandWithoutAnAnswer) {
  host_.Fail("MENUE");
  EXPECT_NO_THROW(server_.HostBeenden("MENUE", screens_));
  EXPECT_EQ(server_.HostObjekt(), nullptr);
}

TEST_F(ModServerTest, SendsTheCommandAlsoWhenNoScreenIsLoaded) {
  Connect();
  LoadedScreens none;
  server_.HostBeenden("MENUE", none);
  EXPECT_EQ(OnlyCall().command, "MENUE");
}

}  // namespace
}  // namespace vmod17

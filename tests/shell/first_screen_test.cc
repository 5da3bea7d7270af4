// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/first_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "exercise/exercise_names.h"
#include "shell/shell_fixture.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// --- The screen by itself -------------------------------------------------------------------

class FirstScreen : public ::testing::Test, protected ShellFixture {
 protected:
  void Load() { screens.Load(screen_); }
  void Start() {
    Load();
    loop.Advance(100);
  }
  std::vector<std::string> Captions() const {
    return {screen_.grdeinst_lb[0].caption, screen_.ueb_typ[1].caption, screen_.ueb_typ[2].caption,
            screen_.ueb_typ[3].caption,     screen_.cmdOK.caption,      screen_.cmdEnde.caption};
  }
  FakeLanguages::Words& German() { return languages.languages[0].second; }
  void ExpectClosed() {
    EXPECT_FALSE(screen_.visible);
    EXPECT_TRUE(screens.empty());
    EXPECT_EQ(host.Sent("MENUE"), 1);
    EXPECT_EQ(server.HostObjekt(), nullptr);
  }

  GrdEinst screen_{shell};
};

TEST_F(FirstScreen, OnlyConnectsToTheHostWhenItIsLoaded) {
  screen_.visible = true;
  Load();
  EXPECT_FALSE(screen_.visible);
  EXPECT_TRUE(screen_.start.enabled);
  std::vector<std::string> commands;
  for (const MemoryHost::Call& call : host.calls) commands.push_back(call.command);
  EXPECT_THAT(commands, ElementsAre("MIDI", "LOGMESS"));
  EXPECT_FALSE(texts.SprachenDa());
}

TEST_F(FirstScreen, ShowsItselfATenthOfASecondLater) {
  Load();
  loop.Advance(99);
  EXPECT_FALSE(screen_.visible);
  loop.Advance(1);
  EXPECT_TRUE(screen_.visible);
}

TEST_F(FirstScreen, BuildsItselfOnce) {
  Start();
  EXPECT_FALSE(screen_.start.enabled);
  loop.Advance(10000);
  EXPECT_EQ(host.Sent("LANG"), 1);
  EXPECT_EQ(host.Sent("LOGIN"), 1);
}

TEST_F(FirstScreen, SetsItsSixCaptionsFromTheLanguage) {
  Start();
  EXPECT_THAT(Captions(), ElementsAre("[586s]", "[154s]", "[160s]", "[496s]", "[432s]", "[223s]"));
}

TEST_F(FirstScreen, ComposesItsTitleWithoutSeparators) {
  German().words = {{"347s", "Akkorde"}, {"700s", ": "}, {"287s", "Übungsart"}};
  Start();
  EXPECT_EQ(screen_.caption, "Akkorde: Übungsart");
}

TEST_F(FirstScreen, ShowsTheVersion) {
  Start();
  EXPECT_EQ(screen_.versionszeile.caption, "[6s] [699s] 1.0.0000");
}

TEST_F(FirstScreen, OffersOnlyTheFirstExerciseType) {
  Start();
  EXPECT_EQ(state.uebTyp, 1);
  EXPECT_EQ(screen_.ueb_typ.chosen(), 1);
  EXPECT_TRUE(screen_.ueb_typ[1].Reachable());
  EXPECT_FALSE(screen_.ueb_typ.Choose(2));
  EXPECT_FALSE(screen_.ueb_typ.Choose(3));
  EXPECT_EQ(state.uebTyp, 1);
}

TEST_F(FirstScreen, TakesTheExerciseTypeFromTheOption) {
  Start();
  screen_.ueb_typ.Check(3);
  EXPECT_EQ(state.uebTyp, 3);
}

TEST_F(FirstScreen, FillsTheConstantTables) {
  Load();
  EXPECT_EQ(state.tempo_dauer_ar[0], 0);
  loop.Advance(100);
  EXPECT_EQ(state.tempo_dauer_ar[0], 4000);
  EXPECT_EQ(state.arp_teiler_ar[4], 32.0f);
}

TEST_F(FirstScreen, NeverShowsTheControlLabel) {
  Start();
  EXPECT_FALSE(screen_.Kontrolle.visible);
  EXPECT_EQ(screen_.Kontrolle.caption, "kontrolle: nicht entfernen!!");
}

TEST_F(FirstScreen, StaysMaximised) {
  Start();
  screen_.window_state = Form::WindowState::kNormal;
  screen_.Form_Resize();
  EXPECT_EQ(screen_.window_state, Form::WindowState::kMaximised);
}

TEST_F(FirstScreen, KnowsNobodyWhenTheHostLeavesTheDefault) {
  Start();
  EXPECT_FALSE(state.loginKnown);
}

TEST_F(FirstScreen, KnowsTheUserWhomTheHostNames) {
  host.user = {"4711", "Berg", "Anna"};
  Start();
  EXPECT_TRUE(state.loginKnown);
}

TEST_F(FirstScreen, TakesTheCapitalisedUnbekanntOfAFailedLoginForAUser) {
  host.Raise("LOGIN");
  Start();
  EXPECT_TRUE(state.loginKnown);
  EXPECT_TRUE(screen_.visible);
}

TEST_F(FirstScreen, TellsTheSpellingsOfUnbekanntApart) {
  host.answers["LOGIN"] = TaggedValue::Array{"UNBEKANNT"};
  Start();
  EXPECT_TRUE(state.loginKnown);
}

TEST_F(FirstScreen, TakesTheLanguageOfTheHost) {
  host.language = "English";
  languages.languages[1].second.words["432s"] = "Go on";
  Start();
  EXPECT_EQ(screen_.cmdOK.caption, "Go on");
}

TEST_F(FirstScreen, IsCompleteInALanguageThatIsNotInstalled) {
  host.language = "Suomi";
  Start();
  EXPECT_TRUE(screen_.visible);
  EXPECT_THAT(Captions(), Each("VOID"));
  EXPECT_EQ(screen_.caption, "VOIDVOIDVOID");
  EXPECT_EQ(screen_.versionszeile.caption, "VOID VOID 1.0.0000");
  EXPECT_TRUE(screen_.cmdOK.Press());
  EXPECT_THAT(navigation.asked, ElementsAre("OpenSettings"));
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(FirstScreen, IsCompleteWithoutAnyLanguage) {
  languages.no_list = true;
  Start();
  EXPECT_TRUE(screen_.visible);
  EXPECT_THAT(Captions(), Each("VOID"));
}

TEST_F(FirstScreen, EndsTheProgramWhenAListedLanguageCannotBeMade) {
  German().broken = true;
  Start();
  ASSERT_THAT(host.errors, SizeIs(1));
  EXPECT_EQ(host.errors[0].place, "start_timer.grd_einst.vmod17");
  EXPECT_EQ(host.errors[0].number, ErrorNumber::kCannotCreate);
  EXPECT_THAT(messages.warnings,
              ElementsAre(ScriptedMessageBox::Shown{"VOID\nVOID\nVOID\nVOID", "Melvado 2000"}));
  ExpectClosed();
}

TEST_F(FirstScreen, EndsTheProgramOnALateErrorAndLeavesItsTitle) {
  screen_.ueb_typ.Click = [](int) { throw RunTimeError(ErrorNumber::kStore, "no", "test"); };
  Start();
  EXPECT_EQ(screen_.caption, "[347s][700s][287s]");
  EXPECT_THAT(messages.warnings, SizeIs(1));
  ExpectClosed();
}

TEST_F(FirstScreen, ShowsTheMessageBeforeItEndsTheProgram) {
  German().broken = true;
  int sent = -1;
  messages.meanwhile = [&] { sent = host.Sent("MENUE"); };
  Start();
  EXPECT_EQ(sent, 0);
}

TEST_F(FirstScreen, HidesItselfBeforeItAsksForTheSettings) {
  Start();
  bool hidden = false;
  navigation.meanwhile = [&] { hidden = !screen_.visible; };
  EXPECT_TRUE(screen_.cmdOK.Press());
  EXPECT_TRUE(hidden);
  EXPECT_THAT(navigation.asked, ElementsAre("OpenSettings"));
  EXPECT_EQ(screens.count(), 1) << "the first screen stays loaded";
}

TEST_F(FirstScreen, CannotBeLeftTwiceByADoubleClick) {
  Start();
  EXPECT_TRUE(screen_.cmdOK.Press());
  EXPECT_FALSE(screen_.cmdOK.Press());
  EXPECT_THAT(navigation.asked, SizeIs(1));
}

TEST_F(FirstScreen, OpensNothingForAnotherExerciseType) {
  Start();
  screen_.ueb_typ.Check(2);
  EXPECT_TRUE(screen_.cmdOK.Press());
  EXPECT_FALSE(screen_.visible);
  EXPECT_THAT(navigation.asked, IsEmpty());
}

TEST_F(FirstScreen, EndsTheProgramWhenTheSettingsCannotBeOpened) {
  Start();
  navigation.meanwhile = [] { throw RunTimeError(ErrorNumber::kDevice, "no sound", "test"); };
  screen_.cmdOK.Press();
  EXPECT_THAT(host.errors,
              ElementsAre(MemoryHost::Error{"cmdOK_click.grd_einst.vmod17", ErrorNumber::kDevice,
                                            "no sound", "test"}));
  EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{
                                     "[720s]\n[721s]\n[722s]\n[723s]", "Melvado 2000"}));
  ExpectClosed();
}

TEST_F(FirstScreen, EndsTheProgramByItsButton) {
  Start();
  EXPECT_TRUE(screen_.cmdEnde.Press());
  ExpectClosed();
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(FirstScreen, EndsTheProgramWhenItsWindowIsClosed) {
  Start();
  screen_.Form_Close();
  ExpectClosed();
}

TEST_F(FirstScreen, EndsTheProgramWhenItIsClosedBeforeItIsBuilt) {
  Load();
  screen_.Form_Close();
  loop.Advance(1000);
  ExpectClosed();
  EXPECT_EQ(host.Sent("LANG"), 0);
  EXPECT_EQ(loop.timers(), 0);
}

TEST_F(FirstScreen, SendsTheHelpKey) {
  Start();
  EXPECT_TRUE(screen_.cmdHilfe.Press());
  EXPECT_THAT(system.keys, ElementsAre("{F1}"));
}

// --- The order of the start -----------------------------------------------------------------

/// Host and languages that write into one common trace.
class StartTrace {
 public:
  std::vector<std::string> steps;
  MemoryHost host;
  FakeLanguages languages;

  HostServiceFactory HostFactory() {
    return [this] { return std::make_unique<Host>(*this, host.Service()); };
  }
  LanguageListFactory ListFactory() {
    return [this] {
      steps.emplace_back("list");
      return std::make_unique<List>(*this, languages.Make());
    };
  }

 private:
  class Host : public HostService {
   public:
    Host(StartTrace& trace, std::unique_ptr<HostService> inner)
        : trace_(trace), inner_(std::move(inner)) {}
    bool Action(std::string_view command, const TaggedValue& args, TaggedValue& result) override {
      trace_.steps.emplace_back(command);
      return inner_->Action(command, args, result);
    }
    void Together(const std::function<void()>& stores) override { inner_->Together(stores); }

   private:
    StartTrace& trace_;
    std::unique_ptr<HostService> inner_;
  };
  class Words : public Language {
   public:
    Words(StartTrace& trace, std::unique_ptr<Language> inner)
        : trace_(trace), inner_(std::move(inner)) {}
    std::string Wort(const std::string& key) const override {
      trace_.steps.push_back(key);
      return inner_->Wort(key);
    }

   private:
    StartTrace& trace_;
    std::unique_ptr<Language> inner_;
  };
  class List : public LanguageList {
   public:
    List(StartTrace& trace, std::unique_ptr<LanguageList> inner)
        : trace_(trace), inner_(std::move(inner)) {}
    std::vector<LanguageColumn> Table() const override { return inner_->Table(); }
    std::unique_ptr<Language> Create(const std::string& class_name) const override {
      trace_.steps.push_back(class_name);
      return std::make_unique<Words>(trace_, inner_->Create(class_name));
    }

   private:
    StartTrace& trace_;
    std::unique_ptr<LanguageList> inner_;
  };
};

TEST(FirstScreenStart, GoesThroughItsStepsInOrder) {
  StartTrace trace;
  ShellFixture f;
  ModServer server(trace.HostFactory(), {"vmod17", 1, 0, 0});
  TextLookup texts(trace.ListFactory(), f.system);
  ExerciseNames names;
  texts.WeitereTexte = [&](const TextLookup& all) { names.Fuelle(all); };
  Shell shell{f.loop, f.system, f.messages, f.state,     texts,
              server, f.errors, f.screens,  f.navigation};
  GrdEinst screen(shell);
  screen.ueb_typ.Click = [&, inner = screen.ueb_typ.Click](int index) {
    trace.steps.push_back("ueb_typ " + std::to_string(index));
    trace.steps.emplace_back(f.state.tempo_dauer_ar[0] == 0 ? "tables empty" : "tables full");
    trace.steps.emplace_back(screen.visible ? "visible" : "hidden");
    inner(index);
  };
  f.screens.Load(screen);
  f.loop.Advance(100);

  using Steps = std::vector<std::string>;
  Steps steps = {"MIDI", "LOGMESS", "list", "LANG", "melvadolang.Deutsch"};
  for (const int id : {347, 287, 221, 224, 348, 51,  379, 380, 409, 200, 201, 410, 312, 609,
                       199, 51,  57,  60,  62,  64,  136, 564, 565, 550, 438, 133, 84,  624,
                       278, 477, 371, 400, 470, 479, 194, 141, 478, 424, 400, 319, 476}) {
    steps.push_back(std::to_string(id) + "s");
  }
  const std::size_t captions = steps.size();
  ASSERT_GT(trace.steps.size(), captions + 7);
  EXPECT_THAT(Steps(trace.steps.begin(), trace.steps.begin() + captions), ElementsAreArray(steps));
  // The last one is what a reader of the screen calls the "?".
  EXPECT_THAT(
      Steps(trace.steps.begin() + captions, trace.steps.begin() + captions + 7),
      ::testing::UnorderedElementsAre("586s", "154s", "160s", "496s", "432s", "223s", "9421s"));
  Steps rest(trace.steps.begin() + captions + 7, trace.steps.end());
  // The two words of the version line belong to one step.
  ASSERT_THAT(rest, SizeIs(7));
  std::sort(rest.begin() + 2, rest.begin() + 4);
  EXPECT_THAT(rest,
              ElementsAre("LOGIN", "700s", "699s", "6s", "ueb_typ 1", "tables empty", "hidden"));
  EXPECT_TRUE(screen.visible);
}

// --- Among the other screens ----------------------------------------------------------------

TEST(ScreenNavigation, LoadsTheSettingsScreenHiddenUntilItIsBuilt) {
  ProgramFixture p;
  p.ToFirstScreen();
  p.first().cmdOK.Press();
  ASSERT_NE(p.program.einstellung1(), nullptr);
  EXPECT_FALSE(p.first().visible);
  EXPECT_FALSE(p.settings_screen().visible);
  p.loop.Advance(199);
  EXPECT_FALSE(p.settings_screen().visible);
  p.loop.Advance(1);
  EXPECT_TRUE(p.settings_screen().visible);
}

TEST(ScreenNavigation, ComesBackToTheFirstScreenAsItWas) {
  ProgramFixture p;
  p.ToSettings();
  const int asked = p.host.Sent("LANG");
  p.languages.looked_up.clear();
  p.settings_screen().cmdZurueck.Press();
  p.loop.Advance(1000);
  EXPECT_TRUE(p.first().visible);
  EXPECT_EQ(p.program.einstellung1(), nullptr);
  EXPECT_EQ(p.first().ueb_typ.chosen(), 1);
  EXPECT_EQ(p.host.Sent("LANG"), asked) << "the first screen is not built a second time";
  EXPECT_THAT(p.languages.looked_up, IsEmpty());
  EXPECT_TRUE(p.first().cmdOK.Press());
  EXPECT_NE(p.program.einstellung1(), nullptr);
}

TEST(ScreenNavigation, KeepsBothScreensLoadedAndHiddenWhileARunGoesOn) {
  ProgramFixture p;
  p.ToWorksheet();
  ASSERT_NE(p.program.grd_einst(), nullptr);
  ASSERT_NE(p.program.einstellung1(), nullptr);
  EXPECT_FALSE(p.first().visible);
  EXPECT_FALSE(p.settings_screen().visible);
  EXPECT_TRUE(p.worksheet().visible);
}

/// Leaves the program in some state, and expects it to be over.
void ExpectThatItCanBeLeft(ProgramFixture& p) {
  p.program.OnEnd = [&p] { p.ended = true; };
  p.program.Leave();
  p.loop.Advance(20000);
  EXPECT_TRUE(p.program.Ended());
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
  EXPECT_EQ(p.host.calls.back().command, "MENUE");
  EXPECT_THAT(p.messages.warnings, IsEmpty());
  EXPECT_THAT(p.view.forms, IsEmpty());
  EXPECT_EQ(p.loop.timers(), 0);
}

TEST(ClosingPath, WorksBeforeTheFirstScreenIsBuilt) {
  ProgramFixture p;
  p.program.Start();
  ExpectThatItCanBeLeft(p);
}

TEST(ClosingPath, WorksFromTheFirstScreen) {
  ProgramFixture p;
  p.ToFirstScreen();
  ExpectThatItCanBeLeft(p);
}

TEST(ClosingPath, WorksBeforeTheSettingsScreenIsBuilt) {
  ProgramFixture p;
  p.ToFirstScreen();
  p.first().cmdOK.Press();
  ExpectThatItCanBeLeft(p);
}

TEST(ClosingPath, WorksFromTheSettingsScreen) {
  ProgramFixture p;
  p.ToSettings();
  ExpectThatItCanBeLeft(p);
  EXPECT_FALSE(p.output.IsOpen());
}

TEST(ClosingPath, WorksBeforeTheWorksheetIsBuilt) {
  ProgramFixture p;
  p.ToSettings();
  p.settings_screen().cmdOK.Press();
  ExpectThatItCanBeLeft(p);
}

TEST(ClosingPath, WorksFromTheWorksheet) {
  ProgramFixture p;
  p.ToWorksheet();
  ExpectThatItCanBeLeft(p);
}

TEST(ClosingPath, WorksWhileATaskSounds) {
  ProgramFixture p;
  p.ToWorksheet();
  p.worksheet().CmdNextAufg.Press();
  ASSERT_TRUE(p.output.IsRunning());
  ExpectThatItCanBeLeft(p);
  EXPECT_FALSE(p.output.IsRunning());
}

TEST(ClosingPath, WorksInsideADelayOfAPlaying) {
  ProgramFixture p;
  p.ToWorksheet();
  p.program.OnEnd = [&p] { p.ended = true; };
  p.loop.meanwhile = [&p] {
    if (!p.ended) p.program.Leave();
  };
  p.worksheet().CmdNextAufg.Press();
  p.loop.meanwhile = nullptr;
  p.loop.Advance(20000);
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.output.starts, 0);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
  EXPECT_EQ(p.loop.timers(), 0);
}

TEST(ClosingPath, WorksInsideTheTurnOfTheSettingsButton) {
  ProgramFixture p;
  p.ToSettings();
  p.program.OnEnd = [&p] { p.ended = true; };
  p.loop.meanwhile = [&p] {
    if (!p.ended) p.program.Leave();
  };
  p.settings_screen().cmdOK.Press();
  p.loop.meanwhile = nullptr;
  p.loop.Advance(20000);
  EXPECT_TRUE(p.ended);
  EXPECT_EQ(p.program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(p.program.einstellung1(), nullptr);
  EXPECT_EQ(p.host.Sent("MENUE"), 1);
  EXPECT_THAT(p.messages.warnings, IsEmpty());
}

}  // namespace
}  // namespace vmod17

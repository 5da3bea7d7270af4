// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/settings_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "settings/settings_fixture.h"
#include "shell/shell_fixture.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Entry = ItemList::Entry;

constexpr Color kGreen = {0x80, 0xFF, 0x80};
constexpr Color kRed = {0xFF, 0, 0};

class SettingsScreen : public ::testing::Test, protected ProgramFixture {
 protected:
  /// Up to the moment in which the screen is loaded and not yet built.
  void Load() {
    ToFirstScreen();
    first().cmdOK.Press();
  }
  Einstellung1& screen() { return settings_screen(); }
  FakeLanguages::Words& German() { return languages.languages[0].second; }

  void ExpectBackOnTheFirstScreen() {
    EXPECT_EQ(program.einstellung1(), nullptr);
    EXPECT_EQ(program.arbeitsblatt1(), nullptr);
    EXPECT_TRUE(first().visible);
    EXPECT_FALSE(output.IsOpen());
    EXPECT_EQ(loop.timers(), 0);
  }
  void ExpectOneError(const std::string& place) {
    ASSERT_THAT(host.errors, SizeIs(1));
    EXPECT_EQ(host.errors[0].place, place);
    EXPECT_THAT(messages.warnings, ElementsAre(ScriptedMessageBox::Shown{
                                       "[720s]\n[721s]\n[722s]\n[723s]", "Melvado 2000"}));
  }
  [[noreturn]] static void Throw() { throw RunTimeError(ErrorNumber::kStore, "no", "test"); }
};

// --- Opening --------------------------------------------------------------------------------

TEST_F(SettingsScreen, WaitsHiddenForATimerOf200Milliseconds) {
  Load();
  EXPECT_FALSE(screen().visible);
  EXPECT_TRUE(screen().start.enabled);
  EXPECT_EQ(screen().start.interval, 200);
  loop.Advance(199);
  EXPECT_FALSE(screen().visible);
  loop.Advance(1);
  EXPECT_TRUE(screen().visible);
}

TEST_F(SettingsScreen, IsBuiltOnce) {
  ToSettings();
  EXPECT_FALSE(screen().start.enabled);
  const std::size_t looked_up = languages.looked_up.size();
  loop.Advance(10000);
  EXPECT_EQ(languages.looked_up.size(), looked_up);
}

TEST_F(SettingsScreen, HasATitleOfItsOwnUntilItIsBuilt) {
  Load();
  EXPECT_EQ(screen().caption, "Grundeinstellung : Jazz-Akkorde bestimmen");
}

TEST_F(SettingsScreen, ComposesItsTitleWithoutSeparators) {
  German().words = {{"348s", "Akkorde bestimmen"}, {"700s", " - "}, {"221s", "Einstellungen"}};
  ToSettings();
  EXPECT_EQ(screen().caption, "Akkorde bestimmen - Einstellungen");
}

TEST_F(SettingsScreen, StaysMaximised) {
  ToSettings();
  screen().window_state = Form::WindowState::kNormal;
  screen().Form_Resize();
  EXPECT_EQ(screen().window_state, Form::WindowState::kMaximised);
}

TEST_F(SettingsScreen, SelectsInItsListsInAFixedOrder) {
  Load();
  std::vector<std::string> trace;
  const auto spy = [&](const char* name, std::function<void()>& click) {
    click = [&trace, name, inner = click] {
      trace.emplace_back(name);
      inner();
    };
  };
  spy("temp_Combo", screen().temp_Combo.Click);
  spy("HSliderVolume", screen().HSliderVolume.Change);
  spy("arpeg_cmb", screen().arpeg_cmb.Click);
  spy("cmb_arpTmp", screen().cmb_arpTmp.Click);
  spy("training_Combo", screen().training_Combo.Click);
  spy("ComboPatch", screen().ComboPatch.Click);
  spy("klanglst(0)", screen().klanglst[0].Click);
  spy("klanglst(1)", screen().klanglst[1].Click);
  spy("prfnr_Comb", screen().prfnr_Comb.Click);
  spy("akkzahl_cmb", screen().akkzahl_cmb.Click);
  spy("oktav_cmb", screen().oktav_cmb.Click);
  spy("Combo_tonraum", screen().Combo_tonraum.Click);
  loop.Advance(200);
  EXPECT_THAT(trace, ElementsAre("temp_Combo", "HSliderVolume", "arpeg_cmb", "cmb_arpTmp",
                                 "training_Combo", "ComboPatch", "klanglst(0)", "prfnr_Comb",
                                 "akkzahl_cmb", "oktav_cmb", "Combo_tonraum"));
}

TEST_F(SettingsScreen, IsShownAndHasItsOutputOpenBeforeItFillsItsLists) {
  Load();
  bool reached = false;
  screen().temp_Combo.Click = [&, inner = screen().temp_Combo.Click] {
    reached = true;
    EXPECT_TRUE(screen().visible);
    EXPECT_EQ(screen().cmdZurueck.caption, "[640s]");
    EXPECT_EQ(screen().caption, "[348s][700s][221s]");
    EXPECT_TRUE(output.IsOpen());
    EXPECT_EQ(screen().ComboPatch.count(), 128);
    EXPECT_EQ(screen().ComboPatch.list_index(), -1);
    EXPECT_EQ(settings().tempo_idx, 1);
    EXPECT_EQ(screen().arpeg_cmb.count(), 0);
    inner();
  };
  loop.Advance(200);
  EXPECT_TRUE(reached);
}

TEST_F(SettingsScreen, SendsAllTimbresBeforeItSelectsTheFirst) {
  Load();
  std::size_t sent = 0;
  screen().ComboPatch.Click = [&, inner = screen().ComboPatch.Click] {
    sent = output.sent.size();
    inner();
  };
  loop.Advance(200);
  EXPECT_EQ(sent, 8u);
  ASSERT_THAT(output.sent, SizeIs(9));
  const std::vector<int> programs = {0, 70, 68, 71, 73, 73, 72, 74};
  for (int kanal = 0; kanal < 8; ++kanal) {
    EXPECT_EQ(output.sent[kanal].status, 192 + kanal);
    EXPECT_EQ(output.sent[kanal].data1, programs[kanal]);
  }
  EXPECT_EQ(output.sent[8].status, 192);
  EXPECT_EQ(output.sent[8].data1, 0);
}

TEST_F(SettingsScreen, LooksUpItsTextsStepByStep) {
  Load();
  languages.looked_up.clear();
  loop.Advance(200);
  const std::vector<std::string>& keys = languages.looked_up;
  ASSERT_FALSE(keys.empty());
  EXPECT_EQ(keys.front(), "700s") << "the title comes first";
  // From the timbres on all is in a fixed order, but for the words of one entry.
  const auto from = std::ranges::find(keys, "499s");
  EXPECT_EQ(keys.back(), "9560s") << "the outlook comes last";
  const std::vector<std::string> lists(from, keys.end() - 1);
  ASSERT_THAT(lists, SizeIs(7 + 1 + 5 + 4 + 4 * 3));
  EXPECT_THAT(std::vector<std::string>(lists.begin(), lists.begin() + 17),
              ElementsAre("499s", "499s", "499s", "499s", "499s", "499s", "499s", "432s", "426s",
                          "426s", "426s", "426s", "426s", "41s", "41s", "41s", "41s"));
  EXPECT_THAT(std::vector<std::string>(lists.begin() + 17, lists.begin() + 20),
              ::testing::UnorderedElementsAre("671s", "702s", "673s"));
  EXPECT_THAT(std::vector<std::string>(lists.end() - 3, lists.end()),
              ::testing::UnorderedElementsAre("674s", "702s", "676s"));
}

TEST_F(SettingsScreen, AsksTheHostForARunToContinueWhileItIsBuilt) {
  Load();
  const std::size_t before = host.calls.size();
  loop.Advance(200);
  ASSERT_EQ(host.calls.size(), before + 1);
  EXPECT_EQ(host.calls.back().command, "READ");
  EXPECT_EQ(host.calls.back().args, TaggedValue(TaggedValue::Array{"vmod17", "E1"}));
}

/// The screen without the program around it.
struct SingleScreen : ShellFixture {
  SingleScreen() {
    state.uebTyp = 1;
    state.FillTables();
    server.HostVerbinden();
  }
  void Build() {
    screens.Load(screen);
    loop.Advance(200);
  }

  RecordingMidiOutput output;
  ModMIDI midi{loop, server};
  ExerciseSettings settings;
  ExerciseNames names;
  RunCounters counters;
  MemoryXmlLibrary documents;
  LessonRecord record{shell, documents.Factory(), [] { return "bestimmen"; }};
  ScriptedRandom random;
  ScriptedFileDialog dialog;
  MemorySettingsFiles settings_files;
  Einstellung1 screen{
      shell, {settings, names, midi, output, counters, record, random, dialog, settings_files}};
};

TEST(SettingsScreenSetUp, MakesRoomForTheResultsOf24Chords) {
  SingleScreen f;
  f.Build();
  float value = -1;
  int best = -1;
  EXPECT_NO_THROW(f.counters.auswertung_obj.read(24, 3, value));
  EXPECT_NO_THROW(f.counters.ergebnis_obj.read(24, best));
  EXPECT_EQ(value, 0);
  EXPECT_EQ(best, 0);
  EXPECT_THROW(f.counters.auswertung_obj.read(25, 0, value), RunTimeError);
  EXPECT_THROW(f.counters.auswertung_obj.read(1, 4, value), RunTimeError);
  EXPECT_THROW(f.counters.ergebnis_obj.read(25, best), RunTimeError);
}

TEST(SettingsScreenSetUp, LeavesResultsAloneThatAreThere) {
  SingleScreen f;
  f.counters.auswertung_obj.init_arr(24, 3);
  f.counters.auswertung_obj.Save(7, 1, -2.5f);
  f.counters.ergebnis_obj.init_arr(24);
  f.counters.ergebnis_obj.SaveBest(7, 9);
  f.Build();
  float value = 0;
  int best = 0;
  f.counters.auswertung_obj.read(7, 1, value);
  f.counters.ergebnis_obj.read(7, best);
  EXPECT_EQ(value, -2.5f);
  EXPECT_EQ(best, 9);
}

TEST(SettingsScreenSetUp, OpensTheDeviceAndSetsItsVelocity) {
  SingleScreen f;
  f.output.geraete = {"one", "two", "three"};
  f.Build();
  EXPECT_EQ(f.output.OpenedDevice(), 2);
  EXPECT_EQ(f.midi.midiVelocity, 100);
  f.screen.HSliderVolume.Set(64);
  EXPECT_EQ(f.midi.midiVelocity, 64);
}

TEST(SettingsScreenSetUp, AsksOnlyForTheNextScreenAfterTheButton) {
  SingleScreen f;
  f.Build();
  EXPECT_THAT(f.navigation.asked, IsEmpty());
  bool hidden = false;
  f.navigation.meanwhile = [&] { hidden = !f.screen.visible && f.screen.cmdOK.enabled; };
  EXPECT_TRUE(f.screen.cmdOK.Press());
  EXPECT_THAT(f.navigation.asked, ElementsAre("OpenWorksheet"));
  EXPECT_TRUE(hidden);
}

TEST(SettingsScreenSetUp, AsksForTheFirstScreenBeforeItIsUnloaded) {
  SingleScreen f;
  f.Build();
  bool loaded = false;
  f.navigation.meanwhile = [&] { loaded = f.screen.loaded() && !f.screen.cmdZurueck.enabled; };
  EXPECT_TRUE(f.screen.cmdZurueck.Press());
  EXPECT_THAT(f.navigation.asked, ElementsAre("ShowFirstScreen"));
  EXPECT_TRUE(loaded);
  EXPECT_TRUE(f.screens.empty());
}

// --- Defaults -------------------------------------------------------------------------------

TEST_F(SettingsScreen, SetsTheDefaultsOfTheExercise) {
  ToSettings();
  const ExerciseSettings& s = settings();
  EXPECT_EQ(s.uebmodus, 0);
  EXPECT_EQ(s.pruef_nr, 1);
  EXPECT_EQ(s.tempo_idx, 1);
  EXPECT_EQ(s.arp_richtung, 3);
  EXPECT_EQ(s.arp_tempo_idx, 2);
  EXPECT_EQ(s.arp_dauer, 188);
  EXPECT_EQ(s.akk_anzahl, 1);
  EXPECT_EQ(s.oktav_ber, 0);
  EXPECT_EQ(s.ton_unten, 48);
  EXPECT_EQ(s.ton_oben, 72);
  EXPECT_EQ(s.abfolge, 0);
  EXPECT_EQ(s.frequenz_art, 0);
  EXPECT_EQ(s.best_art, 0);
  EXPECT_EQ(s.akk_anzeige, 0);
  EXPECT_EQ(s.akk_form, 0);
  EXPECT_EQ(s.grundton_art, 0);
  EXPECT_EQ(s.grundton_betont, 0);
  EXPECT_EQ(s.klangfarb_art, 0);
  EXPECT_EQ(s.klang_kanal, 0);
  EXPECT_EQ(s.klang_anzahl, 0);
  EXPECT_EQ(s.grp_anzahl, 0);
  EXPECT_EQ(s.klangfarb_felder, 0);
  EXPECT_EQ(s.pruef_seed, 0);
  EXPECT_THAT(s.patch_ar, ElementsAre(0, 70, 68, 71, 73, 73, 72, 74));
}

TEST_F(SettingsScreen, ChecksTheFirstOptionOfEachGroup) {
  ToSettings();
  for (const OptionGroup* group :
       {&screen().abfrage, &screen().frequenz, &screen().akk_grp, &screen().akk_anzg,
        &screen().aus_w, &screen().Tonart, &screen().betonung, &screen().kl_farb}) {
    EXPECT_EQ(group->chosen(), 0);
  }
}

TEST_F(SettingsScreen, BeginsWithALoudnessOf100) {
  ToSettings();
  EXPECT_EQ(screen().HSliderVolume.value(), 100);
  EXPECT_EQ(screen().lb14[1].caption, "100");
}

TEST_F(SettingsScreen, PlaysTheNotesWithTheLoudnessOfTheSlider) {
  ToSettings();
  screen().HSliderVolume.Slide(90);
  EXPECT_EQ(screen().lb14[1].caption, "90");
  StartRun();
  PlayTask();
  ASSERT_THAT(output.PlayedNoteOns(), SizeIs(3));
  for (const MidiMessage& message : output.PlayedNoteOns()) EXPECT_EQ(message.data2, 90);
}

// --- Captions -------------------------------------------------------------------------------

TEST_F(SettingsScreen, PutsTheTextsOfTheLanguageOnItsControls) {
  ToSettings();
  const Einstellung1& s = screen();
  const std::vector<std::pair<const Control*, int>> texts = {
      {&s.cmdZurueck, 640},  {&s.klang_contr, 366}, {&s.lb14[0], 372},     {&s.lb15[0], 547},
      {&s.lb15[2], 615},     {&s.abfrage[0], 383},  {&s.abfrage[1], 142},  {&s.frequenz[0], 238},
      {&s.frequenz[1], 603}, {&s.akk_grp[0], 97},   {&s.akk_grp[1], 301},  {&s.akk_anzg[0], 507},
      {&s.akk_anzg[1], 429}, {&s.aus_w[0], 49},     {&s.aus_w[1], 45},     {&s.Tonart[0], 623},
      {&s.Tonart[1], 277},   {&s.betonung[0], 588}, {&s.betonung[1], 156}, {&s.kl_farb[0], 277},
      {&s.kl_farb[1], 589},  {&s.lb11[0], 140},     {&s.lb11[1], 135},     {&s.lb11[2], 395},
      {&s.lb2[0], 140},      {&s.lb2[1], 135},      {&s.lb2[3], 2},        {&s.lb1, 153},
      {&s.lb10, 116}};
  for (const auto& [control, id] : texts) {
    EXPECT_EQ(control->caption, "[" + std::to_string(id) + "s]") << control->Id();
  }
  EXPECT_EQ(s.lb15[1].caption, "=MM");
}

TEST_F(SettingsScreen, NamesItsFrames) {
  ToSettings();
  for (const auto& [frame, id] : std::map<int, int>{{0, 243},
                                                    {1, 107},
                                                    {2, 302},
                                                    {3, 154},
                                                    {4, 88},
                                                    {5, 78},
                                                    {7, 138},
                                                    {8, 587},
                                                    {9, 297},
                                                    {10, 469},
                                                    {11, 364},
                                                    {12, 114},
                                                    {15, 365},
                                                    {17, 87}}) {
    EXPECT_EQ(screen().geinst_lb[frame].caption, "[" + std::to_string(id) + "s]") << frame;
  }
}

TEST_F(SettingsScreen, ColoursItsFramesByWhatTheyHold) {
  ToSettings();
  for (const int i : screen().grdeinst.indexes()) {
    const Color expected = i == 8               ? Color{0xC0, 0xFF, 0xC0}
                           : i == 14 || i == 15 ? Color{0xC0, 0xFF, 0xFF}
                                                : Color{0xFF, 0xFF, 0xC0};
    EXPECT_EQ(screen().grdeinst[i].back_color, expected) << i;
  }
}

TEST_F(SettingsScreen, SaysVoidEverywhereInALanguageThatIsNotInstalled) {
  host.language = "Suomi";
  ToSettings();
  EXPECT_TRUE(screen().visible);
  EXPECT_EQ(screen().caption, "VOIDVOIDVOID");
  EXPECT_EQ(screen().cmdOK.caption, "VOID");
  StartRun();
  EXPECT_TRUE(worksheet().visible);
}

// --- Lists ----------------------------------------------------------------------------------

TEST_F(SettingsScreen, OffersTenTempi) {
  ToSettings();
  EXPECT_THAT(screen().temp_Combo.entries(),
              ElementsAre(Entry{" 30              ", -999}, Entry{" 40 (Largo)      ", -999},
                          Entry{" 60 (Larghetto)  ", -999}, Entry{" 80 (Adagio)     ", -999},
                          Entry{"100 (Andante)    ", -999}, Entry{"120 (Moderato)   ", -999},
                          Entry{"140 (Allegro)    ", -999}, Entry{"160 (Vivace)     ", -999},
                          Entry{"180 (Presto)     ", -999}, Entry{"200 (Prestissimo)", -999}));
  EXPECT_EQ(screen().temp_Combo.list_index(), 1);
}

TEST_F(SettingsScreen, OffersFourDirectionsAndFiveArpeggioTempi) {
  ToSettings();
  EXPECT_THAT(screen().arpeg_cmb.entries(),
              ElementsAre(Entry{"[133s]", -999}, Entry{"[84s]", -999}, Entry{"[624s]", -999},
                          Entry{"[278s]", -999}));
  EXPECT_EQ(screen().arpeg_cmb.list_index(), 3);
  EXPECT_THAT(screen().cmb_arpTmp.entries(),
              ElementsAre(Entry{"[477s]", -999}, Entry{"[371s]", -999}, Entry{"[400s]", -999},
                          Entry{"[470s]", -999}, Entry{"[479s]", -999}));
  EXPECT_EQ(screen().cmb_arpTmp.list_index(), 2);
}

TEST_F(SettingsScreen, OffersOneToFourChordsWithABlankBeforeTheNumber) {
  ToSettings();
  EXPECT_THAT(screen().akkzahl_cmb.entries(),
              ElementsAre(Entry{" 1", 1}, Entry{" 2", 2}, Entry{" 3", 3}, Entry{" 4", 4}));
  EXPECT_EQ(screen().akkzahl_cmb.list_index(), 0);
}

TEST_F(SettingsScreen, OffersTwoToFiveOctaves) {
  ToSettings();
  EXPECT_THAT(screen().oktav_cmb.entries(),
              ElementsAre(Entry{" 2 [41s]", 0}, Entry{" 3 [41s]", 1}, Entry{" 4 [41s]", 2},
                          Entry{" 5 [41s]", 3}));
  EXPECT_EQ(screen().oktav_cmb.list_index(), 0);
}

TEST_F(SettingsScreen, OffersFourRangesOfTwoOctaves) {
  ToSettings();
  EXPECT_THAT(
      screen().Combo_tonraum.entries(),
      ElementsAre(Entry{"[671s] [702s] [673s]", -999}, Entry{"[672s] [702s] [674s]", -999},
                  Entry{"[673s] [702s] [675s]", -999}, Entry{"[674s] [702s] [676s]", -999}));
  EXPECT_EQ(screen().Combo_tonraum.list_index(), 1);
}

TEST_F(SettingsScreen, OffersFiveExamsThatCannotBeReached) {
  ToSettings();
  EXPECT_THAT(screen().prfnr_Comb.entries(),
              ElementsAre(Entry{"[426s] 1", -999}, Entry{"[426s] 2", -999}, Entry{"[426s] 3", -999},
                          Entry{"[426s] 4", -999}, Entry{"[426s] 5", -999}));
  EXPECT_FALSE(screen().prfnr_Comb.Reachable());
}

TEST_F(SettingsScreen, OffersSevenVoicesWithTwoBlanksBeforeTheNumber) {
  ToSettings();
  ASSERT_EQ(screen().Channel_Combo.count(), 7);
  EXPECT_EQ(screen().Channel_Combo.entry(0), (Entry{"[499s]  1", -999}));
  EXPECT_EQ(screen().Channel_Combo.entry(6), (Entry{"[499s]  7", -999}));
  EXPECT_FALSE(screen().Channel_Combo.visible);
  EXPECT_FALSE(screen().lb15[2].visible);
}

TEST_F(SettingsScreen, OffersAllInstrumentsAndShowsTheFirstTimbre) {
  ToSettings();
  EXPECT_EQ(screen().ComboPatch.count(), 128);
  EXPECT_EQ(screen().ComboPatch.text(), "Acoustic Grand Piano");
}

TEST_F(SettingsScreen, OffersNoRunToContinueWhenNoneIsStored) {
  ToSettings();
  std::vector<std::string> texts;
  for (const Entry& entry : screen().training_Combo.entries()) texts.push_back(entry.text);
  EXPECT_THAT(texts, ElementsAre("[136s]", "[564s]", "---------------", "[550s]", "[438s]"));
  EXPECT_EQ(screen().training_Combo.list_index(), 0);
}

TEST_F(SettingsScreen, OffersARunToContinueWhenOneIsStored) {
  host.SetStored("E1", TaggedValue::Array{"0"});
  host.SetStored("A1", TaggedValue::Array{"true"});
  ToSettings();
  EXPECT_EQ(screen().training_Combo.entry(2).text, "[565s]");
}

TEST_F(SettingsScreen, OffersNoRunWhoseStateSaysThatItIsOver) {
  host.SetStored("E1", TaggedValue::Array{"0"});
  host.SetStored("A1", TaggedValue::Array{"False"});
  ToSettings();
  EXPECT_EQ(screen().training_Combo.entry(2).text, "---------------");
}

TEST_F(SettingsScreen, OffersNoRunOfWhichOnlyOneRecordIsStored) {
  host.SetStored("A1", TaggedValue::Array{"true"});
  ToSettings();
  EXPECT_EQ(screen().training_Combo.entry(2).text, "---------------");
}

// --- Events ---------------------------------------------------------------------------------

TEST_F(SettingsScreen, StoresThePlainOptions) {
  ToSettings();
  EXPECT_TRUE(screen().abfrage.Choose(1));
  EXPECT_TRUE(screen().akk_anzg.Choose(1));
  EXPECT_TRUE(screen().betonung.Choose(1));
  EXPECT_TRUE(screen().frequenz.Choose(1));
  EXPECT_TRUE(screen().Tonart.Choose(1));
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(settings().akk_anzeige, 1);
  EXPECT_EQ(settings().grundton_betont, 1);
  EXPECT_EQ(settings().frequenz_art, 1);
  EXPECT_EQ(settings().grundton_art, 1);
}

TEST_F(SettingsScreen, ShowsTheArpeggioTempoOnlyWhenThereIsAnArpeggio) {
  ToSettings();
  EXPECT_FALSE(screen().cmb_arpTmp.visible);
  EXPECT_FALSE(screen().lb10.visible);
  for (const int richtung : {0, 1, 2}) {
    screen().arpeg_cmb.Choose(3);
    screen().arpeg_cmb.Choose(richtung);
    EXPECT_EQ(settings().arp_richtung, richtung);
    EXPECT_TRUE(screen().cmb_arpTmp.visible) << richtung;
    EXPECT_TRUE(screen().lb10.visible) << richtung;
  }
  screen().arpeg_cmb.Choose(3);
  EXPECT_EQ(settings().arp_richtung, 3);
  EXPECT_FALSE(screen().cmb_arpTmp.visible);
  EXPECT_FALSE(screen().lb10.visible);
}

TEST_F(SettingsScreen, ComputesTheArpeggioAnewForEachTempo) {
  ToSettings();
  screen().temp_Combo.Choose(0);
  EXPECT_EQ(settings().tempo_idx, 0);
  EXPECT_EQ(settings().arp_dauer, 250);
  screen().cmb_arpTmp.Select(0);
  EXPECT_EQ(settings().arp_tempo_idx, 0);
  EXPECT_EQ(settings().arp_dauer, 500);
  screen().temp_Combo.Choose(9);
  screen().cmb_arpTmp.Select(4);
  EXPECT_EQ(settings().arp_dauer, 19);
}

TEST_F(SettingsScreen, TakesTheNumberOfChordsFromItsList) {
  ToSettings();
  for (int i = 0; i < 4; ++i) {
    screen().akkzahl_cmb.Choose(i);
    EXPECT_EQ(settings().akk_anzahl, i + 1);
  }
}

TEST_F(SettingsScreen, TakesTheNumberOfTheExamFromItsList) {
  ToSettings();
  screen().prfnr_Comb.Select(4);
  EXPECT_EQ(settings().pruef_nr, 5);
}

TEST_F(SettingsScreen, OffersTheSecondRangeAfterAChangeOfItsWidth) {
  ToSettings();
  screen().oktav_cmb.Choose(1);
  EXPECT_EQ(settings().oktav_ber, 1);
  EXPECT_THAT(screen().Combo_tonraum.entries(),
              ElementsAre(Entry{"[671s] [702s] [674s]", -999}, Entry{"[672s] [702s] [675s]", -999},
                          Entry{"[673s] [702s] [676s]", -999}));
  EXPECT_EQ(screen().Combo_tonraum.list_index(), 1);
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 84);
  screen().oktav_cmb.Choose(2);
  EXPECT_EQ(screen().Combo_tonraum.count(), 2);
  EXPECT_EQ(screen().Combo_tonraum.list_index(), 1);
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 96);
}

TEST_F(SettingsScreen, HasASingleRangeOfFiveOctaves) {
  ToSettings();
  screen().oktav_cmb.Choose(3);
  EXPECT_EQ(settings().oktav_ber, 3);
  EXPECT_THAT(screen().Combo_tonraum.entries(), ElementsAre(Entry{"[671s] [702s] [676s]", -999}));
  EXPECT_EQ(screen().Combo_tonraum.list_index(), 0);
  EXPECT_EQ(settings().ton_unten, 36);
  EXPECT_EQ(settings().ton_oben, 96);
}

TEST_F(SettingsScreen, TakesTheBoundsFromTheChosenRange) {
  ToSettings();
  for (int j = 0; j < 4; ++j) {
    screen().Combo_tonraum.Choose(j);
    EXPECT_EQ(settings().ton_unten, 36 + 12 * j);
    EXPECT_EQ(settings().ton_oben, 60 + 12 * j);
  }
}

TEST_F(SettingsScreen, TakesTheWidthFromTheEntryAndNotFromItsPlace) {
  ToSettings();
  screen().oktav_cmb.Clear();
  for (int n = 3; n <= 5; ++n) screen().oktav_cmb.Add(" " + std::to_string(n), n - 2);
  screen().oktav_cmb.Select(0);
  EXPECT_EQ(settings().oktav_ber, 1);
  EXPECT_EQ(settings().ton_unten, 48);
  EXPECT_EQ(settings().ton_oben, 84);
}

TEST_F(SettingsScreen, SendsAChosenTimbreAtOnce) {
  ToSettings();
  output.Forget();
  screen().ComboPatch.Choose(73);
  EXPECT_EQ(settings().patch_ar[0], 73);
  ASSERT_THAT(output.sent, SizeIs(1));
  EXPECT_EQ(output.sent[0].status, 192);
  EXPECT_EQ(output.sent[0].data1, 73);
}

TEST_F(SettingsScreen, SendsTheHelpKey) {
  ToSettings();
  EXPECT_TRUE(screen().cmdHilfe.Press());
  EXPECT_THAT(system.keys, ElementsAre("{F1}"));
}

// --- The choice of kinds --------------------------------------------------------------------

TEST_F(SettingsScreen, OpensWithTheTriadsChosen) {
  ToSettings();
  EXPECT_THAT(screen().klanglst[0].entries(), ElementsAre(Entry{"[57s]", 4}, Entry{"[60s]", 5},
                                                          Entry{"[62s]", 6}, Entry{"[64s]", 7}));
  EXPECT_THAT(screen().klanglst[1].entries(), ElementsAre(Entry{"[51s]", 3}));
  EXPECT_TRUE(screen().cmdOK.Reachable());
  EXPECT_EQ(screen().cmdOK.caption, "[432s]");
  EXPECT_EQ(screen().cmdOK.back_color, kGreen);
  EXPECT_TRUE(screen().klang_contr.enabled);
  EXPECT_FALSE(screen().lb11[2].visible);
  EXPECT_FALSE(screen().grdeinst[2].visible);
}

TEST_F(SettingsScreen, LocksItsButtonWhenTheTriadsAreTakenBack) {
  ToSettings();
  screen().klanglst[1].Choose(0);
  EXPECT_EQ(screen().klanglst[1].count(), 0);
  EXPECT_EQ(screen().klanglst[0].entry(0), (Entry{"[51s]", 3}));
  EXPECT_EQ(screen().klanglst[0].count(), 5);
  EXPECT_FALSE(screen().cmdOK.Press());
  EXPECT_EQ(screen().cmdOK.caption, "[139s]");
  EXPECT_EQ(screen().cmdOK.back_color, kRed);
  EXPECT_FALSE(screen().klang_contr.enabled);
  EXPECT_TRUE(screen().lb11[2].visible);
}

TEST_F(SettingsScreen, IsReadyAgainWhenTheTriadsComeBack) {
  ToSettings();
  screen().klanglst[1].Choose(0);
  screen().klanglst[0].Choose(0);
  EXPECT_TRUE(screen().cmdOK.Reachable());
  EXPECT_FALSE(screen().lb11[2].visible);
}

TEST_F(SettingsScreen, KeepsBothListsAscendingWhateverTheOrderOfTheClicks) {
  ToSettings();
  const auto data = [&](int list) {
    std::vector<int> values;
    for (const Entry& entry : screen().klanglst[list].entries()) values.push_back(entry.item_data);
    return values;
  };
  screen().klanglst[0].Select(3);
  screen().klanglst[0].Select(1);
  screen().klanglst[0].Select(0);
  EXPECT_THAT(data(1), ElementsAre(3, 4, 5, 7));
  screen().klanglst[1].Select(1);
  EXPECT_THAT(data(0), ElementsAre(4, 6));
  EXPECT_THAT(data(1), ElementsAre(3, 5, 7));
}

// --- The start of a run ---------------------------------------------------------------------

TEST_F(SettingsScreen, StoresTheSelectionAndOpensTheWorksheetHidden) {
  ToSettings();
  EXPECT_TRUE(screen().cmdOK.Press());
  EXPECT_EQ(settings().klang_anzahl, 1);
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(0, 3, 0, 0, 0, 0, 0));
  EXPECT_EQ(settings().grp_anzahl, 0);
  EXPECT_EQ(settings().klangfarb_felder, 2);
  ASSERT_NE(program.arbeitsblatt1(), nullptr);
  EXPECT_FALSE(worksheet().visible);
  EXPECT_FALSE(screen().visible);
  EXPECT_TRUE(screen().cmdOK.enabled);
  loop.Advance(200);
  EXPECT_TRUE(worksheet().visible);
}

TEST_F(SettingsScreen, HasAllStoredWhenItLetsEventsRun) {
  ToSettings();
  int turns = 0;
  loop.meanwhile = [&] {
    ++turns;
    EXPECT_EQ(screen().pointer, Form::Pointer::kHourglass);
    EXPECT_FALSE(screen().cmdOK.enabled);
    EXPECT_TRUE(screen().visible);
    EXPECT_EQ(settings().klang_anzahl, 1);
    EXPECT_EQ(settings().klangfarb_felder, 2);
    EXPECT_FALSE(settings().einst_liste.empty());
    EXPECT_EQ(program.arbeitsblatt1(), nullptr);
  };
  screen().cmdOK.Press();
  loop.meanwhile = nullptr;
  EXPECT_EQ(turns, 1);
}

TEST_F(SettingsScreen, CannotBeStartedTwice) {
  ToSettings();
  bool second = true;
  loop.meanwhile = [&] { second = screen().cmdOK.Press(); };
  EXPECT_TRUE(screen().cmdOK.Press());
  loop.meanwhile = nullptr;
  EXPECT_FALSE(second);
  EXPECT_THAT(documents.documents, SizeIs(1));
  EXPECT_FALSE(screen().cmdOK.Press()) << "the screen is hidden now";
}

TEST_F(SettingsScreen, StoresASelectionOfKindsAndGroups) {
  ToSettings();
  screen().klanglst[1].Select(0);
  for (const int k : {6, 4}) screen().klanglst[0].Select(k - 3);
  for (const int g : {2, 5, 8}) screen().grplst[1].Add("group", g);
  settings().klang_ausw_ar = {9, 9, 9, 9, 9, 9, 9};
  settings().grp_ausw_ar = {9, 9, 9, 9, 9, 9, 9, 9, 9};
  screen().cmdOK_Click();
  EXPECT_EQ(settings().klang_anzahl, 2);
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(9, 4, 6, 0, 0, 0, 9));
  EXPECT_EQ(settings().grp_anzahl, 3);
  EXPECT_THAT(settings().grp_ausw_ar, ElementsAre(9, 2, 5, 8, 0, 0, 0, 0, 0));
}

TEST_F(SettingsScreen, StoresTheVoicingsAsTheOneKindAndClearsNoOther) {
  ToSettings();
  settings().akk_form = 1;
  settings().klang_ausw_ar = {0, 3, 4, 5, 0, 0, 0};
  for (const int g : {1, 2}) screen().grplst[1].Add("group", g);
  screen().cmdOK_Click();
  EXPECT_EQ(settings().klang_anzahl, 1);
  EXPECT_THAT(settings().klang_ausw_ar, ElementsAre(0, 8, 4, 5, 0, 0, 0));
  EXPECT_EQ(settings().grp_anzahl, 2);
}

TEST_F(SettingsScreen, CountsEightFieldsForSeparateTimbres) {
  ToSettings();
  settings().klangfarb_art = 1;
  screen().cmdOK.Press();
  EXPECT_EQ(settings().klangfarb_felder, 8);
}

TEST_F(SettingsScreen, LetsTheTasksOfATestFollowByThemselves) {
  ToSettings();
  screen().training_Combo.Choose(3);
  EXPECT_EQ(settings().abfolge, 0) << "not before the run begins";
  screen().cmdOK.Press();
  EXPECT_EQ(settings().abfolge, 1);
  EXPECT_EQ(screen().abfrage.chosen(), 1);
  EXPECT_THAT(settings().einst_liste, Contains(TaggedValue("[383s]")))
      << "the summary was made before";
}

TEST_F(SettingsScreen, LeavesTheOrderOfTasksAloneInFreePractice) {
  ToSettings();
  screen().cmdOK.Press();
  EXPECT_EQ(settings().abfolge, 0);
  EXPECT_EQ(screen().abfrage.chosen(), 0);
}

TEST_F(SettingsScreen, KeepsItsSettingsWhileARunGoesOn) {
  ToSettings();
  screen().temp_Combo.Choose(5);
  screen().arpeg_cmb.Choose(1);
  StartRun();
  worksheet().zurueck.Press();
  loop.Advance(1000);
  EXPECT_TRUE(screen().visible);
  EXPECT_EQ(screen().pointer, Form::Pointer::kDefault);
  EXPECT_EQ(screen().temp_Combo.list_index(), 5);
  EXPECT_EQ(settings().tempo_idx, 5);
  EXPECT_EQ(settings().arp_richtung, 1);
  EXPECT_EQ(screen().klanglst[1].count(), 1);
  EXPECT_TRUE(screen().cmdOK.Press()) << "a new run can start at once";
}

TEST_F(SettingsScreen, HasATestTimerThatPressesTheButton) {
  ToSettings();
  EXPECT_EQ(screen().testtimer.interval, 2000);
  EXPECT_FALSE(screen().testtimer.enabled);
  loop.Advance(10000);
  EXPECT_EQ(program.arbeitsblatt1(), nullptr) << "nothing arms it";
  screen().testtimer.Enable();
  loop.Advance(2000);
  EXPECT_FALSE(screen().testtimer.enabled);
  EXPECT_NE(program.arbeitsblatt1(), nullptr);
}

/// A program whose documents are made by a test.
class WithDocuments : public ProgramFixture {
 public:
  std::function<void()> on_document;
  Program hooked{{loop, system, messages, view, output, random, dialog, settings_files, printer,
                  host.Factory(), languages.Factory(),
                  [this, make = documents.Factory()] {
                    on_document();
                    return make();
                  }},
                 {"vmod17", 1, 0, 0}};

  void ToHookedSettings() {
    hooked.Start();
    loop.Advance(100);
    hooked.grd_einst()->cmdOK.Press();
    loop.Advance(200);
  }
};

TEST(SettingsScreenStart, BeginsTheRecordBeforeItStoresTheSelection) {
  WithDocuments p;
  int documents = 0;
  p.on_document = [&] {
    ++documents;
    EXPECT_FALSE(p.hooked.einstellung1()->cmdOK.enabled);
    EXPECT_EQ(p.hooked.settings().klang_anzahl, 0);
    EXPECT_THAT(p.hooked.settings().einst_liste, IsEmpty());
  };
  p.ToHookedSettings();
  p.hooked.einstellung1()->cmdOK.Press();
  EXPECT_EQ(documents, 1);
  EXPECT_EQ(p.hooked.settings().klang_anzahl, 1);
}

TEST(SettingsScreenStart, GoesBackWhenTheRecordCannotBeBegun) {
  WithDocuments p;
  p.on_document = [] { throw RunTimeError(ErrorNumber::kFile, "no document", "test"); };
  p.ToHookedSettings();
  p.hooked.einstellung1()->cmdOK.Press();
  EXPECT_THAT(p.host.errors,
              ElementsAre(MemoryHost::Error{"cmdOK_click.einstellung1.vmod17", ErrorNumber::kFile,
                                            "no document", "test"}));
  EXPECT_EQ(p.hooked.settings().klang_anzahl, 0);
  EXPECT_EQ(p.hooked.einstellung1(), nullptr);
  EXPECT_EQ(p.hooked.arbeitsblatt1(), nullptr);
  EXPECT_TRUE(p.hooked.grd_einst()->visible);
}

// --- Errors ---------------------------------------------------------------------------------

TEST_F(SettingsScreen, GoesBackWhenItCannotBeBuilt) {
  Load();
  screen().temp_Combo.Click = Throw;
  loop.Advance(200);
  ExpectOneError("start_timer.einstellung1.vmod17");
  ExpectBackOnTheFirstScreen();
}

TEST_F(SettingsScreen, ShowsTheMessageBeforeItGoesBack) {
  Load();
  screen().temp_Combo.Click = Throw;
  bool still_there = false;
  messages.meanwhile = [&] { still_there = program.einstellung1() && !first().visible; };
  loop.Advance(200);
  EXPECT_TRUE(still_there);
}

TEST_F(SettingsScreen, GoesBackWhenARunCannotBeStarted) {
  ToSettings();
  loop.meanwhile = Throw;
  screen().cmdOK.Press();
  loop.meanwhile = nullptr;
  ExpectOneError("cmdOK_click.einstellung1.vmod17");
  ExpectBackOnTheFirstScreen();
}

TEST_F(SettingsScreen, GoesBackAndStartsNoRunWhenTheSummaryFails) {
  ToSettings();
  settings().frequenz_art = 7;
  screen().cmdOK.Press();
  ExpectOneError("EinstDatSaveeinstellung1.vmod17");
  EXPECT_EQ(host.errors[0].number, ErrorNumber::kNoSuchElement);
  ExpectBackOnTheFirstScreen();
  loop.Advance(10000);
  ExpectBackOnTheFirstScreen();
}

TEST_F(SettingsScreen, DoesNothingMoreForARunWhoseSummaryFails) {
  ToSettings();
  settings().frequenz_art = 7;
  settings().uebmodus = 3;
  const int yields = loop.yields();
  screen().cmdOK.Press();
  EXPECT_EQ(loop.yields(), yields);
  EXPECT_EQ(settings().abfolge, 0);
}

TEST_F(SettingsScreen, CanBeOpenedAgainAfterAnError) {
  ToSettings();
  settings().frequenz_art = 7;
  screen().cmdOK.Press();
  settings().frequenz_art = 0;
  loop.Advance(1000);
  EXPECT_TRUE(first().cmdOK.Press());
  loop.Advance(200);
  EXPECT_TRUE(screen().visible);
  StartRun();
  EXPECT_TRUE(worksheet().visible);
}

// --- The way back ---------------------------------------------------------------------------

TEST_F(SettingsScreen, ResetsTheOutputAndClosesItOnTheWayBack) {
  ToSettings();
  output.Forget();
  EXPECT_TRUE(screen().cmdZurueck.Press());
  EXPECT_THAT(output.befehle, ElementsAre(MidiBefehl::kStopp, MidiBefehl::kSchliessen,
                                          MidiBefehl::kOeffnen, MidiBefehl::kSchliessen));
  ExpectBackOnTheFirstScreen();
}

TEST_F(SettingsScreen, CannotBeLeftTwice) {
  ToSettings();
  Einstellung1& s = screen();
  EXPECT_TRUE(s.cmdZurueck.Press());
  EXPECT_FALSE(s.cmdZurueck.enabled);
  EXPECT_FALSE(s.cmdZurueck.Press());
}

TEST_F(SettingsScreen, EndsADelayAtOnceWhenItIsLeft) {
  ToSettings();
  Einstellung1& s = screen();
  const double before = loop.Elapsed();
  bool pressed = false;
  loop.StartTimer(300, EventLoop::Repeat::kOnce, [&] { pressed = s.cmdZurueck.Press(); });
  s.Delay(60000);
  EXPECT_TRUE(pressed);
  EXPECT_NEAR(loop.Elapsed() - before, 300, 1);
}

TEST_F(SettingsScreen, DelaysForTheGivenTimeOtherwise) {
  ToSettings();
  const double before = loop.Elapsed();
  screen().Delay(500);
  EXPECT_NEAR(loop.Elapsed() - before, 500, 10);
}

TEST_F(SettingsScreen, RestoresTheDefaultsWhenItIsOpenedAgain) {
  ToSettings();
  screen().temp_Combo.Choose(9);
  screen().arpeg_cmb.Choose(0);
  screen().oktav_cmb.Choose(3);
  screen().akkzahl_cmb.Choose(2);
  screen().abfrage.Choose(1);
  screen().Tonart.Choose(1);
  screen().akk_anzg.Choose(1);
  screen().ComboPatch.Choose(10);
  screen().HSliderVolume.Slide(1);
  screen().training_Combo.Choose(3);
  screen().cmdZurueck.Press();
  first().cmdOK.Press();
  loop.Advance(200);
  const ExerciseSettings& s = settings();
  EXPECT_EQ(s.tempo_idx, 1);
  EXPECT_EQ(s.arp_richtung, 3);
  EXPECT_EQ(s.arp_dauer, 188);
  EXPECT_EQ(s.oktav_ber, 0);
  EXPECT_EQ(s.ton_unten, 48);
  EXPECT_EQ(s.ton_oben, 72);
  EXPECT_EQ(s.akk_anzahl, 1);
  EXPECT_EQ(s.abfolge, 0);
  EXPECT_EQ(s.grundton_art, 0);
  EXPECT_EQ(s.akk_anzeige, 0);
  EXPECT_EQ(s.uebmodus, 0);
  EXPECT_EQ(s.patch_ar[0], 0);
  EXPECT_EQ(screen().HSliderVolume.value(), 100);
  EXPECT_EQ(screen().temp_Combo.count(), 10);
  EXPECT_EQ(screen().ComboPatch.count(), 128);
}

TEST_F(SettingsScreen, EditsTheOneTimbreWhenItIsOpenedAgain) {
  ToSettings();
  settings().klang_kanal = 5;
  screen().cmdZurueck.Press();
  first().cmdOK.Press();
  loop.Advance(200);
  EXPECT_EQ(settings().klang_kanal, 0);
  EXPECT_THAT(settings().patch_ar, ElementsAre(0, 70, 68, 71, 73, 73, 72, 74));
}

/// A screen that is opened again after a time in which the second option of four groups was chosen.
class ReopenedScreen : public SettingsTest {
 protected:
  ReopenedScreen() {
    ToSettings();
    for (OptionGroup* group : {&screen().frequenz, &screen().betonung, &screen().kl_farb}) {
      group->Choose(1);
    }
    screen().aus_w.Choose(1);
    Reopen();
  }
};

TEST_F(ReopenedScreen, KeepsThreeOptionsOfBeforeUnderAFirstOptionThatStandsChecked) {
  EXPECT_EQ(settings().frequenz_art, 1);
  EXPECT_EQ(settings().grundton_betont, 1);
  EXPECT_EQ(settings().klangfarb_art, 1);
  EXPECT_EQ(screen().frequenz.chosen(), 0);
  EXPECT_EQ(screen().betonung.chosen(), 0);
  EXPECT_EQ(screen().kl_farb.chosen(), 0);
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(ReopenedScreen, BeginsWithTheMaterialThatItShows) {
  EXPECT_EQ(settings().akk_form, 0);
  EXPECT_EQ(screen().aus_w.chosen(), 0);
  EXPECT_EQ(screen().oktav_cmb.count(), 4);
  EXPECT_EQ(settings().oktav_ber, 0);
}

TEST_F(ReopenedScreen, PutsAnOptionRightWhenItsShownMemberIsClicked) {
  EXPECT_TRUE(screen().frequenz.Choose(0));
  EXPECT_EQ(settings().frequenz_art, 0);
  EXPECT_TRUE(screen().betonung.Choose(0));
  EXPECT_EQ(settings().grundton_betont, 0);
  EXPECT_TRUE(screen().kl_farb.Choose(0));
  EXPECT_EQ(settings().klangfarb_art, 0);
}

TEST_F(ReopenedScreen, PlaysTheTriadsThatItShowsAfterARunWithVoicings) {
  screen().aus_w.Choose(1);
  screen().grp_alle[0].Press();
  StartRun();
  ASSERT_EQ(program.board()[1].klangtyp, 8);
  worksheet().zurueck.Press();
  loop.Advance(1000);
  Reopen();
  ExpectOk(true);
  StartRun();
  ASSERT_NE(program.arbeitsblatt1(), nullptr);
  EXPECT_EQ(program.board().akk_zahl, 10);
  EXPECT_EQ(program.board()[1].klangtyp, 3);
  PlayTask();
  EXPECT_TRUE(ClickRight());
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(SettingsScreen, LeavesTheChosenKindsAloneWhenTheShownMaterialIsClickedAgain) {
  ToSettings();
  screen().klanglst[0].Choose(0);
  ASSERT_EQ(screen().klanglst[1].count(), 2);
  EXPECT_TRUE(screen().aus_w.Choose(0));
  EXPECT_EQ(screen().klanglst[1].count(), 2);
}

// --- The window is closed -------------------------------------------------------------------

TEST_F(SettingsScreen, GoesBackWhenItsWindowIsClosed) {
  ToSettings();
  screen().Form_Close();
  ExpectBackOnTheFirstScreen();
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(SettingsScreen, GoesBackWhenItIsClosedBeforeItIsBuilt) {
  Load();
  loop.Advance(100);
  screen().Form_Close();
  loop.Advance(10000);
  ExpectBackOnTheFirstScreen();
  EXPECT_THAT(output.sent, IsEmpty());
  EXPECT_THAT(messages.warnings, IsEmpty());
}

TEST_F(SettingsScreen, StartsNoRunWhenItIsClosedInTheTurnOfItsButton) {
  ToSettings();
  loop.meanwhile = [&] {
    if (program.einstellung1()) screen().Form_Close();
  };
  screen().cmdOK.Press();
  loop.meanwhile = nullptr;
  loop.Advance(10000);
  ExpectBackOnTheFirstScreen();
  EXPECT_THAT(host.errors, IsEmpty());
  EXPECT_THAT(messages.warnings, IsEmpty());
  first().cmdOK.Press();
  loop.Advance(200);
  StartRun();
  EXPECT_TRUE(worksheet().visible);
}

TEST_F(SettingsScreen, StartsNoRunWhenItIsLeftInTheTurnOfItsButton) {
  ToSettings();
  Einstellung1& s = screen();
  loop.meanwhile = [&] { s.cmdZurueck.Press(); };
  s.cmdOK.Press();
  loop.meanwhile = nullptr;
  loop.Advance(10000);
  ExpectBackOnTheFirstScreen();
}

TEST_F(SettingsScreen, EndsADelayWhenItsWindowIsClosed) {
  ToSettings();
  Einstellung1& s = screen();
  const double before = loop.Elapsed();
  loop.StartTimer(300, EventLoop::Repeat::kOnce, [&] { s.Form_Close(); });
  s.Delay(60000);
  EXPECT_NEAR(loop.Elapsed() - before, 300, 1);
}

TEST_F(SettingsScreen, CanBeClosedAfterARun) {
  ToWorksheet();
  PlayTask();
  worksheet().Form_Close();
  loop.Advance(1000);
  screen().Form_Close();
  ExpectBackOnTheFirstScreen();
}

// --- QueueEmpty -----------------------------------------------------------------------------

using QueueEmpty = SettingsScreen;

TEST_F(QueueEmpty, FreesTheButtonsOfTheSoundCheckWhileTheScreenIsOnTop) {
  ToSettings();
  screen().klang_contr.Press();
  EXPECT_FALSE(screen().klang_contr.enabled);
  EXPECT_FALSE(screen().cmdOK.enabled);
  output.FinishQueue();
  EXPECT_TRUE(screen().klang_contr.enabled);
  EXPECT_TRUE(screen().cmdOK.enabled);
}

TEST_F(QueueEmpty, ChangesNothingUnderTheWorksheet) {
  ToWorksheet();
  screen().klang_contr.enabled = screen().cmdOK.enabled = false;
  output.QueueEmpty();
  EXPECT_FALSE(screen().klang_contr.enabled);
  EXPECT_FALSE(screen().cmdOK.enabled);
}

TEST(QueueEmptyUnderAnotherScreen, GoesByTheTitleOfTheTopScreen) {
  SingleScreen f;
  f.Build();
  PlainScreen other("other");
  f.screens.Load(other);
  f.screen.klang_contr.Press();
  f.output.QueueEmpty();
  EXPECT_FALSE(f.screen.klang_contr.enabled);
  EXPECT_FALSE(f.screen.cmdOK.enabled);
  other.caption = f.screen.caption;
  f.output.QueueEmpty();
  EXPECT_TRUE(f.screen.klang_contr.enabled);
  EXPECT_TRUE(f.screen.cmdOK.enabled);
}

TEST_F(QueueEmpty, IsHeardByNobodyOnceTheScreenIsGone) {
  ToSettings();
  screen().cmdZurueck.Press();
  EXPECT_FALSE(output.QueueEmpty);
}

TEST_F(QueueEmpty, TellsTheWorksheetNothing) {
  ToWorksheet();
  worksheet().CmdNextAufg.Press();
  const auto states = [&] {
    std::vector<std::pair<bool, bool>> found;
    for (const Control* control : worksheet().controls()) {
      found.emplace_back(control->visible, control->enabled);
    }
    return found;
  };
  const auto before = states();
  output.FinishQueue();
  EXPECT_EQ(states(), before);
  EXPECT_FALSE(worksheet().jz_kl[1].enabled) << "only the screen's own timer opens the tiles";
}

}  // namespace
}  // namespace vmod17

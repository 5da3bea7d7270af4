// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// The German captions, as the screens have carried them from the beginning.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "qt/finished_test.h"
#include "qt/kit/text_widget.h"
#include "qt/shown_page.h"
#include "qt/spoken_program.h"
#include "results/own_words.h"

namespace vmod17 {
namespace {

using Captions = std::vector<std::pair<int, std::string>>;

const Captions kFirstScreen = {{586, "Übungsart"}, {154, "bestimmen"}, {160, "bilden"},
                               {496, "spielen"},   {432, "OK"},        {223, "ENDE"}};

const Captions kGroups = {{379, "Major-Sept"},          {380, "Major-Sept, alt."},
                          {409, "Moll-Sept"},           {200, "Dominant-Sept"},
                          {201, "Dominant-Sept, alt."}, {410, "Moll-Tonika "},
                          {312, "Halbvermindert"},      {609, "vermindert"}};

const Captions kSound = {{277, "gleichbleibend"}, {589, "unterschiedlich"}};

const Captions kWorksheet = {{56, "4-7 Klänge/two-hand-voicings: Bestimmung Akkordgruppe"},
                             {95, "Akk"},
                             {700, ":"},
                             {426, "Nr."},
                             {232, "falsch"},
                             {374, "lfd Nr.:"},
                             {468, "Richtig"},
                             {629, "wiederholen"},
                             {632, "wiederholen (Kontrolle)"},
                             {420, "nächste Aufgabe"},
                             {640, "zurück"},
                             {130, "Aufgabe gelöst"},
                             {638, "zu schwer !!"},
                             {552, "Teststand ausblenden"},
                             {551, "Teststand einblenden"},
                             {726, "Einen Moment bitte !"},
                             {438, "Prüfung"}};

const Captions kOptions = {
    {383, "manuell"},     {142, "automatisch"},    {238, "fest (a'440 Hz)"},   {603, "variabel"},
    {97, "Akkord"},       {301, "Gruppe"},         {507, "Struktur + Symbol"}, {429, "nur Symbol"},
    {49, "3-7 - Klänge"}, {45, "2-hand-voicings"}, {623, "wechselnd"},         {588, "unbetont"},
    {156, "betont"}};

const Captions kLists = {{140, "Auswählen"},
                         {135, "Ausgewählt"},
                         {395, "mindestens 1 !!"},
                         {396, "mindestens 2 !!"},
                         {2, "( für 4-7Klänge und voicings)"},
                         {139, "Auswahl??"}};

const Captions kFrames = {
    {243, "Frequenz"},          {107, "Tonraum "},       {153, "Bereich"},
    {302, "Gruppen-Auswahl"},   {88, "Akkord- Anzahl "}, {78, "Abfolge "},
    {138, "Auswahl"},           {587, "Übungsmodus"},    {297, "Grundton"},
    {469, "Richtung"},          {116, "Arpeggio-Tempo"}, {364, "Klang-Auswahl"},
    {114, "Akk.-Anzeige"},      {365, "Klangfarbe"},     {87, "Akkord- Grundton "},
    {366, "Klang-Kontrolle"},   {372, "Lautstärke"},     {547, "Tempo "},
    {615, "von unten aufwärts"}};

const Captions kResults = {{109, "Anwender"}};

TEST(GermanCaptions, AreThoseOfTheScreensToTheLastBlank) {
  const auto german = LanguagesOfTheProgram().Create("melvadolang.Deutsch");
  for (const Captions* captions :
       {&kFirstScreen, &kGroups, &kSound, &kWorksheet, &kOptions, &kLists, &kFrames, &kResults}) {
    for (const auto& [id, words] : *captions) {
      EXPECT_EQ(german->Wort(std::to_string(id) + "s"), words) << id;
    }
  }
}

TEST(GermanCaptions, AreWhatTheResultsShowWithoutALanguage) {
  const auto german = LanguagesOfTheProgram().Create("melvadolang.Deutsch");
  int known = 0;
  for (int id = 1; id < 10'000; ++id) {
    if (EigenesWort(id).empty()) continue;
    EXPECT_EQ(EigenesWort(id), german->Wort(std::to_string(id) + "s")) << id;
    ++known;
  }
  EXPECT_GT(known, 60);
}

TEST(OtherLanguages, HaveWordsOfTheirOwnForTheButtonsOfATest) {
  for (const LanguageColumn& column : LanguagesOfTheProgram().Table()) {
    const bool is_german = column[1] == "Deutsch";
    const auto language = LanguagesOfTheProgram().Create("melvadolang." + column[1]);
    EXPECT_EQ(language->Wort("9601s") == "Einlesen Test", is_german) << column[1];
    EXPECT_EQ(language->Wort("9602s") == "Einstellungen Speichern", is_german) << column[1];
    EXPECT_EQ(language->Wort("9605s") == "Matrikel-Nr.:", is_german) << column[1];
    EXPECT_EQ(language->Wort("9606s") == "Prüfung", is_german) << column[1];
    EXPECT_NE(language->Wort("9603s"), language->Wort("9604s")) << column[1];
  }
}

std::string CaptionShown(Form& form, const std::string& id) {
  const Shown shown(form, kSmall);
  return dynamic_cast<TextWidget&>(shown.At(id)).caption().toStdString();
}

TEST(GermanCaptions, AreShownWithoutTheirBlanksAndAsHeadingsWithACapital) {
  SpokenProgram p("de_DE");
  p.ToSettings();
  EXPECT_EQ(CaptionShown(p.settings_screen(), "geinst_lb(3)"), "Bestimmen");
  EXPECT_EQ(CaptionShown(p.settings_screen(), "geinst_lb(4)"), "Akkord-Anzahl");
  EXPECT_EQ(CaptionShown(p.settings_screen(), "geinst_lb(1)"), "Tonraum");
  p.StartRun();
  EXPECT_EQ(CaptionShown(p.worksheet(), "true_false(1)"), "Falsch");
  p.worksheet().zurueck.Press();
  ToResults(p);
  EXPECT_TRUE(p.results().cmdOK[0].Press());
  EXPECT_EQ(CaptionShown(p.results(), "einst_lab(5)"), "Bestimmen");
  EXPECT_EQ(CaptionShown(p.results(), "einst_lab(4)"), "Akkord-Anzahl");
}

}  // namespace
}  // namespace vmod17

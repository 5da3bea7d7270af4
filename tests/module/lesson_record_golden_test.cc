// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// One run of each mode in German, click by click, against the record that it must leave.

#include <gtest/gtest.h>

#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "worksheet/mode_fixture.h"

namespace vmod17 {
namespace {

std::string Golden(const std::string& name) {
  std::ifstream file(std::string(VMOD17_GOLDEN_FOLDER) + "/" + name);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

void SpeakGerman(FakeLanguages& languages) {
  languages.languages[0].second.words = {
      {"154s", "bestimmen"},
      {"348s", "Jazz-Akkorde bestimmen"},
      {"136s", "freies Üben"},
      {"277s", "gleichbleibend"},
      {"238s", "fest (a'440 Hz)"},
      {"383s", "manuell"},
      {"97s", "Akkord"},
      {"507s", "Struktur + Symbol"},
      {"49s", "3-7 - Klänge"},
      {"51s", "Dreiklänge"},
      {"41s", "Oktaven"},
      {"672s", "c"},
      {"674s", "c''"},
      {"702s", "bis"},
      {"278s", "alle zugleich"},
      {"588s", "unbetont"},
      {"623s", "wechselnd"},
  };
}

/// Scripts the draw of one of the ten triads and its root, `above` semitones over the C.
void ScriptTriad(ScriptedRandom& random, int entry, int above) {
  random.Script({(static_cast<float>(entry) - 0.5f) / 10, (static_cast<float>(above) + 0.5f) / 17});
}

TEST(LessonRecord, TellsARunOfTwoTasksClickByClick) {
  WorksheetFixture p;
  SpeakGerman(p.languages);
  p.host.language = "Deutsch";
  p.host.user = {"4711", "Berg", "Anna"};
  p.loop.date = {2026, 11, 21, 14, 3, 22};
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Choose(1);
  p.StartRun();
  const auto click = [&](int tile, double ms) {
    p.loop.Advance(ms);
    EXPECT_TRUE(p.worksheet().jz_kl[tile].Press());
  };

  ScriptTriad(p.random, 2, 5);
  ScriptTriad(p.random, 7, 9);
  p.PlayTask();
  click(2, 2299);  // right after 2.3 seconds
  click(1, 1120);  // wrong
  p.loop.Advance(500);
  EXPECT_TRUE(p.Repeat());
  click(7, 769);  // right after 0.5 seconds, a pause of 0.05 and 0.77 seconds

  ScriptTriad(p.random, 10, 1);
  ScriptTriad(p.random, 10, 2);
  p.PlayTask();
  EXPECT_TRUE(p.Repeat());
  EXPECT_TRUE(p.Repeat());
  for (const int tile : {1, 2, 3, 4}) click(tile, 310);  // lost
  click(9, 40);
  click(10, 12000);
  EXPECT_TRUE(p.ControlRepeat());

  p.loop.date = {2026, 11, 21, 14, 9, 5};
  EXPECT_TRUE(p.worksheet().zurueck.Press());
  EXPECT_EQ(p.documents.Latest().file_name, "/tmp\\MVX261121140322.xml");
  EXPECT_EQ(p.documents.Latest().saved, Golden("lesson_record.outline"));
}

/// Compares with a golden file.
void ExpectGolden(const std::string& name, const std::string& found) {
  EXPECT_EQ(found, Golden(name)) << name;
}

/// One element a line.
std::string Lines(const TaggedValue& list) {
  std::string lines;
  for (const TaggedValue& element : list.Elements()) lines += element.String() + "\n";
  return lines;
}

/// A German run of two chords a task.
class GoldenRun : public ModeFixture {
 public:
  GoldenRun() {
    SpeakGerman(languages);
    for (const auto& [id, word] :
         std::initializer_list<std::pair<const char*, const char*>>{{"564s", "Training neu"},
                                                                    {"565s", "Training fortsetzen"},
                                                                    {"550s", "Test"},
                                                                    {"438s", "Prüfung"},
                                                                    {"142s", "automatisch"},
                                                                    {"426s", "Nr."},
                                                                    {"301s", "Gruppe"},
                                                                    {"45s", "2-hand-voicings"},
                                                                    {"62s", "Sechsklänge"},
                                                                    {"380s", "Major-Sept, alt."},
                                                                    {"409s", "Moll-Sept"},
                                                                    {"200s", "Dominant-Sept"},
                                                                    {"201s", "Dominant-Sept, alt."},
                                                                    {"312s", "Halbvermindert"},
                                                                    {"609s", "vermindert"},
                                                                    {"589s", "unterschiedlich"},
                                                                    {"499s", "Stimme"},
                                                                    {"675s", "c'''"}}) {
      languages.languages[0].second.words[id] = word;
    }
    host.language = "Deutsch";
    host.user = {"4711", "Berg", "Anna"};
    loop.date = {2026, 11, 21, 14, 3, 22};
  }

  void Begin(int modus) {
    ToSettings();
    settings_screen().akkzahl_cmb.Choose(1);
    BeginHere(modus);
  }
  /// One task that is known, in which the second chord is heard again, and one of whose chords the
  /// first is taken for another and the second is lost.
  void TwoTasks() {
    PlayTaskOf({2, 7});
    Click(2, 1299);
    loop.Advance(500);
    EXPECT_TRUE(Repeat());
    Click(7, 2769);
    PlayTaskOf({10, 4});
    Click(9, 310);
    Click(10, 12000);
    for (const int tile : {1, 2, 3, 5}) Click(tile, 40);
  }
  /// Clicks tiles or group buttons, each after its time in ms.
  void Answer(const std::vector<std::pair<int, double>>& clicks) {
    for (const auto& [i, ms] : clicks) {
      loop.Advance(ms);
      EXPECT_TRUE(Choice(i).Press()) << i;
    }
  }
  void Leave() {
    loop.date = {2026, 11, 21, 14, 9, 5};
    SaveAndLeave();
    EXPECT_EQ(documents.Latest().saves, 1);
  }

 private:
  void Click(int tile, double ms) {
    loop.Advance(ms);
    EXPECT_TRUE(worksheet().jz_kl[tile].Press()) << tile;
  }
};

TEST(LessonRecord, TellsANewTrainingAndWhatItStores) {
  GoldenRun p;
  p.Begin(kTraining);
  p.TwoTasks();
  p.Leave();
  ExpectGolden("training.outline", p.documents.Latest().saved);
  ExpectGolden("training_a1.txt", Lines(p.host.Stored("A1")));
}

TEST(LessonRecord, TellsAContinuedTrainingAndWhatItStores) {
  GoldenRun before;
  before.Begin(kTraining);
  before.TwoTasks();
  before.Leave();
  GoldenRun p;
  p.Continue(before.host);
  p.TwoTasks();
  p.Leave();
  ExpectGolden("continued_training.outline", p.documents.Latest().saved);
  ExpectGolden("continued_training_a1.txt", Lines(p.host.Stored("A1")));
}

TEST(LessonRecord, TellsARunInWhichGroupsAreNamed) {
  GoldenRun p;
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Choose(1);
  p.settings_screen().akk_grp.Choose(1);
  p.BeginHere(kFrei, {}, {6}, {2, 3, 4, 5});
  p.PlayTaskOf({1, 13});  // of the groups 2 and 4
  p.Answer({{5, 1500}, {2, 500}, {3, 700}, {5, 300}, {2, 400}});
  p.Leave();
  ExpectGolden("groups.outline", p.documents.Latest().saved);
}

TEST(LessonRecord, TellsARunOfVoicings) {
  GoldenRun p;
  p.ToSettings();
  Einstellung1& screen = p.settings_screen();
  screen.akkzahl_cmb.Choose(1);
  screen.aus_w.Choose(1);
  for (const int last : {7, 6}) EXPECT_TRUE(screen.grplst[0].Choose(last));
  p.StartRun();
  p.PlayTaskOf({2, 7});
  p.Answer({{2, 1300}, {6, 600}, {7, 2000}});
  p.PlayTaskOf({10, 4});
  p.Answer({{10, 200}, {4, 200}});
  p.Leave();
  ExpectGolden("voicings.outline", p.documents.Latest().saved);
}

TEST(LessonRecord, TellsTheTimbresOfTheVoicesThatCanSound) {
  GoldenRun p;
  p.ToSettings();
  p.settings_screen().akkzahl_cmb.Choose(1);
  p.settings_screen().kl_farb.Choose(1);
  p.StartRun();
  p.PlayTaskOf({2, 7});
  p.Answer({{2, 1300}});
  p.loop.Advance(500);
  EXPECT_TRUE(p.Repeat());
  p.Answer({{7, 2770}});
  p.Leave();
  ExpectGolden("timbres.outline", p.documents.Latest().saved);
}

TEST(LessonRecord, TellsATest) {
  GoldenRun p;
  p.Begin(kTest);
  p.TwoTasks();
  p.Leave();
  ExpectGolden("test.outline", p.documents.Latest().saved);
}

TEST(LessonRecord, TellsAnExam) {
  GoldenRun p;
  p.Begin(kPruefung);
  p.TwoTasks();
  p.Leave();
  ExpectGolden("exam.outline", p.documents.Latest().saved);
}

}  // namespace
}  // namespace vmod17

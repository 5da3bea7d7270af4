// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Whether anything of a task's answer can be read before it is given. Two lessons that differ only
// in what is asked must be alike in all that a reader of the screen, or of the pixels, can find.

#include <gtest/gtest.h>

#include <QImage>
#include <memory>

#include "qt/accessible_tree.h"
#include "qt/shown_page.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

struct Exercise {
  const char* name;
  int best_art;     ///< 0 the chord is named, 1 its group
  int akk_anzeige;  ///< 0 notation, 1 symbol
  int uebmodus;
};

/// One run, whose draws begin at a number of the test's choice.
class Lesson {
 public:
  explicit Lesson(const Exercise& exercise) {
    p_.ToSettings();
    Einstellung1& settings = p_.settings_screen();
    settings.akk_grp.Check(exercise.best_art);
    settings.akk_anzg.Check(exercise.akk_anzeige);
    settings.klang_alle[0].Press();
    settings.grp_alle[0].Press();
    settings.akkzahl_cmb.Select(1);
    settings.training_Combo.Select(exercise.uebmodus);
    p_.StartRun();
    shown_ = std::make_unique<Shown>(p_.worksheet(), kSmall);
    shown_->page().show();
  }

  ProgramFixture& program() { return p_; }
  void Draw(int from) {
    p_.random.Restart(from);
    if (p_.settings().abfolge == 0) {
      p_.worksheet().CmdNextAufg.Press();
    } else {
      p_.loop.Advance(p_.worksheet().WahlAutomat.interval);
    }
    Refresh();
  }
  void PlayOut() {
    p_.loop.Advance(p_.PlayingTime());
    Refresh();
  }
  void Repeat() {
    ASSERT_TRUE(p_.worksheet().wieder.Press());
    Refresh();
  }
  void Click(bool right) {
    if (p_.settings().best_art == 0) {
      ASSERT_TRUE(right ? p_.ClickRight() : p_.ClickWrong());
    } else {
      ASSERT_TRUE(ClickGroup(right));
    }
    Refresh();
  }
  int Asked(int slot) { return p_.Asked(slot); }
  int AskedGroup(int slot) { return p_.program.board()[Asked(slot)].group; }
  int Chords() { return p_.settings().akk_anzahl; }

  /// All words of the page, and what it looks like.
  QStringList Words() {
    QStringList words;
    QAccessibleInterface* const root = QAccessible::queryAccessibleInterface(&shown_->page());
    ForEachAccessible(*root, [&](QAccessibleInterface& element) {
      words << NameOf(element) + ": " + WordsOf(element).join(" | ");
    });
    for (const QWidget* widget : shown_->page().findChildren<QWidget*>()) {
      words << widget->objectName() + ": " + TextProperties(*widget).join(" | ");
    }
    for (const auto& binding : shown_->page().bindings()) {
      words << QString::fromStdString(binding->control().Id()) + ": " +
                   binding->dressed().caption();
    }
    return words;
  }
  QImage Picture() { return shown_->page().grab().toImage(); }
  Shown& shown() { return *shown_; }

 private:
  void Refresh() { shown_->page().Refresh(); }
  bool ClickGroup(bool right) {
    Arbeitsblatt1& sheet = p_.worksheet();
    const int asked = AskedGroup(p_.run().akk_nr);
    for (int g = 1; g <= kGruppen; ++g) {
      if (sheet.akk_group[g].Reachable() && (g == asked) == right) {
        return sheet.akk_group[g].Press();
      }
    }
    return false;
  }

  ProgramFixture p_;
  std::unique_ptr<Shown> shown_;
};

/// Numbers to begin two draws with, that lead to other answers in one slot and to the same in the
/// slots before it.
std::pair<int, int> DrawsThatDifferIn(int slot, const Exercise& exercise, int first_task) {
  const auto asked = [&](int from) {
    Lesson lesson(exercise);
    if (first_task != 0) {
      lesson.Draw(first_task);
      lesson.PlayOut();
      for (int i = 1; i <= lesson.Chords(); ++i) lesson.Click(true);
    }
    lesson.Draw(from);
    std::vector<std::pair<int, int>> answers;
    for (int i = 1; i <= slot; ++i) answers.emplace_back(lesson.Asked(i), lesson.AskedGroup(i));
    return answers;
  };
  const auto one = asked(1);
  for (int from = 2; from < 400; ++from) {
    const auto other = asked(from);
    const bool same_before = std::equal(one.begin(), one.end() - 1, other.begin());
    if (same_before && one.back().first != other.back().first &&
        one.back().second != other.back().second) {
      return {1, from};
    }
  }
  ADD_FAILURE() << "no two draws differ in slot " << slot << " alone";
  return {1, 1};
}

class EarlyAnswer : public testing::TestWithParam<Exercise> {
 protected:
  void Begin(std::pair<int, int> draws, int first_task = 0) {
    for (auto* lesson : {&one_, &other_}) {
      *lesson = std::make_unique<Lesson>(GetParam());
      if (first_task == 0) continue;
      (*lesson)->Draw(first_task);
      (*lesson)->PlayOut();
      for (int i = 1; i <= (*lesson)->Chords(); ++i) (*lesson)->Click(true);
    }
    ExpectAlike("before the task");
    one_->Draw(draws.first);
    other_->Draw(draws.second);
    ASSERT_EQ(one_->Chords(), other_->Chords());
  }
  template <typename Action>
  void InBoth(const Action& act) {
    for (auto* lesson : {&one_, &other_}) act(**lesson);
  }
  void ExpectAlike(const char* when) {
    const QStringList one = one_->Words();
    const QStringList other = other_->Words();
    ASSERT_EQ(one.size(), other.size()) << when;
    for (qsizetype i = 0; i < one.size(); ++i) {
      EXPECT_EQ(one[i].toStdString(), other[i].toStdString()) << when;
    }
    EXPECT_EQ(one_->Picture(), other_->Picture()) << when;
  }
  void ExpectTheHiddenIsEmpty(const char* when) {
    InBoth([&](Lesson& lesson) {
      for (const auto& binding : lesson.shown().page().bindings()) {
        const QWidget& widget = binding->widget();
        if (widget.isVisibleTo(&lesson.shown().page())) continue;
        EXPECT_EQ(TextProperties(widget).join(" ").toStdString(), "")
            << when << ": " << binding->control().Id();
        EXPECT_EQ(binding->dressed().caption().toStdString(), "")
            << when << ": " << binding->control().Id();
      }
    });
  }

  std::unique_ptr<Lesson> one_;
  std::unique_ptr<Lesson> other_;
};

TEST_P(EarlyAnswer, IsNowhereFromTheDrawToTheAnswer) {
  Begin(DrawsThatDifferIn(1, GetParam(), 0));
  ExpectAlike("while it sounds");
  ExpectTheHiddenIsEmpty("while it sounds");
  InBoth([](Lesson& lesson) { lesson.PlayOut(); });
  ExpectAlike("while it is open");
  ExpectTheHiddenIsEmpty("while it is open");
  InBoth([](Lesson& lesson) { lesson.Repeat(); });
  ExpectAlike("while it is repeated");
  InBoth([](Lesson& lesson) { lesson.PlayOut(); });
  ExpectAlike("after it was repeated");
}

TEST_P(EarlyAnswer, OfTheNextChordIsNowhereAfterTheFirst) {
  if (Lesson(GetParam()).Chords() < 2) GTEST_SKIP() << "one chord in each task";
  Begin(DrawsThatDifferIn(2, GetParam(), 0));
  InBoth([](Lesson& lesson) { lesson.PlayOut(); });
  InBoth([](Lesson& lesson) { lesson.Click(true); });
  ExpectAlike("after the first chord");
  ExpectTheHiddenIsEmpty("after the first chord");
}

TEST_P(EarlyAnswer, IsNowhereAfterAnEarlierTaskWasAnswered) {
  Begin(DrawsThatDifferIn(1, GetParam(), 5), 5);
  ExpectAlike("while it sounds");
  ExpectTheHiddenIsEmpty("while it sounds");
  InBoth([](Lesson& lesson) { lesson.PlayOut(); });
  ExpectAlike("while it is open");
}

TEST_P(EarlyAnswer, IsInNoEventAndNothingHiddenRaisesOne) {
  const auto draws = DrawsThatDifferIn(1, GetParam(), 0);
  const auto heard = [&](int from) {
    Lesson lesson(GetParam());
    const HeardEvents events;
    lesson.Draw(from);
    lesson.PlayOut();
    lesson.Repeat();
    lesson.PlayOut();
    QStringList told;
    for (const HeardEvents::Event& event : events.All()) {
      told << QString("%1 %2 %3 %4")
                  .arg(static_cast<int>(event.type))
                  .arg(event.widget, event.name, event.description);
      const bool goes = event.type == QAccessible::ObjectHide;
      EXPECT_TRUE(event.visible || goes) << told.back().toStdString();
    }
    return told;
  };
  const QStringList one = heard(draws.first);
  EXPECT_FALSE(one.isEmpty());
  EXPECT_EQ(one.join("\n").toStdString(), heard(draws.second).join("\n").toStdString());
}

INSTANTIATE_TEST_SUITE_P(Exercises, EarlyAnswer,
                         testing::Values(Exercise{"Notation", 0, 0, 0},
                                         Exercise{"Symbols", 0, 1, 0}, Exercise{"Groups", 1, 0, 0},
                                         Exercise{"Training", 0, 0, 1}, Exercise{"Test", 0, 0, 3}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace vmod17

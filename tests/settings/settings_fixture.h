// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/program_fixture.h"

namespace vmod17 {

/// The colours that tell the state of the button OK and of a frame.
inline constexpr Color kOkBereit = {0x80, 0xFF, 0x80};
inline constexpr Color kOkGesperrt = {0xFF, 0, 0};
inline constexpr Color kRahmenFrei = {0xFF, 0xFF, 0xC0};
inline constexpr Color kRahmenGesperrt = {0xFF, 0xC0, 0xC0};
inline constexpr Color kRahmenVomTest = {0xFF, 0x80, 0x80};

/// The text that a language without words gives for a text id.
inline std::string Wort(int id) { return "[" + std::to_string(id) + "s]"; }

/// The settings screen of the whole program, and a user before it.
class SettingsUser : protected ProgramFixture {
 protected:
  Einstellung1& screen() { return settings_screen(); }

  static std::vector<int> Data(const ItemList& list) {
    std::vector<int> data;
    for (const ItemList::Entry& entry : list.entries()) data.push_back(entry.item_data);
    return data;
  }
  static std::vector<std::string> Texts(const ItemList& list) {
    std::vector<std::string> texts;
    for (const ItemList::Entry& entry : list.entries()) texts.push_back(entry.text);
    return texts;
  }
  std::vector<int> KindsOffered() { return Data(screen().klanglst[0]); }
  std::vector<int> Kinds() { return Data(screen().klanglst[1]); }
  std::vector<int> GroupsOffered() { return Data(screen().grplst[0]); }
  std::vector<int> Groups() { return Data(screen().grplst[1]); }

  /// Clicks the entry of that value; false if it is not there or cannot be reached.
  static bool Click(ItemList& list, int item_data) {
    for (int i = 0; i < list.count(); ++i) {
      if (list.entry(i).item_data == item_data) return list.Choose(i);
    }
    return false;
  }
  bool ChooseKind(int k) { return Click(screen().klanglst[0], k); }
  bool ReturnKind(int k) { return Click(screen().klanglst[1], k); }
  bool ChooseGroup(int g) { return Click(screen().grplst[0], g); }
  bool ReturnGroup(int g) { return Click(screen().grplst[1], g); }
  /// Takes back what is chosen, and chooses these kinds with single clicks.
  void ChooseOnly(const std::vector<int>& kinds) {
    while (screen().klanglst[1].count() > 0) ASSERT_TRUE(screen().klanglst[1].Choose(0));
    for (const int k : kinds) ASSERT_TRUE(ChooseKind(k)) << k;
  }

  /// `ok_bereit` or `ok_gesperrt`, in all that belongs to it.
  void ExpectOk(bool bereit) {
    EXPECT_EQ(screen().cmdOK.enabled, bereit);
    EXPECT_EQ(screen().cmdOK.back_color, bereit ? kOkBereit : kOkGesperrt);
    EXPECT_EQ(screen().cmdOK.caption, bereit ? Wort(432) : Wort(139));
  }
  bool Locked(int frame) {
    EXPECT_EQ(screen().grdeinst[frame].back_color == kRahmenGesperrt,
              !screen().grdeinst[frame].enabled)
        << frame;
    return !screen().grdeinst[frame].enabled;
  }
  std::vector<int> LockedFrames() {
    std::vector<int> locked;
    for (const int i : screen().grdeinst.indexes()) {
      if (Locked(i)) locked.push_back(i);
    }
    return locked;
  }

  /// Puts a training into the host that can be taken up again.
  void StoreTraining(TaggedValue e1) {
    host.SetStored("E1", std::move(e1));
    host.SetStored("A1", TaggedValue::Array{"true"});
  }
  /// Leaves to the first screen and opens the settings again.
  void Reopen() {
    screen().cmdZurueck.Press();
    loop.Advance(1000);
    first().cmdOK.Press();
    loop.Advance(200);
  }
};

class SettingsTest : public ::testing::Test, protected SettingsUser {};

}  // namespace vmod17

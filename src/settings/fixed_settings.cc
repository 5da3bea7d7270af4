// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// What a teacher fixes for a test: the walks over the controls, and the files they make.

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "forms/caption.h"
#include "settings/settings_screen.h"

namespace vmod17 {
namespace {

constexpr Color kVomTestGesperrt = Rgb(255, 128, 128);
constexpr std::size_t kLaengsteListe = 10;
constexpr int kLaengsteZeile = 80;

std::string Klein(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

/// The first characters of a line in UTF-8, with "…" in the place of the others.
std::string Gekuerzt(const std::string& zeile) {
  int zeichen = 0;
  for (std::size_t i = 0; i < zeile.size(); ++i) {
    const bool beginnt = (static_cast<unsigned char>(zeile[i]) & 0xC0) != 0x80;
    if (beginnt && ++zeichen > kLaengsteZeile) return zeile.substr(0, i) + "…";
  }
  return zeile;
}

/// Lines below a heading. A file may bring more than a message has room for.
std::string Aufgelistet(const std::vector<std::string>& zeilen, const TextLookup& texts) {
  const bool ganz = zeilen.size() <= kLaengsteListe + 1;
  const std::size_t anzahl = ganz ? zeilen.size() : kLaengsteListe;
  std::string text;
  for (std::size_t i = 0; i < anzahl; ++i) text += "\n" + Gekuerzt(zeilen[i]);
  if (ganz) return text;
  return text + "\n" +
         texts.Words(
             {text_id::kAndMore, "… and %1 more", {std::to_string(zeilen.size() - anzahl)}});
}

/// The options of the group that a control belongs to; null for a control of another kind.
OptionGroup* GruppeVon(const Control& control) {
  const auto* option = dynamic_cast<const Option*>(&control);
  return option == nullptr ? nullptr : &option->group();
}

/// The values that are applied where no file is chosen, by the tags of their controls in lower
/// case.
const std::map<std::string, int>& EinleseAr() {
  static const std::map<std::string, int> values = {
      {"arptempo", 3}, {"richtung", 1}, {"ambitus", 2}, {"intervallanzahl", 2}};
  return values;
}

}  // namespace

/// Goes through the tagged controls in marked frames and gathers what a test of them would hold. A
/// group of options counts once, a list without a selection not at all.
std::vector<FixedControl> Einstellung1::SammleMarkierte() {
  std::vector<FixedControl> gesammelt;
  std::set<std::string> gesehen;
  for (const Control* control : controls()) {
    if (control->tag.empty() || control->container == nullptr) continue;
    if (control->container->tag != kMarke || !gesehen.insert(control->name()).second) continue;
    FixedControl eintrag;
    eintrag.title = RahmenTitel(*control->container);
    eintrag.text = control->tag;
    eintrag.cname = control->name();
    if (const OptionGroup* group = GruppeVon(*control)) {
      eintrag.index = group->chosen();
      eintrag.words = (*group)[group->chosen()].caption;
    } else if (const auto* list = dynamic_cast<const ItemList*>(control)) {
      if (list->list_index() < 0) continue;
      const ItemList::Entry& entry = list->entry(list->list_index());
      eintrag.index = list->list_index();
      if (entry.item_data != ItemList::kValueIsIndex) eintrag.value = entry.item_data;
      eintrag.words = entry.text;
    } else {
      continue;
    }
    gesammelt.push_back(std::move(eintrag));
  }
  return gesammelt;
}

std::string Einstellung1::RahmenTitel(const Control& rahmen) const {
  const auto& mit_titel = geinst_lb.indexes();
  return std::find(mit_titel.begin(), mit_titel.end(), rahmen.index()) == mit_titel.end()
             ? ""
             : ShownCaption(geinst_lb[rahmen.index()].caption);
}

void Einstellung1::cmdOptionSave_Click() {
  const TextLookup& texts = shell_.texts;
  FixedSettings dokument;
  dokument.controls = SammleMarkierte();
  if (dokument.controls.empty()) {
    shell_.messages.Warn(texts.Sprachtext(text_id::kNoFrameMarked), cmdOptionSave.caption);
    return;
  }
  const DateTime heute = shell_.loop.Now();
  const auto file =
      parts_.dialog.AskToSave(cmdOptionSave.caption, "Test-" + PaddedText(heute.year, 4) + "-" +
                                                         PaddedText(heute.month, 2) + "-" +
                                                         PaddedText(heute.day, 2) + ".xml");
  if (!file) return;
  dokument.modul = shell_.server.identity().name;
  dokument.type = DecimalText(shell_.state.uebTyp);
  dokument.description = caption;
  try {
    parts_.settings_files.Write(*file, dokument);
  } catch (const SettingsFileError& error) {
    shell_.messages.Warn(
        texts.Sprachtext(text_id::kTestFileNotWritten) + "\n" + texts.Words(error.reason()),
        cmdOptionSave.caption);
  }
}

void Einstellung1::cmdOptionRead_Click() {
  const auto file = parts_.dialog.AskToOpen(cmdOptionRead.caption, "xml", "");
  if (!file) {
    EinlesenTest();
    return;
  }
  try {
    WendeAn(parts_.settings_files.Read(*file));
  } catch (const SettingsFileError& error) {
    const TextLookup& texts = shell_.texts;
    std::string text =
        texts.Sprachtext(text_id::kTestFileUnreadable) + "\n" + texts.Words(error.reason());
    if (error.line() > 0) {
      text += "\n" + texts.Sprachtext(text_id::kLine) + " " + DecimalText(error.line()) + ", " +
              texts.Sprachtext(text_id::kColumn) + " " + DecimalText(error.column());
    }
    shell_.messages.Warn(text, cmdOptionRead.caption);
  }
}

void Einstellung1::EinlesenTest() {
  for (Control* control : controls()) {
    if (control->tag.empty() || HaeltLevel(*control)) continue;
    const auto value = EinleseAr().find(Klein(control->tag));
    if (value == EinleseAr().end()) continue;
    if (OptionGroup* group = GruppeVon(*control)) {
      group->Check(value->second);
    } else if (auto* list = dynamic_cast<ItemList*>(control)) {
      const bool nach_index = list->list_index() >= 0 &&
                              list->entry(list->list_index()).item_data == ItemList::kValueIsIndex;
      if (nach_index) list->Select(value->second);
    }
    SperreVomTest(*control);
  }
}

/// Applies what a file holds, in its order, and tells what the level holds and what this screen has
/// no place for. The frames are locked at the end, since one frame may hold several controls of the
/// file.
void Einstellung1::WendeAn(const FixedSettings& dokument) {
  std::string gehalten;
  std::vector<std::string> uebergangen;
  std::vector<Control*> gesetzt;
  for (const FixedControl& eintrag : dokument.controls) {
    Control* control = SucheTagged(eintrag);
    switch (control == nullptr ? Angewandt::kNein : Setze(*control, eintrag)) {
      case Angewandt::kJa:
        gesetzt.push_back(control);
        break;
      case Angewandt::kGehalten:
        gehalten += "\n" + InWorten(*control);
        break;
      case Angewandt::kNein:
        uebergangen.push_back((eintrag.title.empty() ? eintrag.cname : eintrag.title) +
                              (eintrag.words.empty() ? "" : ": " + eintrag.words));
    }
  }
  for (Control* control : gesetzt) SperreVomTest(*control);
  const TextLookup& texts = shell_.texts;
  std::string text;
  if (!gehalten.empty()) {
    text = texts.Words({text_id::kModeHoldsSettings,
                        "The practice mode “%1” holds these settings. They stay as they are:",
                        {training_Combo.text()}}) +
           gehalten;
  }
  if (!uebergangen.empty()) {
    text += (text.empty() ? "" : "\n\n") + texts.Sprachtext(text_id::kSettingsPassedOver) +
            Aufgelistet(uebergangen, texts);
  }
  if (!text.empty()) shell_.messages.Warn(text, cmdOptionRead.caption);
}

Control* Einstellung1::SucheTagged(const FixedControl& eintrag) {
  const auto found = std::find_if(controls().begin(), controls().end(), [&](const Control* c) {
    return c->name() == eintrag.cname && c->tag == eintrag.text && !c->tag.empty();
  });
  return found == controls().end() ? nullptr : *found;
}

/// Sets a control as a test says. `kNein` if it has no such option or entry.
Einstellung1::Angewandt Einstellung1::Setze(Control& control, const FixedControl& eintrag) {
  if (HaeltLevel(control)) return Angewandt::kGehalten;
  // The list of voices says nothing where there is one timbre for all.
  if (&control == &Channel_Combo && parts_.settings.klangfarb_art == 0) return Angewandt::kJa;
  if (OptionGroup* group = GruppeVon(control)) {
    if (eintrag.index < group->first() || eintrag.index > group->last()) return Angewandt::kNein;
    if (!(*group)[eintrag.index].enabled) return Angewandt::kNein;
    group->Check(eintrag.index);
    return Angewandt::kJa;
  }
  auto* list = dynamic_cast<ItemList*>(&control);
  if (list == nullptr) return Angewandt::kNein;
  int index = eintrag.index;
  if (eintrag.value) {
    index = 0;
    while (index < list->count() && list->entry(index).item_data != *eintrag.value) ++index;
  }
  if (index < 0 || index >= list->count()) return Angewandt::kNein;
  list->Select(index);
  return Angewandt::kJa;
}

/// What a control sets and how it stands: "Tempo: 60 (Larghetto)".
std::string Einstellung1::InWorten(const Control& control) {
  const std::pair<const Control*, const Label*> eigene[] = {
      {&Combo_tonraum, &lb1}, {&cmb_arpTmp, &lb10}, {&temp_Combo, &lb15[0]}};
  std::string name = RahmenTitel(*control.container);
  for (const auto& [list, label] : eigene) {
    if (list == &control) name = label->caption;
  }
  const OptionGroup* group = GruppeVon(control);
  const auto* list = dynamic_cast<const ItemList*>(&control);
  return ShownCaption(name) + ": " +
         ShownCaption(group != nullptr ? (*group)[group->chosen()].caption : list->text());
}

void Einstellung1::SperreVomTest(Control& control) {
  control.container->enabled = false;
  control.container->back_color = kVomTestGesperrt;
}

}  // namespace vmod17

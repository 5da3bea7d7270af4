// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "results/results_screen.h"

#include <utility>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "base/usual_words.h"
#include "forms/caption.h"
#include "results/own_words.h"

namespace vmod17 {
namespace {

// The worksheet's sign that the results are on their way is to be seen for this long.
constexpr int kStartIntervall = 300;
constexpr int kTestIntervall = 2000;
// Whoever was about to press a tile presses whatever has come in its place.
constexpr int kSchonfrist = 1000;

constexpr int kZellenJeZeile = 8;
constexpr int kKurzName = 10;  // of a group whose name is too long for a cell
constexpr int kLangerName = 5;
constexpr Color kGruppenFarbe = Bgr(0xFFFFC0);

/// Heights in the grid, which follow the pictures.
struct Raster {
  int zeilenschritt;
  int versatz;
  int kachelhoehe;
};

constexpr Raster kVoicingRaster = {.zeilenschritt = 204, .versatz = 40, .kachelhoehe = 120};
constexpr Raster kKlangRaster = {.zeilenschritt = 164, .versatz = 0, .kachelhoehe = 80};

const Raster& RasterFuer(int letzter_klangtyp) {
  return letzter_klangtyp == kVoicing ? kVoicingRaster : kKlangRaster;
}

}  // namespace

Testergebnis::Testergebnis(Shell& shell, const Parts& parts, RunEnd end,
                           std::function<void(const std::string&)> closed)
    : Form("testergebnis"),
      start(*this, shell.loop, "start", kStartIntervall),
      testtimer(*this, shell.loop, "testtimer", kTestIntervall),
      schonfrist(*this, shell.loop, "schonfrist", kSchonfrist),
      shell_(shell),
      parts_(parts),
      end_(end),
      closed_(std::move(closed)) {
  StelleInRahmen();
  Verdrahte();
  cmdHilfe.caption = "?";
  datum.visible = false;
  zeit_um.visible = false;
  gr_einst.visible = false;
  einst_cont.visible = false;
}

void Testergebnis::StelleInRahmen() {
  for (int e = 1; e <= kBrettGroesse; ++e) {
    Akkbez[e].container = &erg_cont;
    klang_pan[e].container = &erg_cont;
    jz_kl[e].container = &klang_pan[e];
    akk_group[e].container = &erg_cont;
    ergebnis[e].container = &erg_cont;
  }
  for (Control* control :
       std::initializer_list<Control*>{&lab_ges, &ergebnis[0], &datum, &zeit_um}) {
    control->container = &erg_cont;
  }
  grd_einst_head.container = &gr_einst;
  for (int k = 0; k < kGrundZeilen; ++k) {
    g_einst_lab[k].container = &gr_einst;
    g_einst_inh[k].container = &gr_einst;
  }
  einst_head.container = &einst_cont;
  for (int k = 0; k < kEinstZeilen; ++k) {
    einst_lab[k].container = &einst_cont;
    einst_Inh[k].container = &einst_cont;
  }
  PicSchalt[0].container = &erg_cont;
  PicSchalt[1].container = &einst_cont;
  for (int i : {0, 1}) {
    cmdPrint[i].container = &PicSchalt[i];
    cmdOK[i].container = &PicSchalt[i];
  }
}

void Testergebnis::Verdrahte() {
  start.Fire = [this] { start_Timer(); };
  testtimer.Fire = [this] { testtimer_Timer(); };
  schonfrist.Fire = [this] { schonfrist_Timer(); };
  for (int i : {0, 1}) {
    cmdOK[i].Click = [this, i] { cmdOK_Click(i); };
    cmdPrint[i].Click = [this, i] { cmdPrint_Click(i); };
  }
  cmdHilfe.Click = [this] { cmdHilfe_Click(); };
}

void Testergebnis::Form_Load() {
  visible = false;
  start.Enable();
}

void Testergebnis::Form_Unload() {
  parts_.pictures.For(parts_.settings.akk_form).Unload();
  // Taken out first: what is told here may lead to the end of this screen.
  const auto closed = std::exchange(closed_, nullptr);
  if (closed) closed(cmdOK[1].tag);
}

void Testergebnis::start_Timer() {
  start.Disable();
  shell_.errors.Guard(
      "start_timer.", *this, [this] { BaueAuf(); }, [this] { cmdOK_Click(1); });
}

void Testergebnis::testtimer_Timer() {
  testtimer.Disable();
  shell_.screens.Unload(*this);
}

void Testergebnis::BaueAuf() {
  cmdOK[1].tag = "OK";
  const TextLookup& texts = shell_.texts;
  caption =
      Oder(texts.ueb_typ_name_ar.at(shell_.state.uebTyp), EigenesWort(text_id::kExerciseName)) +
      Wort(text_id::kColon) + Oder(texts.titel_ar[2], EigenesWort(text_id::kResultsTitle));
  LbGrdEinst();
  LbEinst();
  // A page that failed has closed the screen by itself.
  if (!loaded()) return;
  BaueRaster();
  SetzeTexte();
  ZeigeErgebnisse();
  if (end_ == RunEnd::kTimeUp) MeldeZeitUm();
  visible = true;
  Say(lab_ges.caption + shell_.texts.Sprachtext(text_id::kColon) + " " + ergebnis[0].caption);
}

void Testergebnis::MeldeZeitUm() {
  zeit_um.caption = shell_.texts.Words({text_id::kTimeIsUp, "Time is up", {}});
  zeit_um.visible = true;
  PicSchalt[0].enabled = false;
  schonfrist.Enable();
}

void Testergebnis::schonfrist_Timer() {
  schonfrist.Disable();
  PicSchalt[0].enabled = true;
}

void Testergebnis::BaueRaster() {
  datum.caption = shell_.system.DateTimeText(shell_.loop.Now());
  datum.visible = false;
  erg_cont.top = 0;
  einst_cont.visible = false;
  gr_einst.visible = false;
  for (int e = 1; e <= kBrettGroesse; ++e) {
    const bool belegt = e <= parts_.board.akk_zahl;
    for (Control* control :
         std::initializer_list<Control*>{&klang_pan[e], &Akkbez[e], &akk_group[e], &ergebnis[e]}) {
      control->visible = belegt;
    }
    if (belegt) BaueZelle(e);
  }
}

void Testergebnis::BaueZelle(int e) {
  const BoardEntry& entry = parts_.board[e];
  const int n = parts_.board.table().KlangNummer(entry.klangtyp, entry.row);
  PictureStore& store = parts_.pictures.For(parts_.settings.akk_form);
  const Raster& raster = RasterFuer(parts_.settings.LetzterKlangtyp());
  const int oben = (e - 1) / kZellenJeZeile * raster.zeilenschritt;

  Akkbez[e].top = oben;
  Akkbez[e].height = 36;
  Akkbez[e].image = store.jbez(n);
  klang_pan[e].top = oben + 36;
  klang_pan[e].height = raster.kachelhoehe;
  klang_pan[e].back_color = Colors::kRed;
  jz_kl[e].enabled = false;
  jz_kl[e].back_color = Colors::kGrey;
  jz_kl[e].image = store.jakk(n);
  jz_kl[e].caption = Akkbez[e].caption = ChordOfKlang(n).symbol;
  akk_group[e].top = oben + raster.versatz + 116;
  akk_group[e].width = 96;
  akk_group[e].height = 20;
  akk_group[e].back_color = kGruppenFarbe;
  const int name = entry.group == kLangerName ? kKurzName : entry.group;
  akk_group[e].caption = Oder(parts_.names.grp_name_ar.at(name), EigenerGruppenName(name));
  ergebnis[e].top = oben + raster.versatz + 138;
  ergebnis[e].height = 20;
}

void Testergebnis::ZeigeErgebnisse() {
  const std::string punkt = shell_.system.DecimalPoint();
  Gesamtergebnis gesamt;
  for (int i = 1; i <= kBrettGroesse; ++i) {
    const ItemErgebnis item =
        ItemBewerten(parts_.settings.uebmodus, parts_.counters.auswertung_obj, i);
    ergebnis[i].visible = item.im_lauf;
    if (!item.im_lauf) continue;
    gesamt.Nimm(item);
    ergebnis[i].caption = item.zaehlt ? ProzentText(item.p * 100, punkt) : "";
    ergebnis[i].back_color = item.zaehlt ? std::optional(ErgebnisFarbe(item.p)) : std::nullopt;
    // What a reader of the screen says of the cell as a whole.
    klang_pan[i].spoken = jz_kl[i].caption + ", " + ShownCaption(akk_group[i].caption);
    if (item.zaehlt) klang_pan[i].spoken += ", " + ergebnis[i].caption;
  }
  if (gesamt.Leer()) {
    ergebnis[0].caption = "0.0 %";
    ergebnis[0].back_color = kOhneErgebnisFarbe;
  } else {
    const float t = gesamt.Prozent();
    ergebnis[0].caption = ProzentText(t, punkt);
    // The total is in per cent already and is taken times a hundred once more: its cell is green
    // from 0.8 per cent on, and that is how it is known.
    ergebnis[0].back_color = ErgebnisFarbe(t);
  }
}

void Testergebnis::SetzeTexte() {
  lab_ges.caption = Wort(text_id::kOverallResult);
  cmdHilfe.spoken = shell_.texts.Words(kHelpWord);
  for (int i : {0, 1}) {
    cmdOK[i].caption = Wort(text_id::kContinue);
    cmdPrint[i].caption = Wort(text_id::kPrint);
  }
}

std::string Testergebnis::Wort(int id) const {
  return shell_.texts.SprachtextOder(id, EigenesWort(id));
}

std::string Testergebnis::Ueberschrift(int id) const {
  const std::string wort = shell_.texts.Sprachtext(id);
  return TextLookup::Fehlt(wort) ? EigenesWort(id) + ":" : wort + " " + Wort(text_id::kColon);
}

void Testergebnis::cmdOK_Click(int index) {
  if (index == 1) {
    shell_.screens.Unload(*this);
    return;
  }
  erg_cont.visible = false;
  einst_cont.visible = true;
  gr_einst.visible = true;
}

void Testergebnis::cmdHilfe_Click() { shell_.system.SendKeys("{F1}"); }

}  // namespace vmod17

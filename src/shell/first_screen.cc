// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/first_screen.h"

#include "base/text_ids.h"
#include "base/usual_words.h"

namespace vmod17 {
namespace {

constexpr int kStartIntervall = 100;
constexpr int kBestimmen = 1;

}  // namespace

GrdEinst::GrdEinst(Shell& shell)
    : Form("grd_einst"), start(*this, shell.loop, "start", kStartIntervall), shell_(shell) {
  grdeinst[0].container = &PicAktion;
  grdeinst_lb[0].container = &grdeinst[0];
  for (int i = ueb_typ.first(); i <= ueb_typ.last(); ++i) ueb_typ[i].container = &grdeinst[0];
  grdeinst_lb[0].caption = "Übungsart";
  ueb_typ[2].enabled = false;
  ueb_typ[3].enabled = false;
  cmdHilfe.caption = "?";
  Kontrolle.caption = "kontrolle: nicht entfernen!!";
  Kontrolle.visible = false;
  start.Fire = [this] { start_Timer(); };
  ueb_typ.Click = [this](int index) { ueb_typ_Click(index); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdEnde.Click = [this] { cmdEnde_Click(); };
  cmdHilfe.Click = [this] { cmdHilfe_Click(); };
}

void GrdEinst::Form_Load() {
  visible = false;
  shell_.server.HostVerbinden();
  start.Enable();
}

void GrdEinst::start_Timer() {
  start.Disable();
  TextLookup& texts = shell_.texts;
  AppState& state = shell_.state;
  shell_.errors.Guard(
      "start_timer.", *this,
      [&] {
        texts.SprachenLaden();
        texts.SpracheWaehlen(shell_.server.HostSprache());
        texts.TexteLaden();
        SetzeTexte();
        state.loginKnown = shell_.server.LoginDaten()[0] != TaggedValue("unbekannt");
        caption = texts.modul_titel + texts.Sprachtext(text_id::kColon) + texts.titel_ar[0];
        versionszeile.caption = texts.Sprachtext(text_id::kProgramName) + " " +
                                texts.Sprachtext(text_id::kVersion) + " " +
                                shell_.server.identity().VersionText();
        ueb_typ.Check(kBestimmen);
        state.FillTables();
        visible = true;
      },
      [this] { cmdEnde_Click(); });
}

void GrdEinst::SetzeTexte() {
  const TextLookup& texts = shell_.texts;
  grdeinst_lb[0].caption = texts.Sprachtext(text_id::kExerciseType);
  ueb_typ[1].caption = texts.Sprachtext(text_id::kIdentify);
  ueb_typ[2].caption = texts.Sprachtext(text_id::kBuild);
  ueb_typ[3].caption = texts.Sprachtext(text_id::kPlay);
  cmdOK.caption = texts.Sprachtext(text_id::kOk);
  cmdHilfe.spoken = texts.Words(kHelpWord);
  cmdEnde.caption = texts.Sprachtext(text_id::kQuit);
}

void GrdEinst::ueb_typ_Click(int index) { shell_.state.uebTyp = index; }

void GrdEinst::cmdOK_Click() {
  shell_.errors.Guard(
      "cmdOK_click.", *this,
      [this] {
        visible = false;
        if (shell_.state.uebTyp == kBestimmen) shell_.navigation.OpenSettings();
      },
      [this] { cmdEnde_Click(); });
}

void GrdEinst::cmdEnde_Click() {
  shell_.server.HostBeenden("MENUE", shell_.screens);
  shell_.screens.Unload(*this);
}

void GrdEinst::cmdHilfe_Click() { shell_.system.SendKeys("{F1}"); }

}  // namespace vmod17

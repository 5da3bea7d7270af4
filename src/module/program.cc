// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "module/program.h"

#include <exception>
#include <utility>

namespace vmod17 {

Program::Program(const Platform& platform, ProgramIdentity identity)
    : platform_(platform),
      texts_(platform.make_language_list, platform.system),
      server_(platform.make_host_service, std::move(identity)),
      errors_(server_, texts_, platform.messages),
      shell_{platform_.loop, platform_.system, platform_.messages, state_, texts_,
             server_,        errors_,          screens_,           *this},
      midi_(platform_.loop, server_),
      record_(shell_, platform_.make_document, [this] {
        return grd_einst_ ? grd_einst_->ueb_typ[state_.uebTyp].caption : std::string();
      }) {
  texts_.WeitereTexte = [this](const TextLookup& texts) { names_.Fuelle(texts); };
  screens_.Unloaded = [this](Form& form) { Retire(form); };
}

Program::~Program() {
  while (!screens_.empty()) {
    try {
      screens_.Unload(*screens_.top());
    } catch (const std::exception&) {
      // The others go all the same.
    }
  }
}

void Program::Start() { Load(grd_einst_, shell_); }

bool Program::Quiet() const {
  if (testergebnis_ && testergebnis_->visible) return true;
  if (arbeitsblatt1_ && arbeitsblatt1_->visible) return arbeitsblatt1_->Wartet();
  return (grd_einst_ && grd_einst_->visible) || (einstellung1_ && einstellung1_->visible);
}

void Program::Leave() {
  // It waits for what the user is asked at the end.
  if (Ended()) return;
  // A run that is cut off from outside ends as if it were left, so that its record is saved.
  try {
    if (arbeitsblatt1_ && arbeitsblatt1_->visible) arbeitsblatt1_->Abbrechen();
  } catch (const std::exception&) {
    // On the way out nothing may stand in the way.
  }
  server_.HostBeenden("MENUE", screens_);
}

void Program::OpenSettings() {
  if (!einstellung1_) {
    Load(einstellung1_, shell_,
         Einstellung1::Parts{settings_, names_, midi_, platform_.output, counters_, record_,
                             platform_.random, platform_.dialog, platform_.settings_files});
  }
  einstellung1_->visible = false;
}

void Program::OpenWorksheet() {
  if (!arbeitsblatt1_) {
    Load(arbeitsblatt1_, shell_,
         Arbeitsblatt1::Parts{settings_, names_, table_, board_, pictures_, midi_, platform_.random,
                              counters_, record_, *einstellung1_});
  }
  arbeitsblatt1_->visible = false;
}

void Program::OpenResults(RunEnd end, std::function<void(const std::string&)> closed) {
  if (testergebnis_ || !einstellung1_ || !grd_einst_) return;
  Load(testergebnis_, shell_,
       Testergebnis::Parts{settings_, names_, board_, pictures_, counters_, *einstellung1_,
                           *grd_einst_, platform_.printer},
       end, std::move(closed));
}

void Program::ShowFirstScreen() {
  if (grd_einst_) grd_einst_->visible = true;
}

void Program::ShowSettings() {
  if (!einstellung1_) return;
  einstellung1_->pointer = Form::Pointer::kDefault;
  einstellung1_->visible = true;
}

template <typename Screen, typename... Args>
void Program::Load(std::unique_ptr<Screen>& screen, Args&&... args) {
  screen = std::make_unique<Screen>(std::forward<Args>(args)...);
  platform_.view.Attach(*screen);
  screens_.Load(*screen);
}

void Program::Retire(Form& form) {
  platform_.view.Detach(form);
  const auto keep = [&](auto& screen) {
    if (screen.get() == &form) retired_.push_back(std::move(screen));
  };
  keep(grd_einst_);
  keep(einstellung1_);
  keep(arbeitsblatt1_);
  keep(testergebnis_);
  platform_.loop.WhenIdle([this] { retired_.clear(); });
  if (screens_.empty() && OnEnd) OnEnd();
}

}  // namespace vmod17

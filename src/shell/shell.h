// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ports/event_loop.h"
#include "ports/message_box.h"
#include "ports/system.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/loaded_screens.h"
#include "shell/mod_server.h"
#include "shell/navigation.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// What every screen stands on.
struct Shell {
  EventLoop& loop;
  System& system;
  MessageBox& messages;
  AppState& state;
  TextLookup& texts;
  ModServer& server;
  ErrorReport& errors;
  LoadedScreens& screens;
  Navigation& navigation;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/qt/application_setup.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace vmod17 {
namespace {

/// What the toolkit has said while it was looking for a display.
std::vector<std::string> g_said;

/// Where a display was looked for: "DISPLAY is :0".
std::string Places() {
  std::string places;
  for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    places += (places.empty() ? "" : ", ") + std::string(name) + " is " + value;
  }
  return places.empty() ? "neither DISPLAY nor WAYLAND_DISPLAY is set" : places;
}

void Listen(QtMsgType type, const QMessageLogContext&, const QString& message) {
  g_said.push_back(message.toStdString());
  if (type != QtFatalMsg) return;
  std::fprintf(stderr,
               "There is no display here on which the program can be shown (%s). Start it from a "
               "desktop.\n",
               Places().c_str());
  _exit(kStatusNotShown);
}

}  // namespace

std::unique_ptr<QApplication> MakeApplication(int& argc, char* argv[]) {
  const QtMessageHandler before = qInstallMessageHandler(Listen);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(before);
  for (const std::string& said : g_said) std::fprintf(stderr, "%s\n", said.c_str());
  g_said.clear();
  SetUpApplication();
  return application;
}

void SetUpApplication() {
  QApplication::setDesktopFileName("melvado");
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace vmod17

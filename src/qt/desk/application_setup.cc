// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/application_setup.h"

#include <unistd.h>

#include <QStringList>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace vmod17 {
namespace {

/// What the toolkit has said while it was looking for a display.
QStringList g_said;

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
  if (type != QtFatalMsg) {
    g_said += message;
    return;
  }
  // It is a display for the most part, but a part of the toolkit may be missing as well. The last
  // word only sums up, over many lines, what was said before.
  const QString reason = g_said.isEmpty() ? message : g_said.join(", ");
  std::fprintf(stderr,
               "The program cannot be shown here (%s). Start it from a desktop that has a display. "
               "The toolkit says: %s\n",
               Places().c_str(), reason.simplified().toStdString().c_str());
  _exit(kStatusNotShown);
}

}  // namespace

std::unique_ptr<QApplication> MakeApplication(int& argc, char* argv[]) {
  const QtMessageHandler before = qInstallMessageHandler(Listen);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(before);
  for (const QString& said : g_said) std::fprintf(stderr, "%s\n", said.toStdString().c_str());
  g_said.clear();
  SetUpApplication();
  return application;
}

void SetUpApplication() {
  QApplication::setDesktopFileName("melvado");
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace vmod17

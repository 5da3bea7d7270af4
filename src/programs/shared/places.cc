// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/places.h"

#include <unistd.h>

#include <QCoreApplication>

#include "store/store_address.h"

namespace vmod17 {

std::vector<std::filesystem::path> LanguageFolders() {
  const std::string program = QCoreApplication::applicationDirPath().toStdString();
  return {program + "/../languages", program + "/../share/melvado/languages",
          UserDataFolder() + "/languages"};
}

std::vector<std::filesystem::path> HelpFolders() {
  const std::string program = QCoreApplication::applicationDirPath().toStdString();
  return {UserDataFolder() + "/help", program + "/../help", program + "/../share/melvado/help"};
}

std::string ModuleKey(const std::string& store, const std::string& user) {
  return "vmod17\n" + ParseStoreAddress(store).Identity() + '\n' + user;
}

std::string HostKey(const std::string& store) {
  return "melvado\n" + ParseStoreAddress(store).Identity();
}

void SayToHost(const char* line) {
  const std::string text = std::string(line) + '\n';
  [[maybe_unused]] const auto written = write(STDOUT_FILENO, text.data(), text.size());
}

}  // namespace vmod17

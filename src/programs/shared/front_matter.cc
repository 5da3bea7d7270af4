// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/shared/front_matter.h"

#include <QApplication>
#include <QIcon>
#include <utility>

#include "programs/shared/places.h"
#include "qt/desk/application_setup.h"

namespace vmod17 {

FrontMatter::FrontMatter(std::function<QWidget*()> window, Wording say)
    : messages(window), dialog(window), window_(std::move(window)), say_(std::move(say)) {
  messages.say = say_;
}

FrontMatter::~FrontMatter() = default;

void FrontMatter::Warn(const Notice& notice) { messages.Warn(say_(notice), "Melvado"); }

void FrontMatter::ShowHelp(const std::string& page, const std::string& locale) {
  if (!help_) {
    help_ = std::make_unique<HelpWindow>(HelpFolders());
    help_->owner = window_;
    help_->say = say_;
  }
  help_->Show(page, locale);
}

void FrontMatter::HideHelp() {
  if (help_) help_->hide();
}

SingleInstance::Claimed FrontMatter::Claim(SingleInstance& instance, const Notice& question) {
  return ClaimOrAsk(instance, messages, question, say_);
}

std::optional<int> FrontMatter::StatusWithoutStart(SingleInstance::Claimed claimed) {
  switch (claimed) {
    case SingleInstance::Claimed::kFirst:
      return std::nullopt;
    case SingleInstance::Claimed::kAnswered:
      return 0;
    case SingleInstance::Claimed::kSilent:
      break;
  }
  return kStatusNotShown;
}

void FrontMatter::TakeIcon() { QApplication::setWindowIcon(QIcon(":/melvado.svg")); }

}  // namespace vmod17

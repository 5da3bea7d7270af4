// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/unsaved_records.h"

#include <utility>

#include "base/text_ids.h"

namespace vmod17 {

UnsavedRecords::UnsavedRecords(Notices& notices, MessageBox& messages, FileDialog& dialog,
                               const TextLookup& texts)
    : notices_(notices), messages_(messages), dialog_(dialog), texts_(texts) {}

void UnsavedRecords::Keep(std::shared_ptr<UnsavedRecord> record) {
  records_.push_back(std::move(record));
  notices_.Ask([this] { Offer(); });
}

void UnsavedRecords::Offer() {
  while (!records_.empty() && !cut_off_) {
    const std::shared_ptr<UnsavedRecord> record = records_.front();
    // There may be room by now.
    if (!record->Save()) {
      const std::optional<Answer> answer = Ask(*record);
      if (!answer || cut_off_) return;
      if (*answer == Answer::kTryAgain) continue;
      if (*answer == Answer::kOtherFolder && !SaveInOtherFolder(*record)) continue;
    }
    std::erase(records_, record);
  }
}

void UnsavedRecords::SaveUnasked() {
  cut_off_ = true;
  if (asking_) messages_.Withdraw();
  for (const auto& record : records_) record->Save();
}

std::optional<UnsavedRecords::Answer> UnsavedRecords::Ask(const UnsavedRecord& record) {
  const std::vector<std::string> answers = {
      texts_.Words({text_id::kTryAgain, "Try again", {}}),
      texts_.Words({text_id::kAnotherFolder, "Another folder…", {}}),
      texts_.Words({text_id::kGiveRecordUp, "Give the record up", {}})};
  asking_ = true;
  const std::optional<int> chosen =
      messages_.Choose(texts_.Words(record.Trouble()), "Melvado", answers);
  asking_ = false;
  if (!chosen) return std::nullopt;
  return static_cast<Answer>(*chosen);
}

bool UnsavedRecords::SaveInOtherFolder(UnsavedRecord& record) {
  const std::optional<std::string> path =
      dialog_.AskToSave(texts_.Words({text_id::kSaveRecord, "Save the record", {}}), record.Name());
  if (!path) return false;
  const std::optional<Notice> trouble = record.SaveAs(*path);
  if (trouble) messages_.Warn(texts_.Words(*trouble), "Melvado");
  return !trouble;
}

}  // namespace vmod17

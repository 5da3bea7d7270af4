// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "ports/file_dialog.h"
#include "ports/message_box.h"
#include "ports/unsaved_record.h"
#include "shell/notices.h"
#include "shell/text_lookup.h"

namespace vmod17 {

/// The records that found no place. Each is offered to the user until it is saved, here or in
/// another folder, or given up.
class UnsavedRecords {
 public:
  /// All outlive the object.
  UnsavedRecords(Notices& notices, MessageBox& messages, FileDialog& dialog,
                 const TextLookup& texts);

  /// Offers the record in the next moment that a question does not spoil.
  void Keep(std::shared_ptr<UnsavedRecord> record);
  /// Offers at once what is left: the program ends.
  void Offer();
  /// Tries each once more, without a question: the program is cut off from outside. A question that
  /// stands is withdrawn, and none comes any more.
  void SaveUnasked();

 private:
  enum class Answer { kTryAgain, kOtherFolder, kGiveUp };

  std::optional<Answer> Ask(const UnsavedRecord& record);
  bool SaveInOtherFolder(UnsavedRecord& record);

  Notices& notices_;
  MessageBox& messages_;
  FileDialog& dialog_;
  const TextLookup& texts_;
  std::vector<std::shared_ptr<UnsavedRecord>> records_;  // oldest first
  bool asking_ = false;
  bool cut_off_ = false;
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/record_file.h"

#include <utility>

#include "xml/whole_file.h"

namespace vmod17 {

// Only the backslash before the base name is the separator's sign: the folder stands as it came,
// with whatever characters and separators of its own it has.
RecordFile::RecordFile(const std::string& name, std::string fallback_folder)
    : fallback_folder_(std::move(fallback_folder)) {
  const std::size_t backslash = name.rfind('\\');
  if (backslash != std::string::npos) folder_ = name.substr(0, backslash);
  base_ = backslash == std::string::npos ? name : name.substr(backslash + 1);
}

RecordFile::Saved RecordFile::Save(std::string_view bytes) {
  if (!path_.empty() && WriteWholeFile(path_, bytes) == 0) return Saved::kWhereItBelongs;
  refusal_ = "no folder is named";
  if (!folder_.empty()) {
    const int error = SaveIn(folder_, bytes);
    if (error == 0) return Saved::kWhereItBelongs;
    refusal_ = SystemReason(error);
  }
  const bool elsewhere =
      MakePrivateFolder(fallback_folder_) == 0 && SaveIn(fallback_folder_, bytes) == 0;
  return elsewhere ? Saved::kElsewhere : Saved::kNowhere;
}

int RecordFile::SaveIn(const std::string& folder, std::string_view bytes) {
  std::string path = folder + '/' + base_;
  const int error = WriteNewFile(path, bytes);
  if (error == 0) path_ = path;
  return error;
}

int RecordFile::SaveAs(const std::string& path, std::string_view bytes) {
  const int error = WriteWholeFile(path, bytes);
  if (error == 0) path_ = path;
  return error;
}

}  // namespace vmod17

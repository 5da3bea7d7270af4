// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <filesystem>
#include <optional>
#include <variant>

namespace vmod17 {

/// Why a translation file is not given to the toolkit.
enum class LanguageFault {
  kUnreadable,  ///< it cannot be read, or is no translation file at all
  kTooLarge,    ///< no language has so many words
  kDependent,   ///< it wants further files read, which may want itself
  kDamaged,     ///< something in it points out of it
};

/// The most that a language file may have, in bytes, and one word of it, in UTF-16 units.
inline constexpr qint64 kLargestLanguageFile = 1 << 20;
inline constexpr int kLongestWord = 8000;

/// What is wrong with the bytes of a translation file; nothing when the toolkit can look up any
/// message without a context in them. The toolkit believes each length and place in such a file,
/// and reads there.
std::optional<LanguageFault> FaultOf(QByteArrayView bytes);

/// The bytes of a regular file that have no fault, or their fault. Only they may be given to the
/// toolkit: the file itself can be another one by then.
std::variant<QByteArray, LanguageFault> ReadLanguageFile(const std::filesystem::path& path);

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QCollator>
#include <QString>
#include <optional>
#include <vector>

#include "base/notice.h"
#include "store/store_user.h"

namespace melvado {

/// What a number and a name may have at most, in characters.
inline constexpr int kLongestNumber = 50;
inline constexpr int kLongestName = 100;

/// A user as he was typed, made fit to be kept: without blanks around, line breaks, control
/// characters and marks of direction, which reach beyond the name wherever it is shown or printed;
/// letters in their composed form; in the number also without what is not seen, so that two numbers
/// that look alike are one.
vmod17::StoreUser Cleaned(const vmod17::StoreUser& typed);

/// Why a cleaned user cannot be kept; nothing when he can. That the number is another's already is
/// for the store to say; see `NumberTakenNotice`.
std::optional<vmod17::Notice> FaultOf(const vmod17::StoreUser& user);
vmod17::Notice NumberTakenNotice(const std::string& number);

/// "Berg, Anna (4711)", in whatever direction its letters run.
QString Shown(const vmod17::StoreUser& user);

/// By name as the language sorts, then by number.
void Sort(std::vector<vmod17::StoreUser>& users, const QLocale& locale);

}  // namespace melvado

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <string>

namespace vmod17 {

/// Whose settings are whose on a server that many machines share.
struct Seat {
  std::string name;    ///< of this user of this machine, and of nobody else
  std::string former;  ///< under which he is found where he has no settings under `name` yet
};

/// What tells this machine from others, the same after each start of it.
std::string ThisMachine();

/// The seat of the present user, from a file in `folder` that is made at the first call and holds a
/// name drawn at random. The file is one for each `machine`: neither a folder that several machines
/// share nor a copy of a whole machine makes two seats one. Where it cannot be written, or
/// `folder` is "", the seat is `machine` and user.
Seat SeatIn(const QString& folder, const std::string& machine = ThisMachine());

}  // namespace vmod17

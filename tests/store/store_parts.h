// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "store/seat_settings.h"
#include "store/store_address.h"
#include "store/store_connection.h"
#include "store/trouble_report.h"
#include "store_testing.h"

namespace vmod17 {

/// A connection with what it needs, as a host's store has them.
struct StoreParts {
  explicit StoreParts(const QString& path) : StoreParts(TestOptions(path.toStdString())) {}
  explicit StoreParts(StoreOptions made_with)
      : options(std::move(made_with)), address(ParseStoreAddress(options.address)) {}

  std::vector<Notice> notices;
  int opened = 0;
  const StoreOptions options;
  const StoreAddress address;
  SeatSettings settings{options.session, [] { return SeatSettings::Values{}; }};
  TroubleReport trouble{[this](const Notice& notice) { notices.push_back(notice); }, address,
                        [] { return true; }};
  StoreConnection connection{options,  address, {options.seat, ""},
                             settings, trouble, {.opened = [this] { ++opened; }}};
};

}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/seat_settings.h"

#include <cstddef>
#include <utility>

#include "base/run_time_error.h"
#include "base/tagged_value.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

SeatSettings::Values ValuesIn(const std::string& session) {
  SeatSettings::Values values;
  if (session.empty()) return values;
  try {
    const TaggedValue value = DecodeTaggedValue(session);
    const TaggedValue::Array& pairs = value.Elements();
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
      values[pairs[i].String()] = pairs[i + 1].String();
    }
  } catch (const RunTimeError&) {
    // Not from a process of this version: the store knows the settings, too.
    return {};
  }
  return values;
}

}  // namespace

SeatSettings::SeatSettings(const std::string& session, std::function<Values()> waiting)
    : waiting_(std::move(waiting)), values_(ValuesIn(session)) {
  are_handed_on_ = !values_.empty();
}

const SeatSettings::Values& SeatSettings::All() {
  if (const auto waiting = std::exchange(waiting_, nullptr)) values_.merge(waiting());
  return values_;
}

std::string SeatSettings::Get(const std::string& name) {
  const Values& values = All();
  const auto found = values.find(name);
  return found == values.end() ? std::string() : found->second;
}

void SeatSettings::Set(const std::string& name, const std::string& value) { values_[name] = value; }

void SeatSettings::AddStored(Values stored) {
  All();
  values_.merge(stored);
}

void SeatSettings::Clear() { values_.clear(); }

std::string SeatSettings::Session() {
  TaggedValue::Array pairs;
  for (const auto& [name, value] : All()) {
    pairs.emplace_back(name);
    pairs.emplace_back(value);
  }
  return EncodeTaggedValue(pairs);
}

}  // namespace vmod17

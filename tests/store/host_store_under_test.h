// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/host_store.h"
#include "store_testing.h"
#include "support/host_contract.h"

namespace vmod17 {

/// The store for the contract tests, on any address.
class HostStoreUnderTest : public HostUnderTest {
 public:
  explicit HostStoreUnderTest(std::string address) : address_(std::move(address)) { Restart(); }

  std::unique_ptr<HostService> Service() override { return store_->Service(); }
  void Restart() override {
    store_.reset();
    StoreOptions options = TestOptions(address_);
    options.midi_number = [](const std::string& name) {
      return name == "third" ? std::optional<int>(3) : std::nullopt;
    };
    options.menue = [this] { return started_by_host_; };
    store_ = std::make_unique<HostStore>(std::move(options));
  }
  void SetUser(const std::string& id, const std::string& name,
               const std::string& first_name) override {
    store_->SetUser({id, name, first_name});
  }
  void SetLanguage(const std::string& language) override { store_->SetLanguage(language); }
  void SetThirdMidiDevice() override { store_->SetMidiDevice("third"); }
  void SetStartedByHost(bool started) override { started_by_host_ = started; }

  std::vector<std::string> Log() override {
    std::vector<std::string> log;
    for (const LogEntry& entry : store_->Log(100)) {
      log.push_back(entry.kind == LogEntry::Kind::kMessage
                        ? entry.text
                        : entry.place + '|' + std::to_string(entry.number) + '|' + entry.text +
                              '|' + entry.source);
    }
    return log;
  }

 private:
  std::string address_;
  bool started_by_host_ = false;
  std::unique_ptr<HostStore> store_;
};

}  // namespace vmod17

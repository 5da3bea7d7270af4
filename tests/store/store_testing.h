// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <optional>
#include <string>
#include <vector>

#include "store/host_store.h"

namespace vmod17 {

/// A folder that is there for one test. Anyone may go through it, for the tests that give up the
/// rights of the administrator.
class ScratchFolder {
 public:
  ScratchFolder() {
    QFile::setPermissions(folder_.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                              QFileDevice::ExeOwner | QFileDevice::ReadOther |
                                              QFileDevice::ExeOther);
  }
  QString operator/(const QString& name) const { return folder_.filePath(name); }
  QStringList Names() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

 private:
  QTemporaryDir folder_;
};

/// What a store is made with in a test: no language, no device, a clock that stands still.
inline StoreOptions TestOptions(const std::string& address,
                                std::vector<Notice>* notices = nullptr) {
  StoreOptions options;
  options.address = address;
  options.clock = [] { return DateTime{2026, 3, 9, 8, 5, 1}; };
  if (notices) options.notify = [notices](const Notice& notice) { notices->push_back(notice); };
  return options;
}

inline std::vector<int> Ids(const std::vector<Notice>& notices) {
  std::vector<int> ids;
  for (const Notice& notice : notices) ids.push_back(notice.text_id);
  return ids;
}

inline bool StoreValue(HostStore& store, const std::string& key, const TaggedValue& value) {
  TaggedValue result;
  return store.Service()->Action("STORE", TaggedValue::Array{"vmod17", key, value}, result);
}

/// Stores under "E1" and "A1" together; returns the number of the error, or 0.
inline int StorePair(HostStore& store, const TaggedValue& settings, const TaggedValue& state) {
  try {
    store.Service()->Together([&] {
      StoreValue(store, "E1", settings);
      StoreValue(store, "A1", state);
    });
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

/// What "READ" answers, or no value when it returns false.
inline std::optional<TaggedValue> ReadValue(HostStore& store, const std::string& key) {
  TaggedValue result = "untouched";
  if (!store.Service()->Action("READ", TaggedValue::Array{"vmod17", key}, result)) {
    EXPECT_EQ(result, TaggedValue("untouched"));
    return {};
  }
  return result;
}

/// Expects "E1" and "A1" to hold these texts, each as the first element.
inline void ExpectPair(HostStore& store, const std::string& settings, const std::string& state) {
  const TaggedValue none = TaggedValue::Array{TaggedValue()};
  EXPECT_EQ(ReadValue(store, "E1").value_or(none)[0], TaggedValue(settings));
  EXPECT_EQ(ReadValue(store, "A1").value_or(none)[0], TaggedValue(state));
}

inline bool LogLine(HostStore& store, const std::string& line) {
  TaggedValue result;
  return store.Service()->Action("LOGMESS", line, result);
}

inline TaggedValue NothingStored() { return TaggedValue::Array{"NIL"}; }

}  // namespace vmod17

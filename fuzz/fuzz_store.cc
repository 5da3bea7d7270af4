// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Opens damaged stores: SQLite files with broken bytes, pages and side files, and records whose
// text is broken.
//
// Whatever lies there, the program works on: it reads what it can, says what it cannot, stores what
// it is given and reads it back. A file that is given up is kept under another name, byte for byte
// if it is given up at its first reading, and the new one in its place keeps what is stored.

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "base/run_time_error.h"
#include "fuzz_main.h"
#include "store/host_store.h"
#include "store/tagged_value_codec.h"

namespace vmod17 {
namespace {

using Array = TaggedValue::Array;

constexpr int kUsers = 40;
constexpr int kRecords = 12;
constexpr int kLogLines = 150;

TaggedValue ARecord(int number) {
  Array list{"False", number, 0.25f, Array{"4", "5", TaggedValue()}};
  for (int i = 0; i < 20 * number; ++i) list.emplace_back(DecimalText(i * number));
  return list;
}

StoreOptions OptionsFor(const QString& path, std::vector<Notice>& notices) {
  StoreOptions options;
  options.address = path.toStdString();
  options.busy_timeout_ms = 0;
  options.clock = [] { return DateTime{2026, 3, 9, 8, 5, 1}; };
  options.notify = [&notices](const Notice& notice) { notices.push_back(notice); };
  return options;
}

bool Send(HostService& host, const char* command, const TaggedValue& args, TaggedValue& result) {
  try {
    return host.Action(command, args, result);
  } catch (const RunTimeError& error) {
    Demand(error.number() == ErrorNumber::kStore, "another error than that of the store");
    return false;
  }
}

bool Store(HostService& host, const std::string& key, const TaggedValue& value) {
  TaggedValue result;
  return Send(host, "STORE", Array{"vmod17", key, value}, result);
}

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  Demand(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the disk");
}

/// A store as it lies on the disk: all in its file, or with the last things in its log.
struct StoredFile {
  QByteArray file;
  QByteArray wal;
};

void Fill(HostStore& store) {
  const std::unique_ptr<HostService> host = store.Service();
  for (int i = 1; i <= kUsers; ++i) {
    const std::string number = DecimalText(i);
    store.SaveUser({number, "Name " + number, "Vorname " + number}, HostStore::UserIs::kNew);
  }
  store.SetUser({"7", "Name 7", "Vorname 7"});
  store.SetLanguage("Deutsch");
  for (int i = 1; i <= kRecords; ++i) Store(*host, "R" + DecimalText(i), ARecord(i));
  TaggedValue result;
  for (int i = 0; i < kLogLines; ++i) {
    Send(*host, "LOGMESS", "line " + DecimalText(i), result);
  }
}

std::vector<StoredFile> SoundStores() {
  const QTemporaryDir folder;
  const QString path = folder.filePath("store.sqlite");
  std::vector<Notice> notices;
  std::vector<StoredFile> stores;
  {
    HostStore store(OptionsFor(path, notices));
    Fill(store);
    stores.push_back({BytesOf(path), BytesOf(path + "-wal")});
  }
  stores.push_back({BytesOf(path), {}});
  Demand(notices.empty() && !stores[0].wal.isEmpty(), "a store that is not whole");
  return stores;
}

qsizetype PlaceIn(const QByteArray& bytes, Dice& dice) {
  // The first pages hold the header and the schema.
  const int end = static_cast<int>(bytes.size());
  return dice.Below(dice.OneIn(3) ? std::min(end, 8192) : end);
}

void DamageOnce(QByteArray& bytes, Dice& dice) {
  constexpr int kPage = 4096;
  if (bytes.isEmpty()) return;
  const qsizetype at = PlaceIn(bytes, dice);
  switch (dice.Below(8)) {
    case 0:
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << dice.Below(8)));
      break;
    case 1:
      bytes[at] = static_cast<char>(dice.Below(256));
      break;
    case 2:
      bytes.truncate(at);
      break;
    case 3:
      bytes.remove(at, 1 + dice.Below(2 * kPage));
      break;
    case 4:
      bytes.insert(at, QByteArray(1 + dice.Below(kPage), static_cast<char>(dice.Below(256))));
      break;
    case 5: {
      const QByteArray page = bytes.mid(PlaceIn(bytes, dice) / kPage * kPage, kPage);
      bytes.replace(at / kPage * kPage, page.size(), page);
      break;
    }
    case 6:
      bytes.replace(at, 4, dice.OneIn(2) ? QByteArray(4, '\xFF') : QByteArray("\x7F\xFF\xFF\xFE"));
      break;
    case 7: {
      const int length = std::min<int>(64, static_cast<int>(bytes.size() - at));
      for (int i = 0; i < length; ++i) bytes[at + i] = static_cast<char>(dice.Below(256));
      break;
    }
  }
}

void Damage(QByteArray& bytes, Dice& dice) {
  for (int wounds = dice.From(1, 4); wounds > 0; --wounds) DamageOnce(bytes, dice);
}

class Tally {
 public:
  void Add(const std::vector<Notice>& notices) {
    if (notices.empty()) ++counts_[0];
    for (const Notice& notice : notices) ++counts_[notice.text_id];
  }
  void Print() const {
    for (const auto& [notice, cases] : counts_) std::printf("notice %4d: %6d\n", notice, cases);
  }

 private:
  std::map<int, int> counts_;
};

void ReadAll(HostStore& store) {
  const std::unique_ptr<HostService> host = store.Service();
  TaggedValue result;
  for (int i = 1; i <= kRecords; ++i) {
    Send(*host, "READ", Array{"vmod17", "R" + DecimalText(i)}, result);
  }
  Send(*host, "LOGIN", TaggedValue(), result);
  Send(*host, "LANG", TaggedValue(), result);
  store.Users();
  store.Log(1000);
}

bool WasGivenUp(const std::vector<Notice>& notices) {
  return std::any_of(notices.begin(), notices.end(),
                     [](const Notice& notice) { return notice.text_id == 9106; });
}

/// What is stored is read back, in this process or, where nothing was said of it, in the next.
void DemandThatItWorks(const QString& path, std::vector<Notice>& notices) {
  const TaggedValue value = ARecord(3);
  bool stored = false;
  bool in_new_file = false;
  {
    HostStore store(OptionsFor(path, notices));
    ReadAll(store);
    const std::unique_ptr<HostService> host = store.Service();
    in_new_file = WasGivenUp(notices);
    stored = Store(*host, "new", value);
    TaggedValue result;
    Demand(!stored || (Send(*host, "READ", Array{"vmod17", "new"}, result) && result == value),
           "a value that was stored and is not read");
    Send(*host, "LOGMESS", "a line", result);
  }
  Demand(stored || !notices.empty(), "a store that refuses without a word");
  if (!notices.empty() && !(stored && in_new_file)) return;
  HostStore store(OptionsFor(path, notices));
  TaggedValue result;
  Demand(Send(*store.Service(), "READ", Array{"vmod17", "new"}, result) && result == value,
         "a value that was lost without a word");
}

/// A file without a log is as it was when its first reading gives it up.
void DemandThatItIsKept(const QString& path, const StoredFile& damaged,
                        std::vector<Notice>& notices) {
  {
    HostStore store(OptionsFor(path, notices));
    TaggedValue result;
    Send(*store.Service(), "READ", Array{"vmod17", "R1"}, result);
  }
  if (!WasGivenUp(notices) || !damaged.wal.isEmpty()) return;
  Demand(BytesOf(path + ".broken-20260309-080501") == damaged.file,
         "a file that was given up and is not as it was");
}

void TryFile(const std::vector<StoredFile>& stores, Dice& dice, Tally& tally) {
  StoredFile damaged = dice.Of(stores);
  const bool in_log = !damaged.wal.isEmpty() && dice.OneIn(2);
  Damage(in_log ? damaged.wal : damaged.file, dice);
  const QTemporaryDir folder;
  const QString path = folder.filePath("store.sqlite");
  Write(path, damaged.file);
  if (!damaged.wal.isEmpty()) Write(path + "-wal", damaged.wal);

  std::vector<Notice> notices;
  DemandThatItIsKept(path, damaged, notices);
  DemandThatItWorks(path, notices);
  for (const QString& name : QDir(folder.path()).entryList({"*.broken-*"}, QDir::Files)) {
    if (name.endsWith("-wal") || name.endsWith("-shm")) continue;
    Demand(!notices.empty(), "a file that was put aside without a word");
  }
  tally.Add(notices);
}

void TryRecord(Dice& dice) {
  const TaggedValue value = ARecord(dice.From(1, kRecords));
  QByteArray bytes = QByteArray::fromStdString(EncodeTaggedValue(value));
  if (dice.OneIn(2)) {
    Damage(bytes, dice);
  } else {
    // With a check sum that fits, so that the reader gets to the damage.
    constexpr int kHead = 13;
    QByteArray body = bytes.mid(kHead);
    Damage(body, dice);
    bytes = QByteArray::fromStdString(SealRecord(body.toStdString()));
  }
  try {
    const TaggedValue read = DecodeTaggedValue(bytes.toStdString());
    Demand(DecodeTaggedValue(EncodeTaggedValue(read)) == read,
           "a record that changes when written");
  } catch (const RunTimeError& error) {
    Demand(error.number() == ErrorNumber::kStore, "another error than that of the store");
  }
}

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  using namespace vmod17;
  const QCoreApplication application(argc, argv);
  const std::vector<StoredFile> stores = SoundStores();
  Tally tally;
  return Fuzz(argc, argv,
              {.run_case =
                   [&](Dice& dice) {
                     for (int i = 0; i < 20; ++i) TryRecord(dice);
                     TryFile(stores, dice, tally);
                   },
               .print = [&] { tally.Print(); }});
}

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/language_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QtEndian>
#include <map>
#include <set>

namespace vmod17 {
namespace {

constexpr unsigned char kMagic[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                    0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};
constexpr qsizetype kLongestLocale = 64;
constexpr quint32 kNoText = 0xffffffff;  // in the place of the length of a text

enum Section : quint8 {
  kContexts = 0x2f,
  kHashes = 0x42,
  kMessages = 0x69,
  kNumerusRules = 0x88,
  kDependencies = 0x96,
  kLanguage = 0xa7,
};

enum Tag : quint8 {
  kEnd = 1,
  kTranslation = 3,
  kObsolete = 5,
  kSourceText = 6,
  kContext = 7,
  kComment = 8,
};

/// Reads forward through bytes, never beyond them: what is not there is 0, and no longer good.
class Reader {
 public:
  explicit Reader(QByteArrayView bytes) : bytes_(bytes) {}

  bool good() const { return good_; }
  bool AtEnd() const { return at_ == bytes_.size(); }
  qsizetype at() const { return at_; }

  QByteArrayView Take(qsizetype count) {
    good_ = good_ && count <= bytes_.size() - at_;
    if (!good_) return {};
    at_ += count;
    return bytes_.sliced(at_ - count, count);
  }
  template <typename Number>
  Number Read() {
    const QByteArrayView taken = Take(sizeof(Number));
    return good_ ? qFromBigEndian<Number>(taken.data()) : Number{0};
  }

 private:
  const QByteArrayView bytes_;
  qsizetype at_ = 0;
  bool good_ = true;
};

using Sections = std::map<quint8, QByteArrayView>;

/// The sections by their tags; nothing when they do not fill the bytes, or one comes twice.
std::optional<Sections> SectionsOf(QByteArrayView bytes) {
  Sections sections;
  Reader reader(bytes);
  while (!reader.AtEnd()) {
    const auto tag = reader.Read<quint8>();
    const QByteArrayView section = reader.Take(reader.Read<quint32>());
    if (!reader.good() || section.isEmpty() || !sections.emplace(tag, section).second) return {};
  }
  return sections;
}

bool TakeMessage(Reader& reader) {
  while (reader.good()) {
    switch (reader.Read<quint8>()) {
      case kEnd:
        return reader.good();
      case kTranslation: {
        const auto length = reader.Read<quint32>();
        if (length == kNoText) break;
        if (length % 2 != 0 || length > 2 * kLongestWord) return false;
        reader.Take(length);
        break;
      }
      case kObsolete:
        reader.Take(4);
        break;
      case kSourceText:
      case kContext:
      case kComment:
        reader.Take(reader.Read<quint32>());
        break;
      default:
        return false;
    }
  }
  return false;
}

/// Where the messages begin, which fill the bytes one after the other.
std::optional<std::set<quint32>> MessagesOf(QByteArrayView bytes) {
  std::set<quint32> starts;
  Reader reader(bytes);
  while (!reader.AtEnd()) {
    starts.insert(static_cast<quint32>(reader.at()));
    if (!TakeMessage(reader)) return {};
  }
  return starts;
}

/// A table of hashes, each with the place of a message.
bool LeadsToMessages(QByteArrayView hashes, QByteArrayView messages) {
  const auto starts = MessagesOf(messages);
  if (!starts) return false;
  Reader reader(hashes);
  while (!reader.AtEnd()) {
    reader.Read<quint32>();
    if (!starts->contains(reader.Read<quint32>()) || !reader.good()) return false;
  }
  return true;
}

/// A table of places, in steps of two bytes behind it, of lists of names. Only the list of the
/// empty context is ever looked at, whose hash is 1.
bool HasListOfNoContext(QByteArrayView contexts) {
  constexpr int kHash = 1;
  Reader size(contexts);
  const int count = size.Read<quint16>();
  if (count == 0) return false;
  Reader table(contexts);
  table.Take(2 + 2 * (kHash % count));
  const int place = table.Read<quint16>();
  if (!table.good()) return false;
  if (place == 0) return true;
  Reader list(contexts);
  list.Take(2 + 2 * count + 2 * place);
  while (const auto length = list.Read<quint8>()) list.Take(length);
  return list.good();
}

/// -1 when there is none. A pipe that bears the name of a file is not waited for.
int OpenRegularFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  struct stat facts {};
  if (file >= 0 && fstat(file, &facts) == 0 && S_ISREG(facts.st_mode)) return file;
  if (file >= 0) close(file);
  return -1;
}

}  // namespace

std::optional<LanguageFault> FaultOf(QByteArrayView bytes) {
  const QByteArrayView magic(kMagic, sizeof kMagic);
  if (!bytes.startsWith(magic)) return LanguageFault::kUnreadable;
  auto sections = SectionsOf(bytes.sliced(magic.size()));
  if (!sections) return LanguageFault::kDamaged;
  if (sections->contains(kDependencies)) return LanguageFault::kDependent;
  // The toolkit looks at the rules of numerus by itself when it takes the file.
  for (const auto& [tag, section] : *sections) {
    if (tag != kContexts && tag != kHashes && tag != kMessages && tag != kNumerusRules &&
        tag != kLanguage) {
      return LanguageFault::kDamaged;
    }
  }
  if ((*sections)[kLanguage].size() > kLongestLocale) return LanguageFault::kDamaged;
  const bool in_bounds =
      LeadsToMessages((*sections)[kHashes], (*sections)[kMessages]) &&
      (!sections->contains(kContexts) || HasListOfNoContext((*sections)[kContexts]));
  if (!in_bounds) return LanguageFault::kDamaged;
  return std::nullopt;
}

std::variant<QByteArray, LanguageFault> ReadLanguageFile(const std::filesystem::path& path) {
  const int descriptor = OpenRegularFile(path);
  QFile file;
  if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    return LanguageFault::kUnreadable;
  }
  QByteArray bytes = file.read(kLargestLanguageFile + 1);
  if (bytes.size() > kLargestLanguageFile) return LanguageFault::kTooLarge;
  if (const auto fault = FaultOf(bytes)) return *fault;
  return bytes;
}

}  // namespace vmod17

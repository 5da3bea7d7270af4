// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Damages language files, and looks up all words of those that are taken nevertheless. The toolkit
// reads each up to the edge of a page that may not be read, so that a look beyond the end shows
// also without a sanitizer.

#include <sys/mman.h>
#include <unistd.h>

#include <QByteArray>
#include <QTranslator>
#include <QtEndian>
#include <cstdio>
#include <cstring>
#include <map>
#include <vector>

#include "fuzz_main.h"
#include "qt/desk/language_file.h"

namespace vmod17 {
namespace {

constexpr int kWords = 400;
constexpr int kMagic = 16;

QByteArray Key(int id) { return QByteArray::number(id) + 's'; }
QString WordOf(int id) { return QString("Wort %1 “ü”").arg(id * id); }

QByteArray Number(quint32 number) {
  QByteArray bytes(4, '\0');
  qToBigEndian(number, bytes.data());
  return bytes;
}

/// A section of a file, or a part of a message: what it is, its length, what it holds.
QByteArray Part(int tag, const QByteArray& content) {
  return static_cast<char>(tag) + Number(static_cast<quint32>(content.size())) + content;
}

/// The place of a message in the table: the hash of object files in System V.
quint32 HashOf(const QByteArray& key) {
  quint32 hash = 0;
  for (const char c : key) {
    hash = (hash << 4) + static_cast<uchar>(c);
    const quint32 high = hash & 0xf0000000;
    hash = (hash ^ (high >> 24)) & ~high;
  }
  return hash == 0 ? 1 : hash;
}

/// A whole file, as the toolkit's own tool lays it out.
QByteArray LanguageFile() {
  QByteArray messages;
  std::multimap<quint32, quint32> places;
  for (int id = 1; id <= kWords; ++id) {
    places.emplace(HashOf(Key(id)), static_cast<quint32>(messages.size()));
    QByteArray word;
    for (const QChar c : WordOf(id)) {
      word += static_cast<char>(c.row());
      word += static_cast<char>(c.cell());
    }
    messages += Part(3, word) + Part(8, "") + Part(6, Key(id)) + Part(7, "") + '\1';
  }
  QByteArray table;
  for (const auto& [hash, place] : places) table += Number(hash) + Number(place);
  return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd") + Part(0xa7, "de_DE") +
         Part(0x42, table) + Part(0x69, messages) + Part(0x88, "\1\1");
}

/// Room for bytes whose end is the end of what may be read.
class EdgeOfMemory {
 public:
  EdgeOfMemory() {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void* const all =
        mmap(nullptr, kRoom + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) Fault("no memory");
    edge_ = static_cast<uchar*>(all) + kRoom;
    if (mprotect(edge_, page, PROT_NONE) != 0) Fault("no page that cannot be read");
  }
  const uchar* Put(const QByteArray& bytes) {
    uchar* const at = edge_ - bytes.size();
    std::memcpy(at, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return at;
  }

 private:
  static constexpr std::size_t kRoom = 2 * kLargestLanguageFile;
  uchar* edge_;
};

/// A place in a file, most often one where a section tells its length or begins.
qsizetype PlaceIn(const QByteArray& bytes, Dice& dice) {
  const auto anywhere = [&] { return dice.Below(static_cast<int>(bytes.size())); };
  if (dice.OneIn(3)) return anywhere();
  std::vector<qsizetype> heads;
  for (qsizetype at = kMagic; at + 5 <= bytes.size();) {
    heads.push_back(at + dice.Below(5 + 8));
    at += 5 + qsizetype{qFromBigEndian<quint32>(bytes.constData() + at + 1)};
  }
  const qsizetype place = heads.empty() ? anywhere() : dice.Of(heads);
  return place < bytes.size() ? place : anywhere();
}

/// Puts a small section before the others or behind them.
void Insert(QByteArray& bytes, Dice& dice) {
  const std::vector<int> tags = {0x00, 0x2f, 0x42, 0x69, 0x88, 0x96, 0xa7};
  QByteArray content(dice.Below(12), '\0');
  for (char& byte : content) byte = static_cast<char>(dice.Below(4));
  bytes.insert(dice.OneIn(2) ? qMin<qsizetype>(kMagic, bytes.size()) : bytes.size(),
               Part(dice.Of(tags), content));
}

void Damage(QByteArray& bytes, Dice& dice) {
  const qsizetype at = PlaceIn(bytes, dice);
  switch (dice.Below(6)) {
    case 0:
      bytes[at] = static_cast<char>(dice.Below(256));
      break;
    case 1:
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << dice.Below(8)));
      break;
    case 2:
      bytes.truncate(at);
      break;
    case 3:
      bytes.remove(at, dice.From(1, 16));
      break;
    case 4:
      bytes.insert(at, bytes.mid(dice.Below(static_cast<int>(bytes.size())), dice.From(1, 64)));
      break;
    default:
      Insert(bytes, dice);
  }
}

/// Returns how many words were found in a file; -1 for one that is not taken.
int Found(EdgeOfMemory& memory, const QByteArray& bytes) {
  if (FaultOf(bytes)) return -1;
  QTranslator words;
  if (!words.load(memory.Put(bytes), static_cast<int>(bytes.size()))) return -1;
  int found = 0;
  for (int id = 0; id < 2 * kWords; ++id) {
    const QString word = words.translate("", Key(id));
    Demand(word.size() <= kLongestWord, "a word that no screen can show");
    found += word == WordOf(id) ? 1 : 0;
  }
  return found;
}

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  using namespace vmod17;
  const QByteArray file = LanguageFile();
  EdgeOfMemory memory;
  int taken = 0;
  return Fuzz(argc, argv,
              {.run_case =
                   [&](Dice& dice) {
                     QByteArray bytes = file;
                     const bool whole = dice.OneIn(50);
                     for (int i = whole ? 0 : dice.From(1, 3); i > 0 && !bytes.isEmpty(); --i) {
                       Damage(bytes, dice);
                     }
                     const int found = Found(memory, bytes);
                     taken += found >= 0 ? 1 : 0;
                     Demand(!whole || found == kWords, "a whole file that is not read whole");
                   },
               .print = [&] { std::printf("files taken: %d\n", taken); }});
}

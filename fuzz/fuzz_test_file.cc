// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Reads damaged test files: broken bytes, elements that are cut, doubled, nested or out of place,
// and words that nobody would write.
//
// A file is read or refused with a reason and a place that is in it. What was read can be written,
// and is the same when it is read and written again.

#include <stdlib.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz_main.h"
#include "xml/pugi_settings_files.h"

namespace vmod17 {
namespace {

/// A folder for the time of the program.
class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "fuzz-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string operator/(const char* name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  Demand((file << bytes).good(), "the disk");
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Sound files: one with every kind of control, in both encodings, and one without any.
std::vector<std::string> SoundFiles(const std::string& path) {
  FixedSettings document{"vmod17", "bestimmen", "Prüfung ♭9 <&\"'> ]]>", {}};
  PugiSettingsFiles files;
  std::vector<std::string> sound;
  files.Write(path, document);
  sound.push_back(BytesOf(path));
  for (int i = 0; i < 12; ++i) {
    document.controls.push_back({"Tonraum", "Tonraum#var", "oktav_cmb", i,
                                 i % 2 == 0 ? std::optional(i * 1000) : std::nullopt,
                                 i % 3 == 0 ? "3 Oktaven ♭" : "Größe"});
  }
  files.Write(path, document);
  sound.push_back(BytesOf(path));
  std::string utf8 =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?><test><basic><modul>vmod17</modul>"
      "<type>1</type><description>Prüfung ♭9 🎵</description></basic><setting>"
      "<control title=\"ä\" text=\"♭\"><cname>akk_grp</cname><index>1</index>"
      "<value text=\"Gruppe\">True</value></control></setting></test>";
  sound.push_back(utf8);
  sound.push_back("\xEF\xBB\xBF" + utf8);
  return sound;
}

/// From `at` to behind the next end of a tag.
std::string PieceAt(const std::string& text, std::size_t at) {
  const std::size_t begin = std::min(text.find('<', at), text.size());
  const std::size_t end = text.find('>', begin);
  return text.substr(begin, end == std::string::npos ? end : end - begin + 1);
}

std::string Times(int times, const std::string& piece) {
  std::string all;
  for (int i = 0; i < times; ++i) all += piece;
  return all;
}

void DamageOnce(std::string& text, Dice& dice) {
  static const std::vector<std::string> kWords = {
      "<!DOCTYPE test [<!ENTITY a \"&b;&b;\"><!ENTITY b \"bbbb\">]>",
      "&a;",
      "&#0;",
      "&#x1;",
      "&#xFFFE;",
      "&#xD800;",
      "&#99999999999;",
      "&#",
      "&lt",
      "<![CDATA[",
      "]]>",
      "<!--",
      "-->",
      "<?xml version=\"1.1\"?>",
      "<?php ?>",
      "<index>2147483648</index>",
      "<index>-1</index>",
      "<index> 1</index>",
      "<index>1e9</index>",
      "<control/>",
      "</test>",
      "<test>",
      "encoding=\"UTF-16\"",
      "\xFF\xFE",
      std::string(1, '\0'),
      "\xC3",
      "\x80"};
  const auto at = static_cast<std::size_t>(dice.Below(static_cast<int>(text.size()) + 1));
  switch (dice.Below(9)) {
    case 0:
      if (at < text.size()) text[at] = static_cast<char>(dice.Below(256));
      break;
    case 1:
      text.resize(at);
      break;
    case 2:
      text.erase(at, static_cast<std::size_t>(1 + dice.Below(60)));
      break;
    case 3:
      text.insert(at, dice.Of(kWords));
      break;
    case 4:
      text.insert(at, PieceAt(text, at));
      break;
    case 5: {
      const std::string piece = PieceAt(text, at);
      const std::size_t found = text.find(piece, at);
      if (found != std::string::npos) text.erase(found, piece.size());
      break;
    }
    case 6: {
      const auto from = static_cast<std::size_t>(dice.Below(static_cast<int>(text.size()) + 1));
      text.insert(at, text.substr(from, static_cast<std::size_t>(dice.Below(400))));
      break;
    }
    case 7:
      if (at < text.size()) text[at] = static_cast<char>(dice.From(' ', '~'));
      break;
    case 8: {
      // Deep, wide or long, and mostly well-formed.
      const int times = dice.OneIn(4) ? 20'000 : dice.From(1, 50);
      const std::size_t tag = std::min(text.find('<', at), text.size());
      switch (dice.Below(3)) {
        case 0:
          text.insert(tag, Times(times, "<control>") + PieceAt(text, tag) +
                               (dice.OneIn(8) ? "" : Times(times, "</control>")));
          break;
        case 1:
          text.insert(tag, Times(times, "<control><cname>a</cname></control>"));
          break;
        case 2:
          text.insert(at, Times(times, "x"));
          break;
      }
      break;
    }
  }
}

/// A place of 0 is none; the place behind the end is one.
bool IsIn(const std::string& text, int line, int column) {
  const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
  return line >= 0 && column >= 0 && line <= lines && column <= static_cast<int>(text.size()) + 1 &&
         (line == 0) == (column == 0);
}

class Readings {
 public:
  void Try(const std::string& text) {
    Write(path_, text);
    std::optional<FixedSettings> document;
    try {
      document = files_.Read(path_);
      ++read_;
    } catch (const SettingsFileError& error) {
      Demand(!error.reason().english.empty(), "a refusal without a reason");
      Demand(IsIn(text, error.line(), error.column()), "a place outside the file");
      ++refused_[error.reason().text_id];
    }
    if (document) DemandThatItLasts(*document);
  }
  void Print() const {
    std::printf("read:        %6d\n", read_);
    for (const auto& [reason, cases] : refused_) std::printf("reason %4d: %6d\n", reason, cases);
  }
  std::string path() const { return path_; }

 private:
  /// What XML forbids is replaced at the first writing.
  void DemandThatItLasts(const FixedSettings& document) {
    try {
      files_.Write(path_, document);
    } catch (const SettingsFileError&) {
      return;  // its references make it larger than a file may be
    }
    try {
      const FixedSettings written = files_.Read(path_);
      Demand(written.controls.size() == document.controls.size(), "a control that was lost");
      files_.Write(path_, written);
      Demand(files_.Read(path_) == written, "a test that changes when written");
    } catch (const SettingsFileError& error) {
      Fault("what was written is refused: " + error.reason().english);
    }
  }

  Folder folder_;
  std::string path_ = folder_ / "test.xml";
  PugiSettingsFiles files_;
  int read_ = 0;
  std::map<int, int> refused_;
};

}  // namespace
}  // namespace vmod17

int main(int argc, char* argv[]) {
  using namespace vmod17;
  Readings readings;
  const std::vector<std::string> sound = SoundFiles(readings.path());
  return Fuzz(argc, argv,
              {.run_case =
                   [&](Dice& dice) {
                     std::string text = dice.Of(sound);
                     for (int wounds = dice.From(1, 3); wounds > 0; --wounds) {
                       DamageOnce(text, dice);
                     }
                     readings.Try(text);
                   },
               .print = [&] { readings.Print(); }});
}

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "midi/soundfonts.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

class Soundfonts : public ::testing::Test {
 protected:
  Soundfonts()
      : folder_(fs::temp_directory_path() / ("vmod17-soundfonts-" + std::to_string(::getpid()))) {
    fs::create_directories(folder_);
  }
  ~Soundfonts() override { fs::remove_all(folder_); }
  std::string Write(const std::string& name, const std::string& bytes) {
    const std::string path = folder_ / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

  const fs::path folder_;
};

TEST_F(Soundfonts, AreFoundOnceEach) {
  const auto existing = ExistingSoundfonts(UsualSoundfonts());
  ASSERT_FALSE(existing.empty());
  std::vector<std::string> twice = existing;
  twice.insert(twice.end(), existing.begin(), existing.end());
  EXPECT_EQ(ExistingSoundfonts(twice), existing);
}

TEST_F(Soundfonts, AreNotWhatIsNoneByItsBeginning) {
  const std::string text = Write("text.sf2", "no soundfont, but as long as one begins");
  EXPECT_TRUE(ExistingSoundfonts({"", text, folder_, folder_ / "nothing.sf2"}).empty());
  const std::string head = Write("head.sf2", std::string("RIFF\4\0\0\0sfbk", 12));
  EXPECT_EQ(ExistingSoundfonts({text, head}), std::vector<std::string>{head});
}

TEST_F(Soundfonts, AreWholeWhenTheyAreAsLongAsTheySay) {
  const std::string says_300(std::string("RIFF\x2C\1\0\0", 8));
  EXPECT_TRUE(IsWholeRiffFile(Write("whole.sf2", says_300 + std::string(300, 'x'))));
  EXPECT_TRUE(IsWholeRiffFile(Write("longer.sf2", says_300 + std::string(301, 'x'))));
  EXPECT_FALSE(IsWholeRiffFile(Write("cut.sf2", says_300 + std::string(299, 'x'))));
  EXPECT_FALSE(IsWholeRiffFile(Write("head.sf2", "RIFF")));
  EXPECT_FALSE(IsWholeRiffFile(folder_ / "nothing.sf2"));
}

}  // namespace
}  // namespace vmod17

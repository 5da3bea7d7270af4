// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/whole_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "scratch_folder.h"

namespace {

// What the file system of a test does not know.
bool g_no_rename_without_replacing = false;
bool g_no_second_names = false;

}  // namespace

// In place of the system's own.
extern "C" int renameat2(int from_folder, const char* from, int to_folder, const char* to,
                         unsigned flags) {
  if (g_no_rename_without_replacing) {
    errno = EINVAL;
    return -1;
  }
  return static_cast<int>(::syscall(SYS_renameat2, from_folder, from, to_folder, to, flags));
}

extern "C" int link(const char* from, const char* to) {
  if (g_no_second_names) {
    errno = EPERM;
    return -1;
  }
  return static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

enum class FileSystem { kKnowsAll, kCannotRenameOnly, kKnowsNeither };

class NewFile : public ::testing::TestWithParam<FileSystem> {
 protected:
  void SetUp() override {
    g_no_rename_without_replacing = GetParam() != FileSystem::kKnowsAll;
    g_no_second_names = GetParam() == FileSystem::kKnowsNeither;
  }
  void TearDown() override { g_no_rename_without_replacing = g_no_second_names = false; }

  // The name that was taken, without its folder, or what the system said.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::string path = folder_ / name;
    const int error = WriteNewFile(path, bytes);
    return error == 0 ? fs::path(path).filename().string() : SystemReason(error);
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_ / "")) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  ScratchFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(FileSystems, NewFile,
                         ::testing::Values(FileSystem::kKnowsAll, FileSystem::kCannotRenameOnly,
                                           FileSystem::kKnowsNeither));

TEST_P(NewFile, TakesItsNameWhereItIsFree) {
  EXPECT_EQ(Write("a.xml", "first"), "a.xml");
  EXPECT_EQ(Content(folder_ / "a.xml"), "first");
  EXPECT_EQ(fs::status(folder_ / "a.xml").permissions(), fs::perms(0600));
  EXPECT_THAT(Names(), ::testing::ElementsAre("a.xml"));
}

TEST_P(NewFile, CountsOnBeforeTheExtensionWhereTheNameIsTaken) {
  for (const char* name : {"a.xml", "a-2.xml", "a-3.xml", "a-4.xml"}) {
    EXPECT_EQ(Write("a.xml", name), name);
  }
  for (const char* name : {"a.xml", "a-2.xml", "a-3.xml", "a-4.xml"}) {
    EXPECT_EQ(Content(folder_ / name), name);
  }
  EXPECT_EQ(Names().size(), 4u);
}

TEST_P(NewFile, LeavesTheDotsOfItsFolderAndOfAHiddenNameAlone) {
  fs::create_directory(folder_ / "v1.2");
  EXPECT_EQ(Write("v1.2/record", "one"), "record");
  EXPECT_EQ(Write("v1.2/record", "two"), "record-2");
  EXPECT_EQ(Write("v1.2/.hidden", "one"), ".hidden");
  EXPECT_EQ(Write("v1.2/.hidden", "two"), ".hidden-2");
}

TEST_P(NewFile, TakesTheNameOfNeitherALinkNorAFolder) {
  fs::create_symlink("nowhere", folder_ / "a.xml");
  fs::create_directory(folder_ / "a-2.xml");
  EXPECT_EQ(Write("a.xml", "mine"), "a-3.xml");
  EXPECT_EQ(fs::read_symlink(folder_ / "a.xml"), "nowhere");
  EXPECT_FALSE(fs::exists(folder_ / "nowhere"));
  EXPECT_EQ(Names().size(), 3u);
}

TEST_P(NewFile, LeavesTheFileOfAnotherAccountAlone) {
  fs::create_directory(folder_ / "shared");
  fs::permissions(folder_ / "shared", fs::perms(01777));
  ASSERT_EQ(Write("shared/a.xml", "theirs"), "a.xml");
  const pid_t child = ::fork();
  if (child == 0) ::_exit(BecomeNobody() && Write("shared/a.xml", "mine") == "a-2.xml" ? 0 : 1);
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Content(folder_ / "shared/a.xml"), "theirs");
  EXPECT_EQ(Content(folder_ / "shared/a-2.xml"), "mine");
}

TEST_P(NewFile, IsOneFileForEachOfEightProcessesThatTakeOneNameAtOnce) {
  constexpr int kProcesses = 8;
  constexpr int kEach = 5;
  int gate[2];
  ASSERT_EQ(::pipe(gate), 0);
  std::vector<pid_t> children;
  for (int i = 0; i < kProcesses; ++i) {
    children.push_back(::fork());
    if (children.back() != 0) continue;
    ::close(gate[1]);
    char none;
    static_cast<void>(::read(gate[0], &none, 1));  // until the parent opens the gate for all
    for (int j = 0; j < kEach; ++j) {
      std::string path = folder_ / "a.xml";
      if (WriteNewFile(path, std::to_string(i) + ' ' + std::to_string(j)) != 0) ::_exit(1);
    }
    ::_exit(0);
  }
  ::close(gate[0]);
  ::close(gate[1]);
  for (const pid_t child : children) {
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  std::vector<std::string> contents;
  for (const std::string& name : Names()) contents.push_back(Content(folder_ / name));
  std::ranges::sort(contents);
  EXPECT_EQ(contents.size(), std::size_t{kProcesses * kEach});
  EXPECT_EQ(std::ranges::adjacent_find(contents), contents.end());
}

TEST_P(NewFile, LeavesNothingBehindWhereItCannotBeWritten) {
  EXPECT_EQ(Write("missing/a.xml", "x"), SystemReason(ENOENT));
  fs::create_directory(folder_ / "closed");
  fs::permissions(folder_ / "closed", fs::perms(0555));
  const pid_t child = ::fork();
  if (child == 0) {
    ::_exit(BecomeNobody() && Write("closed/a.xml", "x") == SystemReason(EACCES) ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Entries(folder_ / "closed"), 0);
}

TEST(WholeFile, ReplacesWhatIsThere) {
  const ScratchFolder folder;
  ASSERT_EQ(WriteWholeFile(folder / "a.xml", "first"), 0);
  ASSERT_EQ(WriteWholeFile(folder / "a.xml", "second"), 0);
  EXPECT_EQ(Content(folder / "a.xml"), "second");
  EXPECT_EQ(Entries(folder / ""), 1);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "store/seat.h"

#include <gtest/gtest.h>

#include "store_process.h"
#include "store_testing.h"

namespace vmod17 {
namespace {

constexpr const char* kMachine = "room-7\n1234";

TEST(Seat, KeepsTheNameThatItWasGivenFirst) {
  const ScratchFolder folder;
  const Seat seat = SeatIn(folder / "melvado", kMachine);
  EXPECT_EQ(seat.former.substr(0, 7), "room-7/");
  EXPECT_NE(seat.name, seat.former);
  EXPECT_EQ(SeatIn(folder / "melvado", kMachine).name, seat.name);
  EXPECT_EQ(QDir(folder / "melvado").entryList(QDir::Files).size(), 1);
}

TEST(Seat, IsAnotherOneForAUserAndAMachineOfTheSameNames) {
  const ScratchFolder one;
  const ScratchFolder other;
  EXPECT_NE(SeatIn(one / "", kMachine).name, SeatIn(other / "", kMachine).name);
}

TEST(Seat, IsAnotherOneOnACopyOfTheMachineAndOnOneThatSharesTheFolder) {
  const ScratchFolder folder;
  const std::string name = SeatIn(folder / "", kMachine).name;
  EXPECT_NE(SeatIn(folder / "", "room-8\n1234").name, name);
  EXPECT_NE(SeatIn(folder / "", "room-7\n5678").name, name);
  EXPECT_EQ(SeatIn(folder / "", kMachine).name, name);
}

TEST(Seat, CanBeReadByItsOwnerAlone) {
  const ScratchFolder folder;
  SeatIn(folder / "", kMachine);
  ASSERT_EQ(folder.Names().size(), 1);
  EXPECT_EQ(QFile::permissions(folder / folder.Names()[0]) &
                (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
            0);
}

TEST(Seat, MakesNoOtherFolderOfOneWhoseNameIsNotUtf8) {
  const ScratchFolder folder;
  const QString name = QString::fromUtf8("Sch\xfcler");
  const Seat seat = SeatIn(folder / name, kMachine);
  EXPECT_EQ(seat.name, seat.former);
  EXPECT_TRUE(folder.Names().isEmpty());
}

TEST(Seat, IsMachineAndUserWhereNothingCanBeWritten) {
  const ScratchFolder folder;
  QFile file(folder / "file");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const Seat seat = SeatIn(folder / "file/melvado", kMachine);
  EXPECT_EQ(seat.name, seat.former);
}

TEST(Seat, GetsANewNameInPlaceOfOneThatCannotBeRead) {
  const ScratchFolder folder;
  SeatIn(folder / "", kMachine);
  QFile file(folder / folder.Names()[0]);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no name");
  file.close();
  const Seat seat = SeatIn(folder / "", kMachine);
  const std::string name = seat.name;
  EXPECT_NE(name, seat.former);
  EXPECT_EQ(SeatIn(folder / "", kMachine).name, name);
}

TEST(Seat, IsOneForProcessesThatStartAtOnce) {
  const ScratchFolder folder;
  std::vector<std::unique_ptr<StoreProcess>> processes;
  for (int i = 0; i < 6; ++i) processes.push_back(std::make_unique<StoreProcess>());
  for (const auto& process : processes) process->Say("seat " + (folder / "melvado"));
  const QString name = processes[0]->Hear();
  EXPECT_TRUE(name.contains('/'));
  for (std::size_t i = 1; i < processes.size(); ++i) EXPECT_EQ(processes[i]->Hear(), name);
  EXPECT_EQ(QDir(folder / "melvado").entryList(QDir::Files).size(), 1);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/host.h"

#include <QFile>

#include "melvado_testing.h"

namespace melvado {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using vmod17::Notice;

class HostTest : public HostStage {
 protected:
  /// A host without a window, on languages of which one file is damaged.
  std::unique_ptr<Host> HostWithTrouble() {
    QFile damaged(At("Damaged.qm"));
    EXPECT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no language");
    damaged.close();
    HostSetup setup = HostOfTest();
    setup.language_folders.push_back(folder_.path().toStdString());
    return std::make_unique<Host>(std::move(setup), loop_);
  }
  void Listen(Host& host) {
    host.SetTell([this](const Notice& notice) { told_.push_back(notice.text_id); });
  }
};

TEST_F(HostTest, TellsWhatCameBeforeSomebodyListenedOnceAndAsAnEvent) {
  const auto host = HostWithTrouble();
  Serve();
  Listen(*host);
  EXPECT_THAT(told_, IsEmpty());
  Serve();
  EXPECT_THAT(told_, ElementsAre(9251));
  Listen(*host);
  Serve();
  EXPECT_THAT(told_, ElementsAre(9251));
}

TEST_F(HostTest, TellsNothingAnyMoreWhenItHasGone) {
  auto host = HostWithTrouble();
  Listen(*host);
  host.reset();
  Serve();
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(HostTest, ReportsItselfInEnglishWhateverItSpeaks) {
  ports_->Plug({"USB Piano"});
  Host host(HostOfTest(), loop_);
  host.ChooseOutput("USB Piano");
  ports_->Plug({});
  host.RefreshOutputs();
  EXPECT_EQ(host.Language(), "Deutsch");
  EXPECT_THAT(host.Report(), HasSubstr("Sound output: USB Piano (not connected)"));
  EXPECT_THAT(host.Report(), HasSubstr("Language: Deutsch"));
}

TEST_F(HostTest, TellsThatOutputsHaveChangedOnlyWhenTheyHave) {
  Host host(HostOfTest(), loop_);
  int changes = 0;
  host.changed = [&changes] { ++changes; };
  host.RefreshOutputs();
  EXPECT_EQ(changes, 0);
  ports_->Plug({"USB Piano"});
  host.RefreshOutputs();
  host.RefreshOutputs();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(host.outputs().outputs.front().name, "USB Piano");
}

}  // namespace
}  // namespace melvado

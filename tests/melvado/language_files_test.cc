// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Language files as somebody may put them into his language folder.

#include <QDir>
#include <QFile>
#include <QProcess>

#include "melvado_testing.h"

namespace vmod17 {
namespace {

using ::testing::IsEmpty;

class LanguageFiles : public HostStage {
 protected:
  /// Compiles a language of these messages and starts the host with it, chosen.
  void OpenWith(const QString& name, const QString& messages) {
    QDir().mkpath(At("languages"));
    QFile source(At(name + ".ts"));
    ASSERT_TRUE(source.open(QIODevice::WriteOnly));
    source.write(("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                  "<TS version=\"2.1\" language=\"eo\"><context><name></name>" +
                  messages + "</context></TS>")
                     .toUtf8());
    source.close();
    ASSERT_EQ(QProcess::execute(LRELEASE, {"-silent", "-idbased", source.fileName(), "-qm",
                                           At("languages/" + name + ".qm")}),
              0);
    HostSetup setup = HostOfTest();
    setup.language_folders.emplace_back(At("languages").toStdString());
    Open(std::move(setup));
    ASSERT_TRUE(Entries("language").contains(name));
    host_->ChooseLanguage(name.toStdString());
    Serve();
    Press("help");  // any press shows the words anew
  }

  static QString Message(int id, const QString& word) {
    return QString("<message id=\"%1s\"><source></source><translation>%2</translation></message>")
        .arg(id)
        .arg(word);
  }
};

TEST_F(LanguageFiles, MayHaveAThousandForeignKeys) {
  QString messages = Message(9411, "Provu la sonon");
  for (int id = 100'000; id < 101'000; ++id) messages += Message(id, "fremda");
  OpenWith("Esperanto", messages);
  EXPECT_EQ(Caption("test"), "Provu la sonon");
  EXPECT_EQ(Caption("language_heading"), "Language");
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(LanguageFiles, MayHaveNoKeyOfTheProgramAtAll) {
  OpenWith("Esperanto", Message(100'000, "fremda"));
  EXPECT_EQ(Caption("test"), "Test the sound");
  EXPECT_EQ(host_->Language(), "Esperanto");
  EXPECT_THAT(told_, IsEmpty());
}

}  // namespace
}  // namespace vmod17

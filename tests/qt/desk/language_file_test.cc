// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/language_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <filesystem>

#include "qt/desk/qt_language.h"

namespace vmod17 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr char kContexts = '\x2f';
constexpr char kHashes = '\x42';
constexpr char kMessages = '\x69';
constexpr char kDependencies = '\x96';
constexpr char kLanguage = '\xa7';

QByteArray Number(quint32 number) {
  QByteArray bytes(4, '\0');
  qToBigEndian(number, bytes.data());
  return bytes;
}

QByteArray Section(char tag, const QByteArray& content) {
  return tag + Number(static_cast<quint32>(content.size())) + content;
}

QByteArray Text(char tag, const QByteArray& bytes) { return Section(tag, bytes); }

const QByteArray kMagic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
const QByteArray kEnd = "\1";
/// The message "1s" with the word "ja", and its hash.
const QByteArray kMessage = Text('\3', QByteArray("\0j\0a", 4)) + Text('\6', "1s") + kEnd;
constexpr quint32 kHash = 0x383;

QByteArray Table(quint32 place) { return Section(kHashes, Number(kHash) + Number(place)); }

QByteArray WithMessage(const QByteArray& message) {
  return kMagic + Table(0) + Section(kMessages, message);
}

TEST(LanguageFile, OfWholeSectionsHasNoFault) {
  EXPECT_EQ(FaultOf(kMagic), std::nullopt);
  EXPECT_EQ(FaultOf(WithMessage(kMessage)), std::nullopt);
  EXPECT_EQ(FaultOf(WithMessage(kMessage) + Section(kLanguage, "de")), std::nullopt);
}

TEST(LanguageFile, WithoutItsFirstBytesIsNone) {
  EXPECT_EQ(FaultOf({}), LanguageFault::kUnreadable);
  EXPECT_EQ(FaultOf("This is no translation."), LanguageFault::kUnreadable);
  EXPECT_EQ(FaultOf(kMagic.first(15)), LanguageFault::kUnreadable);
}

TEST(LanguageFile, MustNotAskForOtherFiles) {
  EXPECT_EQ(FaultOf(WithMessage(kMessage) + Section(kDependencies, "itself")),
            LanguageFault::kDependent);
}

TEST(LanguageFile, WithSectionsThatDoNotFillItIsDamaged) {
  const QByteArray whole = WithMessage(kMessage);
  for (qsizetype size = kMagic.size() + 1; size < whole.size(); ++size) {
    EXPECT_EQ(FaultOf(whole.first(size)), LanguageFault::kDamaged) << size;
  }
  EXPECT_EQ(FaultOf(whole + '\0'), LanguageFault::kDamaged);
  EXPECT_EQ(FaultOf(kMagic + Section(kLanguage, "")), LanguageFault::kDamaged);
  EXPECT_EQ(FaultOf(kMagic + Section('\x11', "?")), LanguageFault::kDamaged);
  EXPECT_EQ(FaultOf(whole + Section(kMessages, kMessage)), LanguageFault::kDamaged);
}

TEST(LanguageFile, WhoseTableLeadsElsewhereThanToAMessageIsDamaged) {
  const QByteArray messages = Section(kMessages, kMessage + kMessage);
  const auto second = static_cast<quint32>(kMessage.size());
  EXPECT_EQ(FaultOf(kMagic + Table(second) + messages), std::nullopt);
  for (const quint32 place : {1u, second - 1, 2 * second, 0x7fffffffu, 0xffffffffu}) {
    EXPECT_EQ(FaultOf(kMagic + Table(place) + messages), LanguageFault::kDamaged) << place;
  }
  EXPECT_EQ(FaultOf(kMagic + Table(0)), LanguageFault::kDamaged);
  const QByteArray half = Section(kHashes, Number(kHash) + Number(0) + Number(kHash));
  EXPECT_EQ(FaultOf(kMagic + half + messages), LanguageFault::kDamaged);
}

TEST(LanguageFile, WithAMessageThatReachesBeyondItsPlaceIsDamaged) {
  const QByteArray word = '\3' + Number(2) + QByteArray("\0j", 2);
  EXPECT_EQ(FaultOf(WithMessage(word + kEnd)), std::nullopt);
  EXPECT_EQ(FaultOf(WithMessage('\3' + Number(0xffffffff) + kEnd)), std::nullopt);
  for (const QByteArray& message :
       {word, QByteArray("\2\1"), QByteArray("\3\1"), QByteArray("\5\1"),
        '\3' + Number(3) + "abc" + kEnd, '\3' + Number(4) + "ab" + kEnd,
        '\6' + Number(0xffffffff) + kEnd, '\7' + Number(0x80000000) + kEnd,
        '\10' + Number(2) + kEnd}) {
    EXPECT_EQ(FaultOf(WithMessage(message)), LanguageFault::kDamaged)
        << message.toHex().toStdString();
  }
}

TEST(LanguageFile, WithAWordThatNoScreenCanShowIsDamaged) {
  const auto word = [](int units) {
    return Text('\3', QByteArray(2 * units, 'a')) + Text('\6', "1s") + kEnd;
  };
  EXPECT_EQ(FaultOf(WithMessage(word(kLongestWord))), std::nullopt);
  EXPECT_EQ(FaultOf(WithMessage(word(kLongestWord + 1))), LanguageFault::kDamaged);
}

TEST(LanguageFile, WithATableOfContextsThatLeadsOutOfItIsDamaged) {
  const auto with_contexts = [](const char* hex) {
    return WithMessage(kMessage) + Section(kContexts, QByteArray::fromHex(hex));
  };
  EXPECT_EQ(FaultOf(with_contexts("000100000000")), std::nullopt);
  EXPECT_EQ(FaultOf(with_contexts("0002"
                                  "00000001"
                                  "0000"
                                  "026162"
                                  "00")),
            std::nullopt);
  EXPECT_EQ(FaultOf(with_contexts("0000")), LanguageFault::kDamaged);
  EXPECT_EQ(FaultOf(with_contexts("000200000009")), LanguageFault::kDamaged);
  EXPECT_EQ(FaultOf(with_contexts("000200000001"
                                  "0000"
                                  "056162")),
            LanguageFault::kDamaged);
}

class LanguageFolder : public testing::Test {
 protected:
  void Write(const char* name, const QByteArray& bytes) const {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QtLanguageList List() const { return QtLanguageList({folder_.path().toStdString()}); }

  QTemporaryDir folder_;
};

TEST_F(LanguageFolder, MayHoldWhatIsNoFileAtAll) {
  Write("Gut.qm", WithMessage(kMessage));
  ASSERT_EQ(mkfifo(folder_.filePath("Pipe.qm").toUtf8(), 0600), 0);
  std::filesystem::create_directory(folder_.filePath("Ordner.qm").toStdString());
  std::filesystem::create_symlink("/dev/zero", folder_.filePath("Null.qm").toStdString());
  std::filesystem::create_symlink("nowhere", folder_.filePath("Weg.qm").toStdString());
  std::filesystem::create_symlink("Gut.qm", folder_.filePath("Verweis.qm").toStdString());
  const QtLanguageList list = List();
  EXPECT_THAT(list.Table(), ElementsAre(LanguageColumn{"", "Gut"}, LanguageColumn{"", "Verweis"}));
  EXPECT_THAT(list.problems(), SizeIs(4));
}

TEST_F(LanguageFolder, IsToldOfWithTheReasonForEachOfTheFirstFiles) {
  Write("A.qm", WithMessage(kMessage) + Section(kDependencies, "A.qm"));
  Write("B.qm", kMagic + Table(99));
  Write("C.qm", kMagic + QByteArray(kLargestLanguageFile, '\1'));
  Write("D.qm", "no language");
  Write("E.qm", "no language");
  const std::vector<Notice> notices = List().Notices();
  ASSERT_THAT(notices, SizeIs(4));
  EXPECT_EQ(notices[0].text_id, 9254);
  EXPECT_EQ(notices[0].details[0], folder_.filePath("A.qm").toStdString());
  EXPECT_EQ(notices[1].text_id, 9255);
  EXPECT_EQ(notices[2].text_id, 9253);
  EXPECT_EQ(notices[3].text_id, 9256);
  EXPECT_THAT(notices[3].details, ElementsAre("2"));
}

TEST_F(LanguageFolder, ThatChangesUnderTheProgramChangesNoLanguage) {
  Write("Gut.qm", WithMessage(kMessage));
  const QtLanguageList list = List();
  Write("Gut.qm", WithMessage(kMessage) + Section(kDependencies, "Gut.qm"));
  EXPECT_EQ(list.Create("melvadolang.Gut")->Wort("1s"), "ja");
}

TEST_F(LanguageFolder, MayHaveANameThatIsNotUtf8) {
  const std::filesystem::path folder = folder_.path().toStdString() + "/Sch\xfcler";
  std::filesystem::create_directory(folder);
  std::filesystem::copy_file(PROGRAM_LANGUAGES "/Deutsch.qm", folder / "Deutsch.qm");
  const QtLanguageList list({folder});
  EXPECT_THAT(list.problems(), IsEmpty());
  EXPECT_EQ(list.Create("melvadolang.Deutsch")->Wort("432s"), "OK");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace vmod17

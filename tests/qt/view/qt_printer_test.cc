// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/qt_printer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "qt/desk/qt_event_loop.h"
#include "qt/finished_test.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/page.h"

namespace vmod17 {
namespace {

QByteArray ContentOf(const QString& file) {
  QFile opened(file);
  return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

/// All compressed parts of a PDF file, unpacked.
QByteArray Unpacked(const QByteArray& pdf) {
  QByteArray all;
  qsizetype at = 0;
  while ((at = pdf.indexOf("stream\n", at)) >= 0) {
    const qsizetype begin = at + 7;
    const qsizetype end = pdf.indexOf("endstream", begin);
    if (end < 0) break;
    QByteArray part = pdf.mid(begin, end - begin);
    const auto size = static_cast<quint32>(part.size()) * 40 + 65536;
    const char head[] = {static_cast<char>(size >> 24), static_cast<char>(size >> 16),
                         static_cast<char>(size >> 8), static_cast<char>(size)};
    all += qUncompress(QByteArray(head, 4) + part);
    at = end + 9;
  }
  return all;
}

/// A face of the results on its way to paper.
class Printing : public testing::Test {
 protected:
  Printing() {
    p_.ToSettings();
    ToResults(p_);
    screen().caption = "Jazz-Akkorde: Ergebnis";
    printer_.SetOrientation(Printer::Orientation::kLandscape);
  }

  Testergebnis& screen() { return p_.results(); }
  void Print() { EXPECT_TRUE(printer_.PrintForm(screen()).printed); }
  PrintTargets NoPrinter() {
    return {[] { return nullptr; },
            {folder_.filePath("Dokumente")},
            [] { return DateTime{2026, 11, 21, 14, 3, 22}; }};
  }
  PrintTargets With(std::function<std::unique_ptr<QPrinter>()> printer) {
    PrintTargets targets = NoPrinter();
    targets.printer = std::move(printer);
    return targets;
  }
  QString Pdf(const QString& number = "") const {
    return folder_.filePath("Dokumente/Jazz-Akkorde Ergebnis 2026-11-21 14-03-22" + number +
                            ".pdf");
  }

  ProgramFixture p_;
  QTemporaryDir folder_;
  QtEventLoop loop_;
  ChordPictures pictures_;
  QtPrinter printer_{loop_, pictures_, NoPrinter()};
};

TEST_F(Printing, SavesThePageWhereThereIsNoPrinterAndTellsWhere) {
  const PrintResult result = printer_.PrintForm(screen());
  EXPECT_TRUE(result.printed);
  ASSERT_TRUE(result.notice);
  EXPECT_EQ(result.notice->text_id, 9302);
  ASSERT_EQ(result.notice->details.size(), 1U);
  EXPECT_EQ(QString::fromStdString(result.notice->details[0]), QDir::toNativeSeparators(Pdf()));
  EXPECT_TRUE(ContentOf(Pdf()).startsWith("%PDF-"));
}

TEST_F(Printing, NamesAFileByTheTitleInTheLanguageOfTheProgram) {
  screen().caption = "ジャズコードの聴き取り/結果?";
  const PrintResult result = printer_.PrintForm(screen());
  ASSERT_TRUE(result.notice);
  EXPECT_TRUE(QString::fromStdString(result.notice->details[0])
                  .endsWith("/ジャズコードの聴き取り 結果 2026-11-21 14-03-22.pdf"))
      << result.notice->details[0];
}

TEST_F(Printing, MakesOneLandscapePage) {
  Print();
  const QByteArray pdf = ContentOf(Pdf());
  EXPECT_EQ(pdf.count("/Type /Page\n"), 1);
  static const QRegularExpression box("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]");
  const auto match = box.match(QString::fromLatin1(pdf));
  ASSERT_TRUE(match.hasMatch());
  EXPECT_GT(match.captured(1).toDouble(), match.captured(2).toDouble());
}

TEST_F(Printing, FollowsTheOrientation) {
  printer_.SetOrientation(Printer::Orientation::kPortrait);
  Print();
  static const QRegularExpression box("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]");
  const auto match = box.match(QString::fromLatin1(ContentOf(Pdf())));
  ASSERT_TRUE(match.hasMatch());
  EXPECT_LT(match.captured(1).toDouble(), match.captured(2).toDouble());
}

TEST_F(Printing, SetsTextAsTextAndOnlyThePicturesOfTheChordsAsPictures) {
  Print();
  const QByteArray pdf = ContentOf(Pdf());
  EXPECT_GT(pdf.count("/FontFile2"), 0);
  EXPECT_GT(Unpacked(pdf).count(" Tj"), 20);
  // Notation and symbol of each chord; the same picture is kept once.
  const int chords = p_.program.board().akk_zahl;
  EXPECT_GT(pdf.count("/Subtype /Image"), chords);
  EXPECT_LE(pdf.count("/Subtype /Image"), 2 * chords);
  EXPECT_GT(pdf.count("/Width 680"), chords);  // eight times the drawing
}

TEST_F(Printing, LeavesOutTheButtonsAndThePicturesOnTheFaceBehind) {
  Print();
  screen().cmdOK[0].Press();
  Print();
  const QByteArray settings = ContentOf(Pdf(" (2)"));
  EXPECT_EQ(settings.count("/Subtype /Image"), 0);
  EXPECT_GT(Unpacked(settings).count(" Tj"), 20);
}

/// A face as it is on its way to paper, drawn into a picture.
class Paper {
 public:
  Paper(Form& form, QtEventLoop& loop) : page_(form, loop, pictures_, nullptr) {
    image_.fill(Qt::white);
    QPainter painter(&image_);
    page_.PrintOn(painter, image_.size());
  }
  /// How many pixels of a control's place are darker than the middle grey.
  int Ink(const QString& name) const {
    const auto* const widget = page_.findChild<QWidget*>(name);
    if (widget == nullptr) return -1;
    const QRect place(widget->mapTo(&page_, QPoint(0, 0)), widget->size());
    int ink = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x <= place.right(); ++x) {
        if (image_.valid(x, y) && qGray(image_.pixel(x, y)) < 128) ++ink;
      }
    }
    return ink;
  }
  QColor Corner(const QString& name) const {
    const auto* const widget = page_.findChild<QWidget*>(name);
    return image_.pixelColor(widget->mapTo(&page_, QPoint(4, 4)));
  }

 private:
  ChordPictures pictures_;
  Page page_;
  QImage image_{1600, 1131, QImage::Format_RGB32};
};

TEST_F(Printing, PutsInkWhereSomethingIsToBeReadAndNoneWhereTheButtonsAre) {
  p_.printer.inspect = [this](const Form&) {
    const Paper paper(screen(), loop_);
    for (int e = 1; e <= p_.program.board().akk_zahl; ++e) {
      for (const char* kind : {"ergebnis", "akk_group", "jz_kl", "Akkbez"}) {
        EXPECT_GT(paper.Ink(QString("%1(%2)").arg(kind).arg(e)), 20) << kind << e;
      }
      EXPECT_EQ(paper.Corner(QString("ergebnis(%1)").arg(e)), QColor(Qt::white)) << e;
    }
    EXPECT_GT(paper.Ink("datum"), 20);
    EXPECT_GT(paper.Ink("ergebnis(0)"), 20);
    for (const char* button : {"cmdPrint(0)", "cmdOK(0)", "cmdHilfe"}) {
      EXPECT_EQ(paper.Ink(button), 0) << button;
    }
  };
  EXPECT_TRUE(screen().cmdPrint[0].Press());
  EXPECT_EQ(p_.printer.pages.size(), 1U);
}

TEST_F(Printing, PutsTheSettingsOnPaperWithoutTheirButtons) {
  EXPECT_TRUE(screen().cmdOK[0].Press());
  p_.printer.inspect = [this](const Form&) {
    const Paper paper(screen(), loop_);
    for (const char* line : {"einst_lab(0)", "einst_Inh(0)", "einst_Inh(13)", "g_einst_inh(0)"}) {
      EXPECT_GT(paper.Ink(line), 20) << line;
    }
    for (const char* button : {"cmdPrint(1)", "cmdOK(1)", "cmdHilfe"}) {
      EXPECT_EQ(paper.Ink(button), 0) << button;
    }
  };
  EXPECT_TRUE(screen().cmdPrint[1].Press());
  EXPECT_EQ(p_.printer.pages.size(), 1U);
}

TEST_F(Printing, NeverOverwritesAnEarlierPage) {
  Print();
  const QByteArray first = ContentOf(Pdf());
  const PrintResult second = printer_.PrintForm(screen());
  const PrintResult third = printer_.PrintForm(screen());
  EXPECT_EQ(ContentOf(Pdf()), first);
  EXPECT_EQ(second.notice->details[0], QDir::toNativeSeparators(Pdf(" (2)")).toStdString());
  EXPECT_EQ(third.notice->details[0], QDir::toNativeSeparators(Pdf(" (3)")).toStdString());
  EXPECT_EQ(QDir(folder_.filePath("Dokumente")).entryList(QDir::Files).size(), 3);
}

TEST_F(Printing, TakesTheNextFolderWhereTheFirstCannotBeWritten) {
  QFile in_the_way(folder_.filePath("besetzt"));
  ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
  PrintTargets targets = NoPrinter();
  targets.folders.insert(targets.folders.begin(), folder_.filePath("besetzt/Dokumente"));
  QtPrinter printer(loop_, pictures_, targets);
  const PrintResult result = printer.PrintForm(screen());
  EXPECT_TRUE(result.printed);
  EXPECT_TRUE(QFile::exists(Pdf()));
}

TEST_F(Printing, TellsWhenNoFolderTakesThePage) {
  QFile in_the_way(folder_.filePath("besetzt"));
  ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
  PrintTargets targets = NoPrinter();
  targets.folders = {folder_.filePath("besetzt/Dokumente"), folder_.filePath("besetzt")};
  QtPrinter printer(loop_, pictures_, targets);
  const PrintResult result = printer.PrintForm(screen());
  EXPECT_FALSE(result.printed);
  ASSERT_TRUE(result.notice);
  EXPECT_EQ(result.notice->text_id, 9305);
  EXPECT_EQ(result.notice->details[0], QDir::toNativeSeparators(targets.folders[0]).toStdString());
  EXPECT_FALSE(result.notice->details[1].empty());
}

TEST_F(Printing, PrintsOnThePrinterThatThereIsAndWritesNoFileOfItsOwn) {
  const QString paper = folder_.filePath("paper.pdf");
  QtPrinter printer(loop_, pictures_, With([&] {
                      auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
                      device->setOutputFormat(QPrinter::PdfFormat);
                      device->setOutputFileName(paper);
                      return device;
                    }));
  printer.SetOrientation(Printer::Orientation::kLandscape);
  const PrintResult result = printer.PrintForm(screen());
  EXPECT_TRUE(result.printed);
  EXPECT_FALSE(result.notice);
  const QByteArray pdf = ContentOf(paper);
  EXPECT_EQ(pdf.count("/Type /Page\n"), 1);
  EXPECT_GT(Unpacked(pdf).count(" Tj"), 20);
  EXPECT_FALSE(QFile::exists(Pdf()));
}

TEST_F(Printing, TellsWhenAPrinterRefusesAndLetsItBeTriedAgain) {
  int asked = 0;
  QtPrinter printer(loop_, pictures_, With([&] {
                      ++asked;
                      auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
                      device->setOutputFormat(QPrinter::PdfFormat);
                      device->setOutputFileName(folder_.filePath("gone/paper.pdf"));
                      return device;
                    }));
  for (int i = 1; i <= 2; ++i) {
    const PrintResult result = printer.PrintForm(screen());
    EXPECT_FALSE(result.printed);
    ASSERT_TRUE(result.notice);
    EXPECT_EQ(result.notice->text_id, 9304);
    EXPECT_EQ(asked, i);
  }
  EXPECT_TRUE(screen().visible);
}

TEST_F(Printing, GoesToTheFileWhenThePrinterIsGoneAtTheNextPrint) {
  bool gone = false;
  const QString paper = folder_.filePath("paper.pdf");
  QtPrinter printer(loop_, pictures_, With([&]() -> std::unique_ptr<QPrinter> {
                      if (gone) return nullptr;
                      auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
                      device->setOutputFormat(QPrinter::PdfFormat);
                      device->setOutputFileName(paper);
                      return device;
                    }));
  EXPECT_FALSE(printer.PrintForm(screen()).notice);
  gone = true;
  EXPECT_EQ(printer.PrintForm(screen()).notice->text_id, 9302);
}

TEST(PrintTargets, NameTheFoldersOfTheUser) {
  QtEventLoop loop;
  const PrintTargets targets = SystemPrintTargets(loop);
  ASSERT_EQ(targets.folders.size(), 3U);
  EXPECT_EQ(targets.folders[1], QDir::homePath());
  EXPECT_EQ(targets.folders[2], QDir::tempPath());
  EXPECT_GE(targets.now().year, 2026);
}

}  // namespace
}  // namespace vmod17

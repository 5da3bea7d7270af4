// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/html_bounds.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace vmod17 {
namespace {

QString Times(int count, const char* text) { return QString(text).repeated(count); }
int DepthOf(const QString& page) { return TagsOf(page).depth; }
int CellsOf(const QString& page) { return TagsOf(page).cells; }

constexpr char kTable[] = "<table><tr><td>";

TEST(HtmlBounds, CountElementsInElements) {
  EXPECT_EQ(DepthOf("words"), 0);
  EXPECT_EQ(DepthOf("<div><b>a</b><i>b</i></div><div>c</div>"), 2);
  EXPECT_EQ(DepthOf("<p>a<p>b<ul><li>c<li>d<br>e<img src=x></ul>"), 1);
  EXPECT_EQ(DepthOf("<link/><link /><a name=\"b\"/>"), 0);
  EXPECT_EQ(DepthOf("a < b, c > d, <!-- <div><div> --> <!DOCTYPE html>"), 1);
}

TEST(HtmlBounds, CountNoEndOfWhatIsNotOpen) {
  EXPECT_EQ(DepthOf(Times(9, "</b>") + Times(9, "<div>")), 9);
  EXPECT_EQ(DepthOf(Times(9, "<div></b>")), 9);
  EXPECT_EQ(DepthOf(Times(9, "<p><b><div></b>")), 10);
}

TEST(HtmlBounds, ReadOverWhatStandsInQuotes) {
  EXPECT_EQ(DepthOf(Times(9, "<div title=\"/><b>\">")), 9);
  EXPECT_EQ(DepthOf(Times(9, "<div title='/></div>'>")), 9);
  EXPECT_EQ(DepthOf("<div title=\"" + Times(9, "<b>")), 1);
}

TEST(HtmlBounds, CountCellsWithWhatTheySpan) {
  EXPECT_EQ(CellsOf("<table><tr><td>a<td>b<tr><th>c</table>"), 5);
  EXPECT_EQ(CellsOf("<td colspan=\"3\" rowspan='2'>"), 4);
  EXPECT_EQ(CellsOf("<TD COLSPAN = 12>"), 12);
  for (const char* huge : {"<td colspan=999999>", "<td colspan=99999999999>",
                           "<th rowspan=+000999>", "<td colspan=\"&#57;&#57;&#57;\">",
                           "<td col&#115;pan=999>", "<td title='>' \"colspan\"=999>"}) {
    EXPECT_FALSE(CanBeLaidOut(kTable + QString(huge))) << huge;
  }
}

TEST(HtmlBounds, HaveTheTablesAsTheToolkitReadsThem) {
  const HtmlTables tables = TablesOf("<table><tr><td>a<td>b<tr><td>" + Times(2, kTable));
  EXPECT_EQ(tables.depth, 3);
  EXPECT_EQ(tables.places, 6);
}

TEST(HtmlBounds, OpenNothingThatThePageNames) {
  const QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");  // who opens it waits for a writer
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe), 0600), 0);
  EXPECT_EQ(TablesOf("<link rel=\"stylesheet\" type=\"text/css\" href=\"file://" + pipe +
                     "\"/><table><tr><td>x")
                .depth,
            1);
}

TEST(HtmlBounds, AllowFourTablesInOneAnotherAndNoFifth) {
  EXPECT_TRUE(CanBeLaidOut(Times(4, kTable) + "x"));
  EXPECT_FALSE(CanBeLaidOut(Times(5, kTable) + "x"));
  EXPECT_FALSE(CanBeLaidOut(Times(20, kTable) + "x"));
}

TEST(HtmlBounds, AllowFortyElementsInOneAnotherAndNoMore) {
  EXPECT_TRUE(CanBeLaidOut(Times(40, "<div>")));
  EXPECT_FALSE(CanBeLaidOut(Times(41, "<div>")));
}

TEST(HtmlBounds, AllowFewerPlacesThanAFewCellsCanMake) {
  const auto grid = [](int side) {
    return "<table><tr>" + Times(side, "<td>") + Times(side - 1, "<tr><td>x") + "</table>";
  };
  EXPECT_TRUE(CanBeLaidOut(grid(50)));
  EXPECT_FALSE(CanBeLaidOut(grid(51)));
  EXPECT_FALSE(CanBeLaidOut(grid(5000)));
}

TEST(HtmlBounds, RefuseWhatOnceGotPast) {
  EXPECT_FALSE(CanBeLaidOut(Times(7000, "</b>") + Times(6800, kTable)));
  EXPECT_FALSE(CanBeLaidOut(Times(6800, "<table><tr><td></b>")));
  EXPECT_FALSE(CanBeLaidOut(Times(3000, "<table title=\"/><tr><td>\"><tr><td>")));
  EXPECT_FALSE(
      CanBeLaidOut("<table><tr>" + Times(900, "<td colspan=999 rowspan=999>") + "</table>"));
}

TEST(HtmlBounds, AllowEveryPageOfTheProgram) {
  int pages = 0;
  for (QDirIterator each(PROGRAM_HELP, {"*.html"}, QDir::Files, QDirIterator::Subdirectories);
       each.hasNext(); ++pages) {
    QFile file(each.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(CanBeLaidOut(page)) << each.filePath().toStdString();
    EXPECT_LE(DepthOf(page), 10) << each.filePath().toStdString();
  }
  EXPECT_GT(pages, 20);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gmock/gmock.h>

#include <QFile>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <vector>

#include "catalogue/chord_table.h"

// QImage is a type of the toolkit; what it prints of itself helps nobody.
void PrintTo(const QImage& image, std::ostream* out) {
  *out << image.width() << " by " << image.height() << " pixels";
}

namespace vmod17 {
namespace {

constexpr int kLastOneStaff = 70;
constexpr int kWideSymbol = 82;

QString FileOf(const char* kind, int klang, int scale) {
  return QString(":/pictures/%1x/%2%3.png").arg(scale).arg(kind).arg(klang);
}

QImage Notation(int klang, int scale = 1) { return QImage(FileOf("jakk", klang, scale)); }
QImage Symbol(int klang, int scale = 1) { return QImage(FileOf("jbez", klang, scale)); }

QByteArray Bytes(const char* kind, int klang) {
  QFile file(FileOf(kind, klang, 1));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<int> StaffRows(int klang) {
  if (klang <= kLastOneStaff) return {15, 23, 30, 38, 45};
  return {13, 20, 28, 35, 43, 66, 73, 81, 88, 96};
}

bool IsBlack(QRgb pixel) { return (pixel & RGB_MASK) == 0; }
bool IsWhite(QRgb pixel) { return (pixel & RGB_MASK) == RGB_MASK; }

/// How many pixels of a row are black.
int BlackIn(const QImage& image, int y) {
  int black = 0;
  for (int x = 0; x < image.width(); ++x) black += IsBlack(image.pixel(x, y)) ? 1 : 0;
  return black;
}

/// The rows in which a picture has a pixel darker than the middle grey, from `left` up to `right`.
std::vector<int> DarkRows(const QImage& image, int left, int right) {
  std::vector<int> rows;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = left; x < right; ++x) {
      if (qGray(image.pixel(x, y)) >= 128) continue;
      rows.push_back(y);
      break;
    }
  }
  return rows;
}

TEST(EveryPicture, HasItsSizeAndItsMultiples) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const QSize notation(85, klang <= kLastOneStaff ? 60 : 110);
    const QSize symbol(klang == kWideSymbol ? 88 : 85, 40);
    for (const int scale : {1, 2, 3, 8}) {
      EXPECT_EQ(Notation(klang, scale).size(), notation * scale) << scale;
      EXPECT_EQ(Symbol(klang, scale).size(), symbol * scale) << scale;
    }
  }
}

TEST(EveryPicture, HasStaffLinesOfOneRowAcrossItsWidth) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const QImage image = Notation(klang);
    const std::vector<int> staff = StaffRows(klang);
    for (int y = 0; y < image.height(); ++y) {
      const bool line = std::find(staff.begin(), staff.end(), y) != staff.end();
      EXPECT_EQ(BlackIn(image, y) == image.width(), line) << "row " << y;
      EXPECT_EQ(IsBlack(image.pixel(0, y)), line) << "row " << y;
      EXPECT_EQ(IsBlack(image.pixel(image.width() - 1, y)), line) << "row " << y;
    }
  }
}

TEST(EveryPicture, HasSharpStaffLinesInTheLargerSizes) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    for (const int scale : {2, 3, 8}) {
      const QImage image = Notation(klang, scale);
      const std::vector<int> staff = StaffRows(klang);
      for (int y = 0; y < image.height(); ++y) {
        const bool line = std::find(staff.begin(), staff.end(), y / scale) != staff.end();
        EXPECT_TRUE(line ? BlackIn(image, y) == image.width() : IsWhite(image.pixel(0, y))) << y;
      }
    }
  }
}

/// The results show it in a place of 36 pixels.
TEST(EveryPicture, HasASymbolThatLeavesTwoRowsFreeAboveAndBelow) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    const QImage image = Symbol(klang);
    const std::vector<int> rows = DarkRows(image, 0, image.width());
    ASSERT_FALSE(rows.empty()) << klang;
    EXPECT_GE(rows.front(), 2) << klang;
    EXPECT_LE(rows.back(), 37) << klang;
  }
}

TEST(EveryPicture, HasNotationInBlackAndWhiteOnly) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const QImage image = Notation(klang);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb pixel = image.pixel(x, y);
        ASSERT_TRUE(IsBlack(pixel) || IsWhite(pixel)) << x << ' ' << y;
      }
    }
  }
}

TEST(EveryPicture, HasAWhiteFirstAndLastRow) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    for (const QImage& image : {Notation(klang), Symbol(klang)}) {
      for (int x = 0; x < image.width(); ++x) {
        ASSERT_TRUE(IsWhite(image.pixel(x, 0)) && IsWhite(image.pixel(x, image.height() - 1))) << x;
      }
    }
  }
}

TEST(EveryPicture, ShowsItsNotesNearTheMiddle) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const QImage image = Notation(klang);
    const std::vector<int> staff = StaffRows(klang);
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
      if (std::find(staff.begin(), staff.end(), y) != staff.end()) continue;
      for (int x = 0; x < image.width(); ++x) {
        if (!IsBlack(image.pixel(x, y))) continue;
        first = std::min(first, x);
        last = std::max(last, x);
      }
    }
    EXPECT_LT(first, 43);
    EXPECT_GT(last, 43);
    EXPECT_GT(first, 0);
    EXPECT_LT(last, 75);
  }
}

TEST(EveryPicture, HasASymbolWithinWhiteEdgesFromTheLeft) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const QImage image = Symbol(klang);
    int first = image.width();
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
      EXPECT_TRUE(IsWhite(image.pixel(0, y)));
      EXPECT_TRUE(IsWhite(image.pixel(image.width() - 1, y)));
      for (int x = 0; x < image.width(); ++x) {
        if (!IsWhite(image.pixel(x, y))) first = std::min(first, x);
        darkest = std::min(darkest, qGray(image.pixel(x, y)));
      }
    }
    EXPECT_LE(first, 5);
    EXPECT_LT(darkest, 48);
  }
}

TEST(EveryPicture, HasARootLetterElevenPixelsHigh) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    const std::vector<int> rows = DarkRows(Symbol(klang), 0, 9);
    ASSERT_FALSE(rows.empty());
    EXPECT_THAT(rows.back() - rows.front() + 1, testing::AllOf(testing::Ge(10), testing::Le(12)));
  }
}

TEST(EveryPicture, IsDrawnInGreysOnly) {
  for (int klang = 1; klang <= kKlangZahl; ++klang) {
    SCOPED_TRACE(klang);
    for (const QImage& image : {Notation(klang, 3), Symbol(klang), Symbol(klang, 3)}) {
      EXPECT_TRUE(image.allGray());
      EXPECT_FALSE(image.hasAlphaChannel());
    }
  }
}

/// How far the edge of a circle is from being one: the difference between its largest and smallest
/// radius, in pixels of the smallest size. The circle is all that is dark right of the root.
double Unevenness(int klang, int scale) {
  constexpr int kRootEnd = 12;
  const QImage image = Symbol(klang, scale);
  const auto dark = [&](double x, double y) { return qGray(image.pixel(int(x), int(y))) < 128; };
  QRect box;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = kRootEnd * scale; x < image.width(); ++x) {
      if (dark(x, y)) box |= QRect(x, y, 1, 1);
    }
  }
  double least = box.width();
  double most = 0;
  for (double angle = 0; angle < 6.28; angle += 0.01) {
    double edge = 0;
    for (double r = 0; r <= box.width() / 2.0; r += 0.05) {
      const double x = box.x() + box.width() / 2.0 + r * std::cos(angle);
      const double y = box.y() + box.height() / 2.0 + r * std::sin(angle);
      if (dark(x, y)) edge = r;
    }
    least = std::min(least, edge);
    most = std::max(most, edge);
  }
  return (most - least) / scale;
}

TEST(ChordPictures, HaveARoundDiminishedSignInTheLargestSize) {
  EXPECT_LT(Unevenness(22, 8), 0.15);
}

TEST(ChordPictures, ShowTheRootOnItsLedgerLineOrInTheBass) {
  for (int klang = 1; klang <= kLastOneStaff; ++klang) {
    EXPECT_GE(BlackIn(Notation(klang), 53), 10) << klang;
  }
  for (int klang = kLastOneStaff + 1; klang <= kKlangZahl; ++klang) {
    EXPECT_GT(BlackIn(Notation(klang), 85), 0) << klang;  // C3 lies between the rows 81 and 88
    EXPECT_EQ(BlackIn(Notation(klang), 100), 0) << klang;
  }
}

TEST(ChordPictures, ShowTheSameNotationForTheSameNotesOnly) {
  for (int a = 1; a <= kKlangZahl; ++a) {
    const QImage image = Notation(a);
    for (int b = 1; b < a; ++b) {
      const Chord& one = ChordOfKlang(a);
      const Chord& other = ChordOfKlang(b);
      const bool same = (one.klangtyp == kVoicing) == (other.klangtyp == kVoicing) &&
                        std::ranges::equal(one.semitones, other.semitones);
      EXPECT_EQ(image == Notation(b), same) << a << ' ' << b;
    }
  }
}

TEST(ChordPictures, ShareTheSymbolsOfEqualName) {
  EXPECT_FALSE(Bytes("jbez", 86).isEmpty());
  EXPECT_EQ(Bytes("jbez", 86), Bytes("jbez", 118));
  EXPECT_EQ(Bytes("jbez", 92), Bytes("jbez", 124));
  EXPECT_EQ(Bytes("jbez", 84), Bytes("jbez", 115));
  EXPECT_EQ(Bytes("jbez", 84), Bytes("jbez", 116));
}

TEST(ChordPictures, TellSymbolsOfDifferentNamesApart) {
  for (int a = 1; a <= kKlangZahl; ++a) {
    const QByteArray bytes = Bytes("jbez", a);
    ASSERT_FALSE(bytes.isEmpty()) << a;
    for (int b = 1; b < a; ++b) {
      if (a == kWideSymbol || b == kWideSymbol) continue;
      EXPECT_EQ(bytes == Bytes("jbez", b), ChordOfKlang(a).symbol == ChordOfKlang(b).symbol)
          << a << ' ' << b;
    }
  }
}

TEST(ChordPictures, WriteTheSixAboveTheNine) {
  const QImage stacked = Symbol(29);  // the 6 and the 9 in one column, after the letter
  const std::vector<int> rows = DarkRows(stacked, 12, stacked.width());
  ASSERT_FALSE(rows.empty());
  EXPECT_GT(rows.back() - rows.front(), 15);
  int last = 0;
  for (int x = 0; x < stacked.width(); ++x) {
    for (const int y : rows) {
      if (qGray(stacked.pixel(x, y)) < 128) last = x;
    }
  }
  EXPECT_LT(last, 22);
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// Draws the two pictures of every chord, notation and symbol, at one, two and three times their
// size for the screen and at eight times for paper, and lists them in a resource file. Run when the
// program is built.

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "catalogue/chord_table.h"
#include "pictures/notation_picture.h"
#include "pictures/symbol_picture.h"

namespace vmod17 {
namespace {

constexpr int kForPaper = 8;
constexpr int kScales[] = {1, 2, 3, kForPaper};
constexpr int kSmallestFile = 0;  // what the writer of the files takes for it

// Pixels.
int SymbolWidth(int klang) { return klang == 82 ? 88 : 85; }

QImage Symbol(int klang, int scale, const Fonts& fonts) {
  const SymbolParts parts = TakeApart(ChordOfKlang(klang).symbol);
  return DrawSymbol(parts, SymbolWidth(klang), scale, fonts);
}

QImage Notation(int klang, int scale, const Fonts& fonts) {
  return DrawNotation(LayOutNotation(ChordOfKlang(klang)), scale, fonts.music);
}

/// The largest ones go to paper, as ink of few shades: they would be most of the program otherwise.
QImage Lean(const QImage& image, int scale) {
  if (scale < kForPaper) return image;
  constexpr int kShades = 16;
  QList<QRgb> shades;
  for (int i = 0; i < kShades; ++i) shades << qRgb(i * 17, i * 17, i * 17);
  QImage lean(image.size(), QImage::Format_Indexed8);
  lean.setColorTable(shades);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      lean.setPixel(x, y, (qGray(image.pixel(x, y)) + 8) / 17);
    }
  }
  return lean;
}

/// Writes pictures into a folder and remembers them for the resource file.
class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) {
    for (const int scale : kScales) {
      if (!folder_.mkpath(QString("%1x").arg(scale))) {
        throw std::runtime_error("cannot make the folder " + folder.toStdString());
      }
    }
  }

  void Add(const QImage& image, int scale, const QString& name) {
    const QString file = QString("%1x/%2.png").arg(scale).arg(name);
    if (!Lean(image, scale).save(folder_.filePath(file), "PNG", kSmallestFile)) {
      throw std::runtime_error("cannot write " + folder_.filePath(file).toStdString());
    }
    files_ << file;
  }

  void WriteResourceFile() const {
    QFile file(folder_.filePath("chord_pictures.qrc"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
      throw std::runtime_error("cannot write " + file.fileName().toStdString());
    }
    QTextStream out(&file);
    out << "<RCC>\n  <qresource prefix=\"/pictures\">\n";
    for (const QString& name : files_) out << "    <file>" << name << "</file>\n";
    out << "  </qresource>\n</RCC>\n";
  }

 private:
  QDir folder_;
  QStringList files_;
};

void DrawAll(const QString& folder, const Fonts& fonts) {
  Album album(folder);
  for (const int scale : kScales) {
    for (int klang = 1; klang <= kKlangZahl; ++klang) {
      album.Add(Notation(klang, scale, fonts), scale, QString("jakk%1").arg(klang));
      album.Add(Symbol(klang, scale, fonts), scale, QString("jbez%1").arg(klang));
    }
  }
  album.WriteResourceFile();
}

void Run(const QGuiApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Draws the pictures of the chords into a folder.");
  parser.addHelpOption();
  parser.addOptions({{"out", "The folder to write to.", "folder"},
                     {"music-font", "The file of Noto Music.", "file"},
                     {"text-font", "The file of Noto Sans.", "file"}});
  parser.process(application);
  for (const char* const name : {"out", "music-font", "text-font"}) {
    if (parser.value(name).isEmpty()) {
      throw std::runtime_error(std::string("the option --") + name + " is missing");
    }
  }
  const Fonts fonts = {OutlineFont(parser.value("music-font")),
                       OutlineFont(parser.value("text-font"))};
  DrawAll(parser.value("out"), fonts);
}

}  // namespace
}  // namespace vmod17

int main(int argc, char** argv) {
  // Pictures are drawn in memory; a machine that builds may have no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  try {
    vmod17::Run(application);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "draw_chord_pictures: %s\n", error.what());
    return 1;
  }
  return 0;
}

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/qt_printer.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <chrono>
#include <future>
#include <thread>
#include <utility>

#include "base/numbers.h"
#include "base/text_ids.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/view/page.h"

namespace vmod17 {
namespace {

constexpr double kMargin = 10;  // mm
constexpr int kFileResolution = 1200;

Notice NotReady(const QString& printer) {
  return {text_id::kPrinterNotReady,
          "The printer %1 is not ready. Check that it is switched on, connected and has paper, and "
          "print again.",
          {printer.toStdString()}};
}

Notice Refused(const QString& printer, const QString& reason) {
  return {text_id::kPrinterDidNotTake,
          "The printer %1 did not take the page: %2. Check that it is switched on and connected, "
          "and print again.",
          {printer.toStdString(), reason.toStdString()}};
}

Notice SavedAs(const QString& file) {
  return {text_id::kPrintedToFile,
          "There is no printer. The page was saved as %1.",
          {QDir::toNativeSeparators(file).toStdString()}};
}

Notice NotSaved(const QString& folder, const QString& reason) {
  return {text_id::kPageNotSaved,
          "There is no printer, and the page could not be saved as a file in the folder %1 either "
          "(%2). Check that you may write there and that the disk is not full.",
          {QDir::toNativeSeparators(folder).toStdString(), reason.toStdString()}};
}

/// What the printing system said to the page that was handed to it last; empty when it took it, and
/// where there is no such system. The toolkit passes the page on without a look at the answer.
QString AnswerOfSpooler() {
  using LastError = int (*)();
  using LastErrorText = const char* (*)();
  constexpr int kFirstError = 0x0400;
  QLibrary cups("cups", 2);
  const auto error = reinterpret_cast<LastError>(cups.resolve("cupsLastError"));
  const auto text = reinterpret_cast<LastErrorText>(cups.resolve("cupsLastErrorString"));
  if (error == nullptr || text == nullptr || error() < kFirstError) return {};
  return QString::fromUtf8(text());
}

/// Whether the printing system answers within the time that a user waits for a button. It is asked
/// on a thread of its own: a server that is reached but says nothing would hold up the program.
bool SpoolerAnswers() {
  constexpr std::chrono::seconds kPatience(5);
  using Default = const char* (*)();
  QLibrary cups("cups", 2);
  const auto ask = reinterpret_cast<Default>(cups.resolve("cupsGetDefault"));
  if (ask == nullptr) return true;
  const auto answered = std::make_shared<std::promise<void>>();
  const std::future<void> answer = answered->get_future();
  std::thread([ask, answered] {
    ask();
    answered->set_value();
  }).detach();
  return answer.wait_for(kPatience) == std::future_status::ready;
}

bool InTrouble(QPrinter::PrinterState state) {
  return state == QPrinter::Aborted || state == QPrinter::Error;
}

std::unique_ptr<QPrinter> DefaultPrinter() {
  if (!SpoolerAnswers()) return nullptr;
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) return nullptr;
  return std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

QPageSize FilePageSize() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

/// "Jazz-Akkorde bestimmen Ergebnis 2026-11-21 14-03-22": what the screen is called, without the
/// signs that some file system does not take, and the time in figures that sort.
QString NameOf(const Form& form, const DateTime& t) {
  static const QRegularExpression unwanted(R"([\\/:*?"<>|\x{0}-\x{1F}])");
  constexpr int kLongest = 60;
  const QString title = QString::fromStdString(form.caption).replace(unwanted, " ").simplified();
  return title.left(kLongest) +
         QString::fromStdString(" " + PaddedText(t.year, 4) + "-" + PaddedText(t.month, 2) + "-" +
                                PaddedText(t.day, 2) + " " + PaddedText(t.hour, 2) + "-" +
                                PaddedText(t.minute, 2) + "-" + PaddedText(t.second, 2));
}

/// Opens a file that did not exist before, not even for another process that asks at this moment.
/// Returns whether it could.
bool OpenNew(QFile& file, const QDir& folder, const QString& name) {
  constexpr int kMostOfOneSecond = 1000;
  for (int i = 1; i <= kMostOfOneSecond; ++i) {
    const QString number = i == 1 ? QString() : QString(" (%1)").arg(i);
    file.setFileName(folder.filePath(name + number + ".pdf"));
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return true;
    if (!file.exists()) return false;
  }
  return false;
}

struct Written {
  QString file;     ///< empty when nothing was written
  QString trouble;  ///< what the system said then
};

/// Writes a new file whole or not at all.
Written WriteNew(const QDir& folder, const QString& name, const QByteArray& content) {
  folder.mkpath(".");
  QFile file;
  if (!OpenNew(file, folder, name)) return {{}, file.errorString()};
  if (file.write(content) == content.size() && file.flush()) return {file.fileName(), {}};
  const QString trouble = file.errorString();
  file.remove();
  return {{}, trouble};
}

}  // namespace

PrintTargets SystemPrintTargets(const EventLoop& loop) {
  return {DefaultPrinter,
          {QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), QDir::homePath(),
           QDir::tempPath()},
          [&loop] { return loop.Now(); }};
}

QtPrinter::QtPrinter(QtEventLoop& loop, PictureSource& pictures, PrintTargets targets)
    : loop_(loop), pictures_(pictures), targets_(std::move(targets)) {}

PrintResult QtPrinter::PrintForm(Form& form) {
  const std::unique_ptr<QPrinter> printer = targets_.printer();
  return printer == nullptr ? PrintIntoFile(form) : PrintOn(*printer, form);
}

PrintResult QtPrinter::PrintOn(QPrinter& printer, Form& form) {
  const QString name = printer.printerName();
  // One that can only write a file is no device of the system.
  const bool spooled = printer.outputFormat() == QPrinter::NativeFormat;
  const bool ready = printer.isValid() && !InTrouble(printer.printerState()) &&
                     !(spooled && InTrouble(QPrinterInfo(printer).state()));
  if (!ready) return {false, NotReady(name)};
  printer.setDocName(QString::fromStdString(form.caption));
  if (!Draw(printer, form) || InTrouble(printer.printerState())) return {false, NotReady(name)};
  const QString refusal = spooled ? AnswerOfSpooler() : QString();
  if (!refusal.isEmpty()) return {false, Refused(name, refusal)};
  return {true, std::nullopt};
}

PrintResult QtPrinter::PrintIntoFile(Form& form) {
  QBuffer pdf;
  pdf.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&pdf);
    writer.setResolution(kFileResolution);
    writer.setPageSize(FilePageSize());
    writer.setTitle(QString::fromStdString(form.caption));
    writer.setCreator("Melvado");
    Draw(writer, form);
  }
  const QString name = NameOf(form, targets_.now());
  std::optional<Notice> trouble;
  for (const QString& folder : targets_.folders) {
    const Written written = WriteNew(QDir(folder), name, pdf.data());
    if (!written.file.isEmpty()) return {true, SavedAs(written.file)};
    if (!trouble) trouble = NotSaved(folder, written.trouble);
  }
  return {false, trouble};
}

/// Returns false when the device cannot be drawn on, or gave up.
bool QtPrinter::Draw(QPagedPaintDevice& device, Form& form) {
  device.setPageOrientation(orientation_ == Orientation::kLandscape ? QPageLayout::Landscape
                                                                    : QPageLayout::Portrait);
  device.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
  QPainter painter;
  if (!painter.begin(&device)) return false;
  Page page(form, loop_, pictures_, nullptr);
  page.PrintOn(painter, QSize(device.width(), device.height()));
  return painter.end();
}

}  // namespace vmod17

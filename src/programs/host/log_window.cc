// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "programs/host/log_window.h"

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/text_ids.h"
#include "programs/host/dialog_look.h"

namespace melvado {
namespace {

namespace text_id = vmod17::text_id;

using vmod17::LogEntry;
using vmod17::QtEventLoop;
using vmod17::Texts;

enum Column { kTime, kPlace, kNumber, kText, kSource, kColumns };

}  // namespace

LogWindow::LogWindow(Host& host, QtEventLoop& loop, QWidget* parent)
    : QDialog(parent),
      host_(host),
      loop_(loop),
      lines_(new QTableWidget(0, kColumns, this)),
      line_(new QPlainTextEdit(this)),
      note_(new QLabel(this)) {
  lines_->setObjectName("lines");
  lines_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lines_->setSelectionBehavior(QAbstractItemView::SelectRows);
  lines_->setSelectionMode(QAbstractItemView::SingleSelection);
  lines_->setTabKeyNavigation(false);
  lines_->setWordWrap(false);
  lines_->setShowGrid(false);
  lines_->verticalHeader()->hide();
  lines_->horizontalHeader()->setHighlightSections(false);
  lines_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(lines_, &QTableWidget::currentCellChanged, this, [this](int row) { ShowLine(row); });
  // An assistive technology selects a line without going there.
  connect(lines_, &QTableWidget::itemSelectionChanged, this, [this] {
    const QList<QTableWidgetItem*> selected = lines_->selectedItems();
    if (!selected.isEmpty()) ShowLine(selected.front()->row());
  });
  line_->setObjectName("line");
  line_->setReadOnly(true);
  line_->setTabChangesFocus(true);
  note_->setObjectName("note");
  note_->setTextFormat(Qt::PlainText);
  note_->setWordWrap(true);
  refresh_ = MakeButton("refresh", [this] { Read(); });
  copy_ = MakeButton("copy", [this] { Copy(); });
  close_ = MakeButton("close", [this] { close(); });
  close_->setDefault(true);

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(refresh_);
  buttons->addWidget(copy_);
  buttons->addWidget(note_, 1);
  buttons->addWidget(close_);
  auto* const all = new QVBoxLayout(this);
  all->addWidget(lines_, 4);
  all->addWidget(line_, 1);
  all->addLayout(buttons);
}

QPushButton* LogWindow::MakeButton(const char* name, std::function<void()> act) {
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  // The style's least width would let the note beside it cut the words.
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(button, &QPushButton::clicked, this,
          [this, act = std::move(act)] { loop_.Deliver(act); });
  return button;
}

void LogWindow::Open(double factor) {
  DressDialog(*this, factor);
  ShowWords();
  resize(qRound(920 * factor), qRound(600 * factor));
  lines_->horizontalHeader()->setFont(font());
  lines_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
  Read();
  show();
  raise();
  activateWindow();
  lines_->setFocus();
}

void LogWindow::ShowWords() {
  const Texts& texts = host_.texts();
  setWindowTitle(texts.Say(text_id::kLog, "Log"));
  lines_->setHorizontalHeaderLabels(
      {texts.Say(text_id::kLogTime, "Time"), texts.Say(text_id::kLogPlace, "Place"),
       texts.Say(text_id::kLogNumber, "Number"), texts.Say(text_id::kLogText, "Text"),
       texts.Say(text_id::kLogSource, "Source")});
  lines_->setAccessibleName(windowTitle());
  line_->setAccessibleName(texts.Say(text_id::kLogText, "Text"));
  refresh_->setText(texts.Say(text_id::kRefresh, "Refresh"));
  copy_->setText(texts.Say(text_id::kCopyAsFaultReport, "Copy as a fault report"));
  close_->setText(texts.Say(text_id::kClose, "Close"));
}

QString LogWindow::ShownTime(const std::string& at) const {
  const QString text = QString::fromStdString(at);
  const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
  const QLocale& locale = host_.texts().locale();
  if (!time.isValid()) return text;
  return locale.toString(time.date(), QLocale::ShortFormat) + ' ' + time.toString("hh:mm:ss");
}

void LogWindow::Read() {
  note_->clear();
  entries_ = host_.Log();
  lines_->setRowCount(static_cast<int>(entries_.size()));
  for (int row = 0; row < lines_->rowCount(); ++row) {
    const LogEntry& entry = entries_[static_cast<std::size_t>(row)];
    const bool is_error = entry.kind == LogEntry::Kind::kError;
    const auto set = [&](Column column, const QString& text) {
      lines_->setItem(row, column, new QTableWidgetItem(text.simplified()));
    };
    set(kTime, ShownTime(entry.at));
    set(kPlace, QString::fromStdString(entry.place));
    set(kNumber, is_error ? QString::number(entry.number) : QString());
    set(kText, QString::fromStdString(entry.text));
    set(kSource, QString::fromStdString(entry.source));
  }
  lines_->resizeColumnsToContents();
  const int widest = width() / 2;
  for (int column = 0; column < kColumns; ++column) {
    if (lines_->columnWidth(column) > widest) lines_->setColumnWidth(column, widest);
  }
  lines_->horizontalHeader()->setSectionResizeMode(kText, QHeaderView::Stretch);
  lines_->setCurrentCell(lines_->rowCount() - 1, 0);
  lines_->scrollToBottom();
  ShowLine(lines_->rowCount() - 1);
}

void LogWindow::ShowLine(int row) {
  if (row < 0 || row >= static_cast<int>(entries_.size())) {
    line_->setPlainText(host_.texts().Say(text_id::kLogIsEmpty, "The log is empty."));
    return;
  }
  const LogEntry& entry = entries_[static_cast<std::size_t>(row)];
  QString text = ShownTime(entry.at) + '\n' + QString::fromStdString(entry.text);
  if (entry.kind == LogEntry::Kind::kError) {
    text += '\n' + QString::fromStdString(entry.place) + ", " + QString::number(entry.number) +
            ", " + QString::fromStdString(entry.source);
  }
  line_->setPlainText(text);
}

void LogWindow::Copy() {
  QGuiApplication::clipboard()->setText(QString::fromStdString(host_.Report()));
  note_->setText(
      host_.texts().Say(text_id::kReportInClipboard,
                        "The report is in the clipboard and can be pasted into a mail."));
}

}  // namespace melvado

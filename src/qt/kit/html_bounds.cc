// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/html_bounds.h"

#include <QHash>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <utility>

namespace vmod17 {
namespace {

// The largest page of the program has 15 KB, nests eight elements and has 72 cells. At any one of
// these bounds the toolkit takes well below a second, with one table more in another twice as long.
constexpr qsizetype kLargestPage = 128 << 10;
constexpr int kDeepest = 40;
constexpr int kMostCells = 800;
constexpr int kDeepestTable = 4;
constexpr qint64 kMostPlaces = 2500;

/// Reads tags as the toolkit does, which takes more for one than the language allows.
class Scanner {
 public:
  explicit Scanner(const QString& page) : page_(page) {}

  HtmlTags Scan() {
    for (at_ = page_.indexOf('<'); at_ >= 0; at_ = page_.indexOf('<', at_)) {
      ++at_;
      SkipSpace();
      if (Take('!')) {
        SkipTo(Take('-') && Take('-') ? "-->" : ">");
      } else if (Take('/')) {
        End(Word().toLower());
        SkipTo(">");
      } else {
        Begin(Word().toLower());
      }
    }
    return tags_;
  }

 private:
  void Begin(const QString& name) {
    const int spanned = Attributes();
    if (name == "td" || name == "th") Add(spanned);
    if (name == "tr") Add(1);
    const bool ended = TakeRest();
    if (ended || IsOftenLeftOpen(name)) return;
    ++open_[name];
    tags_.depth = std::max(tags_.depth, ++depth_);
  }

  /// Only counted by name: what else an end tag ends of those in between, the toolkit may have
  /// ended before, and have left open what would be taken for ended here.
  void End(const QString& name) {
    const auto open = open_.find(name);
    if (open == open_.end() || *open == 0) return;
    --*open;
    --depth_;
  }

  /// They end by what follows, at no cost.
  static bool IsOftenLeftOpen(const QString& name) {
    static const QStringList kNames = {"p",  "br", "hr", "img", "meta", "li",
                                       "td", "th", "tr", "dt",  "dd"};
    return kNames.contains(name);
  }

  /// Returns how many rows and columns the element's cell takes, were it one.
  int Attributes() {
    int spanned = 1;
    while (at_ < page_.size()) {
      SkipSpace();
      if (Sees('>') || Sees('/')) break;
      const QString name = Word().toLower();
      if (name.isEmpty()) break;
      SkipSpace();
      if (!Take('=')) continue;
      SkipSpace();
      const QString value = Word();
      // A name or number with a sign that is spelt out could be any.
      if (name.contains('&')) spanned = kMostCells + 1;
      if (name != "colspan" && name != "rowspan") continue;
      bool is_small = false;
      const int number = value.toInt(&is_small);
      is_small = (is_small && number <= kMostCells) || value.isEmpty();
      spanned += is_small ? std::max(number - 1, 0) : kMostCells;
    }
    return spanned;
  }

  void Add(int cells) { tags_.cells = std::min(tags_.cells + cells, kMostCells + 1); }

  /// A name or value, in quotes or not.
  QString Word() {
    for (const char quote : {'"', '\''}) {
      if (!Take(quote)) continue;
      const qsizetype begin = at_;
      SkipTo(QString(quote));
      const bool closed = at_ > begin && page_[at_ - 1] == quote;
      return page_.mid(begin, at_ - begin - (closed ? 1 : 0));
    }
    const qsizetype begin = at_;
    for (; at_ < page_.size() && !page_[at_].isSpace(); ++at_) {
      if (Sees('>') || Sees('<') || Sees('=')) break;
      if (Sees('/') && at_ + 1 < page_.size() && page_[at_ + 1] == '>') break;
    }
    return page_.mid(begin, at_ - begin);
  }

  /// To the end of the tag; true when that ends the element, too.
  bool TakeRest() {
    const qsizetype begin = at_;
    SkipTo(">");
    return QStringView(page_).mid(begin, at_ - begin).contains('/');
  }

  bool Sees(char sign) const { return at_ < page_.size() && page_[at_] == sign; }
  bool Take(char sign) {
    const bool sees = Sees(sign);
    if (sees) ++at_;
    return sees;
  }
  void SkipSpace() {
    while (at_ < page_.size() && page_[at_].isSpace()) ++at_;
  }
  /// Past the next `end`, or to the end of the page.
  void SkipTo(const QString& end) {
    const qsizetype found = page_.indexOf(end, at_);
    at_ = found < 0 ? page_.size() : found + end.size();
  }

  const QString& page_;
  qsizetype at_ = 0;
  QHash<QString, int> open_;
  int depth_ = 0;
  HtmlTags tags_;
};

/// Opens nothing of what its page names.
class ClosedDocument : public QTextDocument {
 protected:
  QVariant loadResource(int, const QUrl&) override { return {}; }
};

void AddTables(const QTextFrame& frame, int depth, HtmlTables& tables) {
  for (const QTextFrame* const child : frame.childFrames()) {
    const auto* const table = qobject_cast<const QTextTable*>(child);
    if (table != nullptr) tables.places += qint64{table->rows()} * table->columns();
    const int depth_here = depth + (table != nullptr ? 1 : 0);
    tables.depth = std::max(tables.depth, depth_here);
    AddTables(*child, depth_here, tables);
  }
}

}  // namespace

HtmlTags TagsOf(const QString& page) { return Scanner(page).Scan(); }

HtmlTables TablesOf(const QString& page) {
  ClosedDocument read;
  read.setUndoRedoEnabled(false);
  read.setHtml(page);
  HtmlTables tables;
  AddTables(*read.rootFrame(), 0, tables);
  return tables;
}

bool CanBeLaidOut(const QString& page) {
  if (page.size() > kLargestPage) return false;
  const HtmlTags tags = TagsOf(page);
  if (tags.depth > kDeepest || tags.cells > kMostCells) return false;
  const HtmlTables tables = TablesOf(page);
  return tables.depth <= kDeepestTable && tables.places <= kMostPlaces;
}

}  // namespace vmod17

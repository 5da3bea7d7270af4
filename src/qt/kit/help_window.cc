// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/help_window.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QTextBrowser>
#include <QWindow>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/language_code.h"
#include "base/text_ids.h"
#include "base/usual_words.h"
#include "qt/kit/html_bounds.h"
#include "qt/kit/look.h"
#include "qt/kit/window_factor.h"

namespace vmod17 {
namespace {

constexpr double kText = 15;    // height of the type of the pages
constexpr double kBar = 56;     // height of the strip with the buttons
constexpr double kMargin = 12;  // around the page
constexpr double kInside = 22;  // between the page's edge and its words
constexpr double kZoomStep = 1.15;
constexpr double kLeastZoom = 0.7;
constexpr double kMostZoom = 2.5;
constexpr QSize kUsualSize{760, 680};
constexpr QSize kLeastSize{420, 300};
constexpr qint64 kLargestFile = 16 << 20;
constexpr char kScheme[] = "help";
constexpr char kEnglish[] = "en";
constexpr char kContentsPage[] = "index";

const Notice kContentsWord{text_id::kHelpContents, "Contents", {}};
const Notice kBackWord{text_id::kHelpBack, "Back", {}};
const Notice kForwardWord{text_id::kHelpForward, "Forward", {}};
/// Above a page that is there in English only, in the language that the reader would have.
const Notice kEnglishOnly{text_id::kHelpIsInEnglish, "This page of the help is in English.", {}};
const Notice kTooLarge{
    text_id::kHelpPageUnshowable,
    "This page of the help cannot be shown: it is too large, or too deeply nested.",
    {}};

Notice NotFound(const std::string& page, const std::string& folders) {
  return {text_id::kHelpPageNotFound,
          "The page “%1” of the help was not found. Help pages are looked for in: %2",
          {page, folders}};
}

QString FileOf(const std::string& language, const std::string& page) {
  return QString::fromStdString(language + "/" + page + ".html");
}

QUrl AddressOf(const QString& file) {
  QUrl address;
  address.setScheme(kScheme);
  address.setPath("/" + file);
  return address;
}

/// The file below the folders that an address names; empty when it names another thing.
QString FileOf(const QUrl& address) {
  if (address.scheme() != kScheme) return {};
  const QString file = QDir::cleanPath(address.path().mid(1));
  return file.startsWith("..") || QDir::isAbsolutePath(file) ? QString() : file;
}

/// A page whose pictures have their words beneath them: the text of a page is all that a reader of
/// the screen has of it.
QString WithWordsOfPictures(QString page) {
  static const QRegularExpression kPicture("(<img[^>]*\\balt=\"([^\"]*)\"[^>]*/>)");
  return page.replace(kPicture, "\\1<br/><span class=\"quiet\">\\2</span>");
}

bool IsWithin(const std::filesystem::path& path, const std::filesystem::path& folder) {
  const auto [ended, differs] =
      std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return ended == folder.end();
}

/// Empty for a file that cannot be read or is too large, as for none.
QByteArray Read(const std::filesystem::path& path) {
  if (path.empty()) return {};
  std::ifstream file(path, std::ios::binary);
  QByteArray bytes(kLargestFile + 1, Qt::Uninitialized);
  file.read(bytes.data(), bytes.size());
  bytes.truncate(file.gcount());
  return bytes.size() > kLargestFile ? QByteArray() : bytes;
}

/// A style sheet, which names the light colours, with others in their places.
QString InColors(const QByteArray& sheet, const look::Palette& colors) {
  using look::Palette;
  QString style = QString::fromUtf8(sheet);
  for (QColor Palette::*const color :
       {&Palette::text, &Palette::quiet_text, &Palette::accent, &Palette::accent_hover,
        &Palette::section, &Palette::hover, &Palette::slot_line}) {
    style.replace((look::kLight.*color).name(), (colors.*color).name());
  }
  return style;
}

}  // namespace

/// Shows what the window finds for an address. The address of a page does not tell the folder, so
/// that a changed page finds the pictures of the others.
class HelpWindow::Browser : public QTextBrowser {
 public:
  explicit Browser(HelpWindow& help) : QTextBrowser(&help), help_(help) {
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTextBrowser::anchorClicked, [this](const QUrl& link) { Follow(link); });
  }

  QVariant loadResource(int type, const QUrl& name) override {
    const QString file = FileOf(source().resolved(name));
    const QByteArray held = Read(help_.Find(file));
    if (type == QTextDocument::ImageResource) return Scaled(QImage::fromData(held));
    if (type == QTextDocument::StyleSheetResource) return InColors(held, help_.style_.colors());
    if (type != QTextDocument::HtmlResource) return QString::fromUtf8(held);
    if (held.isEmpty()) return help_.Missing();
    const QString page = QString::fromUtf8(held);
    if (!CanBeLaidOut(page)) return help_.TooLarge();
    // Words of pictures may be tags, too, which come to count only now.
    const QString shown = help_.WithNote(file, WithWordsOfPictures(page));
    return CanBeLaidOut(shown) ? shown : help_.TooLarge();
  }

 private:
  void Follow(const QUrl& link) {
    const QUrl address = source().resolved(link);
    if (!help_.Find(FileOf(address)).empty()) setSource(address);
  }

  /// Pictures grow with the words between which they stand. One that there is not is an empty one:
  /// the toolkit would look for it in the file system by itself.
  QVariant Scaled(const QImage& picture) const {
    if (picture.isNull()) {
      QImage nothing(1, 1, QImage::Format_ARGB32);
      nothing.fill(Qt::transparent);
      return nothing;
    }
    const double factor = help_.style_.factor;
    if (factor == 1) return picture;
    return picture.scaledToWidth(qRound(picture.width() * factor), Qt::SmoothTransformation);
  }

  HelpWindow& help_;
};

HelpWindow::HelpWindow(std::vector<std::filesystem::path> folders)
    : folders_(std::move(folders)), browser_(new Browser(*this)) {
  setObjectName("help_window");
  const auto add = [this](Button button, const char* name, std::function<void()> act) {
    const Placement place{.rect = {}, .dress = Dress::kQuiet, .text = 15, .align = Align::kCenter};
    buttons_[button] = new PressWidget(this, style_, place);
    buttons_[button]->setObjectName(name);
    connect(buttons_[button], &QAbstractButton::clicked, this, std::move(act));
  };
  add(kContents, "help_contents", [this] { Open(kContentsPage); });
  add(kBack, "help_back", [this] { browser_->backward(); });
  add(kForward, "help_forward", [this] { browser_->forward(); });
  for (const Button button : {kBack, kForward}) buttons_[button]->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, buttons_[kBack], &QWidget::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, buttons_[kForward], &QWidget::setEnabled);
  setTabOrder(browser_, buttons_[kContents]);
  setMinimumSize(kLeastSize);
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::Show(const std::string& page, const std::string& locale) {
  page_ = page;
  locale_ = locale;
  TakeWords();
  TakeType();
  Open(page);
  BringToFront();
}

void HelpWindow::Open(const std::string& page) {
  const QUrl address = AddressOf(FileOf(LanguageOf(page), page));
  if (browser_->source() == address) {
    browser_->reload();  // the file may have been changed since
  } else {
    browser_->setSource(address);
  }
}

std::filesystem::path HelpWindow::Page() const { return Find(FileOf(browser_->source())); }

/// The file in the first folder that has it; empty where none does.
std::filesystem::path HelpWindow::Find(const QString& file) const {
  if (file.isEmpty()) return {};
  for (const std::filesystem::path& folder : folders_) {
    const std::filesystem::path path = folder / file.toStdString();
    std::error_code unreadable;
    if (!std::filesystem::is_regular_file(path, unreadable)) continue;
    // A link in the folder may lead out of it.
    const auto true_path = std::filesystem::canonical(path, unreadable);
    const auto true_folder = std::filesystem::canonical(folder, unreadable);
    if (!unreadable && IsWithin(true_path, true_folder)) return path;
  }
  return {};
}

/// The language in which the page is there, the wanted one first.
std::string HelpWindow::LanguageOf(const std::string& page) const {
  const std::string wanted = LanguageCode(locale_);
  return wanted.empty() || Find(FileOf(wanted, page)).empty() ? kEnglish : wanted;
}

QString HelpWindow::Said(const Notice& notice) const { return QString::fromStdString(say(notice)); }

/// What stands in the place of a page that is not there.
QString HelpWindow::Missing() const {
  QStringList places;
  for (const std::filesystem::path& folder : folders_) {
    places += QString::fromStdString(folder.lexically_normal().string());
  }
  const Notice missing = NotFound(page_, places.join("; ").toStdString());
  return "<p>" + Said(missing).toHtmlEscaped() + "</p>";
}

QString HelpWindow::TooLarge() const { return "<p>" + Said(kTooLarge).toHtmlEscaped() + "</p>"; }

/// A page as it is, or with a line above it when it is not in the language that was asked for.
QString HelpWindow::WithNote(const QString& file, const QString& page) const {
  const std::string wanted = LanguageCode(locale_);
  const bool english = file.startsWith(QString(kEnglish) + '/');
  if (!english || wanted.empty() || wanted == kEnglish) return page;
  const QString note = Said(kEnglishOnly).toHtmlEscaped();
  QString noted = page;
  constexpr char kBody[] = "<body>";
  const qsizetype body = noted.indexOf(kBody);
  return noted.insert(body < 0 ? 0 : body + std::ssize(kBody) - 1,
                      "<p class=\"hint\">" + note + "</p>");
}

void HelpWindow::TakeWords() {
  setWindowTitle(Said(kHelpWord));
  browser_->setAccessibleName(windowTitle());
  const auto name = [this](Button button, const char* caption, const Notice& word) {
    const QString text = Said(word);
    buttons_[button]->SetCaption(QString(caption).arg(text));
    buttons_[button]->setAccessibleName(text);
  };
  name(kContents, "%1", kContentsWord);
  name(kBack, "‹ %1", kBackWord);
  name(kForward, "%1 ›", kForwardWord);
}

/// The pages grow with the window that they explain.
void HelpWindow::TakeType() {
  const QWidget* const window = owner ? owner() : nullptr;
  style_.factor = window == nullptr ? 1 : std::max(1.0, FactorOf(*window));
  const QFont type = look::Type(kText * style_.factor * zoom_, look::Weight::kNormal);
  if (browser_->font() != type) {
    browser_->setFont(type);
    browser_->document()->setDefaultFont(type);
  }
  browser_->document()->setDocumentMargin(kInside * style_.factor);
  Arrange();
}

void HelpWindow::Arrange() {
  const auto px = [this](double units) { return qRound(units * style_.factor); };
  const int height = px(36);
  const int y = px(kBar - 36) / 2;
  const int each = std::min(px(150), (width() - px(2 * kMargin + 16)) / 3);
  int x = px(kMargin);
  for (PressWidget* button : buttons_) {
    button->setGeometry(x, y, each, height);
    x += each + px(8);
  }
  browser_->setGeometry(px(kMargin), px(kBar), width() - 2 * px(kMargin),
                        this->height() - px(kBar) - px(kMargin));
}

void HelpWindow::BringToFront() {
  if (!std::exchange(placed_, true)) {
    const QRect room = screen()->availableGeometry();
    QRect place(QPoint(), (QSizeF(kUsualSize) * style_.factor).toSize().boundedTo(room.size()));
    place.moveCenter(room.center());
    setGeometry(place);
  }
  StandBefore(QApplication::activeModalWidget());
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  browser_->setFocus(Qt::OtherFocusReason);
}

/// `dialog`  that the window is to belong to; null for none
void HelpWindow::StandBefore(QWidget* dialog) {
  if (dialog_ == dialog) return;
  if (dialog_ != nullptr) dialog_->removeEventFilter(this);
  dialog_ = dialog;
  if (dialog != nullptr) dialog->installEventFilter(this);
  const bool shown = isVisible();
  // Whom a window belongs to is looked at only when it comes up.
  moves_ = true;
  hide();
  winId();
  windowHandle()->setTransientParent(dialog == nullptr ? nullptr : dialog->windowHandle());
  setAttribute(Qt::WA_ShowWithoutActivating);
  setVisible(shown);
  setAttribute(Qt::WA_ShowWithoutActivating, false);
  moves_ = false;
}

void HelpWindow::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), style_.colors().page); }

/// The colours of a page are in its style, which is read with it.
void HelpWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !browser_->source().isEmpty()) browser_->reload();
}

void HelpWindow::resizeEvent(QResizeEvent*) { Arrange(); }

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->key() == Qt::Key_F1 && !page_.empty()) {
    Show(page_, locale_);
  } else if (event->matches(QKeySequence::ZoomIn) || event->matches(QKeySequence::ZoomOut)) {
    const double step = event->matches(QKeySequence::ZoomIn) ? kZoomStep : 1 / kZoomStep;
    zoom_ = std::clamp(zoom_ * step, kLeastZoom, kMostZoom);
    TakeType();
  } else {
    QWidget::keyPressEvent(event);
  }
}

/// The keyboard goes back to the program even where no window manager sees to it.
void HelpWindow::hideEvent(QHideEvent*) {
  if (moves_ || isMinimized()) return;
  QWidget* window = dialog_;
  if (window == nullptr && owner) window = owner();
  if (window != nullptr && window->isVisible()) window->activateWindow();
}

/// The dialog goes; another one may still wait behind it.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == dialog_ && event->type() == QEvent::Hide) {
    StandBefore(QApplication::activeModalWidget());
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace vmod17

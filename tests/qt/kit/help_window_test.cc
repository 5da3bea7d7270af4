// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/help_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QWindow>
#include <QXmlStreamReader>
#include <map>
#include <string>

#include "qt/desk/qt_event_loop.h"
#include "qt/desk/qt_system.h"
#include "qt/finished_test.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/qt_view.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::ResultOf;

// --- the pages of the program

const QDir& Pages() {
  static const QDir pages(PROGRAM_HELP);
  return pages;
}

std::vector<QString> PagesOf(const QString& language) {
  const QStringList files = QDir(Pages().filePath(language)).entryList({"*.html"}, QDir::Files);
  return {files.begin(), files.end()};
}

std::vector<QString> AllPages() {
  std::vector<QString> pages;
  for (const char* language : {"de", "en"}) {
    for (const QString& page : PagesOf(language)) pages.push_back(language + ("/" + page));
  }
  return pages;
}

QByteArray Read(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What a page names in its links, pictures and style sheets; `error` takes what is wrong with it.
QStringList NamedIn(const QString& page, QString& error) {
  QXmlStreamReader reader(Read(Pages().filePath(page)));
  QStringList named;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    for (const char* name : {"href", "src"}) {
      const QString value = reader.attributes().value(QLatin1String(name)).toString();
      if (!value.isEmpty()) named += value;
    }
  }
  error = reader.hasError() ? reader.errorString() : QString();
  return named;
}

bool IsPicture(const QString& named) { return named.endsWith(".png"); }

TEST(HelpPages, HaveEachScreenInBothLanguages) {
  for (const char* page : {"melvado", "user", "log", "grd_einst", "einstellung1", "arbeitsblatt1",
                           "testergebnis", "modes", "score", "sound", "index"}) {
    EXPECT_THAT(PagesOf("de"), Contains(QString(page) + ".html")) << page;
  }
  EXPECT_EQ(PagesOf("de"), PagesOf("en"));
}

TEST(HelpPages, AreWellFormed) {
  for (const QString& page : AllPages()) {
    QString error;
    NamedIn(page, error);
    EXPECT_EQ(error, "") << page.toStdString();
  }
}

TEST(HelpPages, NameOnlyWhatIsThere) {
  for (const QString& page : AllPages()) {
    QString error;
    for (const QString& named : NamedIn(page, error)) {
      const QString path = QDir(QFileInfo(Pages().filePath(page)).path()).filePath(named);
      EXPECT_TRUE(QFile::exists(path)) << page.toStdString() << " names " << named.toStdString();
      if (IsPicture(named)) {
        EXPECT_FALSE(QImage(path).isNull()) << named.toStdString();
      }
    }
  }
}

TEST(HelpPages, HaveAPictureEach) {
  for (const QString& page : AllPages()) {
    QString error;
    EXPECT_THAT(NamedIn(page, error), Contains(ResultOf(IsPicture, true))) << page.toStdString();
  }
}

TEST(HelpPages, AreReachedFromTheContents) {
  for (const char* language : {"de/", "en/"}) {
    QString error;
    const QStringList named = NamedIn(QString(language) + "index.html", error);
    for (const QString& page : PagesOf(QString(language).left(2))) {
      const bool reached = page == "index.html" || named.contains(page);
      EXPECT_TRUE(reached) << page.toStdString();
    }
  }
}

TEST(HelpPages, ReferToNoPictureInVain) {
  QStringList named;
  QString error;
  for (const QString& page : AllPages()) named += NamedIn(page, error);
  for (const QString& picture : QDir(Pages().filePath("pictures")).entryList(QDir::Files)) {
    EXPECT_TRUE(named.contains("../pictures/" + picture)) << picture.toStdString();
  }
}

// --- the window

/// A folder of pages that a test writes.
class Folder {
 public:
  std::filesystem::path path() const { return dir_.path().toStdString(); }
  void Write(const QString& name, const QByteArray& text) const {
    const QString file = dir_.filePath(name);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(text);
  }

 private:
  QTemporaryDir dir_;
};

QTextBrowser& BrowserOf(HelpWindow& help) { return *help.findChild<QTextBrowser*>(); }
std::string TextOf(HelpWindow& help) { return BrowserOf(help).toPlainText().toStdString(); }
QAbstractButton& ButtonOf(HelpWindow& help, const char* name) {
  return *help.findChild<QAbstractButton*>(name);
}

TEST(HelpWindow, ShowsEveryPageOfTheProgram) {
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  for (const QString& page : PagesOf("de")) {
    help.Show(QFileInfo(page).baseName().toStdString(), "de_DE");
    EXPECT_EQ(help.Page(), std::filesystem::path(PROGRAM_HELP) / "de" / page.toStdString());
    EXPECT_GT(BrowserOf(help).document()->characterCount(), 500) << page.toStdString();
  }
}

TEST(HelpWindow, SaysEachPictureInWords) {
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  int pictures = 0;
  for (const char* language : {"de", "en"}) {
    for (const QString& page : PagesOf(language)) {
      QFile file(QString("%1/%2/%3").arg(PROGRAM_HELP, language, page));
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      const QString source = QString::fromUtf8(file.readAll());
      help.Show(QFileInfo(page).baseName().toStdString(), language);
      static const QRegularExpression kPicture("<img[^>]*alt=\"([^\"]+)\"");
      for (auto each = kPicture.globalMatch(source); each.hasNext(); ++pictures) {
        const std::string words = each.next().captured(1).toStdString();
        EXPECT_NE(TextOf(help).find(words), std::string::npos) << language << ": " << words;
      }
    }
  }
  EXPECT_GT(pictures, 20);
}

TEST(HelpWindow, DressesThePagesByTheirStyleSheet) {
  Folder folder;
  folder.Write("look.css", "p { color: #123456; }");
  folder.Write("de/a.html",
               "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"../look.css\"/>"
               "</head><body><p>Wort</p></body></html>");
  HelpWindow help({folder.path()});
  help.Show("a", "de");
  const QTextBlock block = BrowserOf(help).document()->firstBlock();
  EXPECT_EQ(block.begin().fragment().charFormat().foreground().color(), QColor(0x12, 0x34, 0x56));
}

TEST(HelpWindow, FallsBackToEnglish) {
  Folder folder;
  folder.Write("de/a.html", "<p>deutsch</p>");
  folder.Write("en/a.html", "<p>English</p>");
  HelpWindow help({folder.path()});
  help.Show("a", "de_AT");
  EXPECT_EQ(TextOf(help), "deutsch");
  for (const char* locale : {"", "../de", "en-GB"}) {
    help.Show("a", locale);
    EXPECT_EQ(TextOf(help), "English") << locale;
  }
  help.Show("a", "ja_JP");
  EXPECT_THAT(TextOf(help), testing::EndsWith("\nEnglish"));
}

TEST(HelpWindow, PrefersTheFirstFolderFileByFile) {
  Folder own;
  Folder programs;
  own.Write("de/a.html", "<p>eigene</p>");
  programs.Write("de/a.html", "<p>mitgelieferte</p>");
  programs.Write("de/b.html", "<p>zweite</p>");
  HelpWindow help({own.path(), programs.path()});
  help.Show("a", "de");
  EXPECT_EQ(TextOf(help), "eigene");
  emit BrowserOf(help).anchorClicked(QUrl("b.html"));
  EXPECT_EQ(TextOf(help), "zweite");
  EXPECT_EQ(help.Page(), programs.path() / "de" / "b.html");
}

TEST(HelpWindow, TellsWhereItLooksForAPageThatIsMissing) {
  Folder folder;
  HelpWindow help({folder.path(), "/nowhere/at/all"});
  help.Show("arbeitsblatt1", "de");
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.Page(), "");
  EXPECT_THAT(TextOf(help), HasSubstr("arbeitsblatt1"));
  EXPECT_THAT(TextOf(help), HasSubstr(folder.path().string()));
  EXPECT_THAT(TextOf(help), HasSubstr("/nowhere/at/all"));
  folder.Write("en/arbeitsblatt1.html", "<p>da</p>");
  help.Show("arbeitsblatt1", "de");
  EXPECT_THAT(TextOf(help), testing::EndsWith("\nda"));
}

TEST(HelpWindow, StaysReadableWithAMissingPictureAndBrokenMarkup) {
  Folder folder;
  folder.Write("en/a.html",
               "<h1>Kopf<p>vor <img src=\"../none.png\"/> nach <b>fett</i> <table><td>x");
  HelpWindow help({folder.path()});
  help.Show("a", "en");
  for (const char* word : {"Kopf", "vor", "nach", "fett", "x"}) {
    EXPECT_THAT(TextOf(help), HasSubstr(word));
  }
  folder.Write("en/a.html", "");
  help.Show("a", "en");
  EXPECT_THAT(TextOf(help), HasSubstr(folder.path().string()));
}

TEST(HelpWindow, SaysInTheReadersLanguageThatAPageIsInEnglish) {
  Folder folder;
  folder.Write("en/a.html", "<html><body class=\"x\"><p>first</p></body></html>");
  folder.Write("en/b.html", "<html><body><h1>second</h1></body></html>");
  folder.Write("de/b.html", "<p>zweite</p>");
  HelpWindow help({folder.path()});
  help.say = [](const Notice& notice) -> std::string {
    return notice.text_id == 9631 ? "Cette page est en anglais & c'est tout." : InEnglish(notice);
  };
  help.Show("b", "fr_FR");
  EXPECT_EQ(TextOf(help), "Cette page est en anglais & c'est tout.\nsecond");
  help.Show("a", "fr");
  EXPECT_THAT(TextOf(help), testing::StartsWith("Cette page est en anglais"));
  emit BrowserOf(help).anchorClicked(QUrl("b.html"));
  EXPECT_THAT(TextOf(help), testing::StartsWith("Cette page est en anglais"));
  help.Show("b", "de_DE");
  EXPECT_EQ(TextOf(help), "zweite");
  for (const char* english : {"en_GB", "en", ""}) {
    help.Show("b", english);
    EXPECT_EQ(TextOf(help), "second") << english;
  }
}

TEST(HelpWindow, FollowsNoLinkThatLeadsOut) {
  Folder folder;
  folder.Write("help/en/a.html", "<p>hier</p>");
  folder.Write("secret.html", "<p>draussen</p>");
  std::filesystem::create_symlink(folder.path() / "secret.html",
                                  folder.path() / "help/en/linked.html");
  HelpWindow help({folder.path() / "help"});
  help.Show("a", "en");
  for (const QString& link :
       {QString("https://example.org/en/a.html"), QString("../../secret.html"),
        "file://" + QString::fromStdString((folder.path() / "secret.html").string()),
        QString("help:/../secret.html"), QString("missing.html"), QString("help:////etc/passwd"),
        "help:///" + QString::fromStdString((folder.path() / "secret.html").string()),
        QString("linked.html")}) {
    emit BrowserOf(help).anchorClicked(QUrl(link));
    EXPECT_EQ(TextOf(help), "hier") << link.toStdString();
  }
}

TEST(HelpWindow, ShowsNoPictureFromOutside) {
  Folder folder;
  QImage red(40, 40, QImage::Format_RGB32);
  red.fill(Qt::red);
  red.save(QString::fromStdString(folder.path() / "secret.png"));
  const std::string secret = (folder.path() / "secret.png").string();
  folder.Write("help/en/a.html", "<p>hier</p>");
  std::filesystem::create_symlink(secret, folder.path() / "help/en/linked.png");
  HelpWindow help({folder.path() / "help"});
  help.Show("a", "en");
  for (const std::string& name : {"help:///" + secret, "file://" + secret, secret,
                                  std::string("../../secret.png"), std::string("linked.png")}) {
    const QVariant picture = BrowserOf(help).loadResource(QTextDocument::ImageResource,
                                                          QUrl(QString::fromStdString(name)));
    EXPECT_EQ(picture.value<QImage>().size(), QSize(1, 1)) << name;
    // What the toolkit does not get it may look for by itself.
    folder.Write("help/en/b.html", QByteArray("<p><img src=\"") + name.c_str() + "\"/></p>");
    help.Show("b", "en");
    const QImage shown = BrowserOf(help).viewport()->grab().toImage();
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        ASSERT_NE(shown.pixelColor(x, y), QColor(Qt::red)) << name;
      }
    }
  }
}

TEST(HelpWindow, RefusesInWordsAPageThatCannotBeLaidOut) {
  Folder folder;
  folder.Write("en/deep.html", QByteArray("<table><tr><td>").repeated(20'000) + "x");
  folder.Write("en/large.html", QByteArray("<p>words and words</p>").repeated(10'000));
  folder.Write("en/wide.html", "<table><tr><td colspan=\"99999999\">x</td></tr></table>");
  folder.Write("en/nested.html", QByteArray("<table><tr><td>").repeated(20) + "x");
  folder.Write("en/told.html",
               QByteArray("<img alt=\"</span><table><tr><td>\"/>").repeated(20) + "x");
  folder.Write("en/good.html", QByteArray("<div>").repeated(30) + "good");
  HelpWindow help({folder.path()});
  for (const char* page : {"deep", "large", "wide", "nested", "told"}) {
    help.Show(page, "en");
    EXPECT_THAT(TextOf(help), testing::StartsWith("This page of the help cannot be shown")) << page;
  }
  help.Show("good", "en");
  EXPECT_EQ(TextOf(help), "good");
}

TEST(HelpWindow, GoesBackForwardAndToTheContents) {
  Folder folder;
  folder.Write("en/index.html", "<p>contents</p>");
  folder.Write("en/a.html", "<p>first</p>");
  folder.Write("en/b.html", "<p>second</p>");
  HelpWindow help({folder.path()});
  help.Show("a", "en");
  EXPECT_FALSE(ButtonOf(help, "help_back").isEnabled());
  help.Show("b", "en");
  ButtonOf(help, "help_back").click();
  EXPECT_EQ(TextOf(help), "first");
  ButtonOf(help, "help_forward").click();
  EXPECT_EQ(TextOf(help), "second");
  EXPECT_FALSE(ButtonOf(help, "help_forward").isEnabled());
  ButtonOf(help, "help_contents").click();
  EXPECT_EQ(TextOf(help), "contents");
  QTest::keyClick(&BrowserOf(help), Qt::Key_F1);
  EXPECT_EQ(TextOf(help), "second");
}

TEST(HelpWindow, NamesItsButtonsInTheWordsThatItIsGiven) {
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  help.say = [](const Notice& notice) {
    static const std::map<int, std::string> kGerman = {{9421, "Hilfe"},
                                                       {9391, "Inhalt"},
                                                       {9392, "Zurück"},
                                                       {9393, "Vor"},
                                                       {9394, "%1 fehlt in %2"}};
    return WithDetails(kGerman.at(notice.text_id), notice.details);
  };
  help.Show("index", "de");
  EXPECT_EQ(help.windowTitle(), "Hilfe");
  EXPECT_EQ(ButtonOf(help, "help_contents").accessibleName(), "Inhalt");
  EXPECT_EQ(ButtonOf(help, "help_back").accessibleName(), "Zurück");
  EXPECT_EQ(ButtonOf(help, "help_forward").accessibleName(), "Vor");
  help.Show("x", "de");
  EXPECT_THAT(TextOf(help), HasSubstr("x fehlt in "));
}

TEST(HelpWindow, ClosesByEscapeAndKeepsItsSize) {
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  help.Show("index", "de");
  help.resize(500, 450);
  QTest::keyClick(&BrowserOf(help), Qt::Key_Escape);
  EXPECT_FALSE(help.isVisible());
  help.Show("modes", "de");
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.size(), QSize(500, 450));
}

TEST(HelpWindow, GrowsItsTypeAndPicturesWithTheProgramsWindow) {
  QImage picture(20, 10, QImage::Format_RGB32);
  picture.fill(Qt::red);
  Folder folder;
  folder.Write("en/a.html", "<p>a <img src=\"../p.png\"/></p>");
  ASSERT_TRUE(picture.save(QString::fromStdString((folder.path() / "p.png").string())));
  QWidget window;
  HelpWindow help({folder.path()});
  help.owner = [&window] { return &window; };
  const auto width = [&help] {
    return BrowserOf(help)
        .document()
        ->resource(QTextDocument::ImageResource, QUrl("../p.png"))
        .value<QImage>()
        .width();
  };
  window.setFont(look::Type(14, look::Weight::kNormal));
  help.Show("a", "en");
  EXPECT_EQ(width(), 20);
  const int usual = BrowserOf(help).font().pixelSize();
  window.setFont(look::Type(28, look::Weight::kNormal));
  help.Show("a", "en");
  EXPECT_EQ(BrowserOf(help).font().pixelSize(), 2 * usual);
  EXPECT_EQ(width(), 40);
}

TEST(HelpWindow, ChangesTheSizeOfItsTypeByKey) {
  HelpWindow help({std::filesystem::path(PROGRAM_HELP)});
  help.Show("index", "de");
  const int usual = BrowserOf(help).font().pixelSize();
  QTest::keyClick(&BrowserOf(help), Qt::Key_Plus, Qt::ControlModifier);
  const int larger = BrowserOf(help).font().pixelSize();
  EXPECT_GT(larger, usual);
  help.Show("modes", "de");
  EXPECT_EQ(BrowserOf(help).font().pixelSize(), larger);
  QTest::keyClick(&BrowserOf(help), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(BrowserOf(help).font().pixelSize(), usual);
  for (int i = 0; i < 30; ++i) {
    QTest::keyClick(&BrowserOf(help), Qt::Key_Minus, Qt::ControlModifier);
  }
  EXPECT_GE(BrowserOf(help).font().pixelSize(), usual / 2);
}

// --- F1

/// The screens of the program on fakes, with the help behind the key.
class HelpKeyTest : public testing::Test {
 protected:
  HelpKeyTest() {
    view_.on_help = [this](const std::string& form_name) {
      asked_.push_back(form_name);
      help_.Show(form_name, "de");
    };
    help_.owner = [this] { return view_.Window(); };
  }
  ~HelpKeyTest() override {
    for (Form* form : attached_) view_.Detach(*form);
  }

  void Attach(Form& form) {
    view_.Attach(form);
    attached_.push_back(&form);
    view_.Refresh();
  }
  void PressF1() { QTest::keyClick(view_.Window()->focusWidget(), Qt::Key_F1); }
  std::string Page() { return help_.Page().stem().string(); }
  /// Asks a question before the window, and answers it with "no" if `act` does not. Returns what
  /// was answered.
  int WhileAsked(const std::function<void(QMessageBox&)>& act) {
    QMessageBox box(QMessageBox::Question, {}, "?", QMessageBox::Yes | QMessageBox::No,
                    view_.Window());
    box.setDefaultButton(QMessageBox::Yes);
    QTimer::singleShot(0, &box, [&] {
      act(box);
      if (box.isVisible()) box.done(QMessageBox::No);
    });
    return box.exec();
  }

  ProgramFixture p_;
  QtEventLoop qt_loop_;
  ChordPictures pictures_;
  QtView view_{qt_loop_, pictures_};
  HelpWindow help_{{std::filesystem::path(PROGRAM_HELP)}};
  std::vector<Form*> attached_;
  std::vector<std::string> asked_;
};

TEST_F(HelpKeyTest, OpensThePageOfTheScreenInFront) {
  p_.ToFirstScreen();
  Attach(p_.first());
  PressF1();
  EXPECT_EQ(Page(), "grd_einst");
  p_.first().cmdOK.Press();
  Attach(p_.settings_screen());
  p_.loop.Advance(200);
  view_.Refresh();
  PressF1();
  EXPECT_EQ(Page(), "einstellung1");
  ToResults(p_);
  Attach(p_.results());
  PressF1();
  EXPECT_EQ(Page(), "testergebnis");
  EXPECT_THAT(asked_, ElementsAre("grd_einst", "einstellung1", "testergebnis"));
}

TEST_F(HelpKeyTest, OpensThePageOfTheWorksheet) {
  p_.ToWorksheet();
  Attach(p_.worksheet());
  PressF1();
  EXPECT_EQ(Page(), "arbeitsblatt1");
}

TEST_F(HelpKeyTest, HasAPageForEachScreenInBothLanguages) {
  p_.ToFirstScreen();
  p_.first().cmdOK.Press();
  p_.loop.Advance(200);
  ToResults(p_);
  const std::vector<Form*> screens = {&p_.first(), &p_.settings_screen(), &p_.worksheet(),
                                      &p_.results()};
  for (const Form* screen : screens) {
    for (const char* language : {"de", "en"}) {
      help_.Show(screen->name(), language);
      EXPECT_EQ(help_.Page(), std::filesystem::path(PROGRAM_HELP) / language /
                                  (std::string(screen->name()) + ".html"));
    }
  }
}

TEST_F(HelpKeyTest, IsWhatTheHelpButtonSends) {
  p_.ToFirstScreen();
  Attach(p_.first());
  QtSystem().SendKeys("{F1}");
  EXPECT_THAT(asked_, IsEmpty());
  QApplication::processEvents();
  EXPECT_THAT(asked_, ElementsAre("grd_einst"));
}

TEST_F(HelpKeyTest, BringsTheHelpBackToTheScreenInFrontFromItsOwnWindow) {
  p_.ToFirstScreen();
  Attach(p_.first());
  help_.Show("modes", "de");
  QTest::keyClick(&BrowserOf(help_), Qt::Key_F1);
  EXPECT_EQ(Page(), "grd_einst");
}

TEST_F(HelpKeyTest, ShowsThePageOfTheScreenUnderAMessage) {
  p_.ToSettings();
  Attach(p_.settings_screen());
  WhileAsked([&](QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_F1);
    EXPECT_EQ(Page(), "einstellung1");
    EXPECT_TRUE(box.isVisible());
  });
  EXPECT_THAT(asked_, ElementsAre("einstellung1"));
}

TEST_F(HelpKeyTest, CanBeReadWhileAMessageWaitsAndGivesItTheKeyboardBack) {
  p_.ToFirstScreen();
  Attach(p_.first());
  const int answer = WhileAsked([&](QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_F1);
    ASSERT_TRUE(help_.isVisible());
    // Through the window system, as the user's keys come.
    QTest::keyClick(help_.windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::mouseClick(help_.windowHandle(), Qt::LeftButton, {},
                      ButtonOf(help_, "help_contents").geometry().center());
    EXPECT_EQ(Page(), "index");
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &box);
    QTest::keyClick(box.windowHandle(), Qt::Key_Return);
  });
  EXPECT_EQ(answer, QMessageBox::Yes);
}

TEST_F(HelpKeyTest, BringsAHelpThatWasOpenBeforeTheMessageInFrontOfIt) {
  p_.ToFirstScreen();
  Attach(p_.first());
  PressF1();
  ASSERT_EQ(help_.windowHandle()->transientParent(), nullptr);
  WhileAsked([&](QMessageBox& box) {
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(help_.isVisible()) << "not blocked";
    QTest::keyClick(&box, Qt::Key_F1);
    EXPECT_EQ(help_.windowHandle()->transientParent(), box.windowHandle());
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
  });
}

TEST_F(HelpKeyTest, StaysOpenAfterTheMessageOverWhichItWasOpened) {
  p_.ToFirstScreen();
  Attach(p_.first());
  WhileAsked([&](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_F1); });
  EXPECT_TRUE(help_.isVisible());
  EXPECT_EQ(help_.windowHandle()->transientParent(), nullptr);
  QTest::keyClick(help_.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(Page(), "grd_einst");
  QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(help_.isVisible());
  EXPECT_EQ(QApplication::activeWindow(), view_.Window());
}

TEST_F(HelpKeyTest, BelongsToTheOuterMessageAgainWhenTheInnerOneIsAnswered) {
  p_.ToFirstScreen();
  Attach(p_.first());
  WhileAsked([&](QMessageBox& outer) {
    WhileAsked([&](QMessageBox& inner) { QTest::keyClick(&inner, Qt::Key_F1); });
    EXPECT_EQ(help_.windowHandle()->transientParent(), outer.windowHandle());
    QTest::keyClick(help_.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
  });
  PressF1();
  EXPECT_TRUE(help_.isVisible());
  EXPECT_EQ(help_.windowHandle()->transientParent(), nullptr);
}

TEST_F(HelpKeyTest, DoesNotPressAnythingOnTheScreen) {
  p_.ToSettings();
  Attach(p_.settings_screen());
  PressF1();
  EXPECT_TRUE(p_.settings_screen().visible);
  EXPECT_EQ(p_.program.arbeitsblatt1(), nullptr);
  EXPECT_THAT(asked_, Not(IsEmpty()));
}

}  // namespace
}  // namespace vmod17

// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/pugi_settings_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>

namespace vmod17 {
namespace {

namespace fs = std::filesystem;

class TestFolder {
 public:
  TestFolder() {
    std::string name = (fs::temp_directory_path() / "vmod17-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TestFolder() { fs::remove_all(path_); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string operator/(const std::string& name) const { return (path_ / name).string(); }
  int Entries() const { return static_cast<int>(std::distance(fs::directory_iterator(path_), {})); }

 private:
  fs::path path_;
};

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

FixedControl Bestimmen() { return {"Bestimmen", "Bestimmen", "akk_grp", 1, {}, "Gruppe"}; }

FixedSettings Example() {
  return {"vmod17",
          "1",
          "Prüfung ♭9",
          {Bestimmen(), {"Tonraum", "Tonraum#var", "oktav_cmb", 1, 3, "3 Oktaven"}}};
}

class PugiSettingsFilesTest : public testing::Test {
 protected:
  FixedSettings ReadText(const std::string& text) {
    std::ofstream(folder_ / "a.xml", std::ios::binary) << text;
    return files_.Read(folder_ / "a.xml");
  }
  /// "line:column" of the error that a text raises.
  std::string PlaceOfError(const std::string& text) {
    try {
      ReadText(text);
    } catch (const SettingsFileError& error) {
      EXPECT_STRNE(error.what(), "");
      return std::to_string(error.line()) + ":" + std::to_string(error.column());
    }
    return "none";
  }
  /// Id and details of the reason that a text is not read.
  std::string ReasonOfError(const std::string& text) {
    std::ofstream(folder_ / "a.xml", std::ios::binary) << text;
    return ReasonIn(folder_ / "a.xml");
  }
  std::string ReasonIn(const std::string& file) {
    return ReasonOf([&] { files_.Read(file); });
  }
  static std::string ReasonOf(const std::function<void()>& call) {
    try {
      call();
    } catch (const SettingsFileError& error) {
      std::string reason = std::to_string(error.reason().text_id);
      for (const std::string& detail : error.reason().details) reason += " " + detail;
      return reason;
    }
    return "none";
  }
  std::string PlaceOfErrorIn(const std::string& file) {
    try {
      files_.Read(file);
    } catch (const SettingsFileError& error) {
      EXPECT_STRNE(error.what(), "");
      return std::to_string(error.line()) + ":" + std::to_string(error.column());
    }
    return "none";
  }
  /// A whole test with this as its only control.
  static std::string Around(const std::string& control) {
    return "<test>\n<basic><modul>m</modul><type>1</type><description>d</description></basic>\n"
           "<setting>\n" +
           control + "\n</setting>\n</test>\n";
  }

  TestFolder folder_;
  PugiSettingsFiles files_;
};

TEST_F(PugiSettingsFilesTest, WritesTheDocumentInItsFixedFormAndEncoding) {
  files_.Write(folder_ / "test.xml", Example());
  EXPECT_EQ(Content(folder_ / "test.xml"),
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n"
            "<test>\n"
            "  <basic>\n"
            "    <modul>vmod17</modul>\n"
            "    <type>1</type>\n"
            "    <description>Pr\xFC"
            "fung &#9837;9</description>\n"
            "  </basic>\n"
            "  <setting>\n"
            "    <control title=\"Bestimmen\" text=\"Bestimmen\">\n"
            "      <cname>akk_grp</cname>\n"
            "      <index>1</index>\n"
            "      <value text=\"Gruppe\">True</value>\n"
            "    </control>\n"
            "    <control title=\"Tonraum\" text=\"Tonraum#var\">\n"
            "      <cname>oktav_cmb</cname>\n"
            "      <index>1</index>\n"
            "      <value text=\"3 Oktaven\">3</value>\n"
            "    </control>\n"
            "  </setting>\n"
            "</test>\n");
}

TEST_F(PugiSettingsFilesTest, ReadsWhatItHasWritten) {
  files_.Write(folder_ / "test.xml", Example());
  EXPECT_EQ(files_.Read(folder_ / "test.xml"), Example());
  EXPECT_EQ(folder_.Entries(), 1);
}

TEST_F(PugiSettingsFilesTest, LetsOthersReadWhatATeacherWrites) {
  files_.Write(folder_ / "test.xml", Example());
  const auto rights = fs::status(folder_ / "test.xml").permissions();
  EXPECT_NE(rights & fs::perms::others_read, fs::perms::none);
  EXPECT_EQ(rights & fs::perms::others_write, fs::perms::none);
}

TEST_F(PugiSettingsFilesTest, ReadsUtf8WithAndWithoutAMark) {
  const std::string text = Around(
      "<control title='Prüfung' text='Bestimmen'><cname>akk_grp</cname><index>1</index>"
      "<value text='♭9'>True</value></control>");
  for (const std::string before : {"", "\xEF\xBB\xBF", "<?xml version='1.0' encoding='utf-8'?>"}) {
    const FixedSettings test = ReadText(before + text);
    ASSERT_EQ(test.controls.size(), 1U);
    EXPECT_EQ(test.controls[0].title, "Prüfung");
    EXPECT_EQ(test.controls[0].words, "♭9");
  }
}

TEST_F(PugiSettingsFilesTest, ReadsItsOwnEncodingHoweverItIsNamed) {
  for (const std::string declaration :
       {"<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>",
        "<?xml version='1.0' encoding='ISO-8859-1' standalone='yes' ?>",
        "<?xml version='1.0' encoding='Latin1'?>"}) {
    const FixedSettings test =
        ReadText(declaration +
                 "<test><basic><modul>m</modul><type>1</type><description>\xFC</description>"
                 "</basic><setting/></test>");
    EXPECT_EQ(test.description, "ü") << declaration;
  }
}

TEST_F(PugiSettingsFilesTest, TakesBlanksAroundNumbersAndPassesOverWhatItDoesNotKnow) {
  const FixedSettings test = ReadText(
      Around("<!-- by hand --><other/><control title='a' text='b' new='c'><more/>"
             "<cname>n</cname><index> 2 </index><value text='w'>\n-3\n</value></control>"));
  EXPECT_EQ(test.controls, (std::vector<FixedControl>{{"a", "b", "n", 2, -3, "w"}}));
}

TEST_F(PugiSettingsFilesTest, TellsWhereATextIsNotWellFormed) {
  EXPECT_EQ(PlaceOfError("<test>\n  <basic>\n  </setting>\n</test>\n"), "3:5");
  EXPECT_NE(PlaceOfError("<test>\n<basic"), "none");
  EXPECT_NE(PlaceOfError("not a test at all"), "none");
  EXPECT_EQ(PlaceOfError(""), "1:1");
}

TEST_F(PugiSettingsFilesTest, CountsColumnsInCharactersAndNotInBytes) {
  const std::string german = "<basic><modul>üü</modul></oops>";
  const std::string plain = "<basic><modul>uu</modul></oops>";
  EXPECT_EQ(PlaceOfError("<test>\n" + german), PlaceOfError("<test>\n" + plain));
  const std::string latin = "<basic><modul>\xFC\xFC</modul></oops>";
  EXPECT_EQ(PlaceOfError("<?xml version='1.0' encoding='ISO-8859-1'?>\n" + latin),
            PlaceOfError("<test>\n" + plain));
}

TEST_F(PugiSettingsFilesTest, TellsWhichElementLacksAnother) {
  EXPECT_EQ(PlaceOfError("<test>\n  <setting/>\n</test>"), "1:1");
  EXPECT_EQ(PlaceOfError("<test>\n  <basic><modul/><type/></basic><setting/></test>"), "2:3");
  EXPECT_EQ(PlaceOfError("<test><basic><modul/><type/><description/></basic></test>"), "1:1");
  EXPECT_EQ(PlaceOfError(Around(
                " <control title='a' text='b'><cname/><value text='c'>True</value></control>")),
            "4:2");
  EXPECT_EQ(PlaceOfError(Around("<control title='a' text='b'><cname/><index>1</index></control>")),
            "4:1");
  EXPECT_EQ(PlaceOfError(Around("<control title='a' text='b'><index>1</index>"
                                "<value text='c'>True</value></control>")),
            "4:1");
}

TEST_F(PugiSettingsFilesTest, TellsWhichElementLacksAnAttribute) {
  EXPECT_EQ(PlaceOfError(Around("<control text='b'/>")), "4:1");
  EXPECT_EQ(PlaceOfError(Around("<control title='b'/>")), "4:1");
  EXPECT_EQ(PlaceOfError(Around("<control title='a' text='b'><cname/>\n  <index>1</index>\n"
                                "   <value>True</value></control>")),
            "6:4");
}

TEST_F(PugiSettingsFilesTest, TellsWhereAWordStandsForANumber) {
  const auto with = [](const std::string& index, const std::string& value) {
    return Around("<control title='a' text='b'><cname/>\n <index>" + index + "</index>\n  <value " +
                  "text='c'>" + value + "</value></control>");
  };
  EXPECT_EQ(PlaceOfError(with("1", "True")), "none");
  for (const std::string wrong : {"", "eins", "1.5", "1 2", "0x1", "99999999999", "--1", "+1"}) {
    EXPECT_EQ(PlaceOfError(with(wrong, "True")), "5:2") << wrong;
    EXPECT_EQ(PlaceOfError(with("1", wrong)), "6:3") << wrong;
  }
  EXPECT_EQ(PlaceOfError(with("1", "true")), "6:3");
}

TEST_F(PugiSettingsFilesTest, TakesNoOtherRootAndNoSecondOne) {
  EXPECT_EQ(PlaceOfError("\n <exercise/>"), "2:2");
  EXPECT_EQ(PlaceOfError(Around("") + "<test/>"), "7:1");
}

TEST_F(PugiSettingsFilesTest, TellsWhereAByteIsNoCharacter) {
  EXPECT_EQ(PlaceOfError("<test>\n ü\xFC</test>"), "2:3");
  EXPECT_EQ(PlaceOfError(std::string("<test>\0</test>", 14)), "1:7");
}

TEST_F(PugiSettingsFilesTest, RefusesWhatIsNoFileOrCannotBeOpened) {
  EXPECT_EQ(PlaceOfErrorIn(folder_ / "missing.xml"), "0:0");
  EXPECT_EQ(PlaceOfErrorIn(folder_ / ""), "0:0");
  EXPECT_EQ(PlaceOfErrorIn(""), "0:0");
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(PlaceOfErrorIn(folder_ / "pipe"), "0:0");
}

TEST_F(PugiSettingsFilesTest, GivesEachReasonAsATextWithItsDetails) {
  EXPECT_EQ(ReasonIn(folder_ / "missing.xml"), "9611");
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(ReasonIn(folder_ / "folder"), "9613");
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReasonIn(folder_ / "pipe"), "9616");
  EXPECT_EQ(ReasonOfError(std::string(PugiSettingsFiles::kMaxBytes + 1, ' ')), "9617");
  EXPECT_EQ(ReasonOfError("<test>\n ü\xFC</test>"), "9619");
  EXPECT_EQ(ReasonOfError("<test>"), "9620");
  EXPECT_EQ(ReasonOfError("<exercise/>"), "9621 test");
  EXPECT_EQ(ReasonOfError(Around("") + "<test/>"), "9622");
  EXPECT_EQ(ReasonOfError("<test><setting/></test>"), "9623 test basic");
  EXPECT_EQ(ReasonOfError(Around("<control text='b'/>")), "9624 control title");
  EXPECT_EQ(ReasonOfError(Around("<control title='a' text='b'><cname/><index>x</index>"
                                 "<value text='c'>True</value></control>")),
            "9625 index");
}

TEST_F(PugiSettingsFilesTest, GivesTheReasonsWhyItCannotWrite) {
  FixedSettings large = Example();
  large.description.assign(PugiSettingsFiles::kMaxBytes, 'x');
  EXPECT_EQ(ReasonOf([&] { files_.Write(folder_ / "test.xml", large); }), "9618");
  EXPECT_EQ(ReasonOf([&] { files_.Write(folder_ / "missing/test.xml", Example()); }), "9611");
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(ReasonOf([&] { files_.Write(folder_ / "folder", Example()); }), "9613");
  const std::string long_name(300, 'n');
  EXPECT_THAT(ReasonOf([&] { files_.Write(folder_ / long_name, Example()); }),
              testing::StartsWith("9615 "));
}

TEST_F(PugiSettingsFilesTest, RefusesAFileThatIsTooLargeForATest) {
  const std::string test = Around("");
  const std::string blanks(PugiSettingsFiles::kMaxBytes - test.size(), ' ');
  EXPECT_EQ(PlaceOfError(test + blanks), "none");
  EXPECT_EQ(PlaceOfError(test + blanks + " "), "0:0");
}

TEST_F(PugiSettingsFilesTest, StandsDeepNesting) {
  std::string deep;
  while (deep.size() < 500'000) deep += "<control>";
  EXPECT_NE(PlaceOfError(deep), "none");
}

TEST_F(PugiSettingsFilesTest, LeavesAFileAsItWasWhenItCannotBeWritten) {
  files_.Write(folder_ / "test.xml", Example());
  FixedSettings large = Example();
  large.description.assign(PugiSettingsFiles::kMaxBytes, 'x');
  EXPECT_THROW(files_.Write(folder_ / "test.xml", large), SettingsFileError);
  EXPECT_EQ(files_.Read(folder_ / "test.xml"), Example());
  fs::create_directory(folder_ / "folder");
  EXPECT_THROW(files_.Write(folder_ / "folder", Example()), SettingsFileError);
  EXPECT_THROW(files_.Write(folder_ / "missing/test.xml", Example()), SettingsFileError);
  EXPECT_EQ(folder_.Entries(), 2);
}

// --- properties

/// Any text that a document can hold.
rc::Gen<std::string> AnyText() {
  const auto character = rc::gen::oneOf(
      rc::gen::map(rc::gen::inRange(0x20, 0x7F), [](int c) { return std::string(1, char(c)); }),
      rc::gen::elementOf(std::vector<std::string>{
          "ä",    "ß", "\u0085", "\u00A0", "ÿ", "Ā",  "♭", "€",   "𝄞",     "\n",    "\r",  "\t",
          "\r\n", " ", "&",      "<",      ">", "\"", "'", "]]>", "&amp;", "&#65;", "<!--"}));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(character),
                      [](const std::vector<std::string>& parts) {
                        std::string text;
                        for (const std::string& part : parts) text += part;
                        return text;
                      });
}

rc::Gen<FixedSettings> AnyDocument() {
  const auto control = rc::gen::build<FixedControl>(
      rc::gen::set(&FixedControl::title, AnyText()), rc::gen::set(&FixedControl::text, AnyText()),
      rc::gen::set(&FixedControl::cname, AnyText()),
      rc::gen::set(&FixedControl::index, rc::gen::arbitrary<int>()),
      rc::gen::set(&FixedControl::value,
                   rc::gen::oneOf(rc::gen::just(std::optional<int>()),
                                  rc::gen::map(rc::gen::arbitrary<int>(),
                                               [](int n) { return std::optional(n); }))),
      rc::gen::set(&FixedControl::words, AnyText()));
  return rc::gen::build<FixedSettings>(
      rc::gen::set(&FixedSettings::modul, AnyText()), rc::gen::set(&FixedSettings::type, AnyText()),
      rc::gen::set(&FixedSettings::description, AnyText()),
      rc::gen::set(&FixedSettings::controls,
                   rc::gen::container<std::vector<FixedControl>>(control)));
}

RC_GTEST_FIXTURE_PROP(PugiSettingsFilesTest, ReadsEveryDocumentAsItWasWritten, ()) {
  const FixedSettings document = *AnyDocument();
  files_.Write(folder_ / "any.xml", document);
  RC_ASSERT(files_.Read(folder_ / "any.xml") == document);
}

RC_GTEST_FIXTURE_PROP(PugiSettingsFilesTest, ReadsAnySpoiledFileOrSaysThatItCannot, ()) {
  files_.Write(folder_ / "any.xml", Example());
  std::string text = Content(folder_ / "any.xml");
  const int blows = *rc::gen::inRange(1, 6);
  for (int i = 0; i < blows; ++i) {
    const auto at = static_cast<std::size_t>(*rc::gen::inRange<int>(0, int(text.size())));
    const auto count = static_cast<std::size_t>(*rc::gen::inRange(0, 12));
    text.replace(at, count, *rc::gen::arbitrary<std::string>());
    if (text.empty()) break;
  }
  std::ofstream(folder_ / "any.xml", std::ios::binary) << text;
  try {
    files_.Read(folder_ / "any.xml");
  } catch (const SettingsFileError& error) {
    const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
    RC_ASSERT(error.line() >= 1 && error.line() <= lines && error.column() >= 1);
  }
}

}  // namespace
}  // namespace vmod17

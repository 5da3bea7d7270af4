// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/pugi_settings_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

#include "base/text_ids.h"
#include "xml/whole_file.h"
#include "xml/xml_text.h"

namespace vmod17 {
namespace {

constexpr std::string_view kTrue = "True";
constexpr std::string_view kBlanks = " \t\r\n";

// --- writing

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Takes the first character off a well-formed text.
char32_t TakeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const unsigned head = first < 0x80 ? 0x7F : first < 0xE0 ? 0x1F : first < 0xF0 ? 0x0F : 0x07;
  char32_t c = first & head;
  text.remove_prefix(1);
  while (!text.empty() && IsContinuation(text.front())) {
    c = (c << 6) | (static_cast<unsigned char>(text.front()) & 0x3F);
    text.remove_prefix(1);
  }
  return c;
}

/// A text as it stands in the file, between tags or in an attribute. Line ends and tabs are written
/// as references too, since a reader may turn plain ones into something else.
std::string Encoded(const std::string& text) {
  const std::string allowed = XmlText(text);
  std::string encoded;
  for (std::string_view rest = allowed; !rest.empty();) {
    const char32_t c = TakeCharacter(rest);
    const bool plain = (c >= 0x20 && c < 0x7F) || (c >= 0xA0 && c <= 0xFF);
    const bool markup = c == '&' || c == '<' || c == '>' || c == '"' || c == '\'';
    if (plain && !markup) {
      encoded += static_cast<char>(c);
    } else {
      encoded += "&#" + std::to_string(static_cast<unsigned long>(c)) + ";";
    }
  }
  return encoded;
}

std::string ControlText(const FixedControl& control) {
  const std::string value = control.value ? std::to_string(*control.value) : std::string(kTrue);
  return "    <control title=\"" + Encoded(control.title) + "\" text=\"" + Encoded(control.text) +
         "\">\n      <cname>" + Encoded(control.cname) + "</cname>\n      <index>" +
         std::to_string(control.index) + "</index>\n      <value text=\"" + Encoded(control.words) +
         "\">" + value + "</value>\n    </control>\n";
}

std::string DocumentText(const FixedSettings& document) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n<test>\n  <basic>\n    <modul>" +
      Encoded(document.modul) + "</modul>\n    <type>" + Encoded(document.type) +
      "</type>\n    <description>" + Encoded(document.description) +
      "</description>\n  </basic>\n  <setting>\n";
  for (const FixedControl& control : document.controls) text += ControlText(control);
  return text + "  </setting>\n</test>\n";
}

// --- reading

[[noreturn]] void Fail(const Notice& reason) { throw SettingsFileError(reason, 0, 0); }

/// What the system says to one of its error numbers, in the program's words where it has some.
Notice SystemSays(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return {text_id::kFileOrFolderMissing, "The file or its folder does not exist.", {}};
    case EACCES:
    case EPERM:
    case EROFS:
      return {text_id::kAccessDenied, "Access to the file is denied.", {}};
    case EISDIR:
      return {text_id::kIsAFolder, "This is a folder, not a file.", {}};
    case ENOSPC:
    case EDQUOT:
      return {text_id::kDiskFull, "The disk is full.", {}};
    default:
      return {text_id::kSystemSays, "The system says: %1.", {SystemReason(error)}};
  }
}

class OpenFile {
 public:
  // A pipe must not keep the program waiting for a writer.
  explicit OpenFile(const std::string& path)
      : handle_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
    if (handle_ < 0) Fail(SystemSays(errno));
  }
  ~OpenFile() { ::close(handle_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// Up to `most` bytes from where it stands.
  std::string Read(std::size_t most) const {
    std::string bytes(most, '\0');
    std::size_t done = 0;
    while (done < most) {
      const ssize_t got = ::read(handle_, bytes.data() + done, most - done);
      if (got < 0 && errno != EINTR) Fail(SystemSays(errno));
      if (got == 0) break;
      if (got > 0) done += static_cast<std::size_t>(got);
    }
    bytes.resize(done);
    return bytes;
  }
  void NeedRegular() const {
    struct stat facts {};
    if (::fstat(handle_, &facts) != 0) Fail(SystemSays(errno));
    if (S_ISDIR(facts.st_mode)) Fail(SystemSays(EISDIR));
    if (!S_ISREG(facts.st_mode)) {
      Fail({text_id::kNotAReadableFile, "This is not a file that can be read.", {}});
    }
  }

 private:
  int handle_;
};

std::string Bytes(const std::string& path) {
  const OpenFile file(path);
  file.NeedRegular();
  std::string bytes = file.Read(PugiSettingsFiles::kMaxBytes + 1);
  if (bytes.size() > PugiSettingsFiles::kMaxBytes) {
    Fail({text_id::kFileTooLarge, "The file is too large for a test.", {}});
  }
  return bytes;
}

/// Raises the error with the line and column of a place in a UTF-8 text.
[[noreturn]] void FailAt(std::string_view text, std::size_t offset, const Notice& reason) {
  const std::string_view before = text.substr(0, std::min(offset, text.size()));
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t start = before.rfind('\n') + 1;  // npos + 1 is 0
  const std::string_view in_line = before.substr(start);
  const auto column = std::count_if(in_line.begin(), in_line.end(),
                                    [](char byte) { return !IsContinuation(byte); }) +
                      1;
  throw SettingsFileError(reason, static_cast<int>(line), static_cast<int>(column));
}

bool SaysLatin1(std::string_view bytes) {
  if (!bytes.starts_with("<?xml")) return false;
  std::string declaration(bytes.substr(0, bytes.find("?>")));
  for (char& c : declaration) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  const std::size_t at = declaration.find("encoding");
  if (at == std::string::npos) return false;
  const std::string_view rest = std::string_view(declaration).substr(at);
  return rest.find("iso-8859-1\"") != std::string_view::npos ||
         rest.find("iso-8859-1'") != std::string_view::npos ||
         rest.find("latin1") != std::string_view::npos;
}

std::string FromLatin1(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto c = static_cast<unsigned char>(byte);
    if (c < 0x80) {
      text += byte;
    } else {
      text += static_cast<char>(0xC0 | (c >> 6));
      text += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return text;
}

/// The file's text in UTF-8, with nothing in it that XML forbids.
std::string Decoded(std::string bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.erase(0, kMark.size());
  const std::string text = SaysLatin1(bytes) ? FromLatin1(bytes) : bytes;
  const std::string allowed = XmlText(text);
  if (allowed == text) return text;
  const auto wrong = std::mismatch(text.begin(), text.end(), allowed.begin(), allowed.end()).first;
  FailAt(text, static_cast<std::size_t>(wrong - text.begin()),
         {text_id::kUnreadableCharacter, "There is a character that cannot be read.", {}});
}

/// Walks through the elements of a test.
class Reader {
 public:
  explicit Reader(std::string text) : text_(std::move(text)) {
    const pugi::xml_parse_result result = document_.load_buffer(
        text_.data(), text_.size(), pugi::parse_default | pugi::parse_ws_pcdata_single,
        pugi::encoding_utf8);
    if (result) return;
    FailAt(text_, static_cast<std::size_t>(result.offset),
           {text_id::kNotWellFormed, "The text is not well-formed XML.", {}});
  }

  FixedSettings Read() const {
    const pugi::xml_node root = document_.document_element();
    if (root.name() != std::string_view("test")) {
      FailIn(root, {text_id::kRootElementIsNot, "The root element is not \"%1\".", {"test"}});
    }
    for (pugi::xml_node other = root.next_sibling(); other; other = other.next_sibling()) {
      if (other.type() != pugi::node_element) continue;
      FailIn(other, {text_id::kSecondRootElement, "There is a second root element.", {}});
    }
    const pugi::xml_node basic = Child(root, "basic");
    FixedSettings test{Text(basic, "modul"), Text(basic, "type"), Text(basic, "description"), {}};
    for (const pugi::xml_node control : Child(root, "setting").children("control")) {
      test.controls.push_back(ReadControl(control));
    }
    return test;
  }

 private:
  FixedControl ReadControl(pugi::xml_node node) const {
    FixedControl control;
    control.title = Attribute(node, "title");
    control.text = Attribute(node, "text");
    control.cname = Text(node, "cname");
    control.index = Number(Child(node, "index"));
    const pugi::xml_node value = Child(node, "value");
    control.words = Attribute(value, "text");
    if (Trimmed(value) != kTrue) control.value = Number(value);
    return control;
  }

  pugi::xml_node Child(pugi::xml_node parent, const char* name) const {
    const pugi::xml_node child = parent.child(name);
    if (!child) {
      FailIn(parent,
             {text_id::kElementMissing, "\"%1\" has no element \"%2\".", {parent.name(), name}});
    }
    return child;
  }
  std::string Attribute(pugi::xml_node node, const char* name) const {
    const pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute) {
      FailIn(node,
             {text_id::kAttributeMissing, "\"%1\" has no attribute \"%2\".", {node.name(), name}});
    }
    return XmlText(attribute.value());
  }
  std::string Text(pugi::xml_node parent, const char* name) const {
    std::string text;
    for (const pugi::xml_node part : Child(parent, name).children()) text += part.value();
    // A reference can stand for a character that is none.
    return XmlText(text);
  }
  static std::string_view Trimmed(pugi::xml_node node) {
    std::string_view text = node.text().get();
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
  }
  int Number(pugi::xml_node node) const {
    const std::string_view text = Trimmed(node);
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
      FailIn(node, {text_id::kNoWholeNumber, "\"%1\" holds no whole number.", {node.name()}});
    }
    return number;
  }

  [[noreturn]] void FailIn(pugi::xml_node node, const Notice& reason) const {
    // The place of an element is known by its name, one behind the bracket.
    const std::ptrdiff_t at = node.offset_debug();
    FailAt(text_, at > 0 ? static_cast<std::size_t>(at - 1) : 0, reason);
  }

  std::string text_;
  pugi::xml_document document_;
};

}  // namespace

void PugiSettingsFiles::Write(const std::string& file, const FixedSettings& document) {
  const std::string text = DocumentText(document);
  if (text.size() > kMaxBytes) {
    Fail({text_id::kTestTooLarge, "The test is too large for a file.", {}});
  }
  if (const int error = WriteWholeFile(file, text); error != 0) Fail(SystemSays(error));
  // A teacher writes it for others to read. Where the file system knows no rights, nothing is lost.
  static_cast<void>(::chmod(file.c_str(), 0644));
}

FixedSettings PugiSettingsFiles::Read(const std::string& file) {
  return Reader(Decoded(Bytes(file))).Read();
}

}  // namespace vmod17

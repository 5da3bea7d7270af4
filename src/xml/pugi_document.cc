// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "xml/pugi_document.h"

#include <exception>
#include <pugixml.hpp>
#include <utility>

#include "base/run_time_error.h"
#include "base/text_ids.h"
#include "xml/record_file.h"
#include "xml/whole_file.h"
#include "xml/xml_text.h"

namespace vmod17 {
namespace {

constexpr const char* kSource = "vmod17.XmlDocument";

std::string CheckedName(std::string_view name) {
  if (IsXmlName(name)) return std::string(name);
  throw RunTimeError(ErrorNumber::kInvalidCall, "no name for a node: " + std::string(name),
                     kSource);
}

[[noreturn]] void ThrowNoItem(int index) {
  throw RunTimeError(ErrorNumber::kOutOfRange, "no node " + std::to_string(index), kSource);
}

// The lists of an attribute.
class NoNodes : public XmlNodeList {
 public:
  std::unique_ptr<XmlElement> Add(const std::optional<std::string>&, std::string_view) override {
    throw RunTimeError(ErrorNumber::kInvalidCall, "an attribute has no nodes", kSource);
  }
  std::unique_ptr<XmlNodeList> ByName(std::string_view) const override {
    return std::make_unique<NoNodes>();
  }
  std::unique_ptr<XmlElement> Item(int index) const override { ThrowNoItem(index); }
  int Count() const override { return 0; }
};

class AttributeNode : public XmlElement {
 public:
  explicit AttributeNode(pugi::xml_attribute attribute) : attribute_(attribute) {}

  std::string Name() const override { return attribute_.name(); }
  std::string Text() const override { return attribute_.value(); }
  std::unique_ptr<XmlNodeList> Attributes() override { return std::make_unique<NoNodes>(); }
  std::unique_ptr<XmlNodeList> Children() override { return std::make_unique<NoNodes>(); }

 private:
  pugi::xml_attribute attribute_;
};

class ElementNode : public XmlElement {
 public:
  explicit ElementNode(pugi::xml_node node) : node_(node) {}

  std::string Name() const override { return node_.name(); }
  std::string Text() const override { return node_.text().get(); }
  std::unique_ptr<XmlNodeList> Attributes() override;
  std::unique_ptr<XmlNodeList> Children() override;

 private:
  pugi::xml_node node_;
};

// The nodes of `parent`, all or those of one name. `Access` says which nodes and how one is added.
template <typename Access>
class NodeList : public XmlNodeList {
 public:
  explicit NodeList(pugi::xml_node parent, std::optional<std::string> only = {})
      : parent_(parent), only_(std::move(only)) {}

  std::unique_ptr<XmlElement> Add(const std::optional<std::string>& value,
                                  std::string_view name) override {
    return Access::Add(parent_, CheckedName(name), XmlText(value.value_or("")));
  }

  std::unique_ptr<XmlNodeList> ByName(std::string_view name) const override {
    // Of the nodes of one name none has another one.
    if (only_ && *only_ != name) return std::make_unique<NoNodes>();
    return std::make_unique<NodeList>(parent_, std::string(name));
  }

  std::unique_ptr<XmlElement> Item(int index) const override {
    int place = 0;
    for (const auto& node : Access::All(parent_)) {
      if (Shows(node) && ++place == index) return Access::Handle(node);
    }
    ThrowNoItem(index);
  }

  int Count() const override {
    int count = 0;
    for (const auto& node : Access::All(parent_)) count += Shows(node) ? 1 : 0;
    return count;
  }

 private:
  template <typename Node>
  bool Shows(const Node& node) const {
    return Access::IsNode(node) && (!only_ || *only_ == node.name());
  }

  pugi::xml_node parent_;
  std::optional<std::string> only_;
};

struct ChildAccess {
  static auto All(pugi::xml_node parent) { return parent.children(); }
  // The text of an element is a child of its own in the library.
  static bool IsNode(pugi::xml_node node) { return node.type() == pugi::node_element; }
  static std::unique_ptr<XmlElement> Handle(pugi::xml_node node) {
    return std::make_unique<ElementNode>(node);
  }
  static std::unique_ptr<XmlElement> Add(pugi::xml_node parent, const std::string& name,
                                         const std::string& text) {
    pugi::xml_node node = parent.append_child(name.c_str());
    if (!text.empty()) node.append_child(pugi::node_pcdata).set_value(text.c_str());
    return Handle(node);
  }
};

struct AttributeAccess {
  static auto All(pugi::xml_node parent) { return parent.attributes(); }
  static bool IsNode(pugi::xml_attribute) { return true; }
  static std::unique_ptr<XmlElement> Handle(pugi::xml_attribute attribute) {
    return std::make_unique<AttributeNode>(attribute);
  }
  static std::unique_ptr<XmlElement> Add(pugi::xml_node parent, const std::string& name,
                                         const std::string& text) {
    pugi::xml_attribute attribute = parent.attribute(name.c_str());
    if (!attribute) attribute = parent.append_attribute(name.c_str());
    attribute.set_value(text.c_str());
    return Handle(attribute);
  }
};

std::unique_ptr<XmlNodeList> ElementNode::Attributes() {
  return std::make_unique<NodeList<AttributeAccess>>(node_);
}

std::unique_ptr<XmlNodeList> ElementNode::Children() {
  return std::make_unique<NodeList<ChildAccess>>(node_);
}

struct StringWriter : pugi::xml_writer {
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
  std::string text;
};

Notice SavedElsewhereNotice(const std::string& folder, const std::string& reason,
                            const std::string& path) {
  return {text_id::kRecordSavedElsewhere,
          "The record of your exercise could not be saved in the folder %1 (%2). It has been saved "
          "as %3 instead. Please check that the folder exists, that you may write in it and that "
          "the disk is not full.",
          {folder, reason, path}};
}

Notice NotSavedNotice(const std::string& folder, const std::string& reason) {
  return {
      text_id::kRecordNotSavedAnywhere,
      "The record of your exercise could not be saved, neither in the folder %1 (%2) nor in "
      "the program's own folder. Make room on the disk and try again, or choose another folder. "
      "Until then it is kept, but not beyond the end of the program.",
      {folder, reason}};
}

Notice NotSavedAsNotice(const std::string& path, const std::string& reason) {
  return {text_id::kRecordNotSavedAs, "The record could not be saved as %1 (%2).", {path, reason}};
}

/// What is to be written of a document, and where. It outlives a document that could not be saved.
class Record : public UnsavedRecord {
 public:
  Record(std::string fallback_folder, Notify notify)
      : fallback_folder_(std::move(fallback_folder)), notify_(std::move(notify)) {}

  void SetFileName(std::string_view name) {
    file_ = RecordFile(std::string(name), fallback_folder_);
  }
  void SetContent(std::string bytes) { bytes_ = std::move(bytes); }

  std::string Name() const override { return file_.base(); }
  Notice Trouble() const override { return NotSavedNotice(file_.folder(), file_.refusal()); }

  bool Save() override {
    const RecordFile::Saved saved = file_.Save(bytes_);
    if (saved == RecordFile::Saved::kElsewhere) {
      Tell(SavedElsewhereNotice(file_.folder(), file_.refusal(), file_.path()));
    }
    return saved != RecordFile::Saved::kNowhere;
  }

  std::optional<Notice> SaveAs(const std::string& path) override {
    const int error = file_.SaveAs(path, bytes_);
    if (error == 0) return std::nullopt;
    return NotSavedAsNotice(path, SystemReason(error));
  }

  void Tell(const Notice& notice) const {
    if (notify_) notify_(notice);
  }

 private:
  std::string fallback_folder_;
  Notify notify_;
  RecordFile file_{"", fallback_folder_};
  std::string bytes_;
};

class PugiDocument : public XmlDocument {
 public:
  PugiDocument(std::shared_ptr<Record> record, KeepUnsaved keep)
      : record_(std::move(record)), keep_(std::move(keep)) {
    pugi::xml_node declaration = document_.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    root_ = document_.append_child("document");
  }

  void SetRootName(std::string_view name) override { root_.set_name(CheckedName(name).c_str()); }
  void SetFileName(std::string_view name) override { record_->SetFileName(name); }
  std::unique_ptr<XmlNodeList> RootAttributes() override { return ElementNode(root_).Attributes(); }
  std::unique_ptr<XmlNodeList> RootChildren() override { return ElementNode(root_).Children(); }

  bool Save() override {
    try {
      return SaveOrKeep();
    } catch (const std::exception& error) {
      record_->Tell(NotSavedAsNotice(record_->Name(), error.what()));
      return false;
    }
  }

 private:
  bool SaveOrKeep() {
    StringWriter writer;
    document_.save(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
    record_->SetContent(std::move(writer.text));
    if (record_->Save()) return true;
    const bool is_kept_already = record_.use_count() > 1;
    if (!is_kept_already && keep_) keep_(record_);
    return false;
  }

  std::shared_ptr<Record> record_;
  KeepUnsaved keep_;
  pugi::xml_document document_;
  pugi::xml_node root_;
};

}  // namespace

XmlDocumentFactory PugiDocumentFactory(std::string fallback_folder, Notify notify,
                                       KeepUnsaved keep) {
  return [folder = std::move(fallback_folder), notify = std::move(notify), keep = std::move(keep)] {
    return std::make_unique<PugiDocument>(std::make_shared<Record>(folder, notify), keep);
  };
}

}  // namespace vmod17

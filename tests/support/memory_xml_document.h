// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "ports/xml_document.h"

namespace vmod17 {

/// An element of a document in memory, or an attribute, which has neither attributes nor children.
struct MemoryXmlNode {
  std::string name;
  std::string text;
  std::vector<std::shared_ptr<MemoryXmlNode>> attributes;
  std::vector<std::shared_ptr<MemoryXmlNode>> children;
  bool is_attribute = false;
  /// How many more nodes, attributes included, can be added below; none: any number.
  std::shared_ptr<int> nodes_left;

  /// The child at the end of a path of names with slashes between them, the first of each name;
  /// nullptr when there is none. `Find("lessons/lesson")`
  const MemoryXmlNode* Find(std::string_view path) const {
    const std::size_t slash = path.find('/');
    const std::string_view first = path.substr(0, slash);
    for (const auto& child : children) {
      if (child->name != first) continue;
      return slash == std::string_view::npos ? child.get() : child->Find(path.substr(slash + 1));
    }
    return nullptr;
  }

  /// The children of that name.
  std::vector<const MemoryXmlNode*> All(std::string_view child_name) const {
    std::vector<const MemoryXmlNode*> found;
    for (const auto& child : children) {
      if (child->name == child_name) found.push_back(child.get());
    }
    return found;
  }

  /// An attribute's value, if there is one of that name.
  std::optional<std::string> Attribute(std::string_view attribute_name) const {
    for (const auto& attribute : attributes) {
      if (attribute->name == attribute_name) return attribute->text;
    }
    return {};
  }

  /// The node and all below it, one a line: `name attribute="value": text`, indented by two blanks.
  std::string Outline(int depth = 0) const {
    std::string outline(static_cast<std::size_t>(depth) * 2, ' ');
    outline += name;
    for (const auto& attribute : attributes) {
      outline += ' ' + attribute->name + "=\"" + attribute->text + '"';
    }
    if (!text.empty()) outline += ": " + text;
    outline += '\n';
    for (const auto& child : children) outline += child->Outline(depth + 1);
    return outline;
  }
};

/// What is left of a document when the program has dropped it, and how the next ones behave.
/// Must outlive the documents.
///
///     MemoryXmlLibrary library;
///     LessonRecord record(library.Factory(), ...);
///     EXPECT_EQ(library.Latest().root->name, "exercise");
class MemoryXmlLibrary {
 public:
  struct Document {
    std::shared_ptr<MemoryXmlNode> root;
    std::string file_name;
    int saves = 0;
    std::string saved;  ///< outline of the tree at the last successful save
  };

  /// All documents that were made, oldest first.
  std::vector<std::shared_ptr<Document>> documents;
  /// What `Save` returns from now on.
  bool saving_works = true;

  /// The latest document. Errors: kOutOfRange when none was made.
  const Document& Latest() const {
    if (!documents.empty()) return *documents.back();
    throw RunTimeError(ErrorNumber::kOutOfRange, "no document was made", "vmod17.MemoryXml");
  }

  XmlDocumentFactory Factory();
};

namespace memory_xml {

class Element : public XmlElement {
 public:
  explicit Element(std::shared_ptr<MemoryXmlNode> node) : node_(std::move(node)) {}

  std::string Name() const override { return node_->name; }
  std::string Text() const override { return node_->text; }
  std::unique_ptr<XmlNodeList> Attributes() override;
  std::unique_ptr<XmlNodeList> Children() override;

 private:
  std::shared_ptr<MemoryXmlNode> node_;
};

class List : public XmlNodeList {
 public:
  using Nodes = std::vector<std::shared_ptr<MemoryXmlNode>>;

  List(std::shared_ptr<MemoryXmlNode> parent, Nodes MemoryXmlNode::*nodes,
       std::optional<std::string> only = {})
      : parent_(std::move(parent)), nodes_(nodes), only_(std::move(only)) {}

  std::unique_ptr<XmlElement> Add(const std::optional<std::string>& value,
                                  std::string_view name) override {
    if (parent_->is_attribute || !IsName(name)) {
      throw RunTimeError(ErrorNumber::kInvalidCall, "no place or no name for a node",
                         "vmod17.MemoryXml");
    }
    std::shared_ptr<MemoryXmlNode> node = Place(name);
    node->text = value.value_or("");
    return std::make_unique<Element>(node);
  }

  std::unique_ptr<XmlNodeList> ByName(std::string_view name) const override {
    return std::make_unique<List>(parent_, nodes_,
                                  only_ && *only_ != name ? "" : std::string(name));
  }

  std::unique_ptr<XmlElement> Item(int index) const override {
    int place = 0;
    for (const auto& node : parent_.get()->*nodes_) {
      if (Shows(*node) && ++place == index) return std::make_unique<Element>(node);
    }
    throw RunTimeError(ErrorNumber::kOutOfRange, "no node " + std::to_string(index),
                       "vmod17.MemoryXml");
  }

  int Count() const override {
    int count = 0;
    for (const auto& node : parent_.get()->*nodes_) count += Shows(*node) ? 1 : 0;
    return count;
  }

 private:
  static bool IsName(std::string_view name) {
    return !name.empty() && name.find_first_of(" \t\n<>&\"'=/") == std::string_view::npos &&
           std::string_view("0123456789-.:").find(name.front()) == std::string_view::npos;
  }

  bool Shows(const MemoryXmlNode& node) const { return !only_ || *only_ == node.name; }

  // A new node, or the attribute that has the name already.
  std::shared_ptr<MemoryXmlNode> Place(std::string_view name) {
    const bool is_attribute = nodes_ == &MemoryXmlNode::attributes;
    if (is_attribute) {
      for (const auto& node : parent_->attributes) {
        if (node->name == name) return node;
      }
    }
    if (parent_->nodes_left && (*parent_->nodes_left)-- <= 0) {
      throw RunTimeError(ErrorNumber::kOutOfRange, "no room for a node", "vmod17.MemoryXml");
    }
    auto node = std::make_shared<MemoryXmlNode>();
    node->name = name;
    node->is_attribute = is_attribute;
    node->nodes_left = parent_->nodes_left;
    (parent_.get()->*nodes_).push_back(node);
    return node;
  }

  std::shared_ptr<MemoryXmlNode> parent_;
  Nodes MemoryXmlNode::*nodes_;
  std::optional<std::string> only_;
};

inline std::unique_ptr<XmlNodeList> Element::Attributes() {
  return std::make_unique<List>(node_, &MemoryXmlNode::attributes);
}

inline std::unique_ptr<XmlNodeList> Element::Children() {
  return std::make_unique<List>(node_, &MemoryXmlNode::children);
}

class Document : public XmlDocument {
 public:
  Document(const MemoryXmlLibrary& library, std::shared_ptr<MemoryXmlLibrary::Document> facts)
      : library_(library), facts_(std::move(facts)) {}

  void SetRootName(std::string_view name) override { facts_->root->name = name; }
  void SetFileName(std::string_view name) override { facts_->file_name = name; }
  std::unique_ptr<XmlNodeList> RootAttributes() override {
    return Element(facts_->root).Attributes();
  }
  std::unique_ptr<XmlNodeList> RootChildren() override { return Element(facts_->root).Children(); }

  bool Save() override {
    if (!library_.saving_works) return false;
    ++facts_->saves;
    facts_->saved = facts_->root->Outline();
    return true;
  }

 private:
  const MemoryXmlLibrary& library_;
  std::shared_ptr<MemoryXmlLibrary::Document> facts_;
};

}  // namespace memory_xml

inline XmlDocumentFactory MemoryXmlLibrary::Factory() {
  return [this] {
    documents.push_back(std::make_shared<Document>());
    documents.back()->root = std::make_shared<MemoryXmlNode>();
    return std::make_unique<memory_xml::Document>(*this, documents.back());
  };
}

}  // namespace vmod17

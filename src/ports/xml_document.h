// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vmod17 {

class XmlElement;

/// The children or the attributes of an element, in the order of their creation.
/// Node lists and elements are handles: they stay valid as long as their document.
class XmlNodeList {
 public:
  virtual ~XmlNodeList() = default;

  /// Appends a node and gives it. No value makes an empty node.
  virtual std::unique_ptr<XmlElement> Add(const std::optional<std::string>& value,
                                          std::string_view name) = 0;
  /// The nodes of that name, as a list of their own.
  virtual std::unique_ptr<XmlNodeList> ByName(std::string_view name) const = 0;
  /// The node at `index`, from 1. Errors: RunTimeError kOutOfRange.
  virtual std::unique_ptr<XmlElement> Item(int index) const = 0;
  virtual int Count() const = 0;
};

/// A node of the tree. The nodes of an attribute list have neither attributes nor children.
class XmlElement {
 public:
  virtual ~XmlElement() = default;

  virtual std::string Name() const = 0;
  /// The element's own text or the attribute's value, UTF-8.
  virtual std::string Text() const = 0;
  virtual std::unique_ptr<XmlNodeList> Attributes() = 0;
  virtual std::unique_ptr<XmlNodeList> Children() = 0;
};

class XmlDocument {
 public:
  virtual ~XmlDocument() = default;

  virtual void SetRootName(std::string_view name) = 0;
  /// The name under which `Save` writes, UTF-8: a folder, a backslash, a base name. On a system
  /// whose separator is another one, that last backslash stands for the separator. A number goes
  /// into the name where another document has it already.
  virtual void SetFileName(std::string_view name) = 0;
  virtual std::unique_ptr<XmlNodeList> RootAttributes() = 0;
  virtual std::unique_ptr<XmlNodeList> RootChildren() = 0;
  /// Writes the whole tree, or nothing. Returns false when it stands in no file.
  virtual bool Save() = 0;
};

using XmlDocumentFactory = std::function<std::unique_ptr<XmlDocument>()>;

}  // namespace vmod17

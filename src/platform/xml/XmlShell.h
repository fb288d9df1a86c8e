// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "platform/xml/XmlWriter.h"

namespace velra {

/// A document but for the content of its root (XmlDocument::shellText). Objects share it, so what a
/// writer needs of it is worked out once.
class XmlShell {
 public:
  /// Nothing is checked before the parts are asked for.
  XmlShell(std::string text) : text_(std::move(text)) {}

  const std::string& text() const { return text_; }

  /// What stands before and behind the content of the root, its two tags included. A document that
  /// begins with a processing instruction of its own and had no declaration gets none.
  struct Parts {
    std::string before;
    std::string behind;
  };
  /// kInvalidArgument for a text that is no document.
  const Parts& parts() const;

 private:
  std::string text_;
  mutable std::optional<Parts> parts_;
};

/// The shell of a new document: the root's name and its attributes.
std::string newShell(const std::string& rootName, const XmlAttributes& attributes);

/// The shell with attributes of its root set or replaced.
std::string withRootAttributes(const std::string& shell, const XmlAttributes& attributes);

/// The shells of many documents: one for all that have the same.
class XmlShells {
 public:
  std::shared_ptr<const XmlShell> shared(const std::string& text);

 private:
  std::unordered_map<std::string, std::shared_ptr<const XmlShell>> shells_;
};

}  // namespace velra

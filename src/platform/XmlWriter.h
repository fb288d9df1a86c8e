#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

struct _xmlDoc;
struct _xmlNode;

namespace velra {

/// Builds a document again from its shell (XmlDocument::shellText) and new content of the root. A
/// name or a text that XML cannot hold raises kInvalidArgument with what it is about.
class XmlWriter {
 public:
  using Attributes = std::vector<std::pair<std::string, std::string>>;

  explicit XmlWriter(const std::string& shell);
  XmlWriter(const XmlWriter&) = delete;
  XmlWriter& operator=(const XmlWriter&) = delete;
  ~XmlWriter();

  /// Appends an element to the root, and makes it the one that `addChild` adds to.
  void addElement(const std::string& name, const std::string& text,
                  const Attributes& attributes = {});
  void addChild(const std::string& name, const std::string& text,
                const Attributes& attributes = {});

  /// The whole file in UTF-8. A document that begins with a processing instruction of its own and
  /// had no declaration gets none.
  std::string bytes() const;

 private:
  _xmlNode* append(_xmlNode* parent, const std::string& name, const std::string& text,
                   const Attributes& attributes);

  struct Free {
    void operator()(_xmlDoc* document) const;
  };
  std::unique_ptr<_xmlDoc, Free> document_;
  _xmlNode* element_ = nullptr;
};

/// The shell of a new document: the root's name and its attributes.
std::string newShell(const std::string& rootName, const XmlWriter::Attributes& attributes);

/// The shell with attributes of its root set or replaced.
std::string withRootAttributes(const std::string& shell, const XmlWriter::Attributes& attributes);

}  // namespace velra

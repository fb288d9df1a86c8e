#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "app/MessageCatalogue.h"

namespace velra::test {

/// An object of the plain rule: what its file says, and its place in the document.
struct PlainObject {
  std::string className;
  std::string guid;
  std::string title;
  std::map<std::string, std::vector<std::string>> fields;  // by lower-cased name
  std::vector<PlainObject*> children;
  std::vector<PlainObject*> segments;
  PlainObject* mainExpr = nullptr;
  PlainObject* next = nullptr;
  PlainObject* version = nullptr;

  /// The text of a field; "" when the file has none.
  std::string text(const std::string& lowerName) const;
};

/// Opens a document by the plain rule, without any index: each search parses every file of the
/// folder that is not loaded, and each look-up walks over all objects with two paths made absolute.
/// It understands documents whose segments have no key-frame picture yet.
class PlainOpening {
 public:
  explicit PlainOpening(const MessageCatalogue& messages) : messages_(messages) {}

  std::vector<std::string> shown;
  std::vector<std::string> statusTexts;
  std::vector<PlainObject*> registry;

  /// The message of the document, or "". Ends in the run-time errors of the rule.
  std::string open(const std::string& path);

 private:
  struct Record {
    std::string className;
    std::string guid;
  };

  PlainObject* newObject(const std::string& className);
  std::string load(PlainObject& object, const std::string& path);
  std::string read(PlainObject& object, const std::string& path) const;
  std::string openWhole(PlainObject& object, const std::string& path);
  void openChildren(PlainObject& object);
  PlainObject* childOf(const std::string& childClass, const std::string& guid);
  void openExpressions(PlainObject& version);
  void openSegments(PlainObject& parent);
  std::vector<Record> scan(const std::string& guid, const std::string& ofClass, bool partOf,
                           const std::string& wantedClass);
  std::string whatIs(const std::string& path);
  PlainObject* loaded(const std::string& guid) const;
  void makeKeyFrame(const PlainObject& video);
  std::string message(int id) const { return messages_.text(id); }

  const MessageCatalogue messages_;
  std::vector<std::unique_ptr<PlainObject>> objects_;
  std::set<std::string> notFound_;
};

}  // namespace velra::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlDocument.h"

#include "base/Paths.h"
#include "platform/files/ContentPrint.h"
#include "platform/xml/XmlBounds.h"
#include "platform/xml/XmlLibrary.h"

namespace velra {

namespace {

/// Takes the content of an element out of its document while it lives.
class EmptyRoot {
 public:
  explicit EmptyRoot(xmlNode& root) : root_(root), first_(root.children), last_(root.last) {
    root_.children = root_.last = nullptr;
  }
  ~EmptyRoot() {
    root_.children = first_;
    root_.last = last_;
  }
  EmptyRoot(const EmptyRoot&) = delete;
  EmptyRoot& operator=(const EmptyRoot&) = delete;

 private:
  xmlNode& root_;
  xmlNode* first_;
  xmlNode* last_;
};

}  // namespace

void XmlDocument::Free::operator()(_xmlDoc* document) const {
  xmlFreeDoc(document);
}

XmlDocument::~XmlDocument() = default;

FileBytes readXml(const std::string& path) {
  return readFile(path, xml::kLargestFile);
}

bool XmlDocument::load(const std::string& path) {
  return load(path, readXml(path));
}

bool XmlDocument::load(const std::string& path, const FileBytes& file) {
  if (file.reason.empty() && parse(file.bytes, path)) return true;
  document_.reset();
  // Of the many files of a document the reason must tell which.
  if (!file.reason.empty()) reason_ = file.reason;
  reason_ += " (" + strAbsolutePath(path) + ")";
  return false;
}

bool XmlDocument::parse(std::string_view bytes, const std::string& path) {
  print_ = contentPrint(bytes);
  reason_.clear();
  document_.reset(xml::parse(bytes, path, reason_).release());
  return document_ != nullptr;
}

XmlNode XmlDocument::documentElement() const {
  return document_ ? XmlNode(xmlDocGetRootElement(document_.get())) : XmlNode();
}

std::string XmlDocument::shellText() const {
  if (!document_) return {};
  const EmptyRoot emptied(*xmlDocGetRootElement(document_.get()));
  return xml::serialise(document_.get(), xml::hadDeclaration(document_.get()));
}

}  // namespace velra

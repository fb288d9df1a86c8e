// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlDocument.h"

#include "base/Paths.h"
#include "platform/files/ContentPrint.h"
#include "platform/xml/RowReader.h"
#include "platform/xml/XmlBounds.h"
#include "platform/xml/XmlRow.h"

namespace velra {

XmlDocument::XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;
XmlDocument::~XmlDocument() = default;

FileBytes readXml(const std::string& path) {
  return readFile(path, xml::kLargestFile);
}

bool XmlDocument::load(const std::string& path) {
  return load(path, readXml(path));
}

bool XmlDocument::load(const std::string& path, const FileBytes& file) {
  if (file.reason.empty() && parse(file.bytes, path)) return true;
  row_.reset();
  // Of the many files of a document the reason must tell which.
  if (!file.reason.empty()) reason_ = file.reason;
  reason_ += " (" + strAbsolutePath(path) + ")";
  return false;
}

bool XmlDocument::parse(const std::string& bytes, const std::string& path) {
  print_ = contentPrint(bytes);
  reason_.clear();
  row_ = xml::plainRow(bytes);
  if (!row_) row_ = xml::rowByTree(bytes, path, reason_);
  return row_ != nullptr;
}

XmlNode XmlDocument::documentElement() const {
  return row_ ? XmlNode(row_.get(), &row_->root()) : XmlNode();
}

const std::string& XmlDocument::shellText() const {
  static const std::string kNone;
  return row_ ? row_->shell() : kNone;
}

}  // namespace velra

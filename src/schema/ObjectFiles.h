// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class XmlDocument;
class XmlWriter;

/// How fields reach object files; the store of the document stands behind it.
class ObjectFiles {
 public:
  virtual ~ObjectFiles() = default;

  /// Reads an object's file. Returns a message, "" on success.
  virtual std::string strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) = 0;

  /// Writes an object's file. Returns a message, "" on success.
  virtual std::string strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) = 0;
};

}  // namespace velra

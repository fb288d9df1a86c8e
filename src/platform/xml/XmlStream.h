// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "platform/xml/XmlWriter.h"

namespace velra {

/// Writes a new document of any shape, indented, in UTF-8. Characters that XML cannot hold are left
/// out of texts: what is exported was read from XML, but for paths.
class XmlStream {
 public:
  XmlStream();
  ~XmlStream();
  XmlStream(const XmlStream&) = delete;
  XmlStream& operator=(const XmlStream&) = delete;

  /// Begins an element inside the one that is open.
  void open(const std::string& name, const XmlAttributes& attributes = {});
  /// Ends the element that was begun last.
  void close();
  /// An element with a text alone.
  void element(const std::string& name, const std::string& text,
               const XmlAttributes& attributes = {});

  /// The whole document; nothing is written behind that.
  std::string take();

 private:
  struct Output;
  std::unique_ptr<Output> output_;
};

}  // namespace velra

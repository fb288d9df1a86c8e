// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <string>
#include <string_view>

/// The door to libxml2: its start, the one way in which bytes are parsed, and owners of what it
/// allocates. For the files of this folder alone.
namespace velra::xml {

struct FreeDocument {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, FreeDocument>;

/// Starts the library once: no catalogues, external files only as the loader allows.
void initXml();

/// Parses bytes that belong to a path, in whose folder a document type may lie, and validates them
/// where there is a document type. On failure the result is null and `reason` holds one line. The
/// documents of one thread share the names in them and must be freed on that thread.
Document parse(std::string_view bytes, const std::string& path, std::string& reason);

/// The same for a document without its content, which no document type would find valid.
Document parseShell(const std::string& shell, std::string& reason);

/// The document without blanks between its elements, in UTF-8; with a declaration or without.
std::string serialise(xmlDoc* document, bool withDeclaration);

/// True when the file that the document was read from began with an XML declaration.
bool hadDeclaration(const xmlDoc* document);

inline const xmlChar* bytesOf(const std::string& text) {
  return reinterpret_cast<const xmlChar*>(text.c_str());
}
inline std::string_view viewOf(const xmlChar* text) {
  return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// A name with its prefix, as files write it.
std::string qualifiedName(const xmlNs* space, const xmlChar* name);

}  // namespace velra::xml

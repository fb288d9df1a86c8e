// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <cstddef>
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

struct FreeContext {
  void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using Context = std::unique_ptr<xmlParserCtxt, FreeContext>;

#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlErrorPtr;
#endif

/// The options of every parse. Names that a context has met stay in its dictionary, which refuses
/// to grow beyond 10 MB: one that has this many bytes is to be replaced.
inline constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_BIG_LINES |
                                XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
inline constexpr std::size_t kLargestDictionary = 1'000'000;

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

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
inline std::string_view viewOf(const xmlChar* text, std::size_t size) {
  return {reinterpret_cast<const char*>(text), size};
}

inline std::string_view behindColon(std::string_view name) {
  return name.substr(name.rfind(':') + 1);
}

/// A name with its prefix, as files write it.
std::string qualifiedName(const xmlNs* space, const xmlChar* name);

}  // namespace velra::xml

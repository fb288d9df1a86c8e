// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlLibrary.h"

#include <libxml/catalog.h>
#include <libxml/parserInternals.h>
#include <libxml/uri.h>

#include <algorithm>
#include <new>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlBounds.h"
#include "platform/xml/XmlText.h"

namespace velra::xml {
namespace {

constexpr const char* kTooFar = "entities expand too far";

std::string oneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return std::string(trimmed(text));
}

/// Keeps the first error, because those behind it are mostly its consequences. Prefixes without a
/// declaration are no fault here.
void onError(void* context, ErrorPointer error) {
  if (error->level < XML_ERR_ERROR || error->domain == XML_FROM_NAMESPACE) return;
  auto* session = static_cast<ParseSession*>(static_cast<xmlParserCtxt*>(context)->_private);
  if (!session) return;
  std::string text = error->code == XML_ERR_ENTITY_LOOP ? kTooFar
                     : error->message                   ? oneLine(error->message)
                                                        : "unknown error";
  if (error->line > 0) text = "Line " + std::to_string(error->line) + ": " + text;
  session->note(text);
}

/// The path that a system identifier means, seen from the folder of the document.
std::string pathOfIdentifier(const char* url, const std::string& folder) {
  constexpr std::string_view kScheme = "file://";
  const std::unique_ptr<char, decltype(xmlFree)> plain(xmlURIUnescapeString(url, 0, nullptr),
                                                       xmlFree);
  std::string_view text = plain ? plain.get() : url;
  if (text.substr(0, kScheme.size()) == kScheme) text.remove_prefix(kScheme.size());
  return strAbsolutePath(text, folder);
}

/// Lets a document read a document type that lies beside it, and nothing else: a file must not be
/// able to draw other files, or the network, into itself.
xmlParserInput* loadEntity(const char* url, const char*, xmlParserCtxt* context) {
  auto* session = static_cast<ParseSession*>(context->_private);
  if (!url || !session || session->path.empty()) return nullptr;
  const std::string folder = strAbsolutePath(folderOf(session->path));
  const std::string path = pathOfIdentifier(url, folder);
  if (!equalIgnoringAsciiCase(strExtension(path), "dtd") || !bSamePath(folderOf(path), folder)) {
    session->note("\"" + oneLine(url) + "\" is no document type beside the file and is not read");
    return nullptr;
  }
  const FileBytes file = readFile(path, kLargestDocumentType);
  if (!file.reason.empty()) {
    session->note(path + ": " + file.reason);
    return nullptr;
  }
  auto* buffer = xmlParserInputBufferCreateMem(
      file.bytes.data(), static_cast<int>(file.bytes.size()), XML_CHAR_ENCODING_NONE);
  return buffer ? xmlNewIOInputStream(context, buffer, XML_CHAR_ENCODING_NONE) : nullptr;
}

Context makeContext() {
  initXml();
  Context context(xmlNewParserCtxt());
  if (!context) throw std::bad_alloc();
  context->sax->serror = onError;
  installBounds(*context->sax);
  return context;
}

/// One context for each thread: making it and its dictionary costs as much as a small file.
Context& threadContext() {
  thread_local Context context;
  if (!context || xmlDictGetUsage(context->dict) > kLargestDictionary) context = makeContext();
  return context;
}

Document parseOnce(xmlParserCtxt& context, std::string_view bytes, int options) {
  const bool marked = bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark;
  return Document(xmlCtxtReadMemory(&context, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                                    marked ? "UTF-8" : nullptr, kOptions | options));
}

/// Validation is asked for only where there is a document type, since a file without one would be
/// called invalid.
Document parseValidated(xmlParserCtxt& context, std::string_view bytes) {
  Document document = parseOnce(context, bytes, 0);
  if (!document || !document->intSubset) return document;
  document.reset();
  static_cast<ParseSession*>(context._private)->restart();
  document = parseOnce(context, bytes, XML_PARSE_DTDVALID);
  if (document && !context.valid) document.reset();
  return document;
}

Document parsePlain(xmlParserCtxt& context, std::string_view bytes) {
  return parseOnce(context, bytes, 0);
}

using ParseStep = Document (*)(xmlParserCtxt& context, std::string_view bytes);

Document parseWith(ParseStep step, std::string_view bytes, const std::string& path,
                   std::string& reason) {
  reason = refusalOf(bytes);
  if (!reason.empty()) return nullptr;
  Context& context = threadContext();
  ParseSession session{path, {}, {}};
  const Patience patience(session);
  context->_private = &session;
  Document document = step(*context, bytes);
  context->_private = nullptr;
  if (document && xmlDocGetRootElement(document.get())) return document;
  reason = session.reason.empty() ? "The file is not well formed" : session.reason;
  context.reset();  // a context that met a fault may keep something of it
  return nullptr;
}

bool isReference(const xmlNode* node) {
  return node && node->type == XML_ENTITY_REF_NODE;
}

/// The node that follows in document order, after a look below.
xmlNode* following(xmlNode* node, const xmlNode* root) {
  while (node != root && !node->next) node = node->parent;
  return node == root ? nullptr : node->next;
}

/// People indent their files: text of white space alone is no content. Beside a reference it may be
/// the blank between two words, and alone in its element it may have been typed.
void dropBlankTexts(xmlNode* root) {
  xmlNode* node = root;
  while (node) {
    const bool descend = node->type == XML_ELEMENT_NODE && node->children;
    xmlNode* next = descend ? node->children : following(node, root);
    if (isBlankText(*node) && !isLoneBlank(*node) && !isReference(node->prev) &&
        !isReference(node->next)) {
      xmlUnlinkNode(node);
      xmlFreeNode(node);
    }
    node = next;
  }
}

}  // namespace

void initXml() {
  static const bool started = [] {
    xmlInitParser();
    xmlCatalogSetDefaults(XML_CATA_ALLOW_NONE);
    xmlSetExternalEntityLoader(loadEntity);
    return true;
  }();
  static_cast<void>(started);
}

Document parse(std::string_view bytes, const std::string& path, std::string& reason) {
  Document document = parseWith(parseValidated, bytes, path, reason);
  if (!document) return nullptr;
  if (document->intSubset && expandsTooFar(*document)) {
    reason = kTooFar;
    return nullptr;
  }
  dropBlankTexts(xmlDocGetRootElement(document.get()));
  return document;
}

Document parseShell(const std::string& shell, std::string& reason) {
  return parseWith(parsePlain, shell, {}, reason);
}

std::string serialise(xmlDoc* document, bool withDeclaration) {
  xmlChar* bytes = nullptr;
  int size = 0;
  xmlDocDumpMemoryEnc(document, &bytes, &size, "UTF-8");
  const std::unique_ptr<xmlChar, decltype(xmlFree)> owner(bytes, xmlFree);
  if (!bytes) throw std::bad_alloc();
  std::string text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
  if (!withDeclaration) text.erase(0, text.find("?>\n") + 3);
  return text;
}

bool hadDeclaration(const xmlDoc* document) {
  return document->standalone != -1;
}

std::string qualifiedName(const xmlNs* space, const xmlChar* name) {
  if (!space || !space->prefix) return std::string(viewOf(name));
  return std::string(viewOf(space->prefix)) + ":" + std::string(viewOf(name));
}

}  // namespace velra::xml

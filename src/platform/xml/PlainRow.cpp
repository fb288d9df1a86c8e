// SPDX-License-Identifier: GPL-3.0-or-later
#include <libxml/parserInternals.h>

#include <new>
#include <unordered_map>
#include <utility>

#include "platform/xml/PlainParse.h"
#include "platform/xml/RowReader.h"
#include "platform/xml/XmlLibrary.h"

namespace velra::xml {

namespace {

using Shell = std::shared_ptr<const std::string>;

// So that no bound on nodes, comparisons and texts can be met.
constexpr std::size_t kLargestPlain = 1'000'000;

Context makePlainContext() {
  initXml();
  Context context(xmlNewParserCtxt());
  if (!context) throw std::bad_alloc();
  PlainParse::install(*context->sax);
  return context;
}

Context& plainContext() {
  thread_local Context context;
  if (!context || xmlDictGetUsage(context->dict) > kLargestDictionary) context = makePlainContext();
  return context;
}

/// The bytes are not copied.
bool parsed(xmlParserCtxt& context, const std::string& bytes) {
  xmlCtxtReset(&context);
  xmlCtxtUseOptions(&context, kOptions);
  xmlParserInput* input = xmlNewStringInputStream(&context, bytesOf(bytes));
  if (!input || inputPush(&context, input) < 0) return false;
  return xmlParseDocument(&context) == 0 && context.wellFormed != 0;
}

// Nearly all files of a class have the same one, for which a tree is made once.
Shell knownShell(std::string emptied) {
  constexpr std::size_t kMostShells = 64;
  thread_local std::unordered_map<std::string, Shell> known;
  if (known.size() > kMostShells) known.clear();
  const auto [at, isNew] = known.try_emplace(std::move(emptied));
  if (isNew) {
    std::string reason;
    const Row row = rowByTree(at->first, {}, reason);
    if (row) at->second = std::make_shared<const std::string>(row->shell());
  }
  return at->second;
}

}  // namespace

Row plainRow(const std::string& bytes) {
  const bool readable = bytes.size() <= kLargestPlain && !bytes.starts_with(kByteOrderMark) &&
                        bytes.find('\0') == bytes.npos && refusalOf(bytes).empty();
  if (!readable) return nullptr;
  Context& context = plainContext();
  PlainParse parse(*context, bytes);
  context->_private = static_cast<ParseSession*>(&parse);
  const bool whole = parsed(*context, bytes) && parse.isPlain();
  context->_private = nullptr;
  if (!whole) {
    context.reset();  // a context that was stopped may keep something of the file
    return nullptr;
  }
  Shell shell = knownShell(parse.emptied());
  return shell ? parse.maker().take(std::move(shell)) : nullptr;
}

}  // namespace velra::xml

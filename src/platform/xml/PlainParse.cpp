// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/PlainParse.h"

#include "base/Text.h"
#include "platform/xml/XmlLibrary.h"

namespace velra::xml {

namespace {

using Kind = RowNode::Kind;

// Below what the library bears, so that it is asked where it might refuse.
constexpr std::size_t kMostOpen = 100;

constexpr int kMostValues = 16;  // attributes and namespaces; they are compared with one another

const std::string& noPath() {
  static const std::string none;
  return none;
}

PlainParse& parseOf(void* context) {
  auto* session = static_cast<ParseSession*>(static_cast<xmlParserCtxt*>(context)->_private);
  return *static_cast<PlainParse*>(session);
}

void onStart(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar*, int spaces,
             const xmlChar** spaceTexts, int attributes, int, const xmlChar** attributeTexts) {
  PlainParse& parse = parseOf(context);
  if (spaces + attributes > kMostValues) return parse.giveUp();
  parse.start(viewOf(prefix), viewOf(name));
  if (!parse.isPlain()) return;
  parse.addSpaces(spaces, spaceTexts);
  parse.addAttributes(attributes, attributeTexts);
}

void onEnd(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
  parseOf(context).end();
}

void onText(void* context, const xmlChar* text, int length) {
  parseOf(context).addText(viewOf(text, static_cast<std::size_t>(length)));
}

void onOther(void* context) {
  parseOf(context).giveUp();
}

}  // namespace

PlainParse::PlainParse(xmlParserCtxt& context, const std::string& bytes)
    : ParseSession{noPath(), {}, {}}, context_(context), bytes_(bytes), maker_(bytes.size()) {
  constexpr std::size_t kUsualText = 200;
  pending_.reserve(kUsualText);
}

void PlainParse::install(xmlSAXHandler& handler) {
  handler = {};
  handler.initialized = XML_SAX2_MAGIC;
  handler.startElementNs = onStart;
  handler.endElementNs = onEnd;
  handler.characters = onText;
  handler.ignorableWhitespace = onText;
  handler.internalSubset = [](void* context, auto...) { onOther(context); };
  handler.reference = [](void* context, auto...) { onOther(context); };
  handler.comment = [](void* context, auto...) { onOther(context); };
  handler.processingInstruction = [](void* context, auto...) { onOther(context); };
  handler.cdataBlock = [](void* context, auto...) { onOther(context); };
  handler.serror = [](void* context, ErrorPointer) { onOther(context); };
}

void PlainParse::giveUp() {
  plain_ = false;
  xmlStopParser(&context_);
}

// The library stands before the ">" of a tag when it tells of it.
bool PlainParse::findContent() {
  for (const xmlChar* encoding : {context_.encoding, context_.input->encoding}) {
    if (encoding && !equalIgnoringAsciiCase(viewOf(encoding), "UTF-8")) return false;
  }
  const long at = xmlByteConsumed(&context_);
  if (at < 0 || static_cast<std::size_t>(at) >= bytes_.size()) return false;
  content_ = static_cast<std::size_t>(at) + 1;
  return bytes_[content_ - 1] == '>';
}

void PlainParse::start(std::string_view prefix, std::string_view name) {
  if (!plain_) return;
  const std::size_t depth = maker_.depth();
  if (depth == kMostOpen || (depth == 0 && !findContent())) return giveUp();
  if (depth > 0) endText(false);
  maker_.open(prefix, name);
}

void PlainParse::addSpaces(int count, const xmlChar** texts) {
  constexpr std::string_view kDeclares = "xmlns";
  for (; count > 0; --count, texts += 2) {
    const std::string_view prefix = viewOf(texts[0]);
    maker_.addAttribute(Kind::Declaration, prefix.empty() ? prefix : kDeclares,
                        prefix.empty() ? kDeclares : prefix, viewOf(texts[1]));
  }
}

// References to characters are left in a value, and names like "xml:id" mean something to a tree.
void PlainParse::addAttributes(int count, const xmlChar** texts) {
  for (; count > 0; --count, texts += 5) {
    const std::string_view prefix = viewOf(texts[1]);
    const std::string_view value = viewOf(texts[3], static_cast<std::size_t>(texts[4] - texts[3]));
    if (prefix == "xml" || value.find('&') != value.npos) return giveUp();
    maker_.addAttribute(Kind::Attribute, prefix, viewOf(texts[0]), value);
  }
}

void PlainParse::endText(bool closes) {
  if (pending_.empty()) return;
  if (pending_.find_first_not_of(" \t\r\n") != std::string::npos) {
    maker_.add(Kind::Text, {}, pending_);
  } else if (closes && maker_.isEmpty()) {
    maker_.add(Kind::LoneBlank, {}, pending_);
  }
  pending_.clear();
}

void PlainParse::end() {
  if (!plain_) return;
  endText(true);
  maker_.close();
}

// Nothing but blanks stands behind the end of the root.
std::string PlainParse::emptied() const {
  return bytes_.substr(0, content_).append(bytes_, bytes_.rfind('<'));
}

}  // namespace velra::xml

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlBounds.h"

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <chrono>
#include <mutex>

#include "platform/xml/XmlLibrary.h"

namespace velra::xml {
namespace {

// 130 bytes each.
constexpr std::uint64_t kMostNodes = 3'000'000;

// The library compares each attribute of an element with all before it.
constexpr std::size_t kMostAttributesOfOne = 5'000;

// Some millions of them take ten milliseconds. A few files may take a second each, and further ones
// the lower bounds, which what people write does not reach.
struct Limits {
  std::uint64_t modelCost;
  std::uint64_t comparisons;

  bool exceededBy(const ParseSession::Counts& counts) const {
    return counts.modelCost > modelCost || counts.comparisons > comparisons;
  }
};
constexpr Limits kPatient{30'000'000, 500'000'000};
constexpr Limits kHurried{500'000, 5'000'000};
constexpr int kMostCostly = 5;
constexpr std::chrono::seconds kForgotten{10};

constexpr std::uint64_t kMostWays = 10'000;  // more cost more than any bound
constexpr std::uint64_t kMostDeclaredAttributes = 5'000;

constexpr const char* kTooLong = "The file takes too long to check";

ParseSession& sessionOf(void* context) {
  return *static_cast<ParseSession*>(static_cast<xmlParserCtxt*>(context)->_private);
}

ParseSession::Counts& countsOf(void* context) {
  return sessionOf(context).counts;
}

bool takesTooLong(void* context) {
  const Limits& limits = sessionOf(context).hurried ? kHurried : kPatient;
  return limits.exceededBy(countsOf(context));
}

// The files that took long, of which the last is not long ago; of all threads, since a document is
// read by several.
class CostlyFiles {
 public:
  bool areMany() {
    const std::lock_guard lock(mutex_);
    if (std::chrono::steady_clock::now() - last_ > kForgotten) count_ = 0;
    return count_ >= kMostCostly;
  }
  void add() {
    const std::lock_guard lock(mutex_);
    ++count_;
    last_ = std::chrono::steady_clock::now();
  }

 private:
  std::mutex mutex_;
  int count_ = 0;
  std::chrono::steady_clock::time_point last_;
};
CostlyFiles costlyFiles;

void stop(void* context, const char* reason) {
  sessionOf(context).note(reason);
  auto* parser = static_cast<xmlParserCtxt*>(context);
  xmlStopParser(parser);
  parser->wellFormed = 0;
}

/// True when the parse may go on.
bool counted(void* context, std::uint64_t nodes) {
  ParseSession::Counts& counts = countsOf(context);
  counts.nodes += nodes;
  counts.comparisons += counts.widest + nodes * nodes;
  if (counts.nodes > kMostNodes) {
    stop(context, "The file has too many elements");
  } else if (takesTooLong(context)) {
    stop(context, kTooLong);
  } else {
    return true;
  }
  return false;
}

void onElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* space,
               int spaces, const xmlChar** spaceTexts, int attributes, int defaulted,
               const xmlChar** attributeTexts) {
  const int nodes = 1 + spaces + attributes;
  if (!counted(context, static_cast<std::uint64_t>(nodes))) return;
  xmlSAX2StartElementNs(context, name, prefix, space, spaces, spaceTexts, attributes, defaulted,
                        attributeTexts);
}

void onComment(void* context, const xmlChar* text) {
  if (counted(context, 1)) xmlSAX2Comment(context, text);
}

void onInstruction(void* context, const xmlChar* target, const xmlChar* data) {
  if (counted(context, 1)) xmlSAX2ProcessingInstruction(context, target, data);
}

void onCdata(void* context, const xmlChar* text, int length) {
  if (counted(context, 1)) xmlSAX2CDataBlock(context, text, length);
}

void onReference(void* context, const xmlChar* name) {
  if (counted(context, 1)) xmlSAX2Reference(context, name);
}

struct ModelSize {
  std::uint64_t names = 0;
  std::uint64_t optional = 0;  // parts that may be missing or repeated
};

void addModel(const xmlElementContent* part, ModelSize& size) {
  for (; part; part = part->c2) {
    if (part->type == XML_ELEMENT_CONTENT_ELEMENT) ++size.names;
    if (part->ocur != XML_ELEMENT_CONTENT_ONCE) ++size.optional;
    addModel(part->c1, size);
  }
}

// Each optional part may be left for any that follows, and each such way is compared with the
// others that end in the same place.
void onModel(void* context, const xmlChar* name, int type, xmlElementContent* model) {
  ParseSession::Counts& counts = countsOf(context);
  ModelSize size;
  addModel(model, size);
  counts.widest = std::max(counts.widest, size.names);
  if (type == XML_ELEMENT_TYPE_ELEMENT) {
    const std::uint64_t ways = std::min<std::uint64_t>(size.optional, kMostWays);
    counts.modelCost += ways * ways * ways + size.names * size.names;
  }
  if (takesTooLong(context)) {
    stop(context, kTooLong);
    return;
  }
  xmlSAX2ElementDecl(context, name, type, model);
}

void onDeclaredAttribute(void* context, const xmlChar* element, const xmlChar* name, int type,
                         int use, const xmlChar* value, xmlEnumeration* words) {
  ParseSession::Counts& counts = countsOf(context);
  std::uint64_t count = 0;
  for (const xmlEnumeration* word = words; word; word = word->next) ++count;
  counts.widest = std::max({counts.widest, count, ++counts.attributes});
  if (counts.attributes > kMostDeclaredAttributes) {
    stop(context, kTooLong);
    xmlFreeEnumeration(words);  // the next one in the line would own it
    return;
  }
  xmlSAX2AttributeDecl(context, element, name, type, use, value, words);
}

// How many values in quotes a tag has that goes on at a place. What follows the tag is text, where
// people write what they like; and no value holds "<", so that each tag is counted from its start,
// whatever has opened a quote before.
std::size_t attributesOf(std::string_view bytes, std::size_t at) {
  std::size_t count = 0;
  for (char quote = 0; at < bytes.size() && bytes[at] != '<'; ++at) {
    const char letter = bytes[at];
    if (quote) {
      if (letter != quote) continue;
      quote = 0;
      ++count;
    } else if (letter == '>') {
      break;
    } else if (letter == '"' || letter == '\'') {
      quote = letter;
    }
  }
  return count;
}

}  // namespace

Patience::Patience(ParseSession& session) : session_(session) {
  session_.hurried = costlyFiles.areMany();
}

Patience::~Patience() {
  if (kHurried.exceededBy(session_.counts)) costlyFiles.add();
}

void installBounds(xmlSAXHandler& handler) {
  handler.startElementNs = onElement;
  handler.comment = onComment;
  handler.processingInstruction = onInstruction;
  handler.cdataBlock = onCdata;
  handler.reference = onReference;
  handler.elementDecl = onModel;
  handler.attributeDecl = onDeclaredAttribute;
}

std::string refusalOf(std::string_view bytes) {
  if (bytes.size() > kLargestFile) return "The file is too large";
  if (bytes.size() < kMostAttributesOfOne * 4) return {};
  // The parser tells of an element when it has read all of its attributes.
  for (std::size_t at = bytes.find('<'); at != std::string_view::npos; at = bytes.find('<', at)) {
    if (attributesOf(bytes, ++at) > kMostAttributesOfOne) {
      return "An element has too many attributes";
    }
  }
  return {};
}

}  // namespace velra::xml

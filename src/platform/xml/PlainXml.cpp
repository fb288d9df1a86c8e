// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/PlainXml.h"

#include <unordered_map>

#include "platform/xml/PlainScanner.h"
#include "platform/xml/XmlLibrary.h"

namespace velra::xml {

namespace {

// So that no bound on nodes and comparisons can be met.
constexpr std::size_t kLargestPlain = 1'000'000;

constexpr std::size_t kUsualNode = 24;  // bytes of a file for each

using Shell = std::shared_ptr<const std::string>;

Shell shellOf(const std::string& emptied) {
  std::string reason;
  const Document document = parse(emptied, {}, reason);
  if (!document || document->intSubset) return nullptr;
  return std::make_shared<const std::string>(
      serialise(document.get(), hadDeclaration(document.get())));
}

// Nearly all files of a class have the same one, which the library has a look at once.
Shell knownShell(const PlainScanner::Outside& outside) {
  constexpr std::size_t kMostShells = 64;
  thread_local std::unordered_map<std::string, Shell> known;
  if (known.size() > kMostShells) known.clear();
  std::string emptied(outside.before);
  emptied += outside.behind;
  const auto [at, isNew] = known.try_emplace(std::move(emptied));
  if (isNew) at->second = shellOf(at->first);
  return at->second;
}

}  // namespace

std::shared_ptr<const PlainXml> PlainXml::read(std::string_view bytes) {
  if (bytes.size() > kLargestPlain) return nullptr;
  const std::shared_ptr<PlainXml> document(new PlainXml);
  document->bytes_ = bytes;
  document->nodes_.reserve(bytes.size() / kUsualNode);
  PlainScanner::Outside outside;
  PlainScanner scanner(document->bytes_.data(), bytes.size(), document->nodes_);
  if (!scanner.scan(outside)) return nullptr;
  document->shell_ = knownShell(outside);
  if (!document->shell_) return nullptr;
  return document;
}

std::string textOf(const PlainNode& node) {
  if (node.kind != PlainNode::Kind::Element) return std::string(node.view());
  std::string text;
  for (const PlainNode* at = &node; at != &node + node.span; ++at) {
    if (at->kind == PlainNode::Kind::Text) text += at->view();
  }
  return text;
}

}  // namespace velra::xml

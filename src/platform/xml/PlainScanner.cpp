// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/PlainScanner.h"

#include <algorithm>
#include <cstring>

#include "base/Text.h"
#include "platform/xml/PlainLetters.h"

namespace velra::xml {

namespace {

// Below what the library bears, so that it is asked where it might refuse.
constexpr std::size_t kMostLevels = 100;
constexpr std::size_t kLongestName = 200;

struct Reference {
  std::string_view name;
  char letter;
};
constexpr Reference kReferences[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};

}  // namespace

bool PlainScanner::scan(Outside& outside) {
  if (!skipDeclaration() || *at_ != '<' || !openElement()) return false;
  outside.before = {start_, static_cast<std::size_t>(at_ - start_)};
  const char* last = at_;
  while (!open_.empty()) {
    last = at_;
    const bool known = *at_ != '<' ? readText() : at_[1] == '/' ? closeElement() : openElement();
    if (!known) return false;
  }
  outside.behind = {last, static_cast<std::size_t>(at_ - last)};
  skipBlanks();
  return at_ == end_;
}

bool PlainScanner::skipDeclaration() {
  if (passed("<?xml")) {
    if (!passed(" version=\"1.0\"")) return false;
    if (!passed(" encoding=\"UTF-8\"")) passed(" encoding=\"utf-8\"");
    if (!passed("?>")) return false;
  }
  skipBlanks();
  return true;
}

bool PlainScanner::passed(std::string_view text) {
  if (!std::string_view(at_, end_).starts_with(text)) return false;
  at_ += text.size();
  return true;
}

bool PlainScanner::skipBlanks() {
  const char* const start = at_;
  while (isBlank(*at_)) ++at_;
  return at_ != start;
}

// A name with a prefix or without; nothing that begins as the names that XML keeps for itself.
bool PlainScanner::readName(std::string_view& name) {
  const char* const start = at_;
  bool prefixed = false;
  if (!is(*at_, kNameStart)) return false;
  while (is(*++at_, kInName) || (*at_ == ':' && !prefixed && is(at_[1], kNameStart))) {
    prefixed = prefixed || *at_ == ':';
  }
  name = {start, static_cast<std::size_t>(at_ - start)};
  return name.size() <= kLongestName && *at_ != ':';
}

bool PlainScanner::openElement() {
  const bool isRoot = open_.empty();
  ++at_;
  std::string_view name;
  if (!readName(name) || name.starts_with("xml") || open_.size() == kMostLevels) return false;
  const std::uint32_t place = add(name, PlainNode::Kind::Element);
  while (true) {
    const bool parted = skipBlanks();
    if (*at_ == '>') {
      ++at_;
      open_.push_back({place, 0});
      return true;
    }
    if (*at_ == '/' && !isRoot) {
      finish(place, 0);
      return passed("/>");
    }
    if (!parted || !readAttribute(place)) return false;
  }
}

std::uint32_t PlainScanner::add(std::string_view view, PlainNode::Kind kind) {
  const auto place = static_cast<std::uint32_t>(nodes_.size());
  PlainNode& node = nodes_.emplace_back();
  node.start = view.data();
  node.size = static_cast<std::uint32_t>(view.size());
  node.kind = kind;
  if (!open_.empty() && kind != PlainNode::Kind::Attribute) open_.back().lastBelow = place;
  return place;
}

void PlainScanner::finish(std::uint32_t place, std::uint32_t lastBelow) {
  nodes_[place].span = static_cast<std::uint32_t>(nodes_.size()) - place;
  if (lastBelow != 0) nodes_[lastBelow].last = true;
}

bool PlainScanner::closeElement() {
  const Open open = open_.back();
  at_ += 2;
  if (!passed(nodes_[open.place].view())) return false;
  skipBlanks();
  finish(open.place, open.lastBelow);
  open_.pop_back();
  return passed(">");
}

bool PlainScanner::readText() {
  char* const start = at_;
  char* to = at_;  // references become shorter
  while (*at_ != '<') {
    char* const run = at_;
    while (is(*at_, kPlainText)) ++at_;
    if (at_ != run) {
      if (to != run) std::memmove(to, run, static_cast<std::size_t>(at_ - run));
      to += at_ - run;
    } else if (*at_ == '&') {
      if (!replaceReference(*to)) return false;
      ++to;
    } else {
      if (*at_ == ']' && at_[1] == ']' && at_[2] == '>') return false;
      if (!passLetter()) return false;
      to = std::copy(run, at_, to);
    }
  }
  endText({start, static_cast<std::size_t>(to - start)});
  return true;
}

void PlainScanner::endText(std::string_view text) {
  if (!std::all_of(text.begin(), text.end(), isBlank)) {
    add(text, PlainNode::Kind::Text);
  } else if (open_.back().lastBelow == 0 && at_[1] == '/') {
    add(text, PlainNode::Kind::LoneBlank);
  }
}

bool PlainScanner::replaceReference(char& to) {
  for (const Reference& reference : kReferences) {
    if (!passed(reference.name)) continue;
    to = reference.letter;
    return true;
  }
  return false;
}

bool PlainScanner::passLetter() {
  if (is(*at_, kPlainText) || *at_ == ']') {
    ++at_;
    return true;
  }
  const auto lead = static_cast<unsigned char>(*at_);
  if (lead < 0xC0) return false;
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  const std::string_view letter = std::string_view(at_, end_).substr(0, size);
  if (!isUtf8(letter) || letter == "\xEF\xBF\xBE" || letter == "\xEF\xBF\xBF") return false;
  at_ += size;
  return true;
}

}  // namespace velra::xml

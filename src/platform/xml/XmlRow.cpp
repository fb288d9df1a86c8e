// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlRow.h"

#include <limits>
#include <utility>

#include "base/RunTimeError.h"

namespace velra::xml {

namespace {

// Of a file of some bytes.
constexpr std::size_t kUsualNode = 40;
constexpr std::size_t kUsualShareOfNames = 4;
constexpr std::size_t kUsualLevels = 8;

std::uint32_t rowPlace(std::size_t place) {
  if (place > std::numeric_limits<std::uint32_t>::max()) raise(kOverflow);
  return static_cast<std::uint32_t>(place);
}

}  // namespace

RowMaker::RowMaker(std::size_t bytes) : row_(std::make_unique<XmlRow>()) {
  row_->nodes_.reserve(bytes / kUsualNode);
  row_->names_.reserve(bytes / kUsualShareOfNames);
  row_->texts_.reserve(bytes);
  open_.reserve(kUsualLevels);
}

RowNode& RowMaker::append(RowNode::Kind kind, std::string_view prefix, std::string_view name) {
  RowNode& node = row_->nodes_.emplace_back();
  node.kind = kind;
  node.name = rowPlace(row_->names_.size());
  if (!prefix.empty()) (row_->names_ += prefix) += ':';
  row_->names_ += name;
  node.nameSize = rowPlace(row_->names_.size()) - node.name;
  node.prefixSize = rowPlace(prefix.size());
  return node;
}

void RowMaker::setText(RowNode& node, std::string& block, std::string_view text) {
  node.text = rowPlace(block.size());
  block += text;
  node.textSize = rowPlace(block.size()) - node.text;
}

void RowMaker::open(std::string_view prefix, std::string_view name) {
  const std::uint32_t place = rowPlace(row_->nodes_.size());
  append(RowNode::Kind::Element, prefix, name).text = rowPlace(row_->texts_.size());
  if (!open_.empty()) open_.back().last = place;
  open_.push_back({place, 0});
}

void RowMaker::addAttribute(RowNode::Kind kind, std::string_view prefix, std::string_view name,
                            std::string_view value) {
  setText(append(kind, prefix, name), row_->names_, value);
  ++row_->nodes_[open_.back().place].attributes;
}

void RowMaker::add(RowNode::Kind kind, std::string_view name, std::string_view text) {
  open_.back().last = rowPlace(row_->nodes_.size());
  RowNode& node = append(kind, {}, name);
  setText(node, kind == RowNode::Kind::LoneBlank ? row_->names_ : row_->texts_, text);
}

void RowMaker::close() {
  const Open open = open_.back();
  RowNode& node = row_->nodes_[open.place];
  node.span = rowPlace(row_->nodes_.size()) - open.place;
  node.textSize = rowPlace(row_->texts_.size()) - node.text;
  if (open.last != 0) row_->nodes_[open.last].last = true;
  open_.pop_back();
}

Row RowMaker::take(std::shared_ptr<const std::string> shell) {
  row_->nodes_.front().last = true;
  row_->shell_ = std::move(shell);
  return std::move(row_);
}

}  // namespace velra::xml

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings/SettingsFile.h"

#include "base/Text.h"
#include "platform/files/FileMoves.h"

namespace velra {
namespace {

constexpr std::uint64_t kLargestFile = 1'000'000;

std::string_view withoutLineEnd(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

/// The section that a line opens; nothing when it opens none.
std::optional<std::string_view> openedSection(std::string_view line) {
  line = trimmed(line);
  if (line.size() < 2 || line.front() != '[' || line.back() != ']') return std::nullopt;
  return line.substr(1, line.size() - 2);
}

/// The name in front of "="; "" when the line gives none.
std::string_view nameOf(std::string_view line) {
  if (line.starts_with(';')) return {};
  const std::size_t equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : trimmed(line.substr(0, equals));
}

}  // namespace

void SettingsFile::refresh() {
  const FileStamp now = fileStamp(path_);
  if (now == stamp_) return;
  stamp_ = now;
  reason_.clear();
  lines_.clear();
  if (now.exists && now.size > 0) {
    const FileBytes file = readFile(path_, kLargestFile);
    reason_ = file.reason;
    lines_ = split(file.bytes, '\n');
    if (lines_.back().empty()) lines_.pop_back();
  }
  index();
}

void SettingsFile::index() {
  sections_.clear();
  Section* section = nullptr;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (trimmed(lines_[i]).empty()) continue;
    if (const auto opened = openedSection(lines_[i])) section = &sections_[std::string(*opened)];
    if (!section) continue;
    section->lastLine = i;
    const std::string_view name = nameOf(lines_[i]);
    if (!name.empty()) section->lineOfName.try_emplace(std::string(name), i);
  }
}

std::optional<std::string_view> SettingsFile::find(std::string_view section,
                                                   std::string_view name) {
  refresh();
  const auto inSection = sections_.find(section);
  if (inSection == sections_.end()) return std::nullopt;
  const auto found = inSection->second.lineOfName.find(name);
  if (found == inSection->second.lineOfName.end()) return std::nullopt;
  const std::string_view line = lines_[found->second];
  return withoutLineEnd(line.substr(line.find('=') + 1));
}

std::string SettingsFile::set(std::string_view section, const std::vector<Line>& lines) {
  refresh();
  if (!reason_.empty()) return reason_;
  for (const auto& [name, text] : lines) {
    place(section, name, name + "=" + text);
    index();
  }
  std::string failure = replaceFile(path_, bytes());
  stamp_ = {~std::uint64_t{0}, 0, 0, false};  // whatever is there now is looked at anew
  return failure;
}

void SettingsFile::place(std::string_view section, std::string_view name, std::string line) {
  const auto found = sections_.find(section);
  if (found == sections_.end()) {
    if (!lines_.empty()) lines_.emplace_back();
    lines_.push_back("[" + std::string(section) + "]");
    lines_.push_back(std::move(line));
    return;
  }
  const auto old = found->second.lineOfName.find(name);
  if (old != found->second.lineOfName.end()) {
    lines_[old->second] = std::move(line);
    return;
  }
  const auto behind = static_cast<std::ptrdiff_t>(found->second.lastLine) + 1;
  lines_.insert(lines_.begin() + behind, std::move(line));
}

std::string SettingsFile::bytes() const {
  std::string all;
  for (const std::string& line : lines_) all += line + "\n";
  return all;
}

std::string escapedLine(std::string_view text) {
  return replaceAll(replaceAll(std::string(text), "\\", "\\\\"), "\n", "\\n");
}

std::string unescapedLine(std::string_view line) {
  std::string text;
  while (!line.empty()) {
    const std::string_view pair = line.substr(0, 2);
    const bool escaped = pair == "\\\\" || pair == "\\n";
    text += pair == "\\n" ? '\n' : line.front();
    line.remove_prefix(escaped ? 2 : 1);
  }
  return text;
}

}  // namespace velra

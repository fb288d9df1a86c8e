// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/GuardedFiles.h"

#include <array>
#include <chrono>
#include <cstring>

#include "app/MessageCatalogue.h"
#include "platform/files/ContentPrint.h"
#include "platform/files/Files.h"
#include "rescue/DocumentRescue.h"

namespace velra {

namespace {

// The times of files stand still for some milliseconds, so that a young one does not tell two
// writes from one.
constexpr std::chrono::seconds kYoung{1};

std::uint64_t printOf(const FileStamp& stamp) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  if (!stamp.exists || std::chrono::nanoseconds(stamp.modified) > now - kYoung) return 0;
  const std::array<std::uint64_t, 4> parts{stamp.size, static_cast<std::uint64_t>(stamp.modified),
                                           stamp.device, stamp.inode};
  std::array<char, sizeof(parts)> bytes{};
  std::memcpy(bytes.data(), parts.data(), bytes.size());
  return contentPrint({bytes.data(), bytes.size()});
}

}  // namespace

void GuardedFiles::setDocument(const std::string& path) {
  document_ = path;
  own_.emplace(path);
}

void GuardedFiles::noteContent(const std::string& path, std::uint64_t print,
                               const FileStamp& stamp) {
  contents_.insert_or_assign(contentPrint(path), Content{print, printOf(stamp)});
}

void GuardedFiles::noteStamp(const std::string& path, const FileStamp& stamp) {
  stamps_.insert_or_assign(contentPrint(path), stamp);
}

void GuardedFiles::spare(const std::string& path, std::string_view bytes, DocumentRescue* rescue) {
  const auto known = contents_.find(contentPrint(path));
  if (known != contents_.end()) spare(path, bytes, known->second, rescue);
}

// True when these bytes are what is known, now at the latest.
bool GuardedFiles::spare(const std::string& path, std::string_view bytes, Content& known,
                         DocumentRescue* rescue) {
  if (bytes.empty()) return false;
  const std::uint64_t print = contentPrint(bytes);
  if (print != known.print && bKept(path, bytes, rescue)) known = {print, 0};
  return print == known.print;
}

std::optional<FileStamp> GuardedFiles::goes(const std::string& path, DocumentRescue* rescue) {
  const FileStamp present = own_ ? own_->stampOfOwn(path) : fileStamp(path);
  if (own_ && !present.exists && fileStamp(path).exists) {
    left_.add(path);
    return std::nullopt;
  }
  if (present.exists) spareBefore(path, present, rescue);
  return present;
}

void GuardedFiles::spareBefore(const std::string& path, const FileStamp& present,
                               DocumentRescue* rescue) {
  const std::uint64_t key = contentPrint(path);
  if (const auto content = contents_.find(key); content != contents_.end()) {
    Content& held = content->second;
    const std::uint64_t stamp = printOf(present);
    if (stamp != 0 && stamp == held.stamp) return;
    if (spare(path, readFile(path).bytes, held, rescue)) held.stamp = stamp;
    return;
  }
  const auto known = stamps_.find(key);
  if (known == stamps_.end() || present == known->second) return;
  if (bKept(path, readFile(path).bytes, rescue)) known->second = present;
}

// Once is enough for each state of a file.
bool GuardedFiles::bKept(const std::string& path, std::string_view bytes, DocumentRescue* rescue) {
  const bool kept = rescue && rescue->keepReplaced(path, std::string(bytes)).empty();
  (kept ? kept_ : lost_).add(path);
  return kept;
}

std::string GuardedFiles::strWhyNotWrite(const std::string& path) {
  if (!own_ || path == document_ || path == chosen_ || own_->holds(path)) return {};
  if (!contents_.contains(contentPrint(path)) || !bFileExists(path)) {
    return "It does not belong to the document";
  }
  outside_.add(path);
  return {};
}

std::string GuardedFiles::strTakeNotes(const MessageCatalogue& messages) {
  std::string notes;
  const auto add = [&](Note& note, Message message) {
    const std::string sentence = note.strTake(messages, message);
    if (!sentence.empty()) notes += (notes.empty() ? "" : " ") + sentence;
  };
  add(kept_, Message::ChangedAndKept);
  add(lost_, Message::ChangedAndLost);
  add(outside_, Message::WrittenOutside);
  add(left_, Message::LeftAlone);
  return notes;
}

void GuardedFiles::Note::add(const std::string& path) {
  if (!told_.insert(path).second) return;
  if (first_.empty()) {
    first_ = path;
  } else {
    ++others_;
  }
}

std::string GuardedFiles::Note::strTake(const MessageCatalogue& messages, Message sentence) {
  if (first_.empty()) return {};
  std::string told = first_;
  if (others_ > 0) {
    told +=
        messages.text(Message::AndOthers) + std::to_string(others_) + messages.text(Message::More);
  }
  first_.clear();
  others_ = 0;
  if (!once_) told_.clear();
  return told + ": " + messages.text(sentence);
}

}  // namespace velra

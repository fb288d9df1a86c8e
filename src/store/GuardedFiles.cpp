// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/GuardedFiles.h"

#include "app/MessageCatalogue.h"
#include "platform/files/ContentPrint.h"
#include "platform/files/Files.h"
#include "rescue/DocumentRescue.h"

namespace velra {

void GuardedFiles::setDocument(const std::string& path) {
  document_ = path;
  own_.emplace(path);
}

void GuardedFiles::noteContent(const std::string& path, std::uint64_t print) {
  contents_.insert_or_assign(contentPrint(path), print);
}

void GuardedFiles::noteStamp(const std::string& path, const FileStamp& stamp) {
  stamps_.insert_or_assign(contentPrint(path), stamp);
}

void GuardedFiles::spare(const std::string& path, std::string_view bytes, DocumentRescue* rescue) {
  const auto known = contents_.find(contentPrint(path));
  if (known == contents_.end() || bytes.empty()) return;
  const std::uint64_t print = contentPrint(bytes);
  if (print != known->second && bKept(path, bytes, rescue)) known->second = print;
}

void GuardedFiles::spare(const std::string& path, DocumentRescue* rescue) {
  const std::uint64_t key = contentPrint(path);
  if (contents_.contains(key)) return spare(path, readFile(path).bytes, rescue);
  const auto known = stamps_.find(key);
  const FileStamp present = fileStamp(path);
  if (known == stamps_.end() || !present.exists || present == known->second) return;
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

bool GuardedFiles::mayDelete(const std::string& path) {
  if (!own_ || own_->owns(path) || !fileStamp(path).exists) return true;
  left_.add(path);
  return false;
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

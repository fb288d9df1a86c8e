// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageCatalogue.h"

#include <cstdlib>

#include "app/MessageTable.h"
#include "base/Text.h"

namespace velra {
namespace {

const MessageRow* findMessage(int id) {
  const auto rows = id < 1100   ? messagesFrom1000()
                    : id < 1178 ? messagesFrom1100()
                                : messagesFrom1178();
  const int position = id - rows.front().id;
  if (position < 0 || position >= static_cast<int>(rows.size())) return nullptr;
  return &rows[static_cast<std::size_t>(position)];
}

}  // namespace

InterfaceLanguage interfaceLanguage(const std::string& locale) {
  const std::string language = asciiLower(locale.substr(0, locale.find_first_of("_-.@")));
  return language == "it" || language == "ita" ? InterfaceLanguage::Italian
                                               : InterfaceLanguage::Default;
}

std::string environmentLocale() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return value;
  }
  return {};
}

std::string MessageCatalogue::text(int id) const {
  const MessageRow* message = findMessage(id);
  if (!message) return {};
  const bool italian = language_ == InterfaceLanguage::Italian && message->italian;
  return italian ? message->italian : message->text;
}

std::string MessageCatalogue::inLanguage(const std::string& sentence) const {
  for (const MessageRow& row : messagesFrom1178()) {
    if (row.text == sentence) return text(row.id);
    const std::string behind = std::string(": ") + row.text;
    if (sentence.ends_with(behind)) {
      return sentence.substr(0, sentence.size() - behind.size()) + ": " + text(row.id);
    }
  }
  return sentence;
}

bool MessageCatalogue::holds(int id) const {
  return findMessage(id) != nullptr;
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "app/Message.h"

namespace velra {

enum class InterfaceLanguage { Default, Italian };

/// The language of the interface for a locale name such as "it_IT.UTF-8": Italian for any Italian
/// locale, the default for all others.
InterfaceLanguage interfaceLanguage(const std::string& locale);

/// The locale that the environment asks for, in the order LC_ALL, LC_MESSAGES, LANG.
std::string environmentLocale();

/// The numbered texts of the interface, ids 1000 to 1264.
class MessageCatalogue {
 public:
  explicit MessageCatalogue(InterfaceLanguage language) : language_(language) {}

  /// The text of an id in the language; the default text where that language has none; "" for an id
  /// that the catalogue does not hold.
  std::string text(int id) const;
  std::string text(Message message) const { return text(static_cast<int>(message)); }

  /// A sentence of a folder that knows no languages, alone or behind a path and ": ", in the
  /// language; the sentence itself where no row of the last ones has it.
  std::string inLanguage(const std::string& sentence) const;

  bool holds(int id) const;
  InterfaceLanguage language() const { return language_; }

 private:
  InterfaceLanguage language_;
};

}  // namespace velra

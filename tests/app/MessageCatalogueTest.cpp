// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <vector>

#include "app/MessageTable.h"
#include "base/Text.h"

namespace velra {
namespace {

const MessageCatalogue kDefault(InterfaceLanguage::Default);
const MessageCatalogue kItalian(InterfaceLanguage::Italian);

TEST(MessageCatalogue, HoldsEveryIdOnceAndInOrder) {
  int next = 1000;
  for (const auto rows : {messagesFrom1000(), messagesFrom1100(), messagesFrom1178()}) {
    for (const MessageRow& row : rows) EXPECT_EQ(row.id, next++);
  }
  EXPECT_EQ(next, 1294);
  EXPECT_EQ(kDefault.text(1177), "Keyframe updated.");
  EXPECT_EQ(kItalian.text(1177), "Fotogramma chiave aggiornato.");
  EXPECT_EQ(kItalian.text(1044), "Paste") << "what is not translated";
  EXPECT_EQ(kItalian.inLanguage("The file is empty."), "Il file è vuoto.");
  EXPECT_EQ(kItalian.inLanguage("/a: There are no cues in it."), "/a: Non contiene sottotitoli.");
  EXPECT_EQ(kItalian.inLanguage("What no row says."), "What no row says.");
  for (const int id : {0, -1, 20, 21, 999, 1294, 40'000}) {
    EXPECT_FALSE(kDefault.holds(id)) << id;
    EXPECT_EQ(kDefault.text(id), "") << id;
  }
}

/// Those who join texts depend on blanks and colons, windows on the marks of access keys.
TEST(MessageCatalogue, TranslationsKeepTheShapeOfTheirText) {
  const std::set<int> untranslated = {1032, 1033, 1034, 1044, 1045, 1046, 1047, 1048, 1049, 1050};
  for (const auto rows : {messagesFrom1000(), messagesFrom1100(), messagesFrom1178()}) {
    for (const MessageRow& row : rows) {
      ASSERT_EQ(row.italian == nullptr, untranslated.contains(row.id)) << row.id;
      const std::string text = row.text;
      const std::string italian = kItalian.text(row.id);
      EXPECT_TRUE(isUtf8(text) && isUtf8(italian)) << row.id;
      EXPECT_EQ(text.front() == ' ', italian.front() == ' ') << row.id;
      EXPECT_EQ(text.back() == ' ', italian.back() == ' ') << row.id;
      EXPECT_EQ(text.back() == ':', italian.back() == ':') << row.id;
      EXPECT_EQ(text.ends_with("..."), italian.ends_with("...")) << row.id;
      EXPECT_EQ(std::count(text.begin(), text.end(), '&'),
                std::count(italian.begin(), italian.end(), '&'))
          << row.id;
    }
  }
}

TEST(MessageCatalogue, ItalianAccessKeysDifferWithinAMenu) {
  const std::vector<std::vector<int>> menus = {
      {1000, 1009, 1017, 1028, 1030, 1036},
      {1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1080, 1130, 1135, 1178, 1179},
      {1192, 1193, 1194, 1008},
      {1010, 1011, 1012, 1013, 1014, 1015, 1016, 1084, 1085, 1105, 1115},
      {1111, 1116, 1117},
      {1018, 1019, 1020, 1021, 1022, 1023, 1024, 1025, 1026, 1027},
      {1031, 1032, 1033, 1034, 1035},
      {1037, 1038, 1039},
  };
  for (const auto& menu : menus) {
    std::set<int> keys;
    for (const int id : menu) {
      const std::string text = kItalian.text(id);
      const std::size_t mark = text.find('&');
      if (mark == std::string::npos) continue;
      EXPECT_TRUE(keys.insert(std::tolower(text.at(mark + 1))).second) << id << " " << text;
    }
  }
}

TEST(MessageCatalogue, ItalianIsForItalianLocalesAlone) {
  for (const char* locale : {"it", "it_IT", "it_IT.UTF-8", "it_CH@euro", "IT_it", "it-IT"}) {
    EXPECT_EQ(interfaceLanguage(locale), InterfaceLanguage::Italian) << locale;
  }
  for (const char* locale : {"", "C", "C.UTF-8", "en_IT", "de_DE", "iteration", "i"}) {
    EXPECT_EQ(interfaceLanguage(locale), InterfaceLanguage::Default) << locale;
  }
}

}  // namespace
}  // namespace velra

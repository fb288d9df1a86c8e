// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "base/CaselessText.h"

namespace velra {
namespace {

TEST(Text, LowersByTheRulesOfUnicode) {
  const struct {
    const char* text;
    const char* lower;
    const char* ascii;
  } cases[] = {
      {"", "", ""},
      {"FILM 1", "film 1", "film 1"},
      {"\xC3\x89T\xC3\x89", "\xC3\xA9t\xC3\xA9", "\xC3\x89t\xC3\x89"},  // Été
      {"\xCE\xA3\xCE\x91\xCE\xA3", "\xCF\x83\xCE\xB1\xCF\x82", "\xCE\xA3\xCE\x91\xCE\xA3"},  // ΣΑΣ
      {"TITLE I", "title i", "title i"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(toLower(one.text), one.lower);
    EXPECT_EQ(asciiLower(one.text), one.ascii);
  }
  EXPECT_TRUE(equalIgnoringAsciiCase("XML", "xMl"));
  EXPECT_FALSE(equalIgnoringAsciiCase("XML", "xm"));
  EXPECT_FALSE(equalIgnoringAsciiCase("[", "{")) << "32 apart, but no letters";
}

// Looked for in what is at hand, and lowered by all rules only where that can change the answer.
TEST(Text, IsFoundWithoutCaseAsInTheLoweredValue) {
  const std::vector<std::string> letters{"a",      "A",      "k",      "K",      "s",      "S",
                                         "i",      "I",      "\u212A", "\u0130", "\u0307", "\u03A3",
                                         "\u03C3", "\u03C2", "\u00C9", "\u00E9", "\xFF"};
  std::mt19937 random(7);
  const auto some = [&](std::size_t most) {
    std::string text;
    for (std::size_t i = random() % (most + 1); i > 0; --i) {
      text += letters[random() % letters.size()];
    }
    return text;
  };
  for (int i = 0; i < 20'000; ++i) {
    const std::string text = some(3);
    const std::string value = some(7);
    const bool found = toLower(value).find(toLower(text)) != std::string::npos;
    ASSERT_EQ(CaselessText(text).bIn(value), found) << text << " in " << value;
  }
}

TEST(Text, Splits) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(split("", ':'), Pieces{""});
  EXPECT_EQ(split("a", ':'), Pieces{"a"});
  EXPECT_EQ(split(":a::", ':'), (Pieces{"", "a", "", ""}));
  EXPECT_EQ(trimmed(" \t a b\r\n"), "a b");
  EXPECT_EQ(trimmed(" \n"), "");
  EXPECT_EQ(replaceAll("aaa", "aa", "a"), "aa") << "what was put in is not looked at again";
}

TEST(Text, NumbersAreWholeTexts) {
  const struct {
    const char* text;
    std::optional<double> value;
  } cases[] = {
      {"0", 0},    {" 2509 ", 2509}, {"-1.5", -1.5}, {"+1", 1},   {".5", 0.5},
      {"5.", 5},   {"1e3", 1000},    {"", {}},       {" ", {}},   {"1,5", {}},
      {"1 2", {}}, {"0x10", {}},     {"inf", {}},    {"nan", {}}, {"1e999", {}},
      {"--1", {}}, {"+-1", {}},      {"+", {}},      {"12a", {}}, {"1.2.3", {}},
  };
  for (const auto& one : cases) EXPECT_EQ(toNumber(one.text), one.value) << one.text;
}

TEST(Text, NumbersReadBackAsThemselves) {
  EXPECT_EQ(numberText(25), "25");
  EXPECT_EQ(numberText(-0.5), "-0.5");
  EXPECT_EQ(numberText(0.1), "0.1");
  EXPECT_EQ(numberText(-0.0), "0");
  std::mt19937_64 random(1);
  for (int i = 0; i < 10'000; ++i) {
    const double value = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                                    static_cast<int>(random() % 128) - 64);
    EXPECT_EQ(toNumber(numberText(value)), value);
  }
}

TEST(Text, KnowsWellFormedUtf8) {
  for (const char* good : {"", "abc", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x8E\xAC"}) {
    EXPECT_TRUE(isUtf8(good)) << good;
  }
  for (const char* bad : {"\xE9", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80"}) {
    EXPECT_FALSE(isUtf8(bad));
  }
}

}  // namespace
}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ApplicationModule.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "support/TestApplication.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

class ApplicationModuleTest : public ::testing::Test, protected test::TestApplication {
 protected:
  void machineFile(const std::string& lines) {
    folder.write("machine.ini", "[SOFTWARE\\Velra]\n" + lines);
  }
};

TEST_F(ApplicationModuleTest, WarnsOnceForEachNameUntilCleared) {
  for (const char* name : {"Title", "title", "Title"}) app.WarnNotFoundOnce(name);
  EXPECT_EQ(ui.takeShown(),
            (Texts{"ok-cancel: Title non trovato", "ok-cancel: title non trovato"}));
  app.gNotFound.clear();
  app.WarnNotFoundOnce("Title");
  EXPECT_EQ(ui.takeShown(), Texts{"ok-cancel: Title non trovato"});
}

TEST_F(ApplicationModuleTest, ReadsEachKindOfValueAsText) {
  machineFile("Text= a b \nNumber=dword:000009cd\nLargest=dword:ffffffff\nBytes=hex:41\nLong=" +
              std::string(2000, 'x') + "\nZero=a" + std::string(1, '\0') + "b\n");
  const struct {
    const char* name;
    bool found;
    std::string text;
  } cases[] = {
      {"Text", true, " a b "},
      {"Number", true, "2509"},
      {"Largest", true, "4294967295"},
      {"Bytes", true, "as it was"},
      {"Zero", true, "a"},
      {"Long", true, std::string(1024, 'x')},
      {"Missing", false, ""},
  };
  for (const auto& one : cases) {
    std::string text = "as it was";
    EXPECT_EQ(app.bRegRead(ApplicationModule::kMachineSection, one.name, text), one.found);
    EXPECT_EQ(text, one.text) << one.name;
  }
  EXPECT_EQ(app.strXSDPath(), "");
  machineFile("XSDPath=/s.xsd\nThematicKeywordsPath=/t.xml\n");
  EXPECT_EQ(app.strXSDPath(), "/s.xsd");
  EXPECT_EQ(app.strThematicKeywordsPath(), "/t.xml");
}

TEST_F(ApplicationModuleTest, ConnectionSettingsNeedAllFourAndANumber) {
  const std::string rest = "NaroServer=host\nDMName=/dm\nHTTPServer=web\n";
  const struct {
    std::string lines;
    bool complete;
    int port;
  } cases[] = {
      {rest + "NaroPort=80\n", true, 80},
      {rest + "NaroPort= 80.5 \n", true, 80},
      {rest + "NaroPort=dword:00000050\n", true, 80},
      {rest + "NaroPort=abc\n", false, 7},
      {rest, false, 7},
      {"NaroPort=80\nDMName=/dm\n", false, 80},
      {"", false, 7},
  };
  for (const auto& one : cases) {
    machineFile(one.lines);
    ConnectionSettings settings;
    settings.iPort = 7;
    EXPECT_EQ(app.bReadConnectionSettings(settings), one.complete) << one.lines;
    EXPECT_EQ(settings.iPort, one.port) << one.lines;
  }
  machineFile(rest + "NaroPort=32768\n");
  ConnectionSettings settings;
  EXPECT_THROW(app.bReadConnectionSettings(settings), RunTimeError);
}

TEST_F(ApplicationModuleTest, WritesConnectionSettingsAsTexts) {
  machineFile("XSDPath=/s.xsd\nNaroPort=dword:00000001\n");
  app.WriteConnectionSettings({"host", 2509, "/dm", "web"});
  EXPECT_EQ(folder.read("machine.ini"),
            "[SOFTWARE\\Velra]\nXSDPath=/s.xsd\nNaroPort=2509\nNaroServer=host\nDMName=/dm\n"
            "HTTPServer=web\n");
  ConnectionSettings settings;
  EXPECT_TRUE(app.bReadConnectionSettings(settings));
}

TEST(StripQuotes, TakesOnePairAlone) {
  const struct {
    const char* text;
    const char* result;
  } cases[] = {
      {"", ""},
      {"/a b/film.xml", "/a b/film.xml"},
      {"\"/a b/film.xml\"", "/a b/film.xml"},
      {"before \"middle\" after", "middle"},
      {"\"stray", "\"stray"},
      {"\"one\" \"two\"", "\"one\" \"two\""},
      {"\"\"", ""},
  };
  for (const auto& one : cases) EXPECT_EQ(strStripQuotes(one.text), one.result);
}

}  // namespace
}  // namespace velra

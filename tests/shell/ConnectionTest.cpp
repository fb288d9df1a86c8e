// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Program.h"
#include "support/ErrorOf.h"

namespace velra {
namespace {

using Box = ConnectionDialog::Box;

class ConnectionTest : public ::testing::Test {
 protected:
  void show(std::function<void(ConnectionDialog&)> act) {
    program_.presenter.onConnection = std::move(act);
    program_.mainForm.mnuConnection();
  }
  std::string stored() { return program_.folder.read("machine.ini"); }

  test::Program program_;
  const std::string refusal_ = "exclamation: " + program_.app.messages.text(1162);
};

TEST_F(ConnectionTest, OffersDefaultsAndStoresWhatIsTyped) {
  show([&](ConnectionDialog& dialog) {
    EXPECT_EQ(program_.presenter.lastOwner, &program_.mainForm);
    EXPECT_EQ(dialog.text(Box::Text1), "");
    EXPECT_EQ(dialog.text(Box::Text2), "2509");
    EXPECT_EQ(dialog.text(Box::Text3), "/MediaArchive/datamanager");
    EXPECT_EQ(dialog.text(Box::Text4), "");
    EXPECT_FALSE(dialog.bChanged());
    dialog.change(Box::Text1, "host & <b>");
    dialog.change(Box::Text2, "80");
    dialog.change(Box::Text4, "http://search");
    dialog.OKButton_Click();
  });
  show([](ConnectionDialog& dialog) {
    EXPECT_EQ(dialog.text(Box::Text1), "host & <b>");
    EXPECT_EQ(dialog.text(Box::Text2), "80");
    EXPECT_EQ(dialog.text(Box::Text3), "/MediaArchive/datamanager");
    EXPECT_EQ(dialog.text(Box::Text4), "http://search");
  });
  EXPECT_NE(stored().find("NaroPort=80\n"), std::string::npos);
  EXPECT_TRUE(program_.ui.shown.empty());
}

TEST_F(ConnectionTest, WritesNothingWithoutAChangeOrAfterCancel) {
  const std::string before = stored();
  show([](ConnectionDialog& dialog) { dialog.OKButton_Click(); });
  show([](ConnectionDialog& dialog) {
    dialog.change(Box::Text1, "other");
    dialog.change(Box::Text2, "7");
    EXPECT_TRUE(dialog.bChanged());
    dialog.CancelButton_Click();
    EXPECT_FALSE(dialog.bChanged());
  });
  show([](ConnectionDialog& dialog) { EXPECT_EQ(dialog.text(Box::Text2), "2509"); });
  EXPECT_EQ(stored(), before);
}

TEST_F(ConnectionTest, TakesAPortOrPutsTheLastOneBack) {
  const struct {
    const char* typed;
    const char* shown;  // in the box afterwards
    int port;
    bool changed;
    bool refused;
  } cases[] = {
      {"0", "0", 0, true, false},
      {"32767", "32767", 32767, true, false},
      {"32768", "32768", 2509, false, false},  // too large for its place: passed over
      {"12.9", "12.9", 12, true, false},
      {"", "", 2509, false, false},
      // Putting the last port back is a change of the box too.
      {"-1", "2509", 2509, true, true},
      {"-0.5", "2509", 2509, true, true},
      {"-", "2509", 2509, true, true},
      {"http", "2509", 2509, true, true},
      {"80x", "2509", 2509, true, true},
      {" ", "2509", 2509, true, true},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.typed);
    show([&](ConnectionDialog& dialog) {
      dialog.change(Box::Text2, one.typed);
      EXPECT_EQ(dialog.text(Box::Text2), one.shown);
      EXPECT_EQ(dialog.settings().iPort, one.port);
      EXPECT_EQ(dialog.bChanged(), one.changed);
      dialog.CancelButton_Click();
    });
    EXPECT_EQ(program_.ui.takeShown(), std::vector<std::string>(one.refused ? 1 : 0, refusal_));
  }
}

TEST_F(ConnectionTest, OKWithoutAUsablePortIsARunTimeError) {
  const struct {
    const char* typed;
    int error;
  } cases[] = {{"", kTypeMismatch}, {"40000", kOverflow}};
  for (const auto& one : cases) {
    show([&](ConnectionDialog& dialog) {
      dialog.change(Box::Text2, one.typed);
      EXPECT_EQ(test::errorOf([&] { dialog.OKButton_Click(); }), one.error) << one.typed;
      dialog.CancelButton_Click();
    });
  }
}

TEST_F(ConnectionTest, ShowsStoredValuesEvenOddOnes) {
  const struct {
    const char* port;
    const char* shown;
    std::size_t refusals;
  } cases[] = {
      {"8080", "8080", 0}, {"0", "2509", 0}, {"abc", "2509", 0}, {"-5", "-5", 1}, {"7.6", "8", 0}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.port);
    const std::pair<const char*, const char*> values[] = {
        {"NaroServer", "s"}, {"NaroPort", one.port}, {"DMName", "d"}, {"HTTPServer", "h"}};
    for (const auto& [name, value] : values) {
      program_.settings.write(ApplicationModule::kMachineSection, name, std::string(value));
    }
    show([&](ConnectionDialog& dialog) {
      EXPECT_EQ(dialog.text(Box::Text1), "s");
      EXPECT_EQ(dialog.text(Box::Text2), one.shown);
      EXPECT_EQ(dialog.text(Box::Text3), "d");
      EXPECT_EQ(dialog.text(Box::Text4), "h");
      EXPECT_FALSE(dialog.bChanged());
    });
    EXPECT_EQ(program_.ui.takeShown().size(), one.refusals);
  }
}

}  // namespace
}  // namespace velra

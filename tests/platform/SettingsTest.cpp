// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/files/Files.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::TemporaryFolder;
using Setting = MachineSettings::Setting;

constexpr const char* kSection = "SOFTWARE\\Velra";

const std::string kFile = readFile(VELRA_SOURCE_DIR "/tests/data/machine.ini").bytes;

TEST(MachineSettings, ReadsEachKind) {
  const TemporaryFolder folder;
  const MachineSettings settings(folder.write("machine.ini", kFile));
  const struct {
    const char* name;
    std::optional<Setting> value;
  } cases[] = {
      {"XSDPath", "/a b/velra.xsd "},
      {"Escaped", "one\ntwo\\three\\x"},
      {"Empty", ""},
      {"Port", 2509U},
      {"Largest", 0xFFFFFFFFU},
      {"Bytes", MachineSettings::Bytes{0x00, 0xFF, 0x7F}},
      {"NoBytes", MachineSettings::Bytes{}},
      {"Windows", "line"},
      {"Short", std::nullopt},
      {"Signed", std::nullopt},
      {"NoDigits", std::nullopt},
      {"HalfByte", std::nullopt},
      {"OpenEnd", std::nullopt},
      {"Orphan", std::nullopt},
      {"xsdpath", std::nullopt},
      {"", std::nullopt},
      {"; the schema", std::nullopt},
  };
  for (const auto& one : cases) EXPECT_EQ(settings.read(kSection, one.name), one.value) << one.name;
  EXPECT_EQ(settings.read("Missing", "XSDPath"), std::nullopt);
  EXPECT_EQ(MachineSettings(folder / "missing.ini").read(kSection, "XSDPath"), std::nullopt);
}

TEST(MachineSettings, AWriteChangesItsLineAlone) {
  const TemporaryFolder folder;
  MachineSettings settings(folder.write("machine.ini", kFile));
  EXPECT_TRUE(settings.write(kSection, "XSDPath", "C:\\x\ny"));
  EXPECT_TRUE(settings.write(kSection, "New", 255U));
  std::string expected = kFile;
  const std::string old = "XSDPath=/a b/velra.xsd \n";
  expected.replace(expected.find(old), old.size(), "XSDPath=C:\\\\x\\ny\n");
  const std::string last = "Windows=line\r\n";
  expected.insert(expected.find(last) + last.size(), "New=dword:000000ff\n");
  EXPECT_EQ(folder.read("machine.ini"), expected);
}

TEST(MachineSettings, EveryKindComesBack) {
  const TemporaryFolder folder;
  for (const Setting& value :
       {Setting("plain"), Setting(""), Setting(" \\n\\\\n\n"), Setting(0U), Setting(0xDEADBEEFU),
        Setting(MachineSettings::Bytes{}), Setting(MachineSettings::Bytes{1, 2, 0xFE})}) {
    MachineSettings settings(folder / "machine.ini");
    EXPECT_TRUE(settings.write(kSection, "Name", value));
    EXPECT_EQ(settings.read(kSection, "Name"), value);
    EXPECT_EQ(MachineSettings(folder / "machine.ini").read(kSection, "Name"), value);
  }
  MachineSettings settings(folder / "machine.ini");
  EXPECT_FALSE(settings.write(kSection, "Name", "dword:no number"));
}

TEST(MachineSettings, NoticesAChangeOfTheFile) {
  const TemporaryFolder folder;
  MachineSettings settings(folder / "machine.ini");
  EXPECT_EQ(settings.read("A", "b"), std::nullopt);
  folder.write("machine.ini", "[A]\nb=1\n");
  EXPECT_EQ(settings.read("A", "b"), Setting("1"));
  folder.write("machine.ini", "[A]\nb=22\n");
  EXPECT_EQ(settings.read("A", "b"), Setting("22"));
  std::filesystem::remove(folder / "machine.ini");
  EXPECT_EQ(settings.read("A", "b"), std::nullopt);
}

TEST(MachineSettings, LeavesAloneWhatItCannotReadOrWrite) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "machine.ini");
  EXPECT_FALSE(MachineSettings(folder / "machine.ini").write("A", "b", "1"));
  EXPECT_FALSE(MachineSettings(folder / "missing/machine.ini").write("A", "b", "1"));
  const std::string large(1'000'001, ';');
  EXPECT_FALSE(MachineSettings(folder.write("large.ini", large)).write("A", "b", "1"));
  EXPECT_EQ(folder.read("large.ini"), large);
}

/// Sets a variable of the environment while it lives.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    value ? ::setenv(name, value, 1) : ::unsetenv(name);
  }
  ~Variable() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(Settings, LieWhereTheEnvironmentSays) {
  const Variable home("HOME", "/home/ada");
  {
    const Variable config("XDG_CONFIG_HOME", nullptr);
    const Variable machine("VELRA_MACHINE_SETTINGS", nullptr);
    EXPECT_EQ(UserSettings::defaultPath(), "/home/ada/.config/velra/velra.ini");
    EXPECT_EQ(MachineSettings::defaultPath(), "/etc/velra/machine.ini");
  }
  const Variable config("XDG_CONFIG_HOME", "/config/");
  const Variable machine("VELRA_MACHINE_SETTINGS", "/m.ini");
  EXPECT_EQ(UserSettings::defaultPath(), "/config/velra/velra.ini");
  EXPECT_EQ(MachineSettings::defaultPath(), "/m.ini");
}

TEST(UserSettings, KeepsTextsAndMakesItsFolders) {
  const TemporaryFolder folder;
  const std::string path = folder / "config/velra/velra.ini";
  UserSettings settings(path);
  EXPECT_EQ(settings.read("Settings", "MainLeft", "1000"), "1000");
  settings.write("Settings", {{"MainLeft", "12.5"}, {"ViewMode", "a\nb\\"}});
  settings.write("Settings", {{"MainLeft", "dword:1"}});
  EXPECT_EQ(folder.read("config/velra/velra.ini"),
            "[Settings]\nMainLeft=dword:1\nViewMode=a\\nb\\\\\n");
  EXPECT_EQ(UserSettings(path).read("Settings", "ViewMode", ""), "a\nb\\");
  EXPECT_EQ(settings.read("Other", "MainLeft", "none"), "none");
  folder.write("file", "x");
  UserSettings(folder / "file/velra.ini").write("Settings", {{"a", "b"}});
  EXPECT_EQ(folder.read("file"), "x");
}

}  // namespace
}  // namespace velra

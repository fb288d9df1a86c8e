// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ApplicationModule.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "base/Arithmetic.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/settings/MachineSettings.h"

namespace velra {
namespace {

/// How much of a text is read, and up to which character.
constexpr std::size_t kLongestText = 1024;

constexpr std::string_view kServer = "NaroServer";
constexpr std::string_view kPort = "NaroPort";
constexpr std::string_view kDataService = "DMName";
constexpr std::string_view kWebServer = "HTTPServer";

}  // namespace

ApplicationModule::ApplicationModule(UserInterface& userInterface, MessageCatalogue catalogue,
                                     MachineSettings& machine, UserSettings& user)
    : ui(userInterface), messages(catalogue), machineSettings(machine), userSettings(user) {}

void ApplicationModule::WarnNotFoundOnce(const std::string& name) {
  if (gNotFound.contains(name)) return;
  ui.askOkCancel(name + " " + LoadResString(Message::NotFound));
  gNotFound.insert(name);
}

bool ApplicationModule::bRegRead(std::string_view subKey, std::string_view name,
                                 std::string& text) const {
  const auto setting = machineSettings.read(subKey, name);
  if (!setting) {
    text.clear();
    return false;
  }
  if (const auto* found = std::get_if<std::string>(&*setting)) {
    text = found->substr(0, kLongestText);
    text.resize(std::min(text.size(), text.find('\0')));
  } else if (const auto* number = std::get_if<std::uint32_t>(&*setting)) {
    text = std::to_string(*number);
  }
  return true;
}

void ApplicationModule::RegWrite(std::string_view subKey, std::string_view name,
                                 const std::string& text) {
  machineSettings.write(subKey, name, text);
}

std::string ApplicationModule::machineText(std::string_view name) const {
  std::string text;
  bRegRead(kMachineSection, name, text);
  return text;
}

std::string ApplicationModule::strXSDPath() const {
  return machineText("XSDPath");
}

std::string ApplicationModule::strThematicKeywordsPath() const {
  return machineText("ThematicKeywordsPath");
}

std::string ApplicationModule::strHelpPath() const {
  return machineText("HelpPath");
}

bool ApplicationModule::bReadConnectionSettings(ConnectionSettings& settings) const {
  bool complete = bRegRead(kMachineSection, kServer, settings.strAddress);
  std::string portText;
  complete &= bRegRead(kMachineSection, kPort, portText);
  const std::optional<double> port = toNumber(portText);
  if (port) settings.iPort = toInt16(*port);
  complete &= port.has_value();
  complete &= bRegRead(kMachineSection, kDataService, settings.strName);
  complete &= bRegRead(kMachineSection, kWebServer, settings.strHTTP);
  return complete;
}

void ApplicationModule::WriteConnectionSettings(const ConnectionSettings& settings) {
  RegWrite(kMachineSection, kServer, settings.strAddress);
  RegWrite(kMachineSection, kPort, std::to_string(settings.iPort));
  RegWrite(kMachineSection, kDataService, settings.strName);
  RegWrite(kMachineSection, kWebServer, settings.strHTTP);
}

std::string strStripQuotes(const std::string& text) {
  const std::vector<std::string> pieces = split(text, '"');
  return pieces.size() == 3 ? pieces[1] : text;
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "app/LargePages.h"
#include "app/LateRelease.h"
#include "app/MessageCatalogue.h"

namespace velra {

class MachineSettings;
class MainWindow;
class NaroThematicKeywords;
class ObjectFactory;
class OpenDocument;
class RescueWriter;
class UserInterface;
class UserSettings;

/// What `bReadConnectionSettings` reads and `WriteConnectionSettings` writes.
struct ConnectionSettings {
  std::string strAddress;
  std::int16_t iPort = 0;
  std::string strName;
  std::string strHTTP;
};

/// The global state of the program: one object, made in main and handed down by reference.
class ApplicationModule {
 public:
  ApplicationModule(UserInterface& userInterface, MessageCatalogue catalogue,
                    MachineSettings& machineSettings, UserSettings& userSettings);

  /// The section of the machine-wide store that belongs to the program.
  static constexpr std::string_view kMachineSection = "SOFTWARE\\Velra";

  UserInterface& ui;
  const MessageCatalogue messages;
  MachineSettings& machineSettings;
  UserSettings& userSettings;

  LargePages largePages;    ///< for what a large document holds
  LateRelease lateRelease;  ///< of what a document leaves, so that it outlives the open one
  std::shared_ptr<OpenDocument> gAVDoc;  ///< the open document; at most one
  MainWindow* gMainForm = nullptr;       ///< set by the main window for its life
  ObjectFactory* objectFactory = nullptr;
  RescueWriter* rescue = nullptr;  ///< keeps what must outlive the program; null: nothing is kept
  std::shared_ptr<NaroThematicKeywords> objNaroThematicKeywords;  ///< empty: no vocabulary
  std::set<std::string> gNotFound;  ///< names that WarnNotFoundOnce has reported
  std::int32_t iLanguage = 0;       ///< language of the vocabulary; kCrossLanguageOff: none
  std::string gCommandLine;

  static constexpr std::int32_t kCrossLanguageOff = 5;

  std::string LoadResString(Message message) const { return messages.text(message); }

  /// Says once for each name, until a document is opened or created, that it was not found.
  void WarnNotFoundOnce(const std::string& name);

  /// Reads a value of the machine-wide store: text as it stands, at most 1024 bytes of it and up to
  /// its first zero character, a 32-bit number as decimal text. False with an empty text when it is
  /// absent; true with the text left alone for any other kind of value.
  bool bRegRead(std::string_view subKey, std::string_view name, std::string& text) const;

  /// Writes a text; a store that cannot be written is left without a word.
  void RegWrite(std::string_view subKey, std::string_view name, const std::string& text);

  std::string strXSDPath() const;
  std::string strThematicKeywordsPath() const;
  std::string strHelpPath() const;

  /// True when all four values are there and the port is numeric; else what could be read is in
  /// `settings`, a missing text is "", and the port is as it was. kOverflow for a port that does
  /// not fit into 16 bits.
  bool bReadConnectionSettings(ConnectionSettings& settings) const;
  void WriteConnectionSettings(const ConnectionSettings& settings);

 private:
  std::string machineText(std::string_view name) const;  // "": there is none
};

/// The middle piece of a text in one pair of double quotes; any other text as it stands.
std::string strStripQuotes(const std::string& text);

}  // namespace velra

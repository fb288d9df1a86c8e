// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "support/ScriptedUserInterface.h"
#include "support/TemporaryFolder.h"

namespace velra::fuzz {

/// The bytes of one run as a text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// What a reader needs around it, made once for all runs of a target: a folder for the file under
/// test and the state of the program, whose boxes nobody sees.
struct FuzzSession {
  test::TemporaryFolder folder;
  test::ScriptedUserInterface ui;
  MachineSettings machine{folder / "machine.ini"};
  UserSettings user{folder / "velra.ini"};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), machine, user};

  /// The path of a file that holds the bytes of this run.
  std::string file(const std::uint8_t* data, std::size_t size, const std::string& name = "input") {
    ui.shown.clear();
    return folder.write(name, std::string(textOf(data, size)));
  }
};

/// Ends the run as a finding when something that must always hold does not.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace velra::fuzz

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ApplicationModule.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "support/ScriptedUserInterface.h"
#include "support/TemporaryFolder.h"

namespace velra::test {

/// The program's global state with scripted answers and empty stores, in a folder of its own.
struct TestApplication {
  TemporaryFolder folder;
  ScriptedUserInterface ui;
  MachineSettings machineSettings{folder / "machine.ini"};
  UserSettings userSettings{folder / "velra.ini"};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), machineSettings,
                        userSettings};
};

}  // namespace velra::test

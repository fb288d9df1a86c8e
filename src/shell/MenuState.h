// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velra {

/// Which entries of the menus are open; the others stand as the design has them.
struct MenuState {
  bool mnuAddChild = true;
  bool mnuAddMainExpr = true;
  bool mnuAddMainVideo = true;
  bool mnuAddMainAudio = true;
  bool mnuAddMainTranscript = true;
  bool mnuImportToFS = true;
  bool mnuExportToDB = true;
  bool mnuFileExportAs = false;
  bool mnuFileImport = false;
  bool mnuFileFindShots = false;
  bool mnuFileRecover = false;
  bool mnuFileIndependent = false;
  /// The ticked entry of the language menu: 0 mnuEnglish, 1 mnuItalian, 2 mnuDutch, 3 mnuGerman,
  /// 4 mnuFrench, 5 mnuCLDisabled.
  std::int32_t language = 0;

  bool operator==(const MenuState&) const = default;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include "app/MessageCatalogue.h"

namespace velra {

/// The texts of the windows that have no number in the catalogue: Texts::tr("..."), in
/// translations/velra_it.ts. What the forms, the tool and the dialogs show under a caption of their
/// own stays as it is in every language, and is not among them.
class Texts {
  Q_DECLARE_TR_FUNCTIONS(Texts)

 public:
  /// Has the windows that are made from now on speak a language, and the toolkit's own boxes too.
  static void speak(InterfaceLanguage language);
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TerminalAnswer.h"

#include <string_view>

#include "app/MessageCatalogue.h"

namespace velra {
namespace {

constexpr const char* kUse = R"(Usage:
  velra [PATH]        opens a document, or the document of an object's file with its form
  velra --help        tells this
  velra --version     tells the version

All of the command line is one path; a file named --help is opened by: velra ./--help
velra-recover brings unsaved work back. More: man velra
)";

constexpr const char* kItalianUse = R"(Uso:
  velra [PERCORSO]    apre un documento, o il documento del file di un oggetto con la sua scheda
  velra --help        mostra questo testo
  velra --version     mostra la versione

Tutta la riga di comando è un solo percorso; un file di nome --help si apre con: velra ./--help
velra-recover recupera il lavoro non salvato. Altro: man velra
)";

}  // namespace

std::optional<std::string> terminalAnswer(int count, const char* const* arguments,
                                          InterfaceLanguage language, const std::string& version) {
  if (count != 1) return std::nullopt;
  const std::string_view word = arguments[0];
  if (word == "--version") return "velra " + version + "\n";
  if (word != "--help") return std::nullopt;
  return language == InterfaceLanguage::Italian ? kItalianUse : kUse;
}

}  // namespace velra

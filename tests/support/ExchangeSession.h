// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "exchange/DocumentReading.h"
#include "exchange/Export.h"
#include "exchange/FormlessFactory.h"
#include "support/TemporaryFolder.h"
#include "support/TestApplication.h"

namespace velra::test {

/// A copy of a document that has everything, with its movie, and the program that exchanges it.
class ExchangeSession {
 public:
  ExchangeSession() {
    const std::filesystem::path tests(VELRA_SOURCE_DIR "/tests");
    std::filesystem::copy(tests / "exchange/document", folder / "a",
                          std::filesystem::copy_options::recursive);
    std::filesystem::copy(tests / "data/movies/mpeg4-25.avi", folder / "a/film.avi");
    ::setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1);
    application.folder.write("machine.ini",
                             "[SOFTWARE\\Velra]\nXSDPath=" VELRA_SOURCE_DIR
                             "/data/schema/velra.xsd\nThematicKeywordsPath=" VELRA_SOURCE_DIR
                             "/data/ThematicKeywords.xml\n");
  }

  TemporaryFolder folder;
  TestApplication application;
  FormlessFactory factory{application.app};
  std::string document = folder / "a/film.xml";

  Content content() { return readContent(application.app, document); }
};

/// What is written for the words of a command line behind the document.
inline Exported exported(const std::string& format, const Content& content,
                         const std::vector<std::string>& words = {}) {
  return exportContent(*exportFormat(format), content, exportOptions(*exportFormat(format), words));
}

}  // namespace velra::test

// SPDX-License-Identifier: GPL-3.0-or-later

// Objects whose document or children cannot be found.
#include <gtest/gtest.h>

#include <filesystem>

#include "objects/AVDocument.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

using test::DocumentSession;
using Texts = std::vector<std::string>;

TEST(BadInput, AReferenceToNothingIsWrittenAgain) {
  DocumentSession session;
  session.files.smallLadder();
  std::filesystem::remove(session.files.path("version1"));
  EXPECT_EQ(session.open(session.files.documentPath()), "");
  session.document()->setStrTitle("Other");
  EXPECT_TRUE(session.document()->bSave());
  const std::string written = session.folder.read("film.xml");
  EXPECT_NE(written.find("Other"), std::string::npos);
  EXPECT_NE(written.find("film_version1.xml"), std::string::npos);
}

// The way up from any object's file to its document.
TEST(BadInput, AWayUpThatIsNotUniqueEndsWithoutADocument) {
  DocumentSession session;
  const test::DocumentFiles files(session.folder, test::DocumentFiles::Identifiers::Absolute);
  files.smallLadder();
  files.media("media2", {"storage1"});
  files.version("version2", {});
  files.segment("audio2", "audio1", 0, 1);
  files.writeRaw("film_other1.xml", "<Other/>");
  files.writeRaw("film_broken1.xml", "<Media>");
  EXPECT_NE(session.open(files.path("version1")), "");
  const std::string document = session.folder / "film_files/../film.xml";
  const struct {
    const char* name;
    std::string found;
    std::size_t boxes;  // the broken file costs one box for each search
  } cases[] = {
      {"media1", document, 1}, {"audio2", document, 0}, {"version1", document, 0},
      {"version2", "", 0},     {"storage1", "", 1},     {"other1", "", 0},
      {"broken1", "", 1},      {"nowhere1", "", 1},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.name);
    const auto io = std::make_shared<IOManager>(session.app);
    EXPECT_EQ(io->strRetrieveAVDocGUIDFromGUID(files.path(one.name)), one.found);
    const Texts shown = session.takeShown();
    EXPECT_EQ(shown.size(), one.boxes);
    for (const std::string& text : shown) EXPECT_EQ(text.rfind("exclamation: XML Parser: ", 0), 0U);
    EXPECT_EQ(session.document()->collObjects().Count(), 0U);
  }
}

}  // namespace
}  // namespace velra

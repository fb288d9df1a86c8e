// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "schema/SEColl.h"
#include "support/DocumentSession.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

namespace fs = std::filesystem;
using test::DocumentSession;

std::map<std::string, FileStamp> stamps(const test::TemporaryFolder& folder) {
  std::map<std::string, FileStamp> result;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    result[entry.path()] = fileStamp(entry.path());
  }
  return result;
}

/// The sample document in the session's folder, opened by its name alone as its own files name it.
void openSample(DocumentSession& session) {
  const fs::path data = fs::path(VELRA_SOURCE_DIR) / "data";
  session.useSchemaFile(data / "schema/velra.xsd");
  fs::copy(data / "sample/lighthouse.xml", session.folder.path());
  fs::copy(data / "sample/lighthouse_files", session.folder / "lighthouse_files");
  changeCurrentFolder(session.folder.path());
  ASSERT_EQ(session.open("lighthouse.xml"), "");
  ASSERT_TRUE(session.takeShown().empty());
}

std::string escaped(const std::string& text) {
  return replaceAll(replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

// The sample stands as the program writes it, so an edit changes the text of one element.
TEST(RoundTrip, AnEditOfOneFieldChangesThatElementOfOneFile) {
  DocumentSession session;
  openSample(session);
  const auto before = session.folder.snapshot();
  int edited = 0;
  for (const ObjectRef& object : session.document()->collObjects().described()) {
    const std::string title = object->strTitle();
    if (title.empty()) continue;
    SCOPED_TRACE(object->strGUID());
    const std::string other = "a < b & \"ß\" \xF0\x9F\x8E\x9E";
    object->setStrTitle(other);
    EXPECT_TRUE(session.document()->bSave());
    auto expected = before;
    std::string& bytes = expected.at(object->strGUID());
    const std::size_t at = bytes.find(">" + escaped(title) + "<");
    ASSERT_NE(at, std::string::npos);
    bytes.replace(at + 1, escaped(title).size(), escaped(other));
    EXPECT_EQ(session.folder.snapshot(), expected);
    object->setStrTitle(title);
    EXPECT_TRUE(session.document()->bSave());
    EXPECT_EQ(session.folder.snapshot(), before);
    ++edited;
  }
  EXPECT_GT(edited, 20);
}

TEST(RoundTrip, GeneratedDocumentsSavedWithoutAChangeKeepEveryByteAndTime) {
  for (unsigned seed = 1; seed <= 15; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    writeRandomDocument(session.files, random, test::Damage::some(random));
    // A video segment chooses its key frame when it is first opened, which is a change.
    for (const auto& entry : fs::directory_iterator(session.folder / "film_files")) {
      if (entry.path().string().find("film_video") != std::string::npos) fs::remove(entry);
    }
    const auto before = session.folder.snapshot();
    const auto stampsBefore = stamps(session.folder);
    try {
      session.open(session.files.documentPath());
      EXPECT_TRUE(session.document()->bSave());
    } catch (const RunTimeError&) {
      // A damaged document may not open; it is left as it was all the more.
    }
    session.close();
    EXPECT_EQ(session.folder.snapshot(), before);
    EXPECT_EQ(stamps(session.folder), stampsBefore);
  }
}

TEST(RoundTrip, WhatStandsOutsideTheRootAndItsAttributesSurvive) {
  DocumentSession session;
  const std::string head =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- ours -->\n<?style x?>\n";
  session.folder.write("film.xml", head +
                                       "<AVDocument own=\"1\" xmlns:q=\"urn:q\"><!-- lost -->"
                                       "<Unknown>lost</Unknown><q:Title>no</q:Title>"
                                       "<Title>A</Title></AVDocument>\n<!-- end -->\n");
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  session.document()->setStrTitle("B");
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_EQ(session.folder.read("film.xml"),
            head + "<AVDocument xmlns:q=\"urn:q\" own=\"1\"><Title>B</Title><AVDocGUID>" +
                session.files.documentPath() + "</AVDocGUID></AVDocument>\n<!-- end -->\n");
}

}  // namespace
}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later

// What an opening makes of its files: links, registrations, boxes and their order.
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/DocumentState.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using test::DocumentFiles;
using test::DocumentSession;
using Texts = std::vector<std::string>;

/// Opens the document of a session and tells in lines what came of it: a failure, the boxes, the
/// texts of the status bar, and each object in order of registration. Paths are relative to the
/// folder.
std::string opened(DocumentSession& session) {
  std::string text;
  try {
    text = session.open(session.files.documentPath());
  } catch (const RunTimeError& error) {
    text = "run-time error " + std::to_string(error.number());
  }
  if (!text.empty()) text += "\n";
  for (const std::string& box : session.takeShown()) text += box + "\n";
  for (const std::string& status : session.window.takeStatusTexts()) text += status + "\n";
  ObjectRegistry& objects = session.document()->collObjects();
  for (const std::string& state : test::stateOf(*session.document())) text += state + "\n";
  EXPECT_TRUE(objects.checkConsistency());
  EXPECT_TRUE(!session.document()->io() || session.document()->io()->scans().checkConsistency());
  return replaceAll(text, session.folder.path() + "/", "");
}

// The indexes go by absolute paths, whatever the files say and however they are damaged.
TEST(Opening, IsTheSameWithRelativeAndAbsoluteIdentifiers) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    std::string outcomes[2];
    for (const auto kind :
         {DocumentFiles::Identifiers::Relative, DocumentFiles::Identifiers::Absolute}) {
      std::mt19937 random(seed);
      DocumentSession session;
      const DocumentFiles files(session.folder, kind);
      writeRandomDocument(files, random,
                          seed % 5 == 0 ? test::Damage::none() : test::Damage::some(random));
      outcomes[static_cast<int>(kind)] = opened(session);
    }
    ASSERT_EQ(outcomes[0], outcomes[1]);
  }
}

// What was read once answers until the file changes.
TEST(Opening, ASearchAfterwardsSeesWhatOthersHaveChanged) {
  DocumentSession session;
  session.files.smallLadder();
  session.files.writeRaw("other.XML", "<Audio><Title>of somebody else</Title></Audio>");
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const auto audio = session.version("version1")->auMainAudio();
  ASSERT_TRUE(audio && audio->colSubExpressions().empty());
  session.files.segment("audio2", "audio1", 0, 1000);
  session.files.writeRaw(
      "other.XML", "<Audio><PartOfAudio>" + session.files.id("audio1") + "</PartOfAudio></Audio>");
  Texts found;
  for (const auto& segment : session.document()->io()->colScanForExpressions(audio)) {
    found.push_back(strFileName(segment->strGUID()));
  }
  EXPECT_EQ(found, (Texts{"film_audio2.xml", "other.XML"}));
  EXPECT_TRUE(session.document()->io()->scans().checkConsistency());
}

}  // namespace
}  // namespace velra

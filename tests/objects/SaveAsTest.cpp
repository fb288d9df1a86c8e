#include <gtest/gtest.h>
#include <sys/resource.h>

#include <filesystem>

#include "base/RunTimeError.h"
#include "platform/Files.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/DocumentState.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

namespace fs = std::filesystem;
using test::Damage;
using test::DocumentSession;
using test::stateOf;
using Texts = std::vector<std::string>;

/// The plain rule up to the saving: each name is counted from 1 and every object is asked for each
/// rename.
void renamePlainly(AVDocument& document, const std::string& path) {
  ObjectRegistry& objects = document.collObjects();
  for (const ObjectRef& object : objects.all()) {
    if (object.get() == &document || object->className() == "MediaObject") continue;
    const std::string newGUID = document.io()->strCreateGUID(objects, *object, path);
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    for (const ObjectRef& other : objects.all()) other->RenameAllRelativesGUID(oldGUID, newGUID);
  }
}

Texts statesBelow(AVDocument& document) {
  Texts states = stateOf(document);
  states.erase(states.begin());  // the document itself gets its new path at another time
  for (std::string& state : states) {
    std::erase(state, '*');
    if (const std::size_t at = state.find(" changed"); at != std::string::npos) state.erase(at, 8);
  }
  return states;
}

TEST(SaveAs, RenamesAsThePlainRuleDoesOnGeneratedDocuments) {
  for (unsigned seed = 1; seed <= 20 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    writeRandomDocument(session.files, random,
                        seed % 2 == 0 ? Damage::none() : Damage::some(random));
    // Over itself the old files keep their numbers.
    const std::string target =
        seed % 3 == 0 ? session.files.documentPath() : session.folder / "new/copy.xml";
    fs::create_directory(session.folder / "new");
    try {
      EXPECT_EQ(session.open(session.files.documentPath()), "");
    } catch (const RunTimeError&) {
      continue;
    }
    renamePlainly(*session.document(), target);
    const Texts plain = statesBelow(*session.document());
    session.close();
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    session.document()->bSaveAs(target);  // false where segments follow one another in a ring
    EXPECT_EQ(test::firstDifference(statesBelow(*session.document()), plain), "");
    EXPECT_TRUE(session.document()->collObjects().checkConsistency());
    EXPECT_TRUE(session.document()->collObjects().references().checkConsistency());
    EXPECT_TRUE(session.document()->io()->checkConsistency(session.document()->collObjects()));
  }
}

TEST(SaveAs, GivesTheWholeLayoutAndLeavesTheOldFilesAlone) {
  DocumentSession session;
  session.files.smallLadder();
  session.files.segment("video2", "video1", 0, 1000);
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const auto before = session.folder.snapshot();
  const std::string target = session.folder / "other place/copy.xml";
  fs::create_directory(session.folder / "other place");
  EXPECT_TRUE(session.document()->bSaveAs(target));
  session.close();
  auto after = session.folder.snapshot();
  std::vector<std::string> made;
  for (const auto& [name, bytes] : after) {
    if (before.contains(name)) {
      EXPECT_EQ(bytes, before.at(name)) << name;
    } else {
      made.push_back(name);
    }
  }
  const std::string data = "other place/copy_files/copy_";
  EXPECT_EQ(made, (Texts{"other place/copy.xml", data + "audio1.xml", data + "media1.xml",
                         data + "storage1.xml", data + "transcript1.xml", data + "version1.xml",
                         data + "video1.xml", data + "video2.xml"}));
  session.takeShown();
  fs::remove_all(session.folder / "film_files");
  EXPECT_EQ(session.open(target), "");
  EXPECT_EQ(session.document()->collObjects().Count(), 10U);  // two of them are no files
  EXPECT_EQ(after.at("other place/copy.xml").find("film"), std::string::npos);
}

/// Makes every write beyond a size fail while it lives.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit before_{};
};

TEST(SaveAs, ATargetThatCannotBeWrittenIsReportedAndNothingIsLost) {
  const struct {
    const char* what;
    bool fileInPlaceOfFolder;
    rlim_t largestFile;
  } cases[] = {
      {"a file in place of the data folder", true, RLIM_INFINITY},
      {"no room", false, 100},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    DocumentSession session;
    session.files.smallLadder();
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    const auto before = session.folder.snapshot();
    if (one.fileInPlaceOfFolder) session.folder.write("copy_files", "in the way");
    {
      const SizeLimit limit(one.largestFile);
      EXPECT_FALSE(session.document()->bSaveAs(session.folder / "copy.xml"));
    }
    const Texts shown = session.takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown.back(), "plain: One or more objects cannot be saved");
    session.close();
    for (const auto& [name, bytes] : before) EXPECT_EQ(session.folder.read(name), bytes) << name;
    EXPECT_FALSE(bFileExists(session.folder / "copy.xml"));
  }
}

}  // namespace
}  // namespace velra

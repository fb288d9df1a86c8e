// Files that are not what they should be: each costs its message and nothing else.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "objects/AVDocument.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

namespace fs = std::filesystem;
using test::DocumentSession;
using test::ObjectText;
using Texts = std::vector<std::string>;

struct BadFile {
  const char* name;
  std::function<void(const std::string& path)> make;
  /// What the message begins with; P stands for the path.
  const char* message;
};

void fill(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

const std::string kEntityBomb =
    "<!DOCTYPE V [<!ELEMENT V ANY><!ENTITY a 'xxxxxxxxxx'><!ENTITY b '" + repeated("&a;", 10) +
    "'><!ENTITY c '" + repeated("&b;", 10) + "'><!ENTITY d '" + repeated("&c;", 10) + "'>" +
    "<!ENTITY e '" + repeated("&d;", 10) + "'><!ENTITY f '" + repeated("&e;", 10) + "'>]><V>" +
    repeated("&f;", 10) + "</V>";

std::vector<BadFile> collection() {
  return {
      {"missing", [](const std::string& path) { fs::remove(path); },
       "Could not find the object: P"},
      {"empty", [](const std::string& path) { fill(path, ""); }, "XML Parser: The file is empty"},
      {"truncated", [](const std::string& path) { fill(path, "<?xml version='1.0'?><V><T>cut"); },
       "XML Parser: Line 1"},
      {"not-xml", [](const std::string& path) { fill(path, "\x89PNG\r\n\x1a\n"); }, "XML Parser: "},
      {"foreign-root", [](const std::string& path) { fill(path, "<html/>"); },
       "Version: class name"},
      {"entity-bomb", [](const std::string& path) { fill(path, kEntityBomb); }, "XML Parser: "},
      {"entity-of-another-file",
       [](const std::string& path) {
         fill(path, "<!DOCTYPE V [<!ENTITY e SYSTEM '/etc/passwd'>]><V>&e;</V>");
       },
       "XML Parser: "},
      {"100000-levels",
       [](const std::string& path) {
         fill(path, repeated("<a>", 100'000) + repeated("</a>", 100'000));
       },
       "XML Parser: "},
      {"big-and-cut-off",
       [](const std::string& path) { fill(path, "<V><T>" + std::string(100'000'000, 'x')); },
       "XML Parser: "},
      {"not-utf-8", [](const std::string& path) { fill(path, "<V>\xE4\xF6</V>"); }, "XML Parser: "},
      {"zero-bytes", [](const std::string& path) { fill(path, std::string(64, '\0')); },
       "XML Parser: "},
      {"folder",
       [](const std::string& path) {
         fs::remove(path);
         fs::create_directory(path);
       },
       "Could not find the object: P"},
      {"unreadable", [](const std::string& path) { fs::permissions(path, fs::perms::none); },
       "XML Parser: "},
  };
}

/// Root may read everything.
bool applies(const BadFile& bad) {
  return std::string(bad.name) != "unreadable" || ::geteuid() != 0;
}

std::string messageFor(const BadFile& bad, const std::string& path) {
  const std::string message = bad.message;
  return message.ends_with(" P") ? message.substr(0, message.size() - 1) + path : message;
}

TEST(BadInput, InPlaceOfAChildCostsItsMessageAndThatBranch) {
  for (const BadFile& bad : collection()) {
    if (!applies(bad)) continue;
    SCOPED_TRACE(bad.name);
    DocumentSession session;
    session.files.smallLadder();
    session.files.document({"version2", "version1"});
    session.files.version("version2", {});
    bad.make(session.files.path("version2"));
    const auto before = session.folder.snapshot();
    EXPECT_EQ(session.open(session.files.documentPath()), "");
    const Texts shown = session.takeShown();
    ASSERT_FALSE(shown.empty());
    const std::string expected = "exclamation: " + messageFor(bad, session.files.id("version2"));
    EXPECT_EQ(shown.front().substr(0, expected.size()), expected);
    EXPECT_EQ(shown.front().find('\n'), std::string::npos);
    EXPECT_EQ(session.document()->colChilds().size(), 1U);
    EXPECT_TRUE(session.version("version1")->vdMainVideo());

    // The dead reference is kept when the document is written.
    session.document()->setStrTitle("Other");
    EXPECT_TRUE(session.document()->bSave());
    session.close();
    EXPECT_NE(session.folder.read("film.xml").find("film_version2.xml"), std::string::npos);
    for (const auto& [name, bytes] : before) {
      if (name == "film.xml") continue;
      EXPECT_EQ(session.folder.read(name), bytes) << name;
    }
  }
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

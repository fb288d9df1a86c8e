// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "rescue/Recovery.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::TemporaryFolder;

std::string element(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- kept -->\n<Video>" + content +
         "</Video>\n";
}

TEST(Recovery, MakesACompleteDocumentAndOnlyReadsTheOldOne) {
  const TemporaryFolder folder;
  const std::string old = folder.path() + "/film_files/film_";
  const std::string document = folder.write(
      "film.xml", element("<GUID>film_files/film_version1.xml</GUID><T>film_files &amp; more</T>"));
  folder.write("film_files/film_version1.xml", element("<Movie>/films/a.avi</Movie>"));
  folder.write("film_files/film_video1.xml", element("old"));
  folder.write("film_files/film_video2.xml", element("goes"));
  folder.write("film_files/film_video9.xml", "no XML");
  folder.write("film_files/film_mediaobject1.bmp", "BM");
  folder.write("film_files/notes.xml", "not the document's");

  // A note that is a path stays as it is; what is relative is found from the new folder, too.
  const auto linked = [&](const std::string& from, const std::string& movie) {
    return element("<Keyframe start=\"0\">" + from + "mediaobject2.bmp</Keyframe><PartOfVideo>" +
                   from + "video3.xml</PartOfVideo><Collocation>" + movie + "</Collocation><Note>" +
                   old + "video3.xml</Note>");
  };
  const std::string link = linked(old, "a.avi");
  KeptObject changed{old + "video1.xml", "Video", "", link, false, fileStamp(document)};
  // A key frame without a picture would keep the copy from opening.
  folder.write("film_files/film_video7.xml", element("<Keyframe>" + old + "gone.bmp</Keyframe>"));
  const auto before = folder.snapshot();
  const std::vector<KeptObject> kept = {
      changed,
      {old + "video3.xml", "Video", "", element("new"), false, {}},
      {old + "video2.xml", "Video", "", "", true, {}},
      {old + "mediaobject2.bmp", "MediaObject", "", "BM2", false, {}}};
  EXPECT_EQ(changedSince(kept), std::vector<std::string>{changed.path});
  const Recovered result = recoverDocument(document, kept, folder / "new/copy.xml");

  EXPECT_EQ(result.failure, "");
  EXPECT_EQ(result.notes.size(), 2U) << "no XML, and no picture";
  const std::string place = folder.path() + "/new/copy_files/copy_";
  auto after = folder.snapshot();
  EXPECT_EQ(after["new/copy.xml"],
            element("<GUID>" + place + "version1.xml</GUID><T>film_files &amp; more</T>"));
  EXPECT_EQ(after["new/copy_files/copy_version1.xml"], before.at("film_files/film_version1.xml"));
  EXPECT_EQ(after["new/copy_files/copy_video1.xml"], linked(place, folder.path() + "/a.avi"));
  EXPECT_EQ(after["new/copy_files/copy_mediaobject2.bmp"], "BM2");
  EXPECT_EQ(after["new/copy_files/copy_video7.xml"], element("<Keyframe/>"));
  EXPECT_EQ(after["new/copy_files/copy_video9.xml"], "no XML");
  EXPECT_EQ(after.count("new/copy_files/copy_video2.xml"), 0U);
  std::erase_if(after, [](const auto& file) { return file.first.starts_with("new/"); });
  EXPECT_EQ(after, before);

  const Recovered again = recoverDocument(document, {}, folder / "new/copy.xml");
  EXPECT_NE(again.failure, "");
  EXPECT_EQ(folder.read("new/copy_files/copy_mediaobject2.bmp"), "BM2");
  EXPECT_EQ(proposedRecoveryPath(document), folder / "film-recovered.xml");
}

}  // namespace
}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/KeyFrame.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/RunTimeError.h"
#include "expressions/Video.h"
#include "objects/MediaObject.h"
#include "platform/files/Files.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/Faults.h"

namespace velra {
namespace {

using test::DocumentSession;
using Texts = std::vector<std::string>;

class KeyFrames : public ::testing::Test {
 protected:
  void openWithMovie(const std::string& movie) {
    session_.files.smallLadder();
    session_.files.storage("storage1", movie);
    ASSERT_EQ(session_.open(session_.files.documentPath()), "");
    main_ = as<VideoExpression>(session_.expression("video1"));
  }
  void openWithMovie() {
    openWithMovie(std::string(VELRA_SOURCE_DIR) + "/tests/data/movies/mpeg1-50.mpg");
  }
  std::string picture(int number) const {
    return session_.folder / "film_files/film_mediaobject" + std::to_string(number) + ".bmp";
  }
  std::shared_ptr<VideoExpression> segment(std::size_t place) const {
    return as<VideoExpression>(main_->colSubExpressions()[place]);
  }
  std::string pictureOf(std::size_t place) const {
    return segment(place)->objKeyframeObject()->strGUID();
  }

  DocumentSession session_;
  std::shared_ptr<VideoExpression> main_;
};

TEST_F(KeyFrames, ASegmentGetsThePictureOfItsMiddle) {
  openWithMovie();
  main_->AddSubExpression("a", 0.2, 0.6);
  const auto a = segment(0);
  EXPECT_DOUBLE_EQ(a->dGetKeyFrameTime(), 0.4);
  EXPECT_EQ(pictureOf(0), picture(1));
  EXPECT_TRUE(bFileExists(picture(1)));
  EXPECT_EQ(a->picKeyFrame().path, picture(1));
  EXPECT_EQ(a->picKeyFrameSmall().width, 50);
  EXPECT_EQ(a->picKeyFrameSmall().height, 67);
  EXPECT_TRUE(a->objKeyframeObject()->bChanged());
  EXPECT_TRUE(main_->picKeyFrame().empty());
  EXPECT_TRUE(session_.takeShown().empty());

  EXPECT_TRUE(session_.document()->bSave());
  EXPECT_FALSE(a->objKeyframeObject()->bChanged());
  a->SetKeyFrameTime(a->dGetKeyFrameTime());
  EXPECT_FALSE(a->bChanged());
  a->SetKeyFrameTime(0.5);
  EXPECT_TRUE(a->bChanged());
  EXPECT_EQ(pictureOf(0), picture(1));

  // Opened again it has its picture and makes none.
  std::filesystem::remove(session_.files.path("storage1"));
  ASSERT_EQ(session_.open(session_.files.documentPath()), "");
  main_ = as<VideoExpression>(session_.expression("video1"));
  EXPECT_EQ(pictureOf(0), picture(1));
  EXPECT_FALSE(segment(0)->bChanged());
}

TEST_F(KeyFrames, SaveAsOverItselfMovesNewPicturesAndCopiesSavedOnes) {
  openWithMovie();
  main_->AddSubExpression("a", 0, 0.2);
  main_->AddSubExpression("b", 0.2, 0.4);
  const auto before = session_.folder.snapshot();
  for (const char* target : {"copy.xml", "film.xml"}) {
    const test::SizeLimit noRoom(450);
    EXPECT_FALSE(session_.document()->bSaveAs(session_.folder / target));
    EXPECT_TRUE(session_.folder.snapshot() == before) << "all pictures are back after " << target;
    EXPECT_EQ(pictureOf(0) + pictureOf(1), picture(1) + picture(2));
    EXPECT_TRUE(segment(1)->objKeyframeObject()->bChanged());
  }
  EXPECT_TRUE(session_.document()->bSaveAs(session_.files.documentPath()));
  // The first leaves number 1, which the second takes.
  EXPECT_EQ(pictureOf(0), picture(3));
  EXPECT_EQ(pictureOf(1), picture(1));
  EXPECT_FALSE(bFileExists(picture(2)));
  EXPECT_TRUE(session_.document()->collObjects().checkConsistency());

  EXPECT_TRUE(session_.document()->bSaveAs(session_.files.documentPath()));
  EXPECT_EQ(pictureOf(0), picture(2));
  EXPECT_EQ(pictureOf(1), picture(4));
  for (int number = 1; number <= 4; ++number) EXPECT_TRUE(bFileExists(picture(number))) << number;
}

TEST_F(KeyFrames, AMissingOrDamagedMovieCostsOneWarningAndThePicture) {
  const std::string damaged = session_.folder.write("damaged.mpg", "no movie");
  const struct {
    std::string movie;
    Texts shown;
  } cases[] = {
      {"", {}},
      {"nowhere.mpg", {"ok-cancel: nowhere.mpg non trovato"}},
      {damaged, {"exclamation"}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.movie);
    openWithMovie(one.movie);
    main_->AddSubExpression("a", 0, 1);
    main_->AddSubExpression("b", 1, 2);
    const Texts shown = session_.takeShown();
    ASSERT_EQ(shown.size(), one.shown.size());
    if (!shown.empty()) {
      EXPECT_EQ(shown[0].substr(0, one.shown[0].size()), one.shown[0]);
    }
    EXPECT_EQ(pictureOf(0), "");
    EXPECT_TRUE(segment(0)->picKeyFrame().empty());
    EXPECT_EQ(main_->colSubExpressions().size(), 2U);
  }
}

TEST_F(KeyFrames, AFullDiskCostsThePictureAndNotTheSegment) {
  const std::string folder = session_.folder / "film_files";
  const struct {
    const char* what;
    rlim_t largestFile;
    bool readOnly;
    std::string shown;
  } cases[] = {
      {"no room for the picture", 2000, false, "exclamation: " + strTempPath()},
      {"a data folder that takes no file", RLIM_INFINITY, true,
       "exclamation: The key frame has no picture: Permission denied: " + picture(1)},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    openWithMovie();
    std::filesystem::permissions(folder, std::filesystem::perms(one.readOnly ? 0500 : 0700));
    {
      const test::SizeLimit limit(one.largestFile);
      const test::OrdinaryPerson without;
      main_->AddSubExpression("a", 0.2, 0.6);
    }
    std::filesystem::permissions(folder, std::filesystem::perms(0700));
    const Texts shown = session_.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].substr(0, one.shown.size()), one.shown);
    EXPECT_EQ(pictureOf(0), "");
    main_->AddSubExpression("b", 0.6, 0.8);
    EXPECT_EQ(pictureOf(1), picture(1));
    EXPECT_TRUE(session_.document()->bSave());
    ASSERT_EQ(session_.open(session_.files.documentPath()), "");
    EXPECT_EQ(session_.expression("video1")->colSubExpressions().size(), 2U);
    session_.close();
    std::filesystem::remove_all(folder);
  }
}

TEST_F(KeyFrames, APictureThatIsNoneFailsAtOpening) {
  openWithMovie();
  main_->AddSubExpression("a", 0, 0.2);
  EXPECT_TRUE(session_.document()->bSave());
  session_.close();
  session_.folder.write("film_files/film_mediaobject1.bmp", "no picture");
  EXPECT_THROW(session_.open(session_.files.documentPath()), RunTimeError);
  std::filesystem::remove(picture(1));
  EXPECT_THROW(session_.open(session_.files.documentPath()), RunTimeError);
}

TEST_F(KeyFrames, TheTimeOfAnUnassignedFieldIsMinusOne) {
  openWithMovie("");
  EXPECT_EQ(main_->dGetKeyFrameTime(), -1);
  EXPECT_EQ(main_->dFrameRate(), 0);
  main_->setDFrameRate(25);
  EXPECT_EQ(main_->dFrameRate(), 25);
  main_->SetKeyFrameTime(-2);
  EXPECT_EQ(main_->dGetKeyFrameTime(), 30);  // the middle of its span
}

}  // namespace
}  // namespace velra

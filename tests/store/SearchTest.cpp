// SPDX-License-Identifier: GPL-3.0-or-later

// What is known of a folder, compared with a scan that reads all of it anew.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/RunTimeError.h"
#include "store/IOManager.h"
#include "store/RelativeSearch.h"
#include "support/DocumentSession.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

namespace fs = std::filesystem;

using test::DocumentSession;
using test::upTo;
using Texts = std::vector<std::string>;

/// A document that is open while other programs work in its folder.
class SharedFolder {
 public:
  explicit SharedFolder(unsigned seed) : random_(seed) {
    writeRandomDocument(session_.files, random_, test::Damage::some(random_));
    try {
      session_.open(session_.files.documentPath());
    } catch (const RunTimeError&) {
      session_.close();
    }
  }

  bool isOpen() const { return session_.app.gAVDoc != nullptr; }

  void step() {
    const std::string name = anyName();
    const fs::path path = session_.files.path(name);
    switch (upTo(random_, 10)) {
      case 0:
      case 1:
        return session_.files.segment(name, anyName(), upTo(random_, 99), 100);
      case 2:
        return session_.files.writeRaw(path.filename(), "<Video><Title>cut off");
      case 3:
        fs::remove(path);
        return;
      case 4:
        if (fs::exists(path)) fs::rename(path, session_.files.path(anyName()));
        return;
      case 5:
        return otherName(path);
      case 6:
        return otherFolder();
      case 7:
        if (upTo(random_, 2) == 0) session_.document()->bSave();  // which waits for the disk
        return;
      default:
        changeObject();
    }
  }

  void compare() {
    for (const char* kind : {"version", "video", "audio"}) {
      for (int number = 1; number <= 4; ++number) {
        const std::string name = kind + std::to_string(number);
        IOManager fresh(session_.app);
        EXPECT_EQ(found(session_.document()->io()->scans(), name), found(fresh.scans(), name))
            << name;
      }
    }
    EXPECT_TRUE(session_.document()->io()->scans().checkConsistency());
  }

  /// More than the system keeps in mind for one who does not ask.
  void flood() const {
    std::size_t most = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> most;
    for (const char* name : {"video98", "video99"}) session_.files.segment(name, "video1", 0, 1);
    for (std::size_t i = 0; i < most; ++i) {
      fs::last_write_time(session_.files.path(i % 2 == 0 ? "video98" : "video99"),
                          fs::file_time_type::clock::now());
    }
    session_.files.segment("video3", "video1", 0, 1);
  }

 private:
  std::string anyName() {
    const char* kinds[] = {"video", "audio", "media"};
    return kinds[upTo(random_, 2)] + std::to_string(upTo(random_, 3) + 1);
  }

  Texts found(FolderScans& scans, const std::string& name) {
    const FolderScans::Opening opening(scans);
    session_.takeShown();
    const ObjectKind kind = kindOfRoot(test::DocumentFiles::classOf(name)).value();
    const bool isVersion = kind == ObjectKind::Version;
    const std::vector<ObjectKind> wanted =
        isVersion ? std::vector{ObjectKind::Audio, ObjectKind::Transcript, ObjectKind::Video}
                  : std::vector{kind};
    Texts texts;
    for (const ObjRecord& record :
         colScanRelatives(session_.app, scans, session_.files.path(name), kind,
                          isVersion ? Relation::Own : Relation::PartOf, wanted)) {
      texts.push_back(classNameOf(record.kind) + " " + record.strGUID);
    }
    for (const std::string& box : session_.takeShown()) texts.push_back(box);
    return texts;
  }

  // A file of another folder that can change without a word to this one.
  void otherName(const fs::path& path) {
    const std::string elsewhere = session_.folder.write(
        "elsewhere" + std::to_string(++others_), "<Video><Title>of somebody else</Title></Video>");
    fs::remove(path);
    upTo(random_, 1) == 0 ? fs::create_symlink(elsewhere, path)
                          : fs::create_hard_link(elsewhere, path);
    compare();
    std::ofstream(elsewhere) << "<Video><PartOfVideo>" + session_.files.id("video1") +
                                    "</PartOfVideo></Video>";
  }

  void otherFolder() {
    const fs::path folder = fs::path(session_.files.path("video1")).parent_path();
    const fs::path before = session_.folder / "before" + std::to_string(++others_);
    fs::rename(folder, before);
    fs::copy(before, folder, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
  }

  void changeObject() {
    AVDocument& document = *session_.document();
    const auto place = static_cast<std::size_t>(
        upTo(random_, static_cast<int>(document.collObjects().Count()) - 1));
    ObjectRef object = as<DescribedObject>(document.collObjects().Item(place + 1));
    const auto expression = as<Expression>(object);
    try {
      if (expression && upTo(random_, 2) > 0) {
        expression->AddSubExpression("new", 0, 1);
      } else if (object && object.get() != &document) {
        document.RemoveObject(object);
      }
    } catch (const RunTimeError&) {
      // Damaged segments have no times to be sorted by.
    }
  }

  std::mt19937 random_;
  DocumentSession session_;
  int others_ = 0;
};

TEST(Search, KnowsTheFolderAsOneWhoReadsItAnew) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    SharedFolder shared(seed);
    for (int step = 0; shared.isOpen() && step < 20 && !::testing::Test::HasFailure(); ++step) {
      SCOPED_TRACE(step);
      shared.step();
      if (seed == 1 && step == 10) shared.flood();
      shared.compare();
    }
  }
}

}  // namespace
}  // namespace velra

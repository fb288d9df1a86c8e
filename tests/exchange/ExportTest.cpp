// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "base/Text.h"
#include "exchange/BagCheck.h"
#include "exchange/ContentText.h"
#include "exchange/Cues.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/FrameCount.h"
#include "exchange/SegmentChoice.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "support/ExchangeSession.h"

namespace velra::test {

namespace {

struct ExpectedFile {
  std::string format;
  std::vector<std::string> words;
  std::string file;
};

const ExpectedFile kExpectedFiles[] = {
    {"csv", {}, "film.csv"},
    {"tsv", {"--class", "transcript", "--of-version", "1"}, "transcript.tsv"},
    {"jsonl", {}, "film.jsonl"},
    {"vtt", {}, "film.vtt"},
    {"vtt", {"--segments"}, "segments.vtt"},
    {"srt", {}, "film.srt"},
    {"chapters", {}, "film.ffmeta"},
    {"chapters", {"--level", "2"}, "level2.ffmeta"},
    {"edl", {}, "film.edl"},
    {"edl", {"--rate", "29.97", "--class", "transcript"}, "drop.edl"},
    {"edl", {"--of-version", "2", "--rate", "25"}, "none.edl"},
    {"html", {}, "film.html"},
    {"dc", {}, "film.dc.xml"},
    {"pbcore", {}, "film.pbcore.xml"},
    {"ebucore", {}, "film.ebucore.xml"},
    {"iiif", {"--base", "https://archive.example/film/"}, "film.json"},
};

std::string failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const ExchangeFailure& failure) {
    return failure.what();
  }
  return {};
}

// VELRA_SCENES=write makes the expected files anew, to be read before they are committed.
TEST(Export, WritesWhatIsExpectedAndNothingIntoTheDocument) {
  ExchangeSession session;
  const auto before = session.folder.snapshot();
  const Content content = session.content();
  for (const ExpectedFile& expected : kExpectedFiles) {
    const Exported made = exported(expected.format, content, expected.words);
    std::string text = replaceAll(made.bytes, session.folder.path(), "@");
    text = replaceAll(text, uriPath(session.folder.path()), "@");
    for (const std::string& note : made.notes) text += "\n| " + note;
    const std::string path = VELRA_SOURCE_DIR "/tests/exchange/expected/" + expected.file;
    if (std::getenv("VELRA_SCENES")) std::ofstream(path, std::ios::binary) << text;
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    EXPECT_EQ(text, bytes.str()) << expected.file;
  }
  EXPECT_EQ(changedFiles(before, session.folder.snapshot()), std::vector<std::string>());
  EXPECT_EQ(session.application.ui.takeShown(), std::vector<std::string>());
}

// The programs are those that people have; the script passes over what is not installed.
TEST(Export, IsReadByProgramsOfOthers) {
  ExchangeSession session;
  const Content content = session.content();
  for (const ExportFormat* format : exportFormats()) {
    exported(std::string(format->name), content,
             {"-o", session.folder /
                        ("film." + (format->extension == "xml" ? std::string(format->name) + ".xml"
                                                               : std::string(format->extension)))});
  }
  exported("vtt", content, {"--segments", "-o", session.folder / "segments.vtt"});
  const std::string command =
      VELRA_SOURCE_DIR "/tests/exchange/read-back '" + session.folder.path() + "'";
  EXPECT_EQ(std::system(command.c_str()), 0);
}

TEST(Export, RefusesWhatCannotBeMeant) {
  ExchangeSession session;
  const Content content = session.content();
  const struct {
    std::string format;
    std::vector<std::string> words;
    std::string sentence;
  } kCases[] = {
      {"csv", {"--rate", "25"}, "csv takes no \"--rate\"."},
      {"csv", {"more"}, "csv takes no \"more\"."},
      {"csv", {"-o"}, "-o needs a value behind it."},
      {"csv", {"--level", "0"}, "--level takes a number from 1, not \"0\"."},
      {"csv", {"--level", "1e30"}, "--level takes a number from 1, not \"1e30\"."},
      {"csv", {"--class", "media"}, "--class takes video, audio or transcript, not \"media\"."},
      {"edl", {"--rate", "nan"}, "--rate takes pictures per second from 1 to 1000, not \"nan\"."},
      {"iiif", {"--base", "ftp://x"}, "--base takes an address of the web, not \"ftp://x\"."},
      {"bag", {"--movies"}, "bag makes a folder, which -o has to name."},
      {"bag", {"-o", session.folder / "a"}, session.folder / "a" + " is there already."},
      {"vtt", {"--of-version", "3"}, "The document has 2 Versions and no number 3."},
      {"csv", {"--of-version", "3"}, "The document has 2 Versions and no number 3."},
      {"edl",
       {"--of-version", "2"},
       "Neither the Video nor the movie tells how many pictures a second has; --rate does."},
  };
  for (const auto& one : kCases) {
    EXPECT_EQ(failureOf([&] { exported(one.format, content, one.words); }), one.sentence);
  }
  const auto before = session.folder.snapshot();
  for (const char* own : {"a/film.xml", "a/film.avi", "a/film_files/film_mediaobject1.bmp",
                          "a/film_files/../film_files/film_video2.xml", "none/film.csv"}) {
    EXPECT_NE(failureOf([&] { exported("csv", content, {"-o", session.folder / own}); }), "");
  }
  EXPECT_EQ(changedFiles(before, session.folder.snapshot()), std::vector<std::string>());
}

TEST(Export, ReadsNoDocumentOfWhichASaveWasCutOff) {
  ExchangeSession session;
  {
    std::filesystem::create_directories(session.folder / "state/velra");
    RescueStore store(RescueStore::defaultPath());
    const std::string living = processIdentity();
    const SessionId dead =
        store.begin(session.document, living.substr(0, living.rfind(' ')) + " 1");
    store.plans().planSave(dead, {{{session.document, "<AVDocument/>", {}, {}}}, {}});
  }
  EXPECT_EQ(failureOf([&] { session.content(); }),
            "A save of " + session.document +
                " was cut off. Open the document in velra once, which finishes it.");
}

TEST(Mapping, IsRefusedWithLineAndField) {
  ExchangeSession session;
  const Content content = session.content();
  const std::string path = session.folder.write("own.map", "");
  const std::pair<const char*, const char*> kCases[] = {
      {"# none\n\nAVDocument.Title", "line 3: \"AVDocument.Title\" is not of the form"},
      {"Film.Title = title", "line 1: Film.Title: there is no class of that name."},
      {"Media.Format = title",
       "line 1: Media.Format: there is no element \"title\" for this class."},
      {"\nAVDocument.Titel = title", "line 2: AVDocument.Titel: the schema has no such field."},
  };
  for (const auto& [text, sentence] : kCases) {
    session.folder.write("own.map", text);
    const std::string told = failureOf([&] { exported("pbcore", content, {"--mapping", path}); });
    EXPECT_NE(told.find(sentence), std::string::npos) << told;
  }
}

// Absolute identifiers of the place where it was made would not open anywhere else.
TEST(Bag, OpensWhereItIsUnpackedAndTellsWhatHasChanged) {
  ExchangeSession session;
  const std::string film = session.folder.read("a/film.xml");
  session.folder.write("a/film.xml", replaceAll(film, "<GUID>film_files",
                                                "<GUID>" + session.folder / "a/film_files"));
  const Exported made =
      exported("bag", session.content(), {"--movies", "-o", session.folder / "b"});
  EXPECT_EQ(made.notes.back(),
            "The movie /no such archive/film, copy.mpg is not there and left out.");
  EXPECT_EQ(session.folder.read("b/data/film_files/film_video1.xml"),
            session.folder.read("a/film_files/film_video1.xml"));
  EXPECT_EQ(session.folder.read("b/data/film.xml").find("<GUID>/"), std::string::npos);
  std::filesystem::rename(session.folder / "b", session.folder / "c");
  std::filesystem::rename(session.folder / "a", session.folder / "gone");
  EXPECT_EQ(bagFaults(session.folder / "c"), std::vector<std::string>());
  const Content content = readContent(session.application.app, session.folder / "c/data/film.xml");
  EXPECT_EQ(content.objects.size(), 15U);
  EXPECT_EQ(content.objects[1].movie, session.folder / "c/data/movies/film.avi");

  session.folder.write("c/data/film_files/film_media1.xml", "<Media/>");
  session.folder.write("c/data/more", "x");
  std::filesystem::remove(session.folder / "c/bag-info.txt");
  EXPECT_EQ(
      bagFaults(session.folder / "c"),
      (std::vector<std::string>{
          "data/film_files/film_media1.xml is not what it was (sha256).",
          "data/more is not in manifest-sha256.txt.", "bag-info.txt: No such file or directory",
          "data/film_files/film_media1.xml is not what it was (sha512).",
          "data/more is not in manifest-sha512.txt.", "bag-info.txt: No such file or directory"}));
  session.folder.write("c/manifest-sha256.txt", "00  ../film.xml\n");
  EXPECT_EQ(bagFaults(session.folder / "c")[0], "../film.xml leads out of the bag.");
  EXPECT_EQ(bagFaults(session.folder.path()).size(), 3U);
}

TEST(FrameCount, LabelsPicturesAsEditingRoomsDo) {
  const struct {
    double rate;
    double seconds;
    const char* label;
  } kCases[] = {
      {25, 0.04, "00:00:00:01"},       {25, 3599.96, "00:59:59:24"},
      {25, 86400, "00:00:00:00"},      {24, 1.999, "00:00:02:00"},
      {29.97, 59.993, "00:00:59;28"},  {29.97, 60.06, "00:01:00;02"},
      {29.97, 600.0, "00:10:00;00"},   {30000.0 / 1001, 3600, "01:00:00;00"},
      {59.94, 60.06, "00:01:00;04"},   {59.94, 3600, "01:00:00;00"},
      {23.976, 3603.6, "01:00:00:00"}, {29.5, 2, "00:00:01:29"},
      {30, 60, "00:01:00:00"},         {12.5, 1, "00:00:00:12"},
  };
  for (const auto& one : kCases) {
    const FrameCount frames(one.rate);
    EXPECT_EQ(frames.text(frames.at(one.seconds)), one.label) << one.rate << " " << one.seconds;
  }
}

// Whatever the words are: every one is there in its order, and cues keep their bounds.
TEST(Cues, KeepTheirBounds) {
  std::mt19937 random(7);
  const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  for (int round = 0; round < 200; ++round) {
    std::vector<ContentWord> words;
    double time = 0;
    for (int i = upTo(60); i >= 0; --i) {
      time += upTo(20) == 0 ? upTo(5000) / 1000.0 : upTo(100) / 1000.0;
      const double end = time + upTo(900) / 1000.0;
      words.push_back({time, end, std::string(static_cast<std::size_t>(1 + upTo(12)), 'a')});
      if (upTo(6) == 0) words.back().text += "?\"";
      time = end;
    }
    std::string spoken;
    std::string shown;
    for (const ContentWord& word : words) spoken += word.text + ' ';
    const std::vector<Cue> cues = cuesOf(words);
    for (std::size_t i = 0; i < cues.size(); ++i) {
      const Cue& cue = cues[i];
      ASSERT_LE(cue.lines.size(), 2U);
      for (const std::string& line : cue.lines) {
        ASSERT_LE(line.size(), 42U);
        shown += line + ' ';
      }
      ASSERT_LE(cue.end - cue.start, 7.0001);
      const bool isLast = i + 1 == cues.size();
      ASSERT_TRUE(cue.end - cue.start > 0.999 || (!isLast && cue.end == cues[i + 1].start));
      ASSERT_TRUE(isLast || cue.end <= cues[i + 1].start);
    }
    EXPECT_EQ(shown, spoken);
  }
}

}  // namespace

}  // namespace velra::test

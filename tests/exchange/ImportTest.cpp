// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/CueText.h"
#include "exchange/imports/DocumentImport.h"
#include "exchange/imports/ImportText.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "support/ExchangeSession.h"
#include "support/Scene.h"

namespace velra::test {

namespace {

namespace fs = std::filesystem;

std::string ms(double seconds) {
  return std::to_string(milliseconds(seconds));
}

std::string spokenLine(const std::vector<ContentWord>& words) {
  std::string all;
  for (const ContentWord& word : words) all += ' ' + ms(word.start) + word.text + ms(word.end);
  return all;
}

/// What expressions say, a line for each, and their words where these are wanted.
std::string saidBy(const Content& content, bool allWords) {
  std::string all;
  for (const ContentObject& object : content.objects) {
    if (!isExpression(object.kind)) continue;
    all += classNameOf(object.kind) + std::string(static_cast<std::size_t>(object.level), ' ') +
           std::to_string(object.number) + " " + object.title;
    if (object.time) all += " " + ms(object.time->start) + "-" + ms(object.time->end);
    const std::string description = object.text("Description");
    if (!description.empty()) all += ' ' + description;
    if (object.kind == ObjectKind::Video && object.level > 0 && !allWords) {
      const ContentField* keyFrame = object.field("Keyframe");
      const ContentSpan shown = *(keyFrame ? keyFrame->span : object.time);
      all += " at " + ms(keyFrame ? shown.start : (shown.start + shown.end) / 2);
    }
    const ContentField* words = object.field("TranscriptWordList");
    if (words && allWords) all += spokenLine(words->words);
    all += "\n";
  }
  return all;
}

class ImportSession : public ExchangeSession {
 public:
  /// A copy of the document whose expressions have no segments and no words yet.
  std::string emptyCopy(const std::string& name) {
    fs::copy(folder / "a", folder / name, fs::copy_options::recursive);
    for (const char* gone : {"video2", "video3", "video4", "video5", "video6", "transcript2"}) {
      fs::remove(folder / (name + "/film_files/film_" + gone + ".xml"));
    }
    const std::string transcript = name + "/film_files/film_transcript1.xml";
    const std::string text = folder.read(transcript);
    const std::size_t from = text.find("  <TranscriptWordList>");
    folder.write(transcript, text.substr(0, from) + text.substr(text.find("</Transcript>", from)));
    return folder / (name + "/film.xml");
  }

  ImportReport importText(const std::string& format, const std::string& text,
                          const std::string& into, const std::vector<std::string>& words = {}) {
    const std::string file = application.folder.write("in." + format, text);
    return importIntoDocument(application.app, into, *importFormat(format), file,
                              importOptions(*importFormat(format), words));
  }
};

/// Imports into a document without segments, and tells of it; `csv` and its like take options, and
/// the text of the file as an answer in which a "\\" begins a byte in hexadecimal or a line end.
class ImportActor : public Actor {
 public:
  ImportActor() {
    for (const ImportFormat* format : importFormats()) {
      verbs_[std::string(format->name)] = [this, format](const std::string& options) {
        import(std::string(format->name), options);
      };
    }
    verbs_["said"] = [this](const std::string&) {
      const std::string all = saidBy(readContent(session_.application.app, document_), true);
      for (const std::string& line : linesOf(all)) say(line);
    };
    verbs_["without"] = [this](const std::string& file) {
      fs::remove(session_.folder / ("copy/" + file));
    };
    verbs_["opened"] = [this](const std::string&) {
      rescue_ = std::make_unique<RescueWriter>(RescueStore::defaultPath());
      session_.application.app.rescue = rescue_.get();
      rescue_->run([&](RescueStore& store) { store.begin(document_, processIdentity()); });
    };
    verbs_["time"] = [this](const std::string& text) {
      const auto [time, rate] = halves(text, " at ");
      const auto seconds = timeInText(time, toNumber(rate).value_or(0));
      say(seconds ? secondsText(*seconds) : "none");
    };
    verbs_["cue"] = [this](const std::string& text) {
      say(spokenLine(wordsOfCue(text, 1, 2, true)));
    };
    replaced_[session_.application.folder.path()] = "~";
    replaced_[session_.folder.path()] = "~";
  }

 protected:
  void prepare(const std::vector<std::string>& answers) override {
    text_.assign(answers == std::vector<std::string>{"huge"} ? 64'000'001 : 0, 'x');
    const std::string text =
        answers.empty() || !text_.empty() ? "" : replaceAll(answers.front(), "\\n", "\n");
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool coded = text[i] == '\\';
      text_ += coded ? static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16)) : text[i];
      if (coded) i += 2;
    }
  }
  std::vector<std::string> takeShown() override { return session_.application.ui.takeShown(); }

 private:
  void import(const std::string& format, const std::string& options) {
    const auto before = session_.folder.snapshot();
    try {
      const auto words = options.empty() ? std::vector<std::string>() : split(options, ' ');
      const ImportReport report = session_.importText(format, text_, document_, words);
      for (const std::string& line : report.lines) say(line);
      say(report.closing);
      if (report.changed()) return;
    } catch (const ExchangeFailure& failure) {
      say(failure.what());
    }
    for (const std::string& file : changedFiles(before, session_.folder.snapshot())) {
      if (file.find("state/") == std::string::npos) say(file);
    }
  }

  ImportSession session_;
  const std::string document_ = session_.emptyCopy("copy");
  std::unique_ptr<RescueWriter> rescue_;
  std::string text_;
};

[[maybe_unused]] const bool kScenesOfExchange = makeScenes<ImportActor>("exchange");

// A table of so many segments, in languages and with marks of all kinds.
std::string manySegments(int count) {
  const auto titles = split(
      "שוק הדגים \"בחוץ\"|Fish & <b>chips</b>; a = b # c\\|Città, \"più\"|Straße|"
      "Le cœur d'été|Vlaamse 'reeën'|市場|سوق السمك",
      '|');
  std::string table = "start;end;title;Description\n";
  for (int i = 0; i < count; ++i) {
    const std::string title = replaceAll(titles[static_cast<std::size_t>(i) % 8], "\"", "\"\"");
    table += secondsText(i * 0.007) + ';' + secondsText((i + 1) * 0.007) + ";\"" + title + ' ' +
             std::to_string(i) + "\";\"one\ntwo <&>\"\n";
  }
  return table;
}

TEST(Import, BringsBackWhatWasExported) {
  ImportSession session;
  const std::string thousand = session.emptyCopy("thousand");
  session.importText("csv", manySegments(1000), thousand, {"--into", "Whole Transcript"});
  const struct {
    std::string format;
    std::string document;
    std::vector<std::string> out;
    std::vector<std::string> in;
  } kCases[] = {
      {"csv", session.document, {}, {}},
      {"csv", thousand, {}, {"--into", "Whole Transcript"}},
      {"csv", session.emptyCopy("none"), {}, {}},
      {"vtt", session.document, {}, {}},
      {"vtt", thousand, {"--segments"}, {"--segments", "--into", "Whole Audio"}},
      {"srt", session.document, {"--segments"}, {"--segments", "--into", "Whole Video"}},
      {"chapters", session.document, {}, {}},
      {"edl", session.document, {}, {}},
      {"edl", session.document, {"--rate", "29.97"}, {"--rate", "29.97"}},
  };
  const auto said = [](const std::string& format, const Content& content,
                       const std::vector<std::string>& out) -> std::string {
    return format == "csv" ? saidBy(content, false) : exported(format, content, out).bytes;
  };
  int number = 0;
  for (const auto& one : kCases) {
    const Content content = readContent(session.application.app, one.document);
    const std::string text = exported(one.format, content, one.out).bytes;
    const std::string copy = session.emptyCopy("copy" + std::to_string(++number));
    const ImportReport report = session.importText(one.format, text, copy, one.in);
    EXPECT_EQ(report.lines, std::vector<std::string>()) << one.format;
    const Content back = readContent(session.application.app, copy);
    EXPECT_EQ(said(one.format, back, one.out), said(one.format, content, one.out))
        << one.format << number;
  }
  const Content content = readContent(session.application.app, thousand);
  for (const ExportFormat* format : exportFormats()) {
    if (format->makesFolder) continue;
    EXPECT_FALSE(exported(std::string(format->name), content).notes.empty());
  }
}

}  // namespace

}  // namespace velra::test

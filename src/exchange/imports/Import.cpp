// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/Import.h"

#include <algorithm>
#include <map>
#include <memory>

#include "app/ApplicationModule.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/OptionWords.h"
#include "exchange/imports/ImportTarget.h"
#include "exchange/imports/ImportText.h"
#include "exchange/imports/SegmentPlan.h"
#include "expressions/Transcript.h"
#include "objects/AVDocument.h"

namespace velra {

namespace {

// The text runs on in 16 bits.
constexpr std::size_t kMostWords = 32'767;

class ImportRun {
 public:
  ImportRun(ApplicationModule& app, AVDocument& document, const ImportFormat& format,
            const ImportOptions& options)
      : app_(app), options_(options), format_(format), target_(document, format, options) {}

  Proposal read(const std::string& text) const {
    const bool usesRate = format_.options.find("rate") != std::string_view::npos;
    return format_.read(text, options_, usesRate ? target_.rate() : 0);
  }

  ImportReport take(const Proposal& proposal, const std::function<void(double)>& progress) {
    notes_ = proposal.refused;
    planWords(proposal);
    if (!format_.words || options_.segments) planSegments(proposal);
    ImportReport report;
    report.nothing = options_.strict && notes_.size() + plan_.refused().size() > 0;
    if (!report.nothing) make(report, progress);
    tell(report);
    return report;
  }

 private:
  void planWords(const Proposal& proposal) {
    if (!format_.words) return;
    const ExpressionRef into = target_.expressionFor({});
    transcript_ = as<Transcript>(into);
    if (!transcript_ && !options_.segments) {
      throw ExchangeFailure("Words go into a Transcript; --segments makes segments of the cues.");
    }
    if (!transcript_) return;
    const auto present = transcript_->WordList();
    if (present && !present->empty() && !options_.replace) {
      throw WordsInTheWay("\"" + into->strTitle() +
                          "\" has words already; --replace puts others in their place.");
    }
    for (const ProposedCue& cue : proposal.cues) {
      if (words_.size() + cue.words.size() > kMostWords) {
        notes_.push_back({cue.row, Message::RowTooMany, {}});
      } else {
        words_.insert(words_.end(), cue.words.begin(), cue.words.end());
      }
    }
    std::stable_sort(words_.begin(), words_.end(),
                     [](const ContentWord& a, const ContentWord& b) { return a.start < b.start; });
  }

  // Tables of one level alone count it as the first.
  void planSegments(const Proposal& proposal) {
    std::map<std::optional<ObjectKind>, int> highest;
    for (const ProposedSegment& row : proposal.segments) {
      const auto known = highest.try_emplace(row.kind, row.level).first;
      known->second = std::min(known->second, row.level);
    }
    for (ProposedSegment row : proposal.segments) {
      if (target_.passesOver(row.kind)) {
        ++passedOver_;
        continue;
      }
      row.level -= highest[row.kind] - 1;
      const ExpressionRef into = target_.expressionFor(row.kind);
      if (into) {
        plan_.propose(row, into);
      } else {
        notes_.push_back({row.row, Message::RowWithoutExpression, {}});
      }
    }
  }

  // Segments of a Transcript take their words from it.
  void make(ImportReport& report, const std::function<void(double)>& progress) {
    if (transcript_ && !words_.empty()) {
      auto list = std::make_shared<WordColl>();
      for (const ContentWord& word : words_) list->Add("", "", word.start, word.end, word.text);
      transcript_->setWordList(list);
      report.words = words_.size();
    }
    plan_.make(progress);
    report.segments = plan_.count();
  }

  void tell(ImportReport& report) {
    notes_.insert(notes_.end(), plan_.refused().begin(), plan_.refused().end());
    report.refused = notes_.size();
    notes_.insert(notes_.end(), plan_.notes().begin(), plan_.notes().end());
    std::stable_sort(notes_.begin(), notes_.end(),
                     [](const RowNote& a, const RowNote& b) { return a.row < b.row; });
    const auto text = [this](Message message) { return app_.LoadResString(message); };
    for (const RowNote& note : notes_) {
      report.lines.push_back(text(Message::Row) + std::to_string(note.row) + ": " +
                             text(note.what) + note.detail);
    }
    if (passedOver_ > 0) {
      report.lines.push_back(text(Message::RowsOfOtherClass) + std::to_string(passedOver_));
    }
    report.closing = text(Message::SegmentsTaken) + std::to_string(report.segments);
    if (format_.words)
      report.closing += ", " + text(Message::WordsTaken) + std::to_string(report.words);
    report.closing += ", " + text(Message::RowsRefused) + std::to_string(report.refused) + ".";
    if (report.nothing) report.closing += " " + text(Message::AllOrNothing);
  }

  ApplicationModule& app_;
  const ImportOptions& options_;
  const ImportFormat& format_;
  ImportTarget target_;
  SegmentPlan plan_;
  std::shared_ptr<Transcript> transcript_;
  std::vector<ContentWord> words_;
  std::vector<RowNote> notes_;
  std::size_t passedOver_ = 0;
};

constexpr double kLongestShot = 86'400;
constexpr std::string_view kOptionsOfAll = "into of-version strict";

bool* importSwitch(const std::string& option, ImportOptions& options) {
  if (option == "--segments") return &options.segments;
  if (option == "--replace") return &options.replace;
  if (option == "--record") return &options.record;
  return option == "--strict" ? &options.strict : nullptr;
}

void setImportOption(const std::string& option, const std::string& value, ImportOptions& options) {
  if (option == "--into") options.into = value;
  if (option == "--of-version") options.version = numberOption(option, value);
  if (option == "--rate") options.rate = rateOption(value);
  if (option == "--start") options.startLabel = value;
  if (option == "--threshold") options.threshold = valueOption(option, value, 100);
  if (option == "--shortest") options.shortest = valueOption(option, value, kLongestShot);
}

}  // namespace

ImportOptions importOptions(const ImportFormat& format, const std::vector<std::string>& words) {
  ImportOptions options;
  OptionTaker{std::string(format.name),
              [&](const std::string& word) {
                return isOptionOf(kOptionsOfAll, word) || isOptionOf(format.options, word);
              },
              [&](const std::string& word) { return importSwitch(word, options); },
              [&](const std::string& word, const std::string& value) {
                setImportOption(word, value, options);
              }}
      .take(words);
  return options;
}

ImportReport takeProposal(ApplicationModule& app, AVDocument& document, const ImportFormat& format,
                          const Proposal& proposal, const ImportOptions& options,
                          const std::function<void(double)>& progress) {
  return ImportRun(app, document, format, options).take(proposal, progress);
}

ImportReport importInto(ApplicationModule& app, AVDocument& document, const ImportFormat& format,
                        const std::string& path, const ImportOptions& options,
                        const std::function<void(double)>& progress) {
  const std::string text = importedText(path);
  try {
    ImportRun run(app, document, format, options);
    return run.take(run.read(text), progress);
  } catch (const WordsInTheWay& failure) {
    throw WordsInTheWay(path + ": " + failure.what());
  } catch (const ExchangeFailure& failure) {
    throw ExchangeFailure(path + ": " + failure.what());
  }
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Message.h"
#include "exchange/Content.h"

namespace velra {

/// A segment that a file proposes. Times are seconds.
struct ProposedSegment {
  int row = 0;  // as the file counts: the number of a cue, the line of a table ...
  double start = 0;
  double end = 0;
  std::string title;
  int level = 1;                   // 2 for a part of the last one of level 1, and so on
  std::optional<ObjectKind> kind;  // of the expressions that it is one of, where the file tells
  std::vector<std::pair<std::string, std::string>> fields;  // names and texts
  std::optional<double> keyFrame{};  // when the picture that stands for it is shown
};

/// Words that a file proposes together.
struct ProposedCue {
  int row = 0;
  std::vector<ContentWord> words;
};

/// What is to be told of a row.
struct RowNote {
  int row = 0;
  Message what = Message::None;
  std::string detail;  // behind it
};

/// All that a file says, whether it can be taken or not.
struct Proposal {
  std::vector<ProposedSegment> segments;
  std::vector<ProposedCue> cues;
  std::vector<RowNote> refused;  // rows that say nothing that could be proposed
};

}  // namespace velra

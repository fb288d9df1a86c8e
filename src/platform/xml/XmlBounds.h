// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libxml/parser.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What one file may cost in time and memory: a few kilobytes can ask for hours or for gigabytes.
/// For the files of this folder alone.
namespace velra::xml {

/// A file of an object has some hundred bytes for each field; the largest hold a long transcript.
inline constexpr std::size_t kLargestFile = 200'000'000;
inline constexpr std::size_t kLargestDocumentType = 10'000'000;

/// What belongs to one parse; the context's _private points at it.
struct ParseSession {
  const std::string& path;
  std::string reason;

  /// Kept by the functions that installBounds puts in.
  struct Counts {
    std::uint64_t nodes = 0;
    std::uint64_t modelCost = 0;    // of compiling what the document type says of elements
    std::uint64_t comparisons = 0;  // of elements with that, and of attributes with each other
    std::uint64_t attributes = 0;   // that the document type declares
    std::uint64_t widest = 0;       // the longest list that an element is compared with
  } counts;

  /// Other files have taken long just now: a document may be made of such.
  bool hurried = false;

  /// For one more parse of the same file.
  void restart() {
    reason.clear();
    counts = {};
  }
  void note(const std::string& text) {
    if (reason.empty()) reason = text;
  }
};

/// Sees at the begin of a parse whether it is hurried, and notes at its end whether it took long.
class Patience {
 public:
  explicit Patience(ParseSession& session);
  ~Patience();
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;

 private:
  ParseSession& session_;
};

/// Has a parser stop, with a reason in its session, before a file takes more than a second or two
/// or some hundred megabytes.
void installBounds(xmlSAXHandler& handler);

/// Why bytes must not be given to the parser, or "".
std::string refusalOf(std::string_view bytes);

}  // namespace velra::xml

// SPDX-License-Identifier: GPL-3.0-or-later

// FFmpeg's metadata file, by which segments become the chapters of a movie.
#include "exchange/ContentText.h"
#include "exchange/ExportFormats.h"
#include "exchange/SegmentChoice.h"

namespace velra {

namespace {

std::string metadataText(const std::string& text) {
  std::string escaped;
  for (const char character : oneLine(text)) {
    if (std::string_view("=;#\\").find(character) != std::string_view::npos) escaped += '\\';
    escaped += character;
  }
  return escaped;
}

Exported writeChapters(const Content& content, const ExportOptions& options) {
  const ContentList segments = segmentsOfLevel(content, options);
  Exported exported;
  exported.bytes = ";FFMETADATA1\ntitle=" + metadataText(content.document().title) + '\n';
  for (const ContentObject* segment : segments) {
    exported.bytes += "\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=" +
                      std::to_string(milliseconds(segment->time->start)) +
                      "\nEND=" + std::to_string(milliseconds(segment->time->end)) +
                      "\ntitle=" + metadataText(segment->title) + '\n';
  }
  exported.notes.push_back(std::to_string(segments.size()) + " chapters.");
  return exported;
}

}  // namespace

const ExportFormat kChaptersFormat{"chapters",
                                   "FFmpeg",
                                   "ffmeta",
                                   "segments of one level as chapters, FFmpeg's metadata",
                                   "class level of-version",
                                   writeChapters};

}  // namespace velra

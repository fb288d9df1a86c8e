// SPDX-License-Identifier: GPL-3.0-or-later

// A contact sheet in one file of HTML: title data, and a card for each segment.
#include <algorithm>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/ExportFormats.h"
#include "exchange/SegmentChoice.h"
#include "platform/movie/Thumbnail.h"

namespace velra {

namespace {

constexpr int kCardPicture = 320;  // pixels

constexpr const char* kStyle = R"(
:root { color-scheme: light dark; font: 10pt/1.4 sans-serif; }
body { margin: 2em auto; max-width: 70em; padding: 0 1em; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: .1em 1em; margin: .5em 0; }
dt { opacity: .7; }
dd { grid-column: 2; margin: 0; white-space: pre-line; overflow-wrap: anywhere; }
main { display: grid; grid-template-columns: repeat(auto-fill, minmax(17em, 1fr)); gap: 1em; }
article { border: 1px solid #8888; border-radius: 4px; padding: .7em; break-inside: avoid; }
article img { width: 100%; height: auto; display: block; }
article h2 { font-size: 1.1em; margin: .4em 0 0; white-space: pre-line; }
.level2 { border-left-width: 6px; } .deeper { border-left-width: 12px; }
.time { font-variant-numeric: tabular-nums; margin: 0; }
@media print {
  :root { font-size: 8pt; line-height: 1.25; }
  body { margin: 0; max-width: none; padding: 0; }
  header { break-after: page; columns: 2; column-gap: 2em; }
  h1 { column-span: all; margin: 0 0 .5em; } header h2 { break-after: avoid; }
  main { grid-template-columns: repeat(3, 1fr); }
  article dl { display: block; } article dt, article dd { display: inline; }
  article dt::after { content: ": "; } article dd + dd::before { content: "; "; }
  article dt:not(:first-child)::before { content: "\A"; white-space: pre; }
}
)";

// Characters that HTML forbids stand in no text of XML, and those that it does not take are few.
std::string htmlText(const std::string& text) {
  return replaceAll(
      replaceAll(replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"",
      "&quot;");
}

std::string tagged(const std::string& tag, const std::string& text) {
  return "<" + tag + " dir=\"auto\">" + htmlText(text) + "</" + tag + ">";
}

bool isShown(const ContentField& field, const std::string& title) {
  const bool readable = field.type <= tyType::CloseList;
  return field.assigned && readable && !field.linking && !field.texts.empty() &&
         field.texts.front() != title;
}

std::string fieldList(const ContentObject& object) {
  std::string list;
  for (const ContentField& field : object.fields) {
    if (!isShown(field, object.title)) continue;
    list += tagged("dt", field.name);
    for (const std::string& text : field.texts) list += tagged("dd", text);
    list += '\n';
  }
  // A list without an entry is not valid.
  return list.empty() ? list : "<dl>\n" + list + "</dl>\n";
}

std::string cardOf(const ContentObject& segment) {
  const char* look = segment.level == 1 ? "level1" : segment.level == 2 ? "level2" : "deeper";
  std::string card = std::string("<article class=\"") + look + "\">\n";
  if (!segment.picture.empty()) {
    const EmbeddedPicture picture = embeddedPicture(segment.picture, kCardPicture);
    if (!picture.uri.empty()) {
      card += "<img alt=\"\" width=\"" + std::to_string(picture.width) + "\" height=\"" +
              std::to_string(picture.height) + "\" src=\"" + picture.uri + "\">\n";
    }
  }
  card += tagged("h2", segment.title.empty() ? "-" : segment.title) + '\n';
  if (segment.time) {
    card += "<p class=\"time\">" + timeCodeOf(segment.time->start, segment.frameRate) + " - " +
            timeCodeOf(segment.time->end, segment.frameRate) + "</p>\n";
  }
  return card + fieldList(segment) + "</article>\n";
}

std::string headOf(const Content& content) {
  const ContentObject& document = content.document();
  std::string head = "<header>\n" + tagged("h1", document.title.empty() ? "-" : document.title);
  head += '\n' + fieldList(document);
  for (const ContentObject* version : content.below(document)) {
    head += tagged("h2", version->title.empty() ? "-" : version->title) + '\n';
    head += fieldList(*version);
  }
  return head + "</header>\n";
}

// Pictures are what such a sheet is for: other classes only where they are asked for, or alone.
ContentList cards(const Content& content, ExportOptions options) {
  if (options.kind) return allSegments(content, options);
  options.kind = ObjectKind::Video;
  ContentList segments = allSegments(content, options);
  options.kind.reset();
  return segments.empty() ? allSegments(content, options) : segments;
}

Exported writeHtml(const Content& content, const ExportOptions& options) {
  const ContentList segments = cards(content, options);
  const std::string title = oneLine(content.document().title);
  Exported exported;
  exported.bytes =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width\">\n<title>" +
      htmlText(title.empty() ? "-" : title) + "</title>\n<style>" + kStyle +
      "</style>\n</head>\n<body>\n" + headOf(content) + "<main>\n";
  for (const ContentObject* segment : segments) exported.bytes += cardOf(*segment);
  exported.bytes += "</main>\n</body>\n</html>\n";
  exported.notes.push_back(std::to_string(segments.size()) + " cards.");
  return exported;
}

}  // namespace

const ExportFormat kHtmlFormat{
    "html",   "HTML", "html", "a contact sheet to print, in one file", "class level of-version",
    writeHtml};

}  // namespace velra

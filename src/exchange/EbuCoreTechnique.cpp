// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/EbuCoreTechnique.h"

#include <cmath>
#include <cstdint>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "platform/xml/XmlStream.h"

namespace velra {

namespace {

std::string isoDuration(double seconds) {
  return "PT" + secondsText(seconds) + 'S';
}

void writeNumber(const char* tag, std::int64_t value, const char* unit, XmlStream& xml) {
  if (value <= 0) return;
  xml.element(tag, std::to_string(value),
              *unit == '\0' ? XmlAttributes() : XmlAttributes{{"unit", unit}});
}

// A whole number, and the fraction by which it is multiplied.
void writeRate(double rate, XmlStream& xml) {
  if (rate <= 0) return;
  double whole = std::round(rate);
  const bool exact = std::abs(rate - whole) < 0.0005;
  const bool american = !exact && std::abs(rate - std::ceil(rate) * 1000 / 1001) < 0.002;
  if (!exact) whole = american ? std::ceil(rate) : std::round(rate * 1000);
  xml.element("ebucore:frameRate", numberText(whole),
              {{"factorNumerator", american ? "1000" : "1"},
               {"factorDenominator", american ? "1001"
                                     : exact  ? "1"
                                              : "1000"}});
}

void writePicture(const MovieFacts& facts, XmlStream& xml) {
  if (facts.pictureCoding.empty()) return;
  xml.open("ebucore:videoFormat");
  writeNumber("ebucore:width", facts.width, "pixel", xml);
  writeNumber("ebucore:height", facts.height, "pixel", xml);
  writeRate(facts.rate, xml);
  xml.element("ebucore:videoEncoding", "", {{"typeLabel", facts.pictureCoding}});
  writeNumber("ebucore:bitRate", facts.pictureBitRate, "bits per second", xml);
  xml.close();
}

void writeSound(const MovieFacts& facts, XmlStream& xml) {
  if (facts.soundCoding.empty()) return;
  xml.open("ebucore:audioFormat");
  xml.element("ebucore:audioEncoding", "", {{"typeLabel", facts.soundCoding}});
  writeNumber("ebucore:samplingRate", facts.sampleRate, "", xml);
  writeNumber("ebucore:bitRate", facts.soundBitRate, "bits per second", xml);
  writeNumber("ebucore:channels", facts.channels, "", xml);
  xml.close();
}

void writeFile(const std::string& movie, const MovieFacts& facts, XmlStream& xml) {
  if (movie.empty()) return;
  writeNumber("ebucore:fileSize", static_cast<std::int64_t>(facts.bytes), "byte", xml);
  xml.element("ebucore:fileName", movie.substr(movie.rfind('/') + 1));
  if (!facts.mimeType.empty()) {
    xml.element("ebucore:mimeType", "", {{"typeLabel", facts.mimeType}});
  }
  xml.element("ebucore:locator", "file://" + uriPath(movie));
  writeNumber("ebucore:overallBitRate", facts.bitRate, "bits per second", xml);
}

}  // namespace

// A time of day cannot tell what comes later than a day.
void writeEbuCoreTime(const char* tag, double seconds, XmlStream& xml) {
  const bool ofDay = milliseconds(seconds) < 86'400'000;
  xml.open(tag);
  xml.element(ofDay ? "ebucore:normalPlayTime" : "ebucore:offsetNormalPlayTime",
              ofDay ? clockText(seconds) : isoDuration(seconds));
  xml.close();
}

void writeEbuCoreTechnique(const Copy& copy, XmlStream& xml) {
  writePicture(copy.facts, xml);
  writeSound(copy.facts, xml);
  if (!copy.facts.container.empty()) {
    xml.element("ebucore:containerFormat", "", {{"containerFormatName", copy.facts.container}});
  }
  const ContentField* duration = copy.ladder.front()->field("Duration");
  if (duration && duration->span) {
    xml.open("ebucore:duration");
    xml.element("ebucore:normalPlayTime", isoDuration(duration->span->end));
    xml.close();
  }
  writeFile(copy.itself().movie, copy.facts, xml);
}

}  // namespace velra

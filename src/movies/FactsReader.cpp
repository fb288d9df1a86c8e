// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/FactsReader.h"

#include <array>
#include <chrono>
#include <utility>

#include "movies/LibAv.h"
#include "movies/MovieFile.h"
#include "platform/files/FileStamp.h"

namespace velra {

namespace {

constexpr std::chrono::seconds kFactsLimit{5};

// The library knows the types of a few of its readers alone.
std::string mimeTypeOf(std::string_view container) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 12> kTypes{{
      {"avi", "video/x-msvideo"},
      {"mpeg", "video/mpeg"},
      {"mpegvideo", "video/mpeg"},
      {"mpegts", "video/mp2t"},
      {"mov,", "video/mp4"},
      {"matroska,", "video/x-matroska"},
      {"ogg", "application/ogg"},
      {"mxf", "application/mxf"},
      {"wav", "audio/x-wav"},
      {"mp3", "audio/mpeg"},
      {"flac", "audio/flac"},
      {"aac", "audio/aac"},
  }};
  for (const auto& [name, type] : kTypes) {
    const bool isList = name.ends_with(',');
    if (container == name || (isList && container.starts_with(name))) return std::string(type);
  }
  return "application/octet-stream";
}

const AVStream* trackOf(AVFormatContext& format, AVMediaType type) {
  const int index = av_find_best_stream(&format, type, -1, -1, nullptr, 0);
  return index < 0 ? nullptr : format.streams[index];
}

void readPictures(AVFormatContext& format, MovieFacts& facts) {
  const AVStream* track = trackOf(format, AVMEDIA_TYPE_VIDEO);
  if (!track) return;
  const AVCodecParameters& known = *track->codecpar;
  facts.pictureCoding = avcodec_get_name(known.codec_id);
  facts.width = known.width;
  facts.height = known.height;
  facts.pictureBitRate = known.bit_rate;
  const AVRational rate =
      track->avg_frame_rate.num > 0 ? track->avg_frame_rate : track->r_frame_rate;
  if (rate.num > 0 && rate.den > 0) facts.rate = av_q2d(rate);
}

void readSound(AVFormatContext& format, MovieFacts& facts) {
  const AVStream* track = trackOf(format, AVMEDIA_TYPE_AUDIO);
  if (!track) return;
  const AVCodecParameters& known = *track->codecpar;
  facts.soundCoding = avcodec_get_name(known.codec_id);
  facts.sampleRate = known.sample_rate;
  facts.channels = known.ch_layout.nb_channels;
  facts.soundBitRate = known.bit_rate;
}

}  // namespace

MovieFacts readFacts(const std::string& path) {
  MovieFacts facts;
  MovieFile file;
  facts.reason = file.open(path, kFactsLimit);
  if (!facts.reason.empty()) return facts;
  AVFormatContext& format = *file.format();
  facts.container = format.iformat->name;
  facts.mimeType = mimeTypeOf(facts.container);
  facts.bytes = fileStamp(path).size;
  facts.bitRate = format.bit_rate;
  readPictures(format, facts);
  readSound(format, facts);
  return facts;
}

}  // namespace velra

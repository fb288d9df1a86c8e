// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieInput.h"

#include <algorithm>

#include "movies/MovieFile.h"

namespace velra {

namespace {

// How many packets in a row may be unreadable before the rest of a damaged file is given up.
constexpr int kBadReads = 200;

constexpr int kWaysToStart = 5;

}  // namespace

MovieInput::MovieInput() : file_(std::make_unique<MovieFile>()) {}

MovieInput::~MovieInput() = default;

std::string MovieInput::open(const std::string& path) {
  return file_->open(path, kOpenLimit);
}

bool MovieInput::statesTooLarge() const {
  return file_->statesTooLarge();
}

void MovieInput::cancel() {
  file_->cancel();
}

void MovieInput::allow(std::chrono::seconds limit) {
  file_->allow(limit);
}

bool MovieInput::cancelled() const {
  return file_->cancelled();
}

bool MovieInput::has(MovieTrack track) const {
  if (file_->format() == nullptr) return false;
  const AVFormatContext& format = *file_->format();
  const AVMediaType type = track == MovieTrack::Pictures ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO;
  return std::any_of(format.streams, format.streams + format.nb_streams, [&](const AVStream* one) {
    return one->codecpar->codec_type == type &&
           (one->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
  });
}

bool MovieInput::choose(MovieTrack track) {
  AVFormatContext* format = file_->format();
  const AVMediaType type = track == MovieTrack::Pictures ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO;
  index_ = av_find_best_stream(format, type, -1, -1, nullptr, 0);
  if (index_ < 0) return false;
  const AVStream* chosen = stream();
  const bool coverPicture = (chosen->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
  if (coverPicture || avcodec_find_decoder(chosen->codecpar->codec_id) == nullptr) return false;
  for (unsigned i = 0; i < format->nb_streams; ++i) {
    AVStream* other = format->streams[i];
    if (other != chosen) other->discard = AVDISCARD_ALL;
  }
  if (track == MovieTrack::Pictures && hasBareStamps()) {
    format->flags |= AVFMT_FLAG_NOFILLIN;
    seekByte(0);  // what was read ahead has been filled in
  }
  return true;
}

AVStream* MovieInput::stream() const {
  return index_ < 0 ? nullptr : file_->format()->streams[index_];
}

MovieStamps MovieInput::stamps() const {
  const AVInputFormat& format = *file_->format()->iformat;
  const std::string name = format.name;
  if (name == "mpeg" || name == "mpegts") return MovieStamps::OfBytes;
  if (name == "avi") return MovieStamps::OfChunks;
  const bool stream = name == "mpegvideo" || (format.flags & AVFMT_NOTIMESTAMPS) != 0;
  return stream ? MovieStamps::None : MovieStamps::OfPictures;
}

bool MovieInput::countsPictures() const {
  const std::string name = file_->format()->iformat->name;
  return name == "mxf" || name == "dv";
}

bool MovieInput::hasBareStamps() const {
  return stamps() == MovieStamps::OfBytes || stamps() == MovieStamps::None;
}

std::int64_t MovieInput::bytes() const {
  return avio_size(file_->format()->pb);
}

double MovieInput::claimedLength() const {
  const std::int64_t length = file_->format()->duration;
  return length > 0 ? static_cast<double>(length) / AV_TIME_BASE : 0;
}

bool MovieInput::read(AVPacket& packet) {
  atEnd_ = false;
  for (int bad = 0; bad < kBadReads;) {
    if (!opening_) file_->allow(kReadLimit);
    av_packet_unref(&packet);
    if (file_->isInterrupted()) return false;
    const int error = av_read_frame(file_->format(), &packet);
    atEnd_ = error == AVERROR_EOF;
    if (atEnd_ || error == AVERROR_EXIT) return false;
    if (error < 0) {
      ++bad;
    } else if (packet.stream_index == index_) {
      const int hiddenKey = AV_PKT_FLAG_KEY | AV_PKT_FLAG_DISCARD;
      hidesKey_ = hidesKey_ || (packet.flags & hiddenKey) == hiddenKey;
      return true;
    }
  }
  return false;
}

bool MovieInput::skip(int packets) {
  const AvPacket packet(av_packet_alloc());
  while (packets > 0 && read(*packet)) --packets;
  return packets == 0;
}

bool MovieInput::sought(int result) {
  hidesKey_ = false;
  return result >= 0;
}

bool MovieInput::seek(std::int64_t ticks) {
  file_->allow(kReadLimit);
  return sought(avformat_seek_file(file_->format(), index_, INT64_MIN, ticks, ticks, 0));
}

std::optional<std::int64_t> MovieInput::keyBefore(std::int64_t ticks) const {
  const AVIndexEntry* key =
      avformat_index_get_entry_from_timestamp(stream(), ticks, AVSEEK_FLAG_BACKWARD);
  return key == nullptr ? std::nullopt : std::optional(key->timestamp);
}

bool MovieInput::seekByte(std::int64_t position) {
  if (!opening_) file_->allow(kReadLimit);
  return sought(av_seek_frame(file_->format(), -1, position, AVSEEK_FLAG_BYTE));
}

bool MovieInput::toStart(std::int64_t firstTicks, const std::function<bool()>& arrived) {
  for (int way = 0; way < kWaysToStart; ++way) {
    if (goToStart(way, firstTicks) && arrived()) return true;
  }
  return false;
}

bool MovieInput::goToStart(int way, std::int64_t firstTicks) {
  AVFormatContext* format = file_->format();
  file_->allow(kReadLimit);
  switch (way) {
    case 0:
      return sought(av_seek_frame(format, index_, firstTicks, AVSEEK_FLAG_BACKWARD));
    case 1:
      return seekByte(0);
    case 2:
      return sought(av_seek_frame(format, index_, INT64_MIN, AVSEEK_FLAG_BACKWARD));
    case 3:
      return sought(av_seek_frame(format, index_, 0, AVSEEK_FLAG_BACKWARD));
    default:
      return reopen();
  }
}

bool MovieInput::reopen() {
  const AVMediaType type = stream()->codecpar->codec_type;
  const int before = index_;
  if (!file_->reopen(kOpenLimit).empty()) return false;
  return choose(type == AVMEDIA_TYPE_VIDEO ? MovieTrack::Pictures : MovieTrack::Sound) &&
         index_ == before;
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieInput.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <vector>

#include "platform/movie/LibAv.h"

namespace velra {

namespace {

constexpr char kFormats[] =
    "avi,asf,mpeg,mpegvideo,mpegts,mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,flv,m4v,h264,dv,rm,ogg,"
    "mxf,"
    "wav,w64,mp3,flac,aac,aiff,au";

// A movie is known by its first bytes; four times as many are tried by default, which makes a
// refusal slow.
constexpr int kProbedBytes = 256 * 1024;

// How many packets in a row may be unreadable before the rest of a damaged file is given up.
constexpr int kBadReads = 200;

constexpr int kWaysToStart = 5;

std::string whyNotPlainFile(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) {
    return errno == ENOENT ? "The file does not exist."
                           : "The file cannot be read: " +
                                 std::error_code(errno, std::generic_category()).message() + ".";
  }
  if (S_ISDIR(info.st_mode)) return "It is a folder and no movie.";
  if (!S_ISREG(info.st_mode)) return "It is no plain file.";
  if (info.st_size == 0) return "The file is empty.";
  return {};
}

std::string sentenceFor(int error) {
  if (error == AVERROR_EXIT) return "The file did not answer in time.";
  if (error == AVERROR(EACCES)) return "The file cannot be read: Permission denied.";
  return "The format is not valid or not supported.";
}

bool isTooLarge(const AVStream* stream) {
  const AVCodecParameters& known = *stream->codecpar;
  return static_cast<std::int64_t>(known.width) * known.height > MovieInput::kMostPixels;
}

// The decoders that look into a file while it is opened keep the limit too.
int findTracks(AVFormatContext& format) {
  const std::string limit = std::to_string(MovieInput::kMostPixels);
  std::vector<AVDictionary*> options(format.nb_streams);
  for (AVDictionary*& one : options) av_dict_set(&one, "max_pixels", limit.c_str(), 0);
  const int error = avformat_find_stream_info(&format, options.data());
  for (AVDictionary*& one : options) av_dict_free(&one);
  return error;
}

void setWhiteLists(AVFormatContext& format) {
  format.format_whitelist = av_strdup(kFormats);
  format.protocol_whitelist = av_strdup("file");
}

}  // namespace

struct MovieInput::Context {
  AvFormat format;
};

MovieInput::MovieInput() : context_(std::make_unique<Context>()) {
  // The library writes about every damaged packet to the terminal otherwise.
  av_log_set_level(AV_LOG_QUIET);
}

MovieInput::~MovieInput() = default;

int MovieInput::interrupted(void* self) {
  const auto* input = static_cast<const MovieInput*>(self);
  return input->cancelled_ || std::chrono::steady_clock::now() > input->deadline_ ? 1 : 0;
}

void MovieInput::allow(std::chrono::seconds limit) {
  deadline_ = std::chrono::steady_clock::now() + limit;
}

std::string MovieInput::open(const std::string& path) {
  path_ = path;
  if (std::string reason = whyNotPlainFile(path); !reason.empty()) return reason;
  return openFormat();
}

std::string MovieInput::openFormat() {
  context_->format.reset();
  allow(kOpenLimit);
  AVFormatContext* format = avformat_alloc_context();
  format->interrupt_callback = {&MovieInput::interrupted, this};
  setWhiteLists(*format);
  // A program stream has no table of its tracks, and the library would read seven seconds of it.
  format->max_analyze_duration = std::int64_t{2} * AV_TIME_BASE;
  format->format_probesize = kProbedBytes;
  const std::string url = "file:" + path_;  // a colon in a path is no protocol
  if (const int error = avformat_open_input(&format, url.c_str(), nullptr, nullptr); error < 0) {
    return sentenceFor(error);
  }
  context_->format.reset(format);
  // Decoders that refuse the size forget it.
  statesTooLarge_ = std::any_of(format->streams, format->streams + format->nb_streams, isTooLarge);
  if (const int error = findTracks(*format); error < 0) return sentenceFor(error);
  return {};
}

bool MovieInput::has(MovieTrack track) const {
  if (!context_->format) return false;
  const AVFormatContext& format = *context_->format;
  const AVMediaType type = track == MovieTrack::Pictures ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO;
  return std::any_of(format.streams, format.streams + format.nb_streams, [&](const AVStream* one) {
    return one->codecpar->codec_type == type &&
           (one->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
  });
}

bool MovieInput::choose(MovieTrack track) {
  AVFormatContext* format = context_->format.get();
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

const AVStream* MovieInput::stream() const {
  return index_ < 0 ? nullptr : context_->format->streams[index_];
}

MovieStamps MovieInput::stamps() const {
  const AVInputFormat& format = *context_->format->iformat;
  const std::string name = format.name;
  if (name == "mpeg" || name == "mpegts") return MovieStamps::OfBytes;
  if (name == "avi") return MovieStamps::OfChunks;
  const bool stream = name == "mpegvideo" || (format.flags & AVFMT_NOTIMESTAMPS) != 0;
  return stream ? MovieStamps::None : MovieStamps::OfPictures;
}

bool MovieInput::hasBareStamps() const {
  return stamps() == MovieStamps::OfBytes || stamps() == MovieStamps::None;
}

std::int64_t MovieInput::bytes() const {
  return avio_size(context_->format->pb);
}

double MovieInput::claimedLength() const {
  const std::int64_t length = context_->format->duration;
  return length > 0 ? static_cast<double>(length) / AV_TIME_BASE : 0;
}

bool MovieInput::read(AVPacket& packet) {
  atEnd_ = false;
  for (int bad = 0; bad < kBadReads;) {
    if (!opening_) allow(kReadLimit);
    av_packet_unref(&packet);
    if (interrupted(this) != 0) return false;
    const int error = av_read_frame(context_->format.get(), &packet);
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
  allow(kReadLimit);
  return sought(avformat_seek_file(context_->format.get(), index_, INT64_MIN, ticks, ticks, 0));
}

bool MovieInput::seekByte(std::int64_t position) {
  if (!opening_) allow(kReadLimit);
  return sought(av_seek_frame(context_->format.get(), -1, position, AVSEEK_FLAG_BYTE));
}

bool MovieInput::toStart(std::int64_t firstTicks, const std::function<bool()>& arrived) {
  for (int way = 0; way < kWaysToStart; ++way) {
    if (goToStart(way, firstTicks) && arrived()) return true;
  }
  return false;
}

bool MovieInput::goToStart(int way, std::int64_t firstTicks) {
  AVFormatContext* format = context_->format.get();
  allow(kReadLimit);
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
  if (!openFormat().empty()) return false;
  return choose(type == AVMEDIA_TYPE_VIDEO ? MovieTrack::Pictures : MovieTrack::Sound) &&
         index_ == before;
}

}  // namespace velra

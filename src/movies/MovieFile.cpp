// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace velra {

namespace {

constexpr char kFormats[] =
    "avi,asf,mpeg,mpegvideo,mpegts,mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,flv,m4v,h264,dv,rm,ogg,"
    "mxf,"
    "wav,w64,mp3,flac,aac,aiff,au";

// A stream without a container is read in pieces of this many bytes, in which pictures have their
// places: a kilobyte by default, which takes a quarter longer.
constexpr int kPieceBytes = 4096;

// A movie is known by its first bytes; four times as many are tried by default, which makes a
// refusal slow.
constexpr int kProbedBytes = 256 * 1024;

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
  return static_cast<std::int64_t>(known.width) * known.height > MovieFile::kMostPixels;
}

// The decoders that look into a file while it is opened keep the limit too.
int findTracks(AVFormatContext& format) {
  const std::string limit = std::to_string(MovieFile::kMostPixels);
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

int interrupted(void* file) {
  return static_cast<const MovieFile*>(file)->isInterrupted() ? 1 : 0;
}

}  // namespace

MovieFile::MovieFile() {
  // The library writes about every damaged packet to the terminal otherwise.
  av_log_set_level(AV_LOG_QUIET);
}

void MovieFile::allow(std::chrono::seconds limit) {
  deadline_ = std::chrono::steady_clock::now() + limit;
}

bool MovieFile::isInterrupted() const {
  return cancelled_ || std::chrono::steady_clock::now() > deadline_;
}

std::string MovieFile::open(const std::string& path, std::chrono::seconds limit) {
  path_ = path;
  std::string reason = whyNotPlainFile(path);
  return reason.empty() ? reopen(limit) : reason;
}

std::string MovieFile::reopen(std::chrono::seconds limit) {
  allow(limit);
  AVFormatContext* format = avformat_alloc_context();
  format->interrupt_callback = {&interrupted, this};
  setWhiteLists(*format);
  // A program stream has no table of its tracks, and the library would read seven seconds of it.
  format->max_analyze_duration = std::int64_t{2} * AV_TIME_BASE;
  format->format_probesize = kProbedBytes;
  const std::string url = "file:" + path_;  // a colon in a path is no protocol
  AVDictionary* options = nullptr;          // formats that do not know one leave it
  av_dict_set_int(&options, "raw_packet_size", kPieceBytes, 0);
  const int error = avformat_open_input(&format, url.c_str(), nullptr, &options);
  av_dict_free(&options);
  if (error < 0) return sentenceFor(error);
  AvFormat opened(format);
  // Decoders that refuse the size forget it.
  statesTooLarge_ = std::any_of(format->streams, format->streams + format->nb_streams, isTooLarge);
  if (const int failure = findTracks(*format); failure < 0) return sentenceFor(failure);
  format_ = std::move(opened);
  return {};
}

}  // namespace velra

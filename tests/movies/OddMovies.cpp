// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/OddMovies.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "support/NumberedMovie.h"

namespace velra::test {

namespace {

constexpr double kFilm = 24000.0 / 1001;
constexpr double kVideo = 30000.0 / 1001;

using Edit = std::function<void(std::string&)>;

std::string bytesOf(const char* name) {
  std::ifstream file(moviePath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

int byteAt(const std::string& bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

/// Calls `visit` with the places of the times and of the payload in each packet of pictures of a
/// program stream, and with the end of the packet.
void eachPacket(const std::string& bytes,
                const std::function<void(std::size_t, std::size_t, std::size_t)>& visit) {
  const std::string code("\0\0\1\xe0", 4);
  for (std::size_t at = 0; (at = bytes.find(code, at)) != std::string::npos;) {
    const std::size_t end = at + 6 + static_cast<std::size_t>(byteAt(bytes, at + 4) * 256) +
                            static_cast<std::size_t>(byteAt(bytes, at + 5));
    std::size_t times = at + 6;
    std::size_t payload = 0;
    if (byteAt(bytes, times) >> 6 == 2) {  // of the second kind
      times = at + 9;
      payload = times + static_cast<std::size_t>(byteAt(bytes, at + 8));
    } else {
      while (byteAt(bytes, times) == 0xff) ++times;
      if (byteAt(bytes, times) >> 6 == 1) times += 2;
      const int kind = byteAt(bytes, times) >> 4;
      payload = times + (kind == 2 ? 5U : kind == 3 ? 10U : 1U);
    }
    visit(times, payload, end);
    at = end;
  }
}

std::string streamIn(const std::string& bytes) {
  std::string stream;
  eachPacket(bytes, [&](std::size_t, std::size_t payload, std::size_t end) {
    stream += bytes.substr(payload, end - payload);
  });
  return stream;
}

/// Takes the times from all packets but each `kept`th that has some, the first one always kept.
void thinStamps(std::string& bytes, int kept) {
  int count = 0;
  const std::string whole = bytes;
  eachPacket(whole, [&](std::size_t times, std::size_t payload, std::size_t) {
    if (byteAt(whole, times) >> 5 != 1 || count++ % kept == 0) return;
    std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(times),
              bytes.begin() + static_cast<std::ptrdiff_t>(payload), '\xff');
    const bool second = byteAt(whole, times - 3) >> 6 == 2;
    second ? bytes[times - 2] = '\0' : bytes[payload - 1] = '\x0f';
  });
}

/// Lets the times of the second half begin ten hours later. The upper bits suffice.
void leapStamps(std::string& bytes) {
  const std::string whole = bytes;
  eachPacket(whole, [&](std::size_t times, std::size_t payload, std::size_t) {
    if (times < whole.size() / 2) return;
    for (std::size_t at = times; at + 5 <= payload && byteAt(whole, at) >> 5 <= 1; at += 5) {
      bytes[at] = static_cast<char>(byteAt(whole, at) | 0x06);
    }
  });
}

/// Marks film as video with repeated fields: each second picture of a group is shown for three.
void repeatFields(std::string& stream) {
  const std::string sequence("\0\0\1\xb3", 4);
  const std::string picture("\0\0\1\0", 4);
  const std::string extension("\0\0\1\xb5", 4);
  int number = -1;  // in the order of the group
  for (std::size_t at = 0; at + 10 < stream.size(); ++at) {
    const auto begins = [&](const std::string& code) { return stream.compare(at, 4, code) == 0; };
    if (begins(sequence)) stream[at + 7] = static_cast<char>((byteAt(stream, at + 7) & 0xf0) | 4);
    if (begins(picture)) number = byteAt(stream, at + 4) << 2 | byteAt(stream, at + 5) >> 6;
    if (!begins(extension)) continue;
    const int kind = byteAt(stream, at + 4) >> 4;
    if (kind == 1) stream[at + 5] = static_cast<char>(byteAt(stream, at + 5) & ~0x08);
    if (kind != 8) continue;
    const int repeats = number % 2 == 0 ? 0x02 : 0;
    stream[at + 7] = static_cast<char>((byteAt(stream, at + 7) & ~0x02) | repeats);
    stream[at + 8] = static_cast<char>(byteAt(stream, at + 8) | 0x80);
  }
}

/// Lets an edit show three seconds from the second one on.
void editMovie(std::string& bytes) {
  const auto put = [&](std::size_t at, std::uint32_t value) {
    for (int byte = 0; byte < 4; ++byte) {
      bytes[at + static_cast<std::size_t>(byte)] = static_cast<char>(value >> (24 - 8 * byte));
    }
  };
  const auto numberAt = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
      value = value << 8 | static_cast<unsigned>(byteAt(bytes, at + i));
    return value;
  };
  const std::size_t edit = bytes.find("elst");
  const std::uint32_t movieScale = numberAt(bytes.find("mvhd") + 16);
  const std::uint32_t trackScale = numberAt(bytes.find("mdhd", edit) + 16);
  put(edit + 12, 3 * movieScale);
  put(edit + 16, numberAt(edit + 16) + 2 * trackScale);
}

OddMovie odd(const char* name, const char* source, double rate, int first, int last,
             const Edit& edit = {}) {
  OddMovie movie{name, nullptr, rate, {}, {}};
  movie.make = [=](const TemporaryFolder& folder) {
    std::string bytes = bytesOf(source);
    if (edit) edit(bytes);
    return folder.write(
        std::string(name) + std::string(source).substr(std::string(source).rfind('.')), bytes);
  };
  for (int k = first; k <= last; ++k) {
    movie.numbers.push_back(k);
    movie.times.push_back((k - first) / rate);
  }
  return movie;
}

OddMovie telecined() {
  OddMovie movie = odd("telecined", "mpeg2-23976.mpg", kVideo, 0, 143, [](std::string& bytes) {
    bytes = streamIn(bytes);
    repeatFields(bytes);
  });
  // Groups of fifteen pictures after a first one of thirteen.
  double time = 0;
  for (std::size_t k = 0; k < movie.times.size(); ++k) {
    movie.times[k] = time;
    const std::size_t inGroup = k < 13 ? k : (k - 13) % 15;
    time += (inGroup % 2 == 0 ? 1.5 : 1) / kVideo;
  }
  return movie;
}

/// Too long for the first look that an opening takes.
OddMovie longStream() {
  OddMovie movie = odd("bare_long", "mpeg1-noise-25.mpg", 25, 0, -1, [](std::string& bytes) {
    const std::string stream = streamIn(bytes);
    bytes.clear();
    for (int round = 0; round < 60; ++round) bytes += stream;
  });
  for (int k = 0; k < 60 * 200; k += 923) {
    movie.numbers.push_back(k % 200);
    movie.times.push_back(k / 25.0);
  }
  return movie;
}

OddMovie lacking() {
  OddMovie movie = odd("lacking", "lacking-25.mp4", 25, 0, 0);
  movie.numbers.clear();
  movie.times.clear();
  for (int k = 0; k < 150; ++k) {
    if (k * 7 % 23 >= 20 || (k >= 62 && k < 112)) continue;
    movie.numbers.push_back(k);
    movie.times.push_back(k / 25.0);
  }
  return movie;
}

std::vector<OddMovie> makeOddMovies() {
  const Edit onlyStream = [](std::string& bytes) { bytes = streamIn(bytes); };
  const auto thin = [](int kept) { return [=](std::string& bytes) { thinStamps(bytes, kept); }; };
  return {odd("bare", "mpeg1-noise-25.mpg", 25, 0, 199, onlyStream),
          odd("bare_small", "mpeg1-50.mpg", 50, 0, 199, onlyStream),
          odd("bare_video", "mpeg2-noise-2997.mpeg", kVideo, 0, 179, onlyStream),
          odd("sparse", "mpeg1-noise-25.mpg", 25, 0, 199, thin(4)),
          odd("sparse_small", "mpeg1-50.mpg", 50, 0, 199, thin(3)),
          odd("sparse_video", "mpeg2-noise-2997.mpeg", kVideo, 0, 179, thin(7)),
          odd("stamped_once", "mpeg2-noise-2997.mpeg", kVideo, 0, 179, thin(1000)),
          odd("leaping", "mpeg1-noise-25.mpg", 25, 0, 199, leapStamps),
          odd("edited", "h264-b-23976.mp4", kFilm, 48, 119, editMovie),
          odd("coarse", "coarse-2997.mov", kVideo, 0, 149),
          odd("late", "late-2997.mkv", kVideo, 0, 149),
          odd("leaping_mp4", "leaping-25.mp4", 25, 0, 149),
          odd("leaping_mkv", "leaping-25.mkv", 25, 0, 149),
          odd("leaping_flv", "leaping-25.flv", 25, 0, 149),
          longStream(),
          telecined(),
          lacking()};
}

}  // namespace

const std::vector<OddMovie>& oddMovies() {
  static const std::vector<OddMovie> movies = makeOddMovies();
  return movies;
}

std::vector<std::string> makeBlindMovies(const TemporaryFolder& folder) {
  std::string unknown = bytesOf("mpeg4-25.avi");
  for (std::size_t at = 0; (at = unknown.find("FMP4", at)) != std::string::npos;) {
    unknown.replace(at, 4, "ZZZZ");
  }
  std::string empty = bytesOf("mpeg4-25.avi");
  const std::string chunk = "00dc";
  for (std::size_t at = empty.find("movi"); (at = empty.find(chunk, at)) < empty.find("idx1");) {
    const int bytes = byteAt(empty, at + 4) + 256 * byteAt(empty, at + 5);
    const auto size = static_cast<std::size_t>(bytes);
    empty.replace(at + 8, size, std::string(size, '\0'));
    at += 8 + size;
  }
  return {folder.write("unknown.avi", unknown), folder.write("empty.avi", empty)};
}

std::string makeFallingMovie(const TemporaryFolder& folder) {
  std::string bytes = bytesOf("leaping-25.flv");
  for (std::size_t at = 13; at + 7 < bytes.size();) {
    const int size =
        byteAt(bytes, at + 1) << 16 | byteAt(bytes, at + 2) << 8 | byteAt(bytes, at + 3);
    if (byteAt(bytes, at + 7) > 0) bytes.replace(at + 4, 4, std::string(4, '\0'));
    at += static_cast<std::size_t>(size) + 15;
  }
  return folder.write("falling.flv", bytes);
}

std::string makeWideMovie(const TemporaryFolder& folder) {
  std::string bytes = bytesOf("mpeg2-23976.mpg");
  const std::string header("\0\0\1\xb3", 4);
  for (std::size_t at = 0; (at = bytes.find(header, at)) != std::string::npos; ++at) {
    bytes[at + 7] = static_cast<char>((byteAt(bytes, at + 7) & 0xf) | 0x30);
  }
  return folder.write("wide.mpg", bytes);
}

std::string makeHugeMovie(const TemporaryFolder& folder) {
  std::string bytes = bytesOf("mjpeg-23976.avi");
  const std::string side("\x3e\x80", 2);  // 16,000
  for (const std::size_t at : {bytes.find("strf") + 12, bytes.find("strf") + 16}) {
    bytes.replace(at, 2, "\x80\x3e");
  }
  const std::string frame("\xff\xc0\0\x11\x08", 5);
  for (std::size_t at = 0; (at = bytes.find(frame, at)) != std::string::npos; ++at) {
    bytes.replace(at + 5, 4, side + side);
  }
  return folder.write("huge.avi", bytes);
}

}  // namespace velra::test

#pragma once

#include <memory>
#include <string>

#include "platform/LibAv.h"

namespace velra {

class MovieInput;

/// Decodes the chosen track of a movie: what comes out next, in the order in which it is shown or
/// heard. Damaged packets cost what they held and no more. One thread.
class TrackDecoder {
 public:
  /// "" on success, else one sentence.
  std::string open(const AVStream& stream);

  /// To be called after each seek of the input.
  void flush();

  /// The next picture or block of sound; null at the end.
  AvFrame next(MovieInput& input);

 private:
  void feed(MovieInput& input);

  AvCodec codec_;
  AvPacket packet_;
  bool draining_ = false;
};

}  // namespace velra

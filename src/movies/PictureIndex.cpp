// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "movies/LibAv.h"
#include "movies/MovieInput.h"
#include "movies/PacketOrder.h"
#include "movies/PictureClock.h"

namespace velra {

namespace {

// More different distances than that say nothing.
constexpr std::size_t kMostDistances = 1000;

// So many packets are read in any case: they tell the usual distance.
constexpr int kFewest = 100;

// Such a share of the pictures is most of them.
constexpr double kMost = 0.6;

// Takes the packets in the order in which their pictures are shown.
class IndexMaker {
 public:
  IndexMaker(double frameTime, double leap, double tick, PictureIndex& index)
      : clock_(frameTime, leap), tick_(tick), index_(index) {}

  void take(const OrderedPacket& packet) {
    const bool stamped = packet.ticks != kNoTime;
    const double stamp =
        stamped ? static_cast<double>(packet.ticks) * tick_ : PictureClock::kUnknown;
    const double time = clock_.take(stamp, packet.fields);
    addOffset(time);
    index_.last = time;
    index_.lastFields = packet.fields;
    ++index_.pictures;
    if (stamped && lastTicks_ != kNoTime) addDistance(packet.ticks - lastTicks_);
    lastTicks_ = packet.ticks;
    if (packet.key) addKey(packet, time, stamped);
  }

  void finish() { index_.stampedKeys = stampedKeys_ > 0 && stampedKeys_ * 2 >= keys_; }

 private:
  void addOffset(double time) {
    const double offset = clock_.offset();
    if (std::isnan(offset) || offset == lastOffset_) return;
    index_.line.add(time, offset);
    lastOffset_ = offset;
  }

  void addDistance(std::int64_t ticks) {
    if (ticks > 0 && index_.distances.size() < kMostDistances) ++index_.distances[ticks];
  }

  void addKey(const OrderedPacket& packet, double time, bool stamped) {
    ++keys_;
    if (stamped) ++stampedKeys_;
    if (!index_.keys.empty() && time < index_.keys.back().time + PictureIndex::kKeyDistance) return;
    index_.keys.push_back({packet.position, packet.behind, packet.size, time});
  }

  PictureClock clock_;
  double tick_;
  PictureIndex& index_;
  std::int64_t lastTicks_ = kNoTime;
  std::int64_t keys_ = 0;
  std::int64_t stampedKeys_ = 0;
  double lastOffset_ = PictureClock::kUnknown;
};

}  // namespace

const KeyPlace* PictureIndex::keyBefore(double time) const {
  const auto behind = std::upper_bound(keys.begin(), keys.end(), time,
                                       [](double t, const KeyPlace& key) { return t < key.time; });
  return behind == keys.begin() ? nullptr : &*std::prev(behind);
}

double PictureIndex::longestGroup() const {
  double longest = 0;
  for (std::size_t i = 1; i < keys.size(); ++i) {
    longest = std::max(longest, keys[i].time - keys[i - 1].time);
  }
  return longest;
}

double PictureIndex::usualDistance() const {
  std::int64_t count = 0;
  for (const auto& [ticks, times] : distances) count += times;
  std::int64_t median = 0;
  std::int64_t below = 0;
  for (const auto& [ticks, times] : distances) {
    median = ticks;
    below += times;
    if (below * 2 >= count) break;
  }
  double sum = 0;
  double used = 0;
  for (const auto& [ticks, times] : distances) {
    if (std::abs(ticks - median) > 1) continue;
    sum += static_cast<double>(ticks) * times;
    used += times;
  }
  return used > kMost * static_cast<double>(count) ? sum / used : 0;
}

struct PictureIndexer::State {
  IndexMaker maker;
  PacketOrder order;
  AvPacket packet{av_packet_alloc()};

  State(const MovieInput& input, double frameTime, double leap, double tick, PictureIndex& index)
      : maker(frameTime, leap, tick, index),
        order(*input.stream(), input.hasBareStamps(), leap / tick,
              [this](const OrderedPacket& ordered) { maker.take(ordered); }) {}
};

PictureIndexer::PictureIndexer(MovieInput& input, double frameTime, double leap,
                               PictureIndex& index)
    : input_(input), index_(index) {
  index = {};
  const double tick = av_q2d(input.stream()->time_base);
  state_ = std::make_unique<State>(input, frameTime, leap, tick, index);
}

PictureIndexer::~PictureIndexer() = default;

void PictureIndexer::read(std::chrono::milliseconds limit) {
  const auto stop = std::chrono::steady_clock::now() + limit;
  AVPacket& packet = *state_->packet;
  for (int taken = 0; !index_.complete; ++taken) {
    if (taken >= kFewest && std::chrono::steady_clock::now() > stop) break;
    if (input_.read(packet)) {
      index_.bytes = std::max(index_.bytes, packet.pos);
      state_->order.take(packet);
    } else {
      index_.complete = input_.atEnd();
      break;
    }
  }
  if (index_.complete) state_->order.finish();
  state_->maker.finish();
  index_.sure = state_->order.sure();
  index_.lost = state_->order.lost();
}

}  // namespace velra

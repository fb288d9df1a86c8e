// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

struct AVPacket;
struct AVStream;

namespace velra {

/// A packet that holds a picture which is shown.
struct OrderedPacket {
  std::int64_t ticks = 0;     // its own stamp, or no time
  std::int64_t position = 0;  // in bytes: of the stretch of bytes in which it begins
  int behind = 0;             // how many packets begin in that stretch before it
  int size = 0;               // in bytes
  int fields = 0;             // for which it is shown
  bool key = false;           // decoding can begin with it
};

/// Brings packets from the order of the file into the order in which their pictures are shown,
/// without decoding them.
class PacketOrder {
 public:
  using Receiver = std::function<void(const OrderedPacket&)>;

  /// `bareStamps` tells that some packets may have no stamp. Stamps that differ by more than `leap`
  /// ticks from one packet to the next begin a new row.
  PacketOrder(const AVStream& stream, bool bareStamps, double leap, Receiver receiver);
  ~PacketOrder();
  PacketOrder(const PacketOrder&) = delete;
  PacketOrder& operator=(const PacketOrder&) = delete;

  void take(const AVPacket& packet);

  /// Gives on what still waits.
  void finish();

  /// False when the places of too many packets could not be told.
  bool sure() const;

  /// True when the place of any could not be told.
  bool lost() const { return unplaced_ > 0; }

 private:
  struct Parser;

  OrderedPacket describe(const AVPacket& packet);
  void takeByType(const OrderedPacket& packet);
  void takeByStamp(const OrderedPacket& packet);
  void takeByCount(OrderedPacket packet);
  void giveEarliest();

  std::unique_ptr<Parser> parser_;
  Receiver receiver_;
  double leap_;
  double fall_;  // in ticks
  bool bareStamps_;
  bool hasTypes_ = false;       // the parser tells which pictures lean on both sides
  bool repeatsFields_ = false;  // and for how many fields each is shown
  std::int64_t taken_ = 0;
  std::int64_t unplaced_ = 0;  // those that could not be told
  std::int64_t position_ = 0;  // of the last stretch of bytes
  int behind_ = 0;
  std::int64_t lastTicks_;
  std::vector<OrderedPacket> waiting_;
};

}  // namespace velra

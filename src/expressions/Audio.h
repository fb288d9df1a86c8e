// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "expressions/ExpressionBase.h"

namespace velra {

/// The sound expression of a Version: what all expressions do and nothing besides.
class Audio : public ExpressionBase {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Audio; }

  explicit Audio(ApplicationModule& app);
  ~Audio() override;
  Audio(const Audio&) = delete;
  Audio& operator=(const Audio&) = delete;

  /// Nothing sets it.
  bool bTranscriptOpen() const { return false; }
};

}  // namespace velra

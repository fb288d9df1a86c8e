// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "protocol/Expression.h"
#include "values/WordColl.h"

namespace velra {

/// What a Transcript has besides.
class TranscriptExpression : public virtual Expression {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Transcript; }

  /// The timed words; null when they are not assigned.
  virtual std::shared_ptr<WordColl> WordList() const = 0;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/Expression.h"

#include "base/RunTimeError.h"

namespace velra {

void Expression::RemoveSubExpressionByIndex(std::size_t position) {
  if (position < 1 || position > colSubExpressions().size()) raise(kSubscriptOutOfRange);
  RemoveSubExpressionByPointer(colSubExpressions()[position - 1]);
}

}  // namespace velra

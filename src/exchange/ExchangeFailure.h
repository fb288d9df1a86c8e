// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

namespace velra {

/// Why an exchange cannot be done, as one sentence for the person who asked for it.
class ExchangeFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace velra

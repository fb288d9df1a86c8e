// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/Mapping.h"

namespace velra {

class XmlStream;

/// True for an element that a mapping may name for objects of a class.
bool ebuCoreKnows(ObjectKind kind, const std::string& element);

/// Writes the values of a document or an expression, in the order that the standard had before it
/// allowed any, so that older readers understand them too. Both outlive it.
class EbuCoreElements {
 public:
  EbuCoreElements(const std::vector<MappedValue>& values, XmlStream& xml)
      : values_(values), xml_(xml) {}

  /// All values of elements that come up to this one, itself included, and have not been written.
  void putUpTo(std::string_view last);

 private:
  const std::vector<MappedValue>& values_;
  XmlStream& xml_;
  std::size_t next_ = 0;
};

}  // namespace velra

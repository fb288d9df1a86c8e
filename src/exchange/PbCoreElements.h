// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/Mapping.h"

namespace velra {

class XmlStream;

/// How an element of a mapping is written.
struct PbCoreShape {
  std::string_view element;
  const char* tag;
  const char* inner;      // the element that holds the text; "" for the tag itself
  const char* role;       // the element behind it that holds the qualifier, or ""
  const char* attribute;  // of the tag, that holds the qualifier, or ""
  bool once = false;      // the tag may stand once at most
};

/// What a mapping may name of an asset, and of an instantiation, in the order that PBCore wants.
extern const std::vector<PbCoreShape> kPbCoreAsset;
extern const std::vector<PbCoreShape> kPbCoreInstantiation;

/// True for an element that objects of a class may have.
bool pbCoreKnows(ObjectKind kind, const std::string& element);

using MappedValues = std::vector<MappedValue>;

/// Writes the values of one asset or instantiation piece by piece, so that what no mapping names
/// comes to its place between them. All three outlive it.
class PbCoreElements {
 public:
  PbCoreElements(const std::vector<PbCoreShape>& shapes, const MappedValues& values, XmlStream& xml)
      : shapes_(shapes), values_(values), xml_(xml) {}

  /// All that come up to this element, itself included, and have not been written yet.
  void putUpTo(std::string_view last);

 private:
  void put(const PbCoreShape& shape, const MappedValue& value);

  const std::vector<PbCoreShape>& shapes_;
  const MappedValues& values_;
  XmlStream& xml_;
  std::size_t next_ = 0;
};

}  // namespace velra

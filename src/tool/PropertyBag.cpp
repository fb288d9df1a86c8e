// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/PropertyBag.h"

#include <algorithm>

#include "base/RunTimeError.h"

namespace velra {

PropertyBag::Property PropertyBag::ReadProperty(std::string_view key,
                                                const Property& defaultValue) const {
  const auto at = std::find_if(entries_.begin(), entries_.end(),
                               [&](const Entry& entry) { return entry.key == key; });
  return at == entries_.end() ? defaultValue : at->value;
}

void PropertyBag::WriteProperty(std::string_view key, const Property& value,
                                const Property& defaultValue) {
  entries_.push_back({std::string(key), value, defaultValue});
}

void PropertyBag::mismatch() {
  raise(kTypeMismatch);
}

}  // namespace velra

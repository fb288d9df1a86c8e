// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velra {

/// The stored properties of a control, in the order of writing.
class PropertyBag {
 public:
  using Property = std::variant<bool, std::int32_t, double>;

  struct Entry {
    std::string key;
    Property value;
    Property defaultValue;
  };

  /// The value of the first entry of that key, or the default when there is none.
  Property ReadProperty(std::string_view key, const Property& defaultValue) const;

  void WriteProperty(std::string_view key, const Property& value, const Property& defaultValue);

  const std::vector<Entry>& entries() const { return entries_; }

  /// Reads with the default's own type; kTypeMismatch when the entry holds another.
  template <class T>
  T read(std::string_view key, T defaultValue) const {
    const Property value = ReadProperty(key, defaultValue);
    if (const T* same = std::get_if<T>(&value)) return *same;
    mismatch();
  }

 private:
  [[noreturn]] static void mismatch();

  std::vector<Entry> entries_;
};

}  // namespace velra

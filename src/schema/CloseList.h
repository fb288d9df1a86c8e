// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

/// The values that the schema allows for a type of its own.
struct CloseList {
  std::string strCLName;
  std::vector<std::string> colItems;  // in the schema's order; may hold repeats
};

/// The closed lists of a document, one for a name, in the order of their first use.
class CloseLists {
 public:
  /// Null when there is none of the name.
  const CloseList* find(const std::string& name) const;

  /// kDuplicateKey when the name is there already.
  void Add(CloseList list);

  std::size_t Count() const { return lists_.size(); }

 private:
  std::vector<CloseList> lists_;
};

}  // namespace velra

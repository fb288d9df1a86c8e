// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/CloseList.h"

#include <algorithm>
#include <utility>

#include "base/RunTimeError.h"

namespace velra {

const CloseList* CloseLists::find(const std::string& name) const {
  const auto at = std::find_if(lists_.begin(), lists_.end(),
                               [&](const CloseList& list) { return list.strCLName == name; });
  return at == lists_.end() ? nullptr : &*at;
}

void CloseLists::Add(CloseList list) {
  if (find(list.strCLName)) raise(kDuplicateKey);
  lists_.push_back(std::move(list));
}

}  // namespace velra

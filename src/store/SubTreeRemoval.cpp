// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/SubTreeRemoval.h"

#include "protocol/OpenDocument.h"

namespace velra {

std::string strRemoveAllBelow(DescribedObject& object, OpenDocument& document) {
  ObjectList subTree = object.colSelSubTree();
  if (subTree.empty()) return object.strTitle() + " :open whole document first!";
  subTree.pop_back();
  document.RemoveObjects(subTree);
  return {};
}

}  // namespace velra

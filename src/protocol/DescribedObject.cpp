// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/DescribedObject.h"

#include <algorithm>

#include "schema/SEColl.h"

namespace velra {

std::int16_t DescribedObject::iNumValidElem() const {
  return secol().iNumValid();
}

bool DescribedObject::bReferedStillToBeSaved() const {
  const ObjectList others = waitsFor();
  return std::any_of(others.begin(), others.end(),
                     [](const ObjectRef& other) { return other->bChanged(); });
}

const ObjectList& DescribedObject::colChilds() const {
  static const ObjectList kNone;
  return kNone;
}

}  // namespace velra

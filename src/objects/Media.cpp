// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/Media.h"

#include "base/RunTimeError.h"
#include "objects/Storage.h"
#include "objects/Version.h"

namespace velra {

Media::Media(ApplicationModule& app) : LadderObject(app, ObjectKind::Media) {}

Media::~Media() = default;

std::string Media::openChild(const ObjectRef& child, const std::string& guid,
                             const std::shared_ptr<ObjectForm>& form) {
  return child->strLoadXML(guid, form, io());
}

void Media::adopt(DescribedObject& child) {
  auto* storage = as<Storage>(&child);
  if (!storage) raise(kTypeMismatch);
  storage->setObjParent(sharedOf(*this));
}

void Media::attach(const ObjectRef& child) {
  const std::string collocation = child->strTitle();
  if (!collocation.empty() && !openedCollocations_.insert(collocation).second) {
    raise(kDuplicateKey, collocation);
  }
  LadderObject::attach(child);
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/Storage.h"

#include "app/ApplicationModule.h"
#include "objects/Media.h"
#include "objects/MediaObject.h"
#include "protocol/OpenDocument.h"
#include "store/ObjectRegistry.h"

namespace velra {

Storage::Storage(ApplicationModule& app) : ObjectBase(app, ObjectKind::Storage) {}

Storage::~Storage() {
  if (objMediaObject_) objMediaObject_->ownerGoes(strGetCollocation());
}

void Storage::makeMediaObject() {
  objMediaObject_ = MediaObject::create(app());
  objMediaObject_->strInit(shared_from_this());
}

void Storage::fieldChanged(const SchemaElement& element) {
  if (objMediaObject_ && element.strName() == MediaObject::kStorageField) {
    objMediaObject_->ownerFieldChanged();
  }
}

void Storage::setBIsSelected(bool selected) {
  if (selected) {
    for (const auto& [number, object] : document().collObjects().sequence()) {
      if (auto* storage = as<Storage>(object.get())) storage->bIsSelected_ = false;
    }
  }
  bIsSelected_ = selected;
}

// The Collocation is the title of a Storage.
std::string Storage::strGetCollocation() const {
  return strTitle();
}

}  // namespace velra

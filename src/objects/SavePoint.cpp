// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/SavePoint.h"

#include <algorithm>
#include <utility>

#include "base/RunTimeError.h"
#include "objects/MediaObject.h"
#include "platform/files/Files.h"
#include "protocol/ClassRules.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"

namespace velra {

namespace {

constexpr std::size_t kKeptGroup = 512;  // objects, which take a millisecond or two

bool holdsNames(const SchemaElement& field, const ClassRules& rules) {
  const std::string& name = field.strLowerName();
  const auto& single = rules.singleReferences;
  return field.strName() == rules.identityField || name == rules.relationField ||
         name == "manifestedby" || field.strName() == MediaObject::kVideoField ||
         std::find(single.begin(), single.end(), name) != single.end();
}

}  // namespace

SavePoint::SavePoint(const RegisteredList& objects, const std::function<void()>& meanwhile)
    : objects_(objects) {
  FieldRules known;
  std::size_t place = 0;
  for (const RegisteredRef& object : objects_) {
    if (++place % kKeptGroup == 0) meanwhile();
    const std::string guid = object->strGUID();
    if (const auto io = object->io(); io && io->names().isPromised(guid)) promised_.push_back(guid);
    if (auto picture = as<MediaObject>(object); picture && picture->bChanged()) {
      newPictures_.push_back(std::move(picture));
    }
    if (const auto* described = as<DescribedObject>(object.get())) keepFields(*described, known);
  }
}

void SavePoint::keepFields(const DescribedObject& object, FieldRules& known) {
  const ClassRules& rules = rulesOf(object.kind());
  std::vector<FieldRule>& ofClass = known[object.kind()];
  std::size_t place = 0;
  for (SchemaElement& field : object.secol()) {
    if (place == ofClass.size()) ofClass.push_back({nullptr, false});
    FieldRule& rule = ofClass[place++];
    if (rule.name != &field.strName()) rule = {&field.strName(), holdsNames(field, rules)};
    const bool names = rule.holdsNames;
    if (!names && !field.bChanged()) continue;
    const auto span = asChunk(field.vContent());
    fields_.push_back({&field, field.bChanged(), names, names ? field.vContent() : Value(),
                       span ? span->strFile : std::string()});
  }
}

void SavePoint::relocated(const std::shared_ptr<MediaObject>& picture, const std::string& from,
                          const std::string& to) {
  relocations_.push_back({picture, from, to});
}

void SavePoint::restoreFields() {
  for (Field& kept : fields_) {
    if (kept.holdsNames) {
      if (const auto span = asChunk(kept.content)) span->strFile = kept.picture;
      kept.field->setVContent(kept.content);
    }
    kept.field->setBChanged(kept.changed);
  }
  for (const auto& picture : newPictures_) picture->setBChanged(true);
}

// True when the picture has left its new name.
bool SavePoint::bringBack(IOManager& io, const Relocation& one, bool filesStay) {
  const bool moved =
      std::find(newPictures_.begin(), newPictures_.end(), one.picture) != newPictures_.end();
  try {
    if (!moved) {
      if (!filesStay) io.withdraw(one.to);
    } else if (!filesStay) {
      io.MoveObject(one.to, one.from);
    } else if (!bFileExists(one.from)) {
      io.CopyObject(one.to, one.from);
    } else {
      return false;  // a picture of the copy lies there
    }
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void SavePoint::restore(IOManager& io, bool filesStay) {
  std::vector<Relocation> stranded;
  // Backward, since a picture may have taken the name that an earlier one left.
  for (auto at = relocations_.rbegin(); at != relocations_.rend(); ++at) {
    std::erase(newNames_, at->to);
    if (bringBack(io, *at, filesStay)) {
      std::erase(newNames_, at->from);  // it may have been given to another
    } else {
      stranded.push_back(*at);
    }
  }
  restoreFields();
  // A picture that cannot come back is kept where it is rather than lost.
  for (const Relocation& one : stranded) one.picture->setStrGUID(one.to);
  for (const std::string& name : newNames_) {
    if (!filesStay) io.withdraw(name);
  }
  for (const std::string& name : promised_) io.names().promise(name);
}

}  // namespace velra

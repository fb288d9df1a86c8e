// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/Version.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "objects/Media.h"
#include "objects/Storage.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr std::string_view kDurationField = "Duration";

}  // namespace

Version::Version(ApplicationModule& app) : LadderObject(app, ObjectKind::Version) {}

Version::~Version() = default;

double Version::dDuration() const {
  for (const SchemaElement& element : secol()) {
    if (!element.bValid() || element.strName() != kDurationField) continue;
    const auto chunk = asChunk(element.vContent());
    return chunk ? chunk->dend : 0;
  }
  return 0;
}

void Version::setDDuration(double seconds) {
  SchemaElement* field = secol().field(kDurationField);
  if (!field) return;
  auto chunk = std::make_shared<Chunk>();
  chunk->dend = seconds;
  field->assign(std::move(chunk));
}

bool Version::bCheckForSorages() const {
  return std::any_of(colChilds().begin(), colChilds().end(),
                     [](const ObjectRef& media) { return !media->colChilds().empty(); });
}

void Version::ResetDuration() {
  if (!bCheckForSorages()) setDDuration(0);
}

void Version::openBelow() {
  OpenChilds();
  OpenExpressions();
}

ExpressionRef* Version::mainExpression(ObjectKind ofKind) {
  if (ofKind == ObjectKind::Video) return &vdMainVideo_;
  if (ofKind == ObjectKind::Audio) return &auMainAudio_;
  if (ofKind == ObjectKind::Transcript) return &trMainTranscript_;
  return nullptr;
}

void Version::OpenExpressions() {
  for (const ExpressionRef& found : io()->colScanForExpressions(shared_from_this())) {
    if (!found) continue;
    if (ExpressionRef* place = mainExpression(found->kind())) *place = found;
  }
  tellReferences();
}

void Version::AddMainExpression(const std::string& title, ObjectKind ofKind, double dStart,
                                double dEnd) {
  ExpressionRef* place = mainExpression(ofKind);
  if (!place) raise(kInvalidArgument, classNameOf(ofKind));
  if (!canNameChild()) return;
  *place = app().objectFactory->createExpression(ofKind);
  const ExpressionRef expression = *place;
  tellReferences();
  const std::string guid =
      io()->strCreateGUID(document().collObjects(), *expression, document().strGUID());
  const std::string message =
      expression->strInitAsNew(guid, app().strXSDPath(), schemaPrefix(), title,
                               app().objectFactory->createForm(ofKind), io());
  if (!message.empty()) {
    app().ui.messageBox(message);
    return;
  }
  expression->setStrVersionGUID(strGUID());
  expression->SetChunk(dStart, dEnd);
  expression->setVerVersion(shared_from_this());
}

std::string Version::strGetMediaObjectPath() const {
  std::string path;
  for (const ObjectRef& media : colChilds()) {
    for (const ObjectRef& child : media->colChilds()) {
      const auto* storage = as<Storage>(child.get());
      if (!storage) continue;
      if (storage->bIsSelected()) return storage->strGetCollocation();
      if (path.empty()) path = storage->strGetCollocation();
    }
  }
  return path;
}

void Version::adopt(DescribedObject& child) {
  auto* media = as<Media>(&child);
  if (!media) raise(kTypeMismatch);
  media->setObjParent(sharedOf(*this));
}

void Version::appendSubTrees(ObjectList& subTree) {
  for (const ExpressionRef* main : {&vdMainVideo_, &auMainAudio_, &trMainTranscript_}) {
    if (!*main) continue;
    const ObjectList below = (*main)->colSelSubTree();
    subTree.insert(subTree.end(), below.begin(), below.end());
  }
}

void Version::visitReferences(ReferenceVisitor& visitor) const {
  LadderObject::visitReferences(visitor);
  for (const ExpressionRef* main : {&vdMainVideo_, &auMainAudio_, &trMainTranscript_}) {
    if (*main) visitor.object(**main);
  }
}

void Version::RemoveReferenceObj(DescribedObject& removed) {
  LadderObject::RemoveReferenceObj(removed);
  for (ExpressionRef* main : {&vdMainVideo_, &auMainAudio_, &trMainTranscript_}) {
    if (main->get() != &removed) continue;
    main->reset();
    return;
  }
}

}  // namespace velra

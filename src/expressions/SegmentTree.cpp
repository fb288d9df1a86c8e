// SPDX-License-Identifier: GPL-3.0-or-later

// The tree of segments of an expression: opening, adding, linking, removing.
#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "expressions/ExpressionBase.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

void ExpressionBase::OpenSubExpressions() {
  colSubExpressions_ = io()->colScanForExpressions(shared_from_this());
  tellReferences();
  LinkFollowers();
}

// Each child that another child names as its follower becomes that; where two have one identifier,
// the later one counts.
void ExpressionBase::LinkFollowers() {
  std::unordered_map<std::string, ExpressionRef> byPath;
  for (const ExpressionRef& segment : colSubExpressions_) {
    if (!segment) raise(kNoObject);
    byPath[strAbsolutePath(segment->strGUID())] = segment;
  }
  for (const ExpressionRef& segment : colSubExpressions_) {
    const auto next = byPath.find(strAbsolutePath(segment->strFollowedBy()));
    if (next != byPath.end()) segment->setObjFollowedBy(next->second);
  }
}

std::shared_ptr<ExpressionBase> ExpressionBase::makeSegment(const std::string& title) {
  if (!canNameChild()) return nullptr;
  auto segment = as<ExpressionBase>(app().objectFactory->createExpression(kind()));
  const std::string guid =
      io()->strCreateGUID(document().collObjects(), *segment, document().strGUID());
  const std::string message = segment->strInitAsNew(guid, app().strXSDPath(), schemaPrefix(), title,
                                                    app().objectFactory->createForm(kind()), io());
  if (message.empty()) return segment;
  app().ui.messageBox(message);
  return nullptr;
}

void ExpressionBase::AddSubExpression(const std::string& title, double dStart, double dend) {
  const std::shared_ptr<ExpressionBase> segment = makeSegment(title);
  if (!segment) return;
  segment->SetPartOf(strGUID());
  linkIntoChain(*segment, dStart, dend);
  segment->SetChunk(dStart, dend);
  segment->prepareAsSegmentOf(*this);
  segment->setObjMainExpr(sharedOf(*this));
  segment->setVerVersion(verVersion());
  colSubExpressions_.push_back(segment);
  tellReferences();
  segment->finishAsSegment();
  segment->OpenSubExpressions();
}

void ExpressionBase::linkIntoChain(ExpressionBase& segment, double dStart, double dend) {
  const auto before = as<ExpressionBase>(siblingBefore(dStart));
  const ExpressionRef after = siblingAfter(dend);
  if (before) {
    before->SetFollowedBy(segment.strGUID());
    before->setObjFollowedBy(sharedOf(segment));
  }
  if (after) {
    segment.SetFollowedBy(after->strGUID());
    segment.setObjFollowedBy(after);
  }
}

namespace {

// Of the siblings in a walk the nearest counts, but one at distance 0 leaves the place open to any
// later candidate.
class Nearest {
 public:
  void consider(const ExpressionRef& sibling, double distance) {
    if (distance < 0 || (best_ != 0 && distance >= best_)) return;
    best_ = distance;
    sibling_ = sibling;
  }
  const ExpressionRef& sibling() const { return sibling_; }

 private:
  double best_ = 0;
  ExpressionRef sibling_;
};

const Chunk& chunkOf(const std::shared_ptr<Chunk>& chunk) {
  if (!chunk) raise(kNoObject);
  return *chunk;
}

}  // namespace

ExpressionRef ExpressionBase::siblingBefore(double time) const {
  Nearest nearest;
  for (const ExpressionRef& sibling : colSubExpressions_) {
    const auto chunk = sibling->ckGetChunk();
    nearest.consider(sibling, time - chunkOf(chunk).dend);
  }
  return nearest.sibling();
}

ExpressionRef ExpressionBase::siblingAfter(double time) const {
  Nearest nearest;
  for (const ExpressionRef& sibling : colSubExpressions_) {
    const auto chunk = sibling->ckGetChunk();
    nearest.consider(sibling, chunkOf(chunk).dStart - time);
  }
  return nearest.sibling();
}

void ExpressionBase::SetPartOf(const std::string& guid) {
  SchemaElement* field = secol().relationField(rules().partOfField);
  if (!field) return;
  field->assign(guid);
}

void ExpressionBase::SetFollowedBy(const std::string& guid) {
  SchemaElement* field = secol().relationField(rules().followedByField);
  if (!field) return;
  if (guid.empty()) return field->unassign();
  field->assign(guid);
}

void ExpressionBase::ClearPartOf(const std::string& guid) {
  SchemaElement* field = secol().relationField(rules().partOfField);
  if (!field || !io()->bGUIDComp(secol().relationText(rules().partOfField), guid)) return;
  field->unassign();
}

void ExpressionBase::RemoveReferenceObj(DescribedObject& removed) {
  if (removed.kind() == kind()) {
    forgetExpression(removed);
  } else if (removed.kind() == ObjectKind::Version) {
    if (io()->bGUIDComp(strVersionGUID(), removed.strGUID())) setStrVersionGUID("");
  }
}

void ExpressionBase::forgetExpression(DescribedObject& removed) {
  const auto next = objFollowedBy();
  if (next && static_cast<const DescribedObject*>(next.get()) == &removed) {
    // The chain closes over the gap.
    SetFollowedBy(next->strFollowedBy());
    setObjFollowedBy(next->objFollowedBy());
    return;
  }
  const auto at = std::find_if(colSubExpressions_.begin(), colSubExpressions_.end(),
                               [&](const ExpressionRef& segment) {
                                 return static_cast<DescribedObject*>(segment.get()) == &removed;
                               });
  if (at != colSubExpressions_.end()) colSubExpressions_.erase(at);
  ClearPartOf(removed.strGUID());
}

void ExpressionBase::removeSegment(ExpressionRef segment) {
  const std::string message = segment->strRemoveAllChilds();
  if (!message.empty()) {
    app().ui.messageBox(message);
    return;
  }
  ObjectRef object = std::move(segment);
  document().RemoveObject(object);
}

void ExpressionBase::RemoveSubExpressionByPointer(const ExpressionRef& segment) {
  if (!segment) raise(kNoObject);
  removeSegment(segment);
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ExpressionFinder.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "store/FolderScans.h"
#include "store/RelativeSearch.h"

namespace velra {

namespace {

// Deeper trees than any cataloguer makes, shallow enough for the stack.
constexpr int kDeepestExpression = 400;

class Deeper {
 public:
  explicit Deeper(int& depth) : depth_(depth) {
    if (depth_ >= kDeepestExpression) raise(kOutOfStack);
    ++depth_;
  }
  ~Deeper() { --depth_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& depth_;
};

}  // namespace

ExpressionList ExpressionFinder::open(const ObjectRef& objParent,
                                      const std::shared_ptr<IOManager>& io) {
  const FolderScans::Opening opening(scans_);
  if (const auto expression = as<Expression>(objParent)) {
    return openOfExpression(expression, io);
  }
  return openOfVersion(objParent, io);
}

ExpressionRef ExpressionFinder::openFound(ObjectKind kind, const std::string& guid,
                                          const ExpressionRef& parent, const ObjectRef& version,
                                          const std::shared_ptr<IOManager>& io) {
  const Deeper deeper(depth_);
  ExpressionRef found = app_.objectFactory->createExpression(kind);
  if (parent) found->setObjMainExpr(parent);
  found->setVerVersion(version);
  found->strOpen(guid, app_.objectFactory->createForm(kind), io);
  return found;
}

ExpressionList ExpressionFinder::openOfVersion(const ObjectRef& version,
                                               const std::shared_ptr<IOManager>& io) {
  ExpressionList found;
  for (const ObjRecord& record :
       colScanRelatives(app_, scans_, version->strGUID(), ObjectKind::Version, Relation::Own,
                        {ObjectKind::Audio, ObjectKind::Transcript, ObjectKind::Video})) {
    const RegisteredRef loaded = app_.gAVDoc->loadedObject(record.strGUID);
    found.push_back(loaded ? as<Expression>(loaded)
                           : openFound(record.kind, record.strGUID, nullptr, version, io));
  }
  return found;
}

ExpressionList ExpressionFinder::openOfExpression(const ExpressionRef& parent,
                                                  const std::shared_ptr<IOManager>& io) {
  const ObjectKind kind = parent->kind();
  ExpressionList found;
  ExpressionRef last;
  for (const ObjRecord& record :
       colScanRelatives(app_, scans_, parent->strGUID(), kind, Relation::PartOf, {kind})) {
    if (!app_.gAVDoc->loadedObject(record.strGUID)) {
      last = openFound(kind, record.strGUID, parent, parent->verVersion(), io);
    } else if (kind != ObjectKind::Video) {
      // Only a damaged document has a segment that is open before its parent.
      raise(kTypeMismatch);
    }
    found.push_back(last);
  }
  return found;
}

}  // namespace velra

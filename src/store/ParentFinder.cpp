// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParentFinder.h"

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "store/FolderScans.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"
#include "store/RelativeSearch.h"

namespace velra {

namespace {

struct ParentRule {
  ObjectKind kind;
  ObjectKind parentKind;
};

constexpr ParentRule kParents[] = {{ObjectKind::Version, ObjectKind::AVDocument},
                                   {ObjectKind::Media, ObjectKind::Version},
                                   {ObjectKind::Storage, ObjectKind::Media}};

}  // namespace

std::string ParentFinder::strGetParentGUID(const std::string& strGUID, ObjectKind kind) {
  if (kind == ObjectKind::AVDocument) return strGUID;
  if (isExpression(kind)) return parentOfExpression(strGUID, kind);
  for (const ParentRule& rule : kParents) {
    if (kind != rule.kind) continue;
    const auto found =
        colScanRelatives(app_, scans_, strGUID, kind, Relation::Own, {rule.parentKind});
    // Two parents that claim a child leave it without one.
    return found.size() == 1 ? found.front().strGUID : std::string();
  }
  return {};
}

std::string ParentFinder::parentOfExpression(const std::string& strGUID, ObjectKind kind) {
  const ExpressionRef expression = app_.objectFactory->createExpression(kind);
  const std::string message =
      expression->strLoadXML(strGUID, app_.objectFactory->createForm(kind), io_);
  if (app_.gAVDoc) app_.gAVDoc->collObjects().Remove(*expression);
  if (!message.empty()) {
    app_.ui.messageBox(message, BoxKind::Exclamation);
    return {};
  }
  const std::string parent = expression->strGetPartOf();
  return parent.empty() ? expression->strVersionGUID() : parent;
}

std::string ParentFinder::strRetrieveAVDocGUIDFromGUID(const std::string& strGUID) {
  const FolderScans::Opening opening(scans_);
  std::string guid = strGUID;
  // A ring of segments that are each other's parents has no document; no real way up is this long.
  for (int steps = 0; steps < 10000; ++steps) {
    const std::optional<ObjectKind> kind = kindOfRoot(io_->strWhatIs(guid));
    if (kind == ObjectKind::AVDocument) return guid;
    if (!kind) return {};
    std::string parent = strGetParentGUID(guid, *kind);
    if (parent.empty() || kind == ObjectKind::Version) return parent;
    guid = std::move(parent);
  }
  return {};
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParentFinder.h"

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "protocol/ClassRules.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "store/FolderScans.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"
#include "store/RelativeSearch.h"

namespace velra {

namespace {

struct ParentRule {
  const char* className;
  const char* relation;
  const char* parentClass;
};

constexpr ParentRule kParents[] = {{"Version", "ExpressedBy", "AVDocument"},
                                   {"Media", "ManifestedBy", "Version"},
                                   {"Storage", "AvailableAs", "Media"}};

}  // namespace

std::string ParentFinder::strGetParentGUID(const std::string& strGUID,
                                           const std::string& className) {
  if (className == "AVDocument") return strGUID;
  if (isExpressionClass(className)) return parentOfExpression(strGUID, className);
  for (const ParentRule& rule : kParents) {
    if (className != rule.className) continue;
    const auto found =
        colScanRelatives(app_, scans_, strGUID, className, rule.relation, rule.parentClass);
    // Two parents that claim a child leave it without one.
    return found.size() == 1 ? found.front().strGUID : std::string();
  }
  return {};
}

std::string ParentFinder::parentOfExpression(const std::string& strGUID,
                                             const std::string& className) {
  const ExpressionRef expression = app_.objectFactory->createExpression(className);
  const std::string message =
      expression->strLoadXML(strGUID, app_.objectFactory->createForm(className), io_);
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
    const std::string className = io_->strWhatIs(guid);
    if (className == "AVDocument") return guid;
    if (!findClassRules(className)) return {};
    std::string parent = strGetParentGUID(guid, className);
    if (parent.empty() || className == "Version") return parent;
    guid = std::move(parent);
  }
  return {};
}

}  // namespace velra

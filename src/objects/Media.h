// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <unordered_set>

#include "objects/LadderObject.h"

namespace velra {

class Version;

/// A manifestation of a Version, in practice one format.
class Media : public LadderObject {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Media; }

  explicit Media(ApplicationModule& app);
  ~Media() override;
  Media(const Media&) = delete;
  Media& operator=(const Media&) = delete;

  std::shared_ptr<Version> objParent() const { return objParent_.lock(); }
  void setObjParent(const std::shared_ptr<Version>& parent) { objParent_ = parent; }

 protected:
  std::string openChild(const ObjectRef& child, const std::string& guid,
                        const std::shared_ptr<ObjectForm>& form) override;
  void adopt(DescribedObject& child) override;
  /// Two Storages with one Collocation cannot be opened in one Media: kDuplicateKey.
  void attach(const ObjectRef& child) override;

 private:
  std::weak_ptr<Version> objParent_;
  std::unordered_set<std::string> openedCollocations_;
};

}  // namespace velra

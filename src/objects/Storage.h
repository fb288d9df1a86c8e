// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "objects/ObjectBase.h"

namespace velra {

class Media;
class MediaObject;

/// One item of a Media: a movie file, named by its Collocation.
class Storage : public ObjectBase {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Storage; }

  explicit Storage(ApplicationModule& app);
  ~Storage() override;
  Storage(const Storage&) = delete;
  Storage& operator=(const Storage&) = delete;

  std::shared_ptr<Media> objParent() const { return objParent_.lock(); }
  void setObjParent(const std::shared_ptr<Media>& parent) { objParent_ = parent; }

  /// The Storage whose movie plays; at most one of a document. Kept in memory alone.
  bool bIsSelected() const { return bIsSelected_; }
  void setBIsSelected(bool selected);

  /// The path of the movie; "" when it is not assigned.
  std::string strGetCollocation() const;

  const std::shared_ptr<MediaObject>& objMediaObject() const { return objMediaObject_; }

 protected:
  void afterLoad() override { makeMediaObject(); }
  void afterInit() override { makeMediaObject(); }
  void fieldChanged(const SchemaElement& element) override;

 private:
  void makeMediaObject();

  std::weak_ptr<Media> objParent_;
  std::shared_ptr<MediaObject> objMediaObject_;
  bool bIsSelected_ = false;
};

}  // namespace velra

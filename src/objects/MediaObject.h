// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/ClassRules.h"
#include "protocol/DescribedObject.h"
#include "schema/SchemaElement.h"

namespace velra {

class ApplicationModule;

/// A file that is no object file: the movie of a Storage or the key-frame picture of a Video. Its
/// identifier is a field of its owner.
class MediaObject : public RegisteredObject {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::MediaObject; }

  MediaObject() = default;
  ~MediaObject() override;
  MediaObject(const MediaObject&) = delete;
  MediaObject& operator=(const MediaObject&) = delete;

  /// The field that it stands for; its owner tells of each write to it.
  static constexpr const char* kStorageField = "Collocation";
  static constexpr const char* kVideoField = kKeyFrameField;
  void ownerFieldChanged();
  /// The owner goes; what it said last stays, since the file must still be found.
  void ownerGoes(const std::string& lastGUID) { lastGUID_ = lastGUID; }

  /// Makes one and registers it with the open document, if there is one.
  static std::shared_ptr<MediaObject> create(ApplicationModule& app);

  /// Binds it to a Storage or a Video.
  void strInit(const ObjectRef& objOwner);

  /// The file's extension without the point; it names new files.
  const std::string& strTypeOfObject() const { return strTypeOfObject_; }
  void setStrTypeOfObject(const std::string& type) { strTypeOfObject_ = type; }
  ObjectRef objOwner() const { return objOwner_.lock(); }

  /// True while a new file exists which no saved object points at.
  void setBChanged(bool changed);

  ObjectKind kind() const override { return ObjectKind::MediaObject; }
  std::shared_ptr<IOManager> io() const override { return io_; }
  std::string strGUID() const override;
  void setStrGUID(const std::string& guid) override;
  std::string strTitle() const override { return strGUID(); }
  bool bChanged() const override { return bChanged_; }
  bool bSave() override;
  void setObjectListener(ObjectListener* listener) override { listener_ = listener; }
  void documentCloses() override { io_.reset(); }

 private:
  SchemaElement* ownerField() const;

  std::shared_ptr<IOManager> io_;
  std::weak_ptr<DescribedObject> objOwner_;
  bool ownedByVideo_ = false;
  bool bChanged_ = false;
  std::string strTypeOfObject_;
  std::string lastGUID_;  // of an owner that has gone
  ObjectListener* listener_ = nullptr;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "protocol/ObjectKind.h"

namespace velra {

class DescribedObject;
class IOManager;
class RegisteredObject;

using RegisteredRef = std::shared_ptr<RegisteredObject>;
using RegisteredList = std::vector<RegisteredRef>;

/// Told of what may have changed in an object; the registry of the document keeps its indexes true
/// so. It stands above this folder: this is the wall between the two.
class ObjectListener {
 public:
  virtual ~ObjectListener() = default;
  virtual void identifierChanged(const RegisteredObject& object) = 0;
  /// It may refer to more than before, by an identifier in its fields or an object below or beside
  /// it. That it refers to less need not be told.
  virtual void referencesAdded(const DescribedObject&) {}
  /// It has something to save.
  virtual void markedChanged(const RegisteredObject&) {}
};

/// What the registry of a document holds: something with an identifier that can be saved.
class RegisteredObject {
 public:
  RegisteredObject() = default;
  RegisteredObject(const RegisteredObject&) = delete;
  RegisteredObject& operator=(const RegisteredObject&) = delete;
  virtual ~RegisteredObject() = default;

  virtual ObjectKind kind() const = 0;
  const std::string& className() const { return classNameOf(kind()); }

  virtual std::shared_ptr<IOManager> io() const = 0;

  virtual std::string strGUID() const = 0;
  virtual void setStrGUID(const std::string& guid) = 0;
  virtual std::string strTitle() const = 0;

  virtual bool bChanged() const = 0;
  virtual bool bSave() = 0;

  /// Null ends the listening.
  virtual void setObjectListener(ObjectListener* listener) = 0;

  /// Nobody will ask it for anything any more. It lets go of all but memory, since its end may come
  /// later and on another thread.
  virtual void documentCloses() = 0;

 private:
  friend class ObjectRegistry;

  /// Where the one registry that may hold it has it. It stands here, since a list of all objects
  /// would take several times as much.
  struct Place {
    std::uint64_t number = 0;  // 0: nowhere
    std::uint64_t key = 0;     // of the identifier
  };
  Place place_;
};

/// The object as a Target, by its kind; null when it is of another. Target says by `isKind` which
/// kinds are its own.
template <class Target, class Object>
Target* as(Object* object) {
  return object && Target::isKind(object->kind()) ? dynamic_cast<Target*>(object) : nullptr;
}
template <class Target, class Object>
std::shared_ptr<Target> as(const std::shared_ptr<Object>& object) {
  Target* target = as<Target>(object.get());
  return target ? std::shared_ptr<Target>(object, target) : nullptr;
}

}  // namespace velra

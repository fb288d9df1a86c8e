// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "protocol/DescribedObject.h"

namespace velra {

class ObjectRegistry;
struct SharedParts;

/// The open document, as all below its class see it, which it is the wall for: the registry of its
/// objects and what they share.
class OpenDocument : public virtual DescribedObject {
 public:
  /// Every registered object, in order of registration, the document itself included.
  virtual ObjectRegistry& collObjects() = 0;

  /// The schema, the closed lists and the shells, for the fields of the objects.
  virtual SharedParts& shared() = 0;

  /// Position of the first object with an equal identifier, from 1; 0 when there is none. A
  /// position that 16 bits cannot hold raises kOverflow: look-ups of the program's own take
  /// `loadedObject`.
  virtual std::int16_t iAlreadyLoaded(const std::string& guid) = 0;
  /// The object that iAlreadyLoaded finds; null when there is none.
  virtual RegisteredRef loadedObject(const std::string& guid) = 0;

  /// Keeps a little more of what was changed and not saved, for the event that the program ends
  /// without a save. True when more is left; to be called again then.
  virtual bool keepUnsavedWork() = 0;

  /// Takes an object out of the document and has all others forget it. Its file goes when the
  /// document has been saved and closed. Clears the caller's reference.
  virtual void RemoveObject(ObjectRef& removed) = 0;
  /// The same for many, in order.
  virtual void RemoveObjects(const ObjectList& removed) = 0;
};

}  // namespace velra

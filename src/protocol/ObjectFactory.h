// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/DescribedObject.h"
#include "protocol/Expression.h"
#include "protocol/ObjectForm.h"

namespace velra {

class SEColl;

/// Makes objects and forms of a kind, so that the store and the ladder need not know
/// the classes above them.
class ObjectFactory {
 public:
  virtual ~ObjectFactory() = default;

  /// A new, empty object; null for a MediaObject, which is made for its owner.
  virtual ObjectRef createObject(ObjectKind kind) = 0;
  /// The same for Video, Audio and Transcript; null for any other kind.
  virtual ExpressionRef createExpression(ObjectKind kind) = 0;
  /// A new form for such an object; null for a MediaObject, which has none.
  virtual std::shared_ptr<ObjectForm> createForm(ObjectKind kind) = 0;

  /// The one shared dialog of assigned fields, shown over the owner.
  virtual void showSchemaDialog(FormOwner& owner, SEColl& secol) = 0;
};

}  // namespace velra

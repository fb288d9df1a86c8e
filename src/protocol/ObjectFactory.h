// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/DescribedObject.h"
#include "protocol/Expression.h"
#include "protocol/ObjectForm.h"

namespace velra {

class SEColl;

/// Makes objects and forms of a class by its name, so that the store and the ladder need not know
/// the classes above them.
class ObjectFactory {
 public:
  virtual ~ObjectFactory() = default;

  /// A new, empty object; null for an unknown class.
  virtual ObjectRef createObject(const std::string& className) = 0;
  /// The same for Video, Audio and Transcript; null for any other class.
  virtual ExpressionRef createExpression(const std::string& className) = 0;
  /// A new form of the class's kind; null for an unknown class.
  virtual std::shared_ptr<ObjectForm> createForm(const std::string& className) = 0;

  /// The one shared dialog of assigned fields, shown over the owner.
  virtual void showSchemaDialog(FormOwner& owner, SEColl& secol) = 0;
};

}  // namespace velra

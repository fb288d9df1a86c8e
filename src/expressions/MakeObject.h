// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/Expression.h"

namespace velra {

class ApplicationModule;

/// A new, empty object of a kind, for the factories; null for a MediaObject, which is made for its
/// owner.
ObjectRef makeObject(ApplicationModule& app, ObjectKind kind);

/// The same for Video, Audio and Transcript; null for any other kind.
ExpressionRef makeExpression(ApplicationModule& app, ObjectKind kind);

}  // namespace velra

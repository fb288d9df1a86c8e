// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/Audio.h"

namespace velra {

Audio::Audio(ApplicationModule& app) : ExpressionBase(app, ObjectKind::Audio) {}

Audio::~Audio() = default;

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class DescribedObject;
class OpenDocument;

/// Removes all that is below an object from the document, deepest first. A message when the object
/// cannot list what is below it, and then nothing is removed; else "".
std::string strRemoveAllBelow(DescribedObject& object, OpenDocument& document);

}  // namespace velra

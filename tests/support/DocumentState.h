// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {
class OpenDocument;
class RegisteredObject;
}  // namespace velra

namespace velra::test {

/// Class and identifier, and those of the objects below, behind and above.
std::string linksOf(const RegisteredObject& object);

/// Besides them the fields with their flags, and a Version's main expressions.
std::string stateOf(const RegisteredObject& object);

/// That of every registered object, in order of registration.
std::vector<std::string> stateOf(OpenDocument& document);

}  // namespace velra::test

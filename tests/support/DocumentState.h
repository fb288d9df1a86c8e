// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {
class OpenDocument;
class RegisteredObject;
}  // namespace velra

namespace velra::test {

/// Class, identifier, fields with their flags, and the objects below and beside.
std::string stateOf(const RegisteredObject& object);

/// That of every registered object, in order of registration.
std::vector<std::string> stateOf(OpenDocument& document);

}  // namespace velra::test

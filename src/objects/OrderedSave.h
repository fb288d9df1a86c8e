// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class ApplicationModule;
class ObjectRegistry;
class RegisteredObject;

/// Saves every changed object but the document after those that it waits for. The order
/// and the numbers on the status line are those of a walk over all objects from the last to the
/// first, again and again, that saves what need not wait; this does so in one go. False when an
/// object could not be saved, or when objects wait for one another in a ring.
bool bSaveInDependencyOrder(ApplicationModule& app, ObjectRegistry& objects,
                            const RegisteredObject& document);

}  // namespace velra

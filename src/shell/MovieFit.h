// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace velra {

class ApplicationModule;
class DescribedObject;
class ObjectRegistry;
class Version;

// Whether a movie may become a Storage.

/// Seconds, 0 for what is no movie; nothing when the person cancels, who is told so.
std::optional<double> durationOf(const ApplicationModule& app, const std::string& movie);

/// Null for a Media that no Version of the document holds.
std::shared_ptr<Version> versionHolding(ObjectRegistry& objects, const DescribedObject& media);

/// False for a movie that the Media cannot take; the person is told why. The first one gives the
/// Version its length.
bool movieFits(const ApplicationModule& app, const DescribedObject& media,
               const std::string& movie);

}  // namespace velra

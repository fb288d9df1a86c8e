// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

/// A path as the lines of a manifest hold it: line ends and "%" as "%0A", "%0D" and "%25".
std::string manifestPath(const std::string& path);

/// What is wrong with a BagIt bag in a folder, a sentence each; nothing for a whole and valid one.
/// Manifests of SHA-256 and SHA-512 are looked at; a bag that has neither is told of.
std::vector<std::string> bagFaults(const std::string& folder);

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;

/// The folder that holds all other files of a document, with a separator at its end.
std::string dataFolderOf(const std::string& strAVDocPathName);

/// Makes the data folder of a document when it is missing; the message that tells why not, or "".
std::string strMakeDataFolder(const ApplicationModule& app, const std::string& strAVDocPathName);

/// Makes a folder; the message that tells why not, or "".
std::string strMakeFolder(const ApplicationModule& app, const std::string& path);

/// 32 lower-case hexadecimal digits that no other call gives.
std::string strMakeGUIDText();

}  // namespace velra

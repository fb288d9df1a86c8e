// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// Paths are bytes: they are never converted to another encoding and back, so that names that are
/// not UTF-8 survive. Nothing here asks whether a path exists.
namespace velra {

/// The process's current folder, absolute, without a separator at its end (but for "/"). Kept in
/// memory, since asking the system costs a hundred times a comparison of two paths.
const std::string& currentFolder();

/// Makes a folder the current one. The one function that does so, because the normal form of every
/// relative path changes with it. kPathNotFound when the system refuses.
void changeCurrentFolder(const std::string& folder);

/// Counts the changes of the current folder: a normal form is good as long as this stays.
unsigned currentFolderGeneration();

/// The absolute form: "." and ".." resolved by their text alone (links are not followed), doubled
/// separators joined, no separator at the end (but for "/"). An empty path gives the base folder.
/// Relative paths start from the base folder, or from the current one when that is empty.
std::string strAbsolutePath(std::string_view path, const std::string& baseFolder = {});

/// True when both paths have the same absolute form, letter case included.
bool bSamePath(std::string_view a, std::string_view b);

/// Base name of a path: the file name up to its last point. `folder` receives all before the file
/// name, separator included, "./" if there is none; `extension` what stands behind the last point.
/// An empty path gives empty texts.
std::string strSplitPath(std::string_view path, std::string& folder,
                         std::string* extension = nullptr);

/// Base name, ".", extension.
std::string strFileName(std::string_view path);

std::string strExtension(std::string_view path);

/// The folder of a path with a separator at its end; "./" for a bare file name.
std::string folderOf(std::string_view path);

/// The same folder text with exactly one separator at the end.
std::string withSeparator(std::string folder);

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/FileStamp.h"

namespace velra {

/// True for an existing file that is no folder.
bool bFileExists(const std::string& path);
bool bFolderExists(const std::string& path);
/// True for a regular file, or a link to one: what a listing of files holds.
bool bPlainFileExists(const std::string& path);
/// True for a link, wherever it leads.
bool bLinkExists(const std::string& path);
/// True when a new file cannot have the path: also for a folder, and a link that leads nowhere.
bool bSomethingAt(const std::string& path);

/// The names in a folder that match a pattern of the form "folder/*.xml", capitals or not, plain
/// files alone, sorted by their bytes. A folder that cannot be listed gives none.
std::vector<std::string> colListFiles(const std::string& pattern);

/// The names of all that lies in a folder, of whatever kind, in no order; none for one that cannot
/// be listed.
std::vector<std::string> namesIn(const std::string& folder);

/// The same as colListFiles, with the reason when a folder that is there cannot be listed, or not
/// to its end.
struct FolderListing {
  std::vector<std::string> names;
  std::string reason;  // empty on success, and when there is no such folder
  bool links = false;  // whether any of them may be a link to a file elsewhere
};
FolderListing listFiles(const std::string& pattern);

/// The bytes of a regular file, or one sentence that tells why not.
struct FileBytes {
  std::string bytes;
  std::string reason;       // empty on success
  FileStamp stamp = {};     // of what was opened; of no file when that failed
  bool otherNames = false;  // whether it had another name besides, which may stand in any folder
};
/// Refuses folders, pipes and devices, empty files and files above the limit.
FileBytes readFile(const std::string& path, std::uint64_t limit = 1'000'000'000);
/// The same for the first bytes of a file of any size.
FileBytes readStart(const std::string& path, std::uint64_t most);

/// Writes a file in place, whole: room is reserved first, then one write from the start, then the
/// rest is cut off; on any failure the old bytes and the old length are put back. Makes the file
/// when there is none. Returns the failure's description, "" on success. What is written reaches
/// the disk at the next syncFolder or syncFile. A file that is made appears when it is whole.
std::string writeFileInPlace(const std::string& path, std::string_view bytes);

/// When others see a new file: when it is whole, or as soon as it is begun, which costs half and is
/// for a folder that nobody looks into.
enum class NewFileIs { SeenWhole, SeenAtOnce };

/// Makes a file that is not there yet and refuses one that is, whoever made it; a file that cannot
/// be written whole is removed again. The failure's description, "" on success.
std::string writeNewFile(const std::string& path, std::string_view bytes,
                         NewFileIs seen = NewFileIs::SeenWhole);

/// Asks the system to bring what was written to the disk; the failure's description or "".
std::string syncFile(const std::string& path);
std::string syncFolder(const std::string& folder);

/// The failure's description, "" on success.
std::string makeFolder(const std::string& path);
/// Makes a folder and all above it that are missing, as far as it goes.
void makeFolders(const std::string& path);
std::string deleteFile(const std::string& path);

/// Leaves a folder that holds anything, and one that may not be removed.
void removeFolderIfEmpty(const std::string& path);

/// The system's folder for temporary files, with a separator at its end.
std::string strTempPath();

/// One sentence for an error number of the system.
std::string systemReason(int error);

}  // namespace velra

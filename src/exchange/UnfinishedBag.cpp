// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/UnfinishedBag.h"

#include <filesystem>

#include "base/Paths.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/FileMoves.h"
#include "platform/files/Files.h"

namespace velra {

UnfinishedBag::UnfinishedBag(const std::string& place)
    : place_(place), folder_(place + ".unfinished") {
  for (const std::string& path : {place_, folder_}) {
    if (bFileExists(path) || bFolderExists(path)) {
      throw ExchangeFailure(path + " is there already.");
    }
  }
  const std::string reason = makeFolder(folder_);
  if (!reason.empty()) throw ExchangeFailure(folder_ + ": " + reason);
}

UnfinishedBag::~UnfinishedBag() {
  std::error_code ignored;
  if (!finished_) std::filesystem::remove_all(folder_, ignored);
}

void UnfinishedBag::write(const std::string& path, const std::string& bytes) const {
  makeFolders(strAbsolutePath(folderOf(*this / path)));
  const std::string reason = writeNewFile(*this / path, bytes);
  if (!reason.empty()) throw ExchangeFailure(path + ": " + reason);
}

void UnfinishedBag::copy(const std::string& source, const std::string& path) const {
  makeFolders(strAbsolutePath(folderOf(*this / path)));
  CopyFileTo(source, *this / path);
}

void UnfinishedBag::finish() {
  std::error_code failed;
  std::filesystem::rename(folder_, place_, failed);
  if (failed) throw ExchangeFailure(place_ + ": " + systemReason(failed.value()));
  finished_ = true;
}

}  // namespace velra

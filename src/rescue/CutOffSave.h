// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "rescue/RescueRecords.h"
#include "rescue/RescueTexts.h"
#include "rescue/TornFile.h"

namespace velra {

class RescueStore;

/// One save that its program has not finished. Every member raises DatabaseError.
class CutOffSave {
 public:
  CutOffSave(RescueStore& store, const KeptWork& work, const RescueTexts& texts)
      : store_(store), work_(work), texts_(texts) {}

  /// Why it cannot be finished now, or "".
  std::string finish();
  /// What has become of it; "" for nothing that people need to know.
  const std::string& outcome() const { return outcome_; }

 private:
  // A planned file beside what stands in its place.
  struct FoundFile {
    const PlannedFile* planned;
    FileState state;
    std::string bytes;
  };

  std::string carryOut(const SavePlan& plan);
  std::string carryOut(const CopyPlan& plan);
  std::string carryOut(std::monostate) { return {}; }
  std::string writeFiles(const std::vector<FoundFile>& files);
  std::string bringTo(const FoundFile& file);
  void keepAsWork(const std::vector<FoundFile>& files);
  static std::string takeBack(const std::string& place, const MadeFile& file);
  static std::string emptyHidden(const CopyPlan& plan);
  std::string undo(const CopyPlan& plan);
  void removeFiles();

  RescueStore& store_;
  const KeptWork& work_;
  const RescueTexts& texts_;
  std::string outcome_;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <string>
#include <vector>

#include "protocol/RegisteredObject.h"
#include "rescue/RescueRecords.h"
#include "store/PlannedRemovals.h"

namespace velra {

class AVDocument;
class DocumentRescue;
class IOManager;

/// A save of the open document, told to the store before its first file is touched: when it is cut
/// off, the next opening carries it to its end, or undoes it. What another program has written into
/// the files since is kept there too.
class PlannedSave {
 public:
  /// The objects that will be written, the document among them, and what changes in the files that
  /// go when it is closed.
  PlannedSave(IOManager& io, const RegisteredList& objects, PlannedRemovals::Change removals);
  /// A save under another name, and what it makes before it comes to the document.
  PlannedSave(IOManager& io, const std::string& documentPath, std::vector<MadeFile> made,
              std::string hiddenFolder);
  PlannedSave(const PlannedSave&) = delete;
  PlannedSave& operator=(const PlannedSave&) = delete;
  /// A save that was not finished has failed, and the person was told. One that an error ends, and
  /// most likely the program with it, is finished by the next opening.
  ~PlannedSave();

  /// All that a save under another name makes, when the document goes by that name.
  void tell(IOManager& io, const AVDocument& document, std::vector<MadeFile> made);

  /// All is on the disk.
  void finished();

 private:
  void tell(const CopyPlan& plan);

  DocumentRescue* rescue_;  // null: nothing is to be told any more
  PlannedRemovals& known_;
  PlannedRemovals::Change change_;
  std::string hidden_;  // where a save under another name makes its files; "" for their own folder
  // A store that fails does not keep the files from being written.
  bool planned_ = false;
  bool copies_ = false;
  bool toldNowhere_ = false;  // there is no store
  int errors_ = std::uncaught_exceptions();
};

}  // namespace velra

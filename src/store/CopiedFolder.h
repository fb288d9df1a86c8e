// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class DescribedObject;
class FolderScans;
class MainWindow;
class ObjectRegistry;

/// Where the objects of a document lie when they should lie in its own data folder: the document
/// was copied or moved with that folder, and its identifiers still lead to the first place.
struct CopiedFolder {
  std::string other;   // with a separator at its end; "" for a document that is no such one
  bool works = false;  // on objects that lie there, and not on those of its own folder
};

/// Looks through the objects of a document that has just been opened, and through the files of its
/// folder of which none was made: a copy's own segments belong to an expression of the first place.
/// Texts are compared first: only what leads elsewhere has the disk asked. The window, which may be
/// null, is told meanwhile that work waits; LeftInWork passes.
CopiedFolder copiedFolderOf(ObjectRegistry& objects, const DescribedObject& document,
                            const FolderScans& scans, MainWindow* window);

}  // namespace velra

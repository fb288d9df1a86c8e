// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "objects/LadderObject.h"
#include "objects/UnsavedWork.h"
#include "protocol/OpenDocument.h"
#include "schema/SharedParts.h"
#include "store/CopiedFolder.h"
#include "store/ObjectRegistry.h"

namespace velra {

/// The open document: the top of the ladder, the registry of every object that was loaded for it,
/// and what drives opening and saving.
class AVDocument : public LadderObject, public OpenDocument {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::AVDocument; }

  explicit AVDocument(ApplicationModule& app);
  ~AVDocument() override;
  AVDocument(const AVDocument&) = delete;
  AVDocument& operator=(const AVDocument&) = delete;

  ObjectRegistry& collObjects() override { return collObjects_; }
  SharedParts& shared() override { return shared_; }
  std::int16_t iAlreadyLoaded(const std::string& guid) override;
  RegisteredRef loadedObject(const std::string& guid) override { return collObjects_.find(guid); }

  /// Becomes the open document first, in place of what was: all that is read below it joins the
  /// registry of that one and is read by its schema. It stays so when the opening fails. With a
  /// main window the index of references is still being built: whoever opens waits for it
  /// (`references`) before an object is changed.
  std::string strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                      const std::shared_ptr<IOManager>& io) override;

  /// Saves what has changed, the document last. False after a box that tells of the failure: also
  /// for a copy that works on the objects of the original, which are not its to write.
  bool bSave() override;

  /// Saves everything under a new path: every object gets a new identifier in the new data folder
  /// and every reference to it follows. The document is to be closed and opened anew afterwards.
  /// False after a box that tells of the failure; every name and reference is then what it was, and
  /// what was changed is so still. Files of the copy stay only if its own file names them.
  bool bSaveAs(const std::string& strAVDocPathName);

  /// Shows the form of the first object with the identifier; none found: nothing.
  void ShowObjectForm(const std::string& guid, FormOwner& owner);

  /// A run-time error of the form's load is shown in a box and the program goes on; a form that
  /// closed itself while loading has said why.
  void ShowForm(FormOwner& owner) override;

  bool keepUnsavedWork() override;
  UnsavedWork& unsavedWork() { return unsaved_; }

  void RemoveObject(ObjectRef& removed) override;
  void RemoveObjects(const ObjectList& removed) override;

  /// Identifiers of the files of objects that were removed since the document was opened.
  const std::deque<std::string>& colObjRemoved() const { return colObjRemoved_; }

  /// Where its objects lie when its own data folder has them too, and a sentence for the person
  /// about that; "" for a document that is all its own.
  const CopiedFolder& copiedFolder() const { return copied_; }
  std::string strCopyTold() const;

  /// Which folder could not be searched when the document was opened, and why; else "".
  const std::string& strUnlisted() const { return unlisted_; }

  /// Writes the document's own file alone: if it has changed; in any case under another path.
  bool bSaveOwnFile() { return LadderObject::bSave(); }
  bool bSaveOwnFileAs(const std::string& path);

 protected:
  OpenDocument& document() const override;
  void registerSelf() override;
  void initFields() override;
  void adopt(DescribedObject& child) override;

 private:
  void removeTogether(std::span<const ObjectRef> removed, ReferenceIndex::Batch& batch);
  void noteRemoved(const ObjectRef& removed);

  SharedParts shared_;
  std::string unlisted_;
  CopiedFolder copied_;
  UnsavedWork unsaved_;
  // A vector that grows makes the allocator sweep all that a removal has freed so far.
  std::deque<std::string> colObjRemoved_;
  ObjectRegistry collObjects_;  // last: its objects go first
};

}  // namespace velra

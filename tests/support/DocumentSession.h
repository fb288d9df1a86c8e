// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "objects/AVDocument.h"
#include "objects/Version.h"
#include "support/DocumentFiles.h"
#include "support/PlainObjectFactory.h"
#include "support/RecordingMainWindow.h"
#include "support/TemporaryFolder.h"
#include "support/TestApplication.h"

namespace velra::test {

/// The program without windows: settings that name a schema, the open document, and a record of all
/// that was shown. Documents lie in `folder`, settings and schema in a folder of their own.
class DocumentSession {
 public:
  DocumentSession();
  ~DocumentSession();

  TemporaryFolder folder;
  DocumentFiles files{folder};

 private:
  TestApplication application_;

 public:
  ScriptedUserInterface& ui = application_.ui;
  ApplicationModule& app = application_.app;
  PlainObjectFactory factory{app};
  RecordingMainWindow window;

  /// The schema of all objects from now on: its text, or the path of a file ("" for none).
  void useSchema(const std::string& text);
  void useSchemaFile(const std::string& path);

  /// Opens a document as the file commands do, with the current folder beside it. The message.
  std::string open(const std::string& path);
  /// A document in memory alone, in `folder`.
  void create();
  void close() {
    app.gAVDoc.reset();
    app.lateRelease.await();
  }

  std::shared_ptr<AVDocument> document() const;
  /// The registered object whose file is of that name, as in "version1"; null when there is none.
  ObjectRef object(const std::string& name) const;
  std::shared_ptr<Version> version(const std::string& name) const;
  ExpressionRef expression(const std::string& name) const;

  std::vector<std::string> takeShown() { return ui.takeShown(); }
};

}  // namespace velra::test

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "schema/CloseList.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "shell/VideoForm.h"
#include "support/RecordingMainWindow.h"
#include "support/ScriptedExpression.h"
#include "support/ScriptedMediaGraph.h"
#include "support/TestApplication.h"

namespace velra::test {

/// What forms of expressions need: global state, a scripted movie, and a main expression "Main" of
/// 100 seconds with the segments "A" [10, 20] and "B" [30, 40], each with a form of its own.
class ToolSession : public TestApplication {
 public:
  explicit ToolSession(VideoFormFaces& faces, ObjectKind kind = ObjectKind::Video)
      : services{app,
                 [this]() -> std::unique_ptr<MediaGraph> {
                   return std::make_unique<ScriptedMediaGraph>(movie);
                 },
                 faces} {
    app.gMainForm = &mainWindow;
    main = ScriptedExpression::make(kind, 0, 100);
    main->title = "Main";
    main->AddSubExpression("A", 10, 20);
    main->AddSubExpression("B", 30, 40);
    equip(main);
    equip(main->child(1));
    equip(main->child(2));
  }

  SharedParts shared{app};
  RecordingMainWindow mainWindow;
  MovieScript movie;
  VideoFormServices services;
  std::shared_ptr<ScriptedExpression> main;

  /// Assigned text fields: "Title", then "Field2", "Field3"...
  void giveFields(ScriptedExpression& expression, int count) {
    expression.fields = std::make_shared<SEColl>(app, shared);
    for (int i = 1; i <= count; ++i) {
      const std::string name = i == 1 ? "Title" : "Field" + std::to_string(i);
      expression.fields->Add(tyType::String, {}, name, expression.title, "About " + name, false,
                             false, false, true);
    }
  }
  void show() { main->ShowForm(mainWindow); }

 private:
  void equip(const std::shared_ptr<ScriptedExpression>& expression) {
    expression->movie = folder.write("movie.avi", "RIFF");
    giveFields(*expression, 2);
    expression->form = std::make_shared<VideoForm>(services);
    expression->form->setObject(expression);
  }
};

}  // namespace velra::test

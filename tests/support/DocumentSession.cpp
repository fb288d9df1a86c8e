// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentSession.h"

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "store/IOManager.h"
#include "support/SmallSchema.h"

namespace velra::test {

DocumentSession::DocumentSession() {
  app.gMainForm = &window;
  app.objectFactory = &factory;
  useSchema(kSmallSchema);
}

DocumentSession::~DocumentSession() {
  close();
}

void DocumentSession::useSchema(const std::string& text) {
  useSchemaFile(application_.folder.write("small.xsd", text));
}

void DocumentSession::useSchemaFile(const std::string& path) {
  application_.folder.write("machine.ini", "[SOFTWARE\\Velra]\nXSDPath=" + path + "\n");
}

std::string DocumentSession::open(const std::string& path) {
  const auto document = std::make_shared<AVDocument>(app);
  factory.objects.push_back(document);
  changeCurrentFolder(folderOf(path));
  const std::string message = document->strOpen(path, factory.createForm(ObjectKind::AVDocument),
                                                std::make_shared<IOManager>(app));
  document->collObjects().references().await();
  return message;
}

void DocumentSession::create() {
  app.gAVDoc = std::make_shared<AVDocument>(app);
  factory.objects.push_back(app.gAVDoc);
  changeCurrentFolder(folder.path());
  EXPECT_EQ(app.gAVDoc->strInitAsNew(files.documentPath(), app.strXSDPath(), "xsd", "Film",
                                     factory.createForm(ObjectKind::AVDocument),
                                     std::make_shared<IOManager>(app)),
            "");
}

std::shared_ptr<AVDocument> DocumentSession::document() const {
  return as<AVDocument>(app.gAVDoc);
}

ObjectRef DocumentSession::object(const std::string& name) const {
  return as<DescribedObject>(app.gAVDoc->loadedObject(files.path(name)));
}

std::shared_ptr<Version> DocumentSession::version(const std::string& name) const {
  return as<Version>(object(name));
}

ExpressionRef DocumentSession::expression(const std::string& name) const {
  return as<Expression>(object(name));
}

}  // namespace velra::test

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/DocumentSession.h"
#include "support/Scene.h"

namespace velra::test {

/// Works with a document without windows. At first a small ladder lies in the folder "~"; objects
/// are named by their files, as in "version1" or "film".
class DocumentActor : public Actor {
 public:
  DocumentActor();

 protected:
  std::vector<std::string> takeShown() override;

  DocumentSession session_;

 private:
  void learnFiles();
  void learnDocument();
  void learnSegments();
  void learnToLook();
  ObjectRef object(const std::string& name) const;
  ExpressionRef segment(const std::string& title) const;
  /// As identifiers where "{version1}" stands for one.
  std::string filled(std::string text) const;
  void showObjects();
  void showChain(const Expression& parent);

  std::map<std::string, std::string> files_;
};

}  // namespace velra::test

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velra {

class ApplicationModule;
class XmlNode;

/// What the three kinds of entry share: one name in each language.
class VocabularyEntry {
 public:
  std::string strEnglish;
  std::string strFrench;
  std::string strItalian;
  std::string strGerman;
  std::string strDutch;

  /// The name in a language (0 English, 1 Italian, 2 Dutch, 3 German, 4 French); the English one
  /// where that is missing, and for any other number.
  const std::string& strLocalLang(std::int32_t language) const;

 protected:
  void readNames(const XmlNode& element);
};

class ThematicKeyword : public VocabularyEntry {
 public:
  std::string strSetFromDOMElement(const ApplicationModule& app, const XmlNode& element);
};

class Subtheme : public VocabularyEntry {
 public:
  const std::vector<std::shared_ptr<ThematicKeyword>>& colKeywords() const { return colKeywords_; }
  std::string strSetFromDOMElement(const ApplicationModule& app, const XmlNode& element);

 private:
  std::vector<std::shared_ptr<ThematicKeyword>> colKeywords_;
};

class Theme : public VocabularyEntry {
 public:
  const std::vector<std::shared_ptr<Subtheme>>& colSubthemes() const { return colSubthemes_; }
  std::string strSetFromDOMElement(const ApplicationModule& app, const XmlNode& element);

 private:
  std::vector<std::shared_ptr<Subtheme>> colSubthemes_;
};

/// The vocabulary: read once at the start, never written.
class NaroThematicKeywords {
 public:
  const std::vector<std::shared_ptr<Theme>>& colThemes() const { return colThemes_; }

  /// Reads the file. A failure shows its message in a box and gives false.
  bool bSetFromXMLFile(ApplicationModule& app, const std::string& path);

 private:
  std::string strSetFromRoot(const ApplicationModule& app, const XmlNode& root);

  std::vector<std::shared_ptr<Theme>> colThemes_;
};

}  // namespace velra

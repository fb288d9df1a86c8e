// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/NaroThematicKeywords.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "platform/xml/XmlDocument.h"

namespace velra {
namespace {

/// Reads the children of an entry into a list, stopping at the first error text. Every child must
/// be an element: a comment or a text among them raises a run-time error.
template <class Entry>
std::string readChildren(const ApplicationModule& app, const XmlNode& element, Message emptyEnglish,
                         std::vector<std::shared_ptr<Entry>>& entries) {
  entries.clear();
  for (XmlNode child = element.firstChild(); child; child = child.nextSibling()) {
    if (!child.isElement()) {
      raise(kTypeMismatch, std::string(element.nodeName()) + " can hold elements only, not " +
                               std::string(child.nodeName()));
    }
    auto entry = std::make_shared<Entry>();
    std::string error = entry->strSetFromDOMElement(app, child);
    if (!error.empty()) return error;
    if (entry->strEnglish.empty()) return app.LoadResString(emptyEnglish);
    entries.push_back(std::move(entry));
  }
  return {};
}

}  // namespace

const std::string& VocabularyEntry::strLocalLang(std::int32_t language) const {
  const std::string* const names[] = {&strEnglish, &strItalian, &strDutch, &strGerman, &strFrench};
  if (language < 0 || language > 4 || names[language]->empty()) return strEnglish;
  return *names[language];
}

void VocabularyEntry::readNames(const XmlNode& element) {
  for (XmlAttribute& attribute : element.attributes()) {
    std::string ignored;
    std::string& name = attribute.baseName == "English"   ? strEnglish
                        : attribute.baseName == "Italian" ? strItalian
                        : attribute.baseName == "Dutch"   ? strDutch
                        : attribute.baseName == "German"  ? strGerman
                        : attribute.baseName == "French"  ? strFrench
                                                          : ignored;
    name = std::move(attribute.value);
  }
}

std::string ThematicKeyword::strSetFromDOMElement(const ApplicationModule& app,
                                                  const XmlNode& element) {
  if (element.baseName() != "Keyword") return app.LoadResString(Message::SubthemeHoldsOthers);
  readNames(element);
  return {};
}

std::string Subtheme::strSetFromDOMElement(const ApplicationModule& app, const XmlNode& element) {
  if (element.baseName() != "Subtheme") return app.LoadResString(Message::ThemeHoldsOthers);
  readNames(element);
  return readChildren(app, element, Message::KeywordWithoutEnglish, colKeywords_);
}

std::string Theme::strSetFromDOMElement(const ApplicationModule& app, const XmlNode& element) {
  readNames(element);
  return readChildren(app, element, Message::SubthemeWithoutEnglish, colSubthemes_);
}

bool NaroThematicKeywords::bSetFromXMLFile(ApplicationModule& app, const std::string& path) {
  XmlDocument document;
  if (!document.load(path)) {
    app.ui.messageBox(app.LoadResString(Message::VocabularyLoadError) + document.reason());
    return false;
  }
  const std::string error = strSetFromRoot(app, document.documentElement());
  if (error.empty()) return true;
  app.ui.messageBox(error);
  return false;
}

std::string NaroThematicKeywords::strSetFromRoot(const ApplicationModule& app,
                                                 const XmlNode& root) {
  if (root.baseName() != "NaroThematicKeywords")
    return app.LoadResString(Message::VocabularyRootMissing);
  colThemes_.clear();
  for (XmlNode child = root.firstElement(); child; child = child.nextElement()) {
    if (child.baseName() != "Theme") continue;
    auto theme = std::make_shared<Theme>();
    std::string error = theme->strSetFromDOMElement(app, child);
    if (!error.empty()) return error;
    if (theme->strEnglish.empty()) return app.LoadResString(Message::ThemeWithoutEnglish);
    colThemes_.push_back(std::move(theme));
  }
  return {};
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/FormFields.h"
#include "forms/FormTabs.h"

namespace velra {

class ApplicationModule;
class CrossLanguageFields;
class DescribedObject;
struct MetadataKind;

/// A metadata form from its load to its end, without pixels. It keeps its object alive.
class LoadedForm {
 public:
  LoadedForm(ApplicationModule& app, const MetadataKind& kind,
             std::shared_ptr<DescribedObject> object, TabScroll& arrTabScroll);
  ~LoadedForm();
  LoadedForm(const LoadedForm&) = delete;
  LoadedForm& operator=(const LoadedForm&) = delete;

  /// Builds the boxes. A document whose fields do not fit the vocabulary is told of, and raises
  /// kFormUnloaded; values that do not fit their controls raise what FormFields tells.
  void Form_Load();

  const MetadataKind& kind() const { return kind_; }
  const std::string& caption() const { return caption_; }
  const FormTabs& tabs() const { return tabs_; }
  TabScroll& arrTabScroll() { return arrTabScroll_; }
  FormFields& fields() { return fields_; }
  /// Null but on a document's form while a language of the vocabulary is chosen.
  CrossLanguageFields* crossLanguageFields();

  /// How often SetFrameHeight gives the panel its size; none leaves it as it was loaded.
  int framePasses() const;

  /// Takes the controls back into the fields and ends the form.
  void OKButt_Click();
  /// Ends the form and leaves the fields alone.
  void CancelButt_Click();

  /// Ends the form: its window, which has set `onUnload`, closes.
  void Unload();
  std::function<void()> onUnload;

 private:
  ApplicationModule& app_;
  const MetadataKind& kind_;
  std::shared_ptr<DescribedObject> object_;
  std::string caption_;
  FormTabs tabs_;
  TabScroll& arrTabScroll_;
  FormFields fields_;
  std::unique_ptr<CrossLanguageFields> crossLanguage_;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "protocol/ObjectForm.h"

namespace velra {

class ApplicationModule;
class FormPresenter;
class LoadedForm;
class TabScroll;
struct MetadataKind;

/// The metadata form of an object. There is one for every object of a document, so it holds next to
/// nothing until it shows.
class MetadataForm : public ObjectForm {
 public:
  MetadataForm(const MetadataKind& kind, ApplicationModule& app, FormPresenter& presenter);
  ~MetadataForm() override;
  MetadataForm(const MetadataForm&) = delete;
  MetadataForm& operator=(const MetadataForm&) = delete;

  void setObject(const std::shared_ptr<DescribedObject>& object) override;

  /// A form that shows already stays as it is. kNoObject when the object is gone.
  void Show(FormOwner& owner) override;
  void Unload() override;

 private:
  const MetadataKind& kind_;
  ApplicationModule& app_;
  FormPresenter& presenter_;
  std::weak_ptr<DescribedObject> object_;
  LoadedForm* loaded_ = nullptr;             // while Show runs
  std::unique_ptr<TabScroll> arrTabScroll_;  // from the first Show on
};

}  // namespace velra

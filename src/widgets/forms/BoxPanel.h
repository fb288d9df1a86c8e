// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <cstdint>
#include <functional>
#include <vector>

#include "forms/FormLayout.h"
#include "forms/FormTabs.h"

class QGroupBox;
class QScrollBar;
class QWidget;

namespace velra {

class ApplicationModule;
class FormFields;
class CrossLanguageFields;

/// The boxes of a generated form on their panel, which two bars move behind a viewport.
class BoxPanel {
 public:
  /// Makes the parts as children of the form, without a box.
  explicit BoxPanel(QWidget& form);

  /// Makes the boxes, each higher than the layout has it by some pixels. `crossLanguage` may be
  /// null.
  void makeBoxes(const ApplicationModule& app, FormFields& fields,
                 CrossLanguageFields* crossLanguage, int extraHeight);

  /// The scroll value that a person's move of the upright bar asks for.
  std::function<void(std::int16_t)> onScroll;

  const QWidget& panel() const { return *Picture1_; }
  const std::vector<QGroupBox*>& frames() const { return frames_; }
  /// What the bars take, in twips.
  int vScrollWidth() const;
  int hScrollHeight() const;

  const TwipsSize& size() const { return size_; }
  void setSize(const TwipsSize& size);
  /// Moves viewport and bars to their places, the viewport lower by some pixels.
  void place(const FormPlaces& places, int lower);

  void hideAllBoxes();
  /// Shows these boxes over the others.
  void showBoxes(const BoxRange& boxes);

  /// 0, or the scroll value at which the end of the panel shows; see `FormPlaces`.
  int vScrollMax() const { return vScrollMax_; }
  void scrollTo(std::int16_t value);
  /// The scroll value, from a present one, at which a box is in sight.
  std::int16_t scrollShowing(const QGroupBox& frame, std::int16_t value) const;

 private:
  void makeFrames(const ApplicationModule& app, FormFields& fields,
                  CrossLanguageFields* crossLanguage, int extraHeight);

  QWidget& form_;
  QWidget* Picture2_;  // the viewport
  QWidget* Picture1_;  // the panel
  QScrollBar* VScroll1_;
  QScrollBar* HScroll1_;
  std::vector<QGroupBox*> frames_;
  TwipsSize size_;
  int vScrollMax_ = 0;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "forms/FormLayout.h"
#include "forms/FormTabs.h"
#include "widgets/forms/BoxFocus.h"
#include "widgets/forms/BoxPanel.h"

class QPushButton;
class QTabBar;

namespace velra {

class ApplicationModule;
class FormFields;
class CrossLanguageFields;

/// What all generated forms show: the tabs, the panel of field boxes and the two buttons. It fills
/// its window.
class GeneratedFormFace : public QWidget {
  Q_OBJECT

 public:
  /// What is shown; all but the tabs must outlive the face. `crossLanguage` may be null.
  struct Form {
    FormFields& fields;
    FormTabs tabs;
    TabScroll& arrTabScroll;
    CrossLanguageFields* crossLanguage;
    int framePasses;  ///< of SetFrameHeight
  };

  GeneratedFormFace(const ApplicationModule& app, Form form, QWidget* parent);
  ~GeneratedFormFace() override;
  GeneratedFormFace(const GeneratedFormFace&) = delete;
  GeneratedFormFace& operator=(const GeneratedFormFace&) = delete;

  /// The inner size of a form as it is designed.
  static QSize designSize();

  /// The height of the strip of tabs, and all that the form needs above and below its viewport, in
  /// pixels: what the layout has, and more if the font asks for it.
  int tabsHeight() const;
  int aroundViewport() const;

  /// The tab in front, from 1.
  int selectedTab() const;
  /// The click on a tab: shows its boxes alone, where its scroll was left.
  void TabStrip1_Click(int tab);
  void hideAllBoxes() { boxes_.hideAllBoxes(); }

  /// Puts the focus on the first box in sight that stands on top and can be edited, else on OK.
  void focusFirstBox();

 signals:
  /// After the boxes of a tab have been shown; the tab counts from 1.
  void tabClicked(int tab);
  void okClicked();
  void cancelClicked();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void makeTabs();
  void makeButtons(const ApplicationModule& app);
  void makeShortcuts();
  QPushButton* makeButton(const char* name, const QString& caption);
  void focusAfterTurn(QWidget* before);
  FormMetrics metrics(const QSize& inner) const;
  void Form_Controls_Resize();
  void restoreScroll();
  void scrollTo(std::int16_t value);

  Form form_;
  // Pixels that a large font takes beyond the layout.
  int extraTabs_ = 0;
  int extraBand_ = 0;
  QTabBar* TabStrip1_;
  BoxPanel boxes_;
  BoxFocus focus_;
  QPushButton* OKButt_ = nullptr;
  QPushButton* CancelButt_ = nullptr;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "forms/FormLayout.h"
#include "forms/FormTabs.h"

class QGroupBox;
class QPushButton;
class QScrollBar;
class QTabBar;

namespace velra {

class ApplicationModule;
class FormFields;
class SpecialFields;

/// What all generated forms show: the tabs, the viewport with the scrolling panel of field boxes,
/// the scroll bars and the two buttons. It fills its window.
class GeneratedFormFace : public QWidget {
  Q_OBJECT

 public:
  /// What is shown; all but the tabs must outlive the face. `special` may be null.
  struct Form {
    FormFields& fields;
    FormTabs tabs;
    TabScroll& arrTabScroll;
    SpecialFields* special;
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
  void hideAllBoxes();

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
  void makePanel(const ApplicationModule& app);
  void makeFrames(const ApplicationModule& app);
  void makeButtons(const ApplicationModule& app);
  void makeShortcuts();
  QPushButton* makeButton(const char* name, const QString& caption);
  /// The box that stands on top in a slot; null for none.
  QGroupBox* frameOnTop(int slot) const;
  /// What can take the focus first of what is in sight; null for nothing.
  QWidget* firstControlInSight() const;
  void takeCoveredFromTabKey();
  void giveCoveredBack();
  void focusAfterTurn(QWidget* before);
  FormMetrics metrics(const QSize& inner) const;
  void Form_Controls_Resize();
  void restoreScroll();
  void scrollTo(std::int16_t value);
  void showBoxWithFocus();

  Form form_;
  TwipsSize panel_;
  int vScrollMax_ = 0;
  // Pixels that a large font takes beyond the layout.
  int extraTabs_ = 0;
  int extraBox_ = 0;
  int extraBand_ = 0;
  QTabBar* TabStrip1_;
  QWidget* Picture2_;
  QWidget* Picture1_;
  QScrollBar* VScroll1_;
  QScrollBar* HScroll1_;
  QPushButton* OKButt_ = nullptr;
  QPushButton* CancelButt_ = nullptr;
  std::vector<QGroupBox*> frames_;
  std::vector<std::pair<QWidget*, Qt::FocusPolicy>> covered_;  // and what they had before
};

}  // namespace velra

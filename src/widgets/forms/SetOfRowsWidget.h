// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "widgets/forms/RowControls.h"

class QPushButton;
class QScrollBar;

namespace velra {

class ApplicationModule;
class SetOfRows;

/// The face of the two set-of-strings controls: the rows, with the buttons `Command1` and
/// `Command2` at the side.
class SetOfRowsWidget : public QWidget {
 public:
  /// `label` names the field to people who hear the form. The rows must outlive the widget.
  SetOfRowsWidget(SetOfRows& rows, const ApplicationModule& app, const QString& label,
                  QWidget* parent);
  ~SetOfRowsWidget() override;
  SetOfRowsWidget(const SetOfRowsWidget&) = delete;
  SetOfRowsWidget& operator=(const SetOfRowsWidget&) = delete;

  /// The height, in pixels, at which the captions of the two buttons are whole in the font of a
  /// form.
  static int leastHeight(const QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void makeButtons(const ApplicationModule& app);
  void showRows();
  void measureRows();
  void addRow(std::int16_t row);
  void addClicked();
  void putInTabOrder(const RowControls& row);
  void scrollToRow(int top);
  void updateScrollRange();
  void scrollTo(int top);

  SetOfRows& rows_;
  bool hasLists_;
  QString label_;
  QWidget* Picture2_;
  QWidget* Picture1_;
  QScrollBar* VScroll1_;
  QPushButton* Command1_ = nullptr;
  QPushButton* Command2_ = nullptr;
  std::vector<RowControls> controls_;
  int rowHeight_;  // twips
  int rowPitch_;   // twips
};

}  // namespace velra

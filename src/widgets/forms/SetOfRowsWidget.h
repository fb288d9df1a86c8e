// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;
class QScrollBar;

namespace velra {

class ApplicationModule;
class SetOfRows;

/// The face of the two set-of-strings controls: rows of a tick (`Check1_i`) and a text (`Text1_i`)
/// or a drop-down list (`Combo1_i`), with the buttons `Command1` and `Command2` at the side.
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
  struct Row {
    QCheckBox* Check1 = nullptr;
    QWidget* value = nullptr;  // Text1 or Combo1
    QLabel* label = nullptr;   // of a list: not seen, but read out
  };

  void makeButtons(const ApplicationModule& app);
  void showRows();
  void measureRows();
  void placeRow(std::int16_t row, QWidget& tick, QWidget& value) const;
  void addRowWidgets(std::int16_t row);
  QWidget* makeText(std::int16_t row);
  QWidget* makeList(std::int16_t row);
  void showRow(std::int16_t row);
  void addClicked();
  void putInTabOrder(const Row& widgets);
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
  std::vector<Row> widgets_;
  int rowHeight_;  // twips
  int rowPitch_;   // twips
};

}  // namespace velra

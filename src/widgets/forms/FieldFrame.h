// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

namespace velra {

struct FieldBox;

/// The box with a title around the control of a field.
class FieldFrame : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  /// The place inside, known before it shows.
  QRect inside() const;

  /// Takes the focus of the keyboard in place of a control that is greyed out, so that people who
  /// hear the form meet its value. The box must outlive the frame.
  void standFor(const FieldBox& box);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString spokenValue() const;

  const FieldBox* box_ = nullptr;
};

}  // namespace velra

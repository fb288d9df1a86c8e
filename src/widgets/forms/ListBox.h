// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <string>
#include <vector>

namespace velra {

/// A drop-down list that shows a text even if it is no item: it then cannot be chosen again once
/// another has been. The wheel leaves it alone, since it belongs to the form.
class ListBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

  void showItems(const std::vector<std::string>& items, const std::string& text);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/ListBox.h"

#include <QListView>
#include <QStandardItemModel>
#include <QWheelEvent>
#include <algorithm>

#include "widgets/QtText.h"

namespace velra {

void ListBox::showItems(const std::vector<std::string>& items, const std::string& text) {
  clear();
  const auto at = std::find(items.begin(), items.end(), text);
  const bool isForeign = at == items.end() && !text.empty();
  if (isForeign) addItem(toQString(text));
  for (const std::string& item : items) addItem(toQString(item));
  if (isForeign) {
    // A row that the list does not show and the keys pass over.
    if (auto* rows = qobject_cast<QStandardItemModel*>(model())) {
      rows->item(0)->setFlags(Qt::NoItemFlags);
    }
    if (auto* list = qobject_cast<QListView*>(view())) list->setRowHidden(0, true);
    setCurrentIndex(0);
  } else {
    setCurrentIndex(at == items.end() ? -1 : static_cast<int>(at - items.begin()));
  }
}

void ListBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace velra

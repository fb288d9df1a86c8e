// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

#include "widgets/main/TreeIconPainter.h"

namespace velra {

class SearchResultDialog;

/// The rows of a search for a view: an icon is made when its row is first drawn.
class SearchResultModel : public QAbstractTableModel {
 public:
  SearchResultModel(const SearchResultDialog& dialog, QObject* parent);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const SearchResultDialog& dialog_;
  mutable TreeIconPainter icons_;
};

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

#include "widgets/main/TreeIconPainter.h"

namespace velra {

class SearchResultDialog;

/// The rows of a search for a view, which may come one after the other: an icon is made when its
/// row is first drawn.
class SearchResultModel : public QAbstractTableModel {
 public:
  SearchResultModel(const SearchResultDialog& dialog, QObject* parent);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Shows the rows that the dialog has found since.
  void showFound();

 private:
  const SearchResultDialog& dialog_;
  int shown_;  // rows
  mutable TreeIconPainter icons_;
};

}  // namespace velra

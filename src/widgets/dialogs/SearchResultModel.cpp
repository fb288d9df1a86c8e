// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/SearchResultModel.h"

#include "shell/SearchResultDialog.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

int rowsOf(const SearchResultDialog& dialog) {
  return static_cast<int>(dialog.rows().size());
}

}  // namespace

SearchResultModel::SearchResultModel(const SearchResultDialog& dialog, QObject* parent)
    : QAbstractTableModel(parent),
      dialog_(dialog),
      shown_(rowsOf(dialog)),
      icons_(dialog.icons()) {}

int SearchResultModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_;
}

int SearchResultModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(SearchResultDialog::kColumns.size());
}

QVariant SearchResultModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const SearchResultDialog::Row& row = dialog_.rows()[static_cast<std::size_t>(index.row())];
  if (role == Qt::DecorationRole && index.column() == 0) return icons_.icon(row.smallIcon);
  if (role != Qt::DisplayRole) return {};
  if (index.column() == 0) return toQString(row.type);
  if (index.column() == 1) return lineText(row.title);
  return QString::number(row.founds);
}

QVariant SearchResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QLatin1String(SearchResultDialog::kColumns[static_cast<std::size_t>(section)]);
}

void SearchResultModel::showFound() {
  const int found = rowsOf(dialog_);
  if (found == shown_) return;
  beginInsertRows({}, shown_, found - 1);
  shown_ = found;
  endInsertRows();
}

}  // namespace velra

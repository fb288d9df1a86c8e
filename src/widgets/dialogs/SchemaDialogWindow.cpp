// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/SchemaDialogWindow.h"

#include <QEvent>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "forms/AVDocSchemaDialog.h"
#include "widgets/Announcer.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/DialogButtons.h"
#include "widgets/dialogs/TickState.h"

namespace velra {

namespace {

constexpr int kTwelfths = 12;
constexpr int kRowSpace = 6;  // pixels

}  // namespace

SchemaDialogWindow::SchemaDialogWindow(const ApplicationModule& app, AVDocSchemaDialog& dialog,
                                       QWidget* owner)
    : QDialog(owner),
      dialog_(dialog),
      ListView1_(new QTreeWidget(this)),
      announcer_(*new Announcer(this)),
      fieldStays_(toQString(app.LoadResString(Message::FieldStays))) {
  setObjectName(QStringLiteral("AVDocSchemaDialog"));
  setWindowTitle(titleFromCaption(app.LoadResString(Message::EditFlags)));
  setModal(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(ListView1_);
  makeList();
  fillList();
  makeButtons(app);
  resize(720, 480);
  dialog_.onUnload = [this] { done(Accepted); };
}

SchemaDialogWindow::~SchemaDialogWindow() {
  dialog_.onUnload = nullptr;
}

void SchemaDialogWindow::makeList() {
  ListView1_->setObjectName(QStringLiteral("ListView1"));
  ListView1_->setAccessibleName(windowTitle());
  ListView1_->setRootIsDecorated(false);
  ListView1_->setUniformRowHeights(true);
  ListView1_->setAllColumnsShowFocus(true);
  ListView1_->setAlternatingRowColors(true);
  QStringList headers;
  for (const auto& column : AVDocSchemaDialog::kColumns) {
    headers << QLatin1String(column.header);
  }
  ListView1_->setHeaderLabels(headers);
  ListView1_->header()->setStretchLastSection(false);
  ListView1_->viewport()->installEventFilter(this);
  connect(ListView1_, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* row) { tickMoved(*row); });
  // The space bar moves the tick of the current cell, which stands in the first column.
  connect(ListView1_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
    if (row && ListView1_->currentColumn() != 0) ListView1_->setCurrentItem(row, 0);
  });
}

void SchemaDialogWindow::fillList() {
  const QSignalBlocker quiet(ListView1_);
  for (const AVDocSchemaDialog::Row& row : dialog_.rows()) {
    auto* item = new QTreeWidgetItem(ListView1_);
    item->setCheckState(0, row.ticked ? Qt::Checked : Qt::Unchecked);
    item->setSizeHint(0, {0, ListView1_->fontMetrics().height() + kRowSpace});
    item->setData(0, Qt::AccessibleTextRole, toQString(row.strName));
    item->setData(0, Qt::AccessibleDescriptionRole, tickState(item->checkState(0)));
    item->setText(1, toQString(row.strName));
    item->setText(2, toQString(row.strType));
    item->setText(3, toQString(row.strComment));
    item->setToolTip(3, plainToolTip(row.strComment));
  }
  ListView1_->setCurrentItem(ListView1_->topLevelItem(0));
}

void SchemaDialogWindow::makeButtons(const ApplicationModule& app) {
  auto* buttons = new DialogButtons(app, "OKButton", "CancelButton", this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { dialog_.OKButton_Click(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { dialog_.CancelButton_Click(); });
  layout()->addWidget(buttons);
}

void SchemaDialogWindow::reject() {
  dialog_.CancelButton_Click();
}

void SchemaDialogWindow::tickMoved(QTreeWidgetItem& row) {
  const auto position = static_cast<std::size_t>(ListView1_->indexOfTopLevelItem(&row)) + 1;
  const bool ticked = row.checkState(0) == Qt::Checked;
  if (dialog_.rows()[position - 1].ticked == ticked) return;
  if (dialog_.setTicked(position, ticked)) {
    const QString state = tickState(row.checkState(0));
    row.setData(0, Qt::AccessibleDescriptionRole, state);
    return announcer_.say(row.text(1) + QStringLiteral(": ") + state);
  }
  const QSignalBlocker quiet(ListView1_);
  row.setCheckState(0, ticked ? Qt::Unchecked : Qt::Checked);
  announcer_.say(fieldStays_ + row.text(1));
}

bool SchemaDialogWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) shareWidths();
  return QDialog::eventFilter(watched, event);
}

void SchemaDialogWindow::shareWidths() {
  for (int column = 0; column < static_cast<int>(AVDocSchemaDialog::kColumns.size()); ++column) {
    const int share = AVDocSchemaDialog::kColumns[static_cast<std::size_t>(column)].shareOfWidth;
    ListView1_->setColumnWidth(column, ListView1_->viewport()->width() * share / kTwelfths);
  }
}

}  // namespace velra

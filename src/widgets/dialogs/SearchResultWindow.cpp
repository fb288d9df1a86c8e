// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/SearchResultWindow.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTreeView>
#include <QVBoxLayout>
#include <chrono>
#include <vector>

#include "app/ApplicationModule.h"
#include "shell/SearchResultDialog.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/DialogButtons.h"
#include "widgets/dialogs/SearchResultModel.h"

namespace velra {

namespace {

constexpr QSize kFirstSize(640, 400);  // logical pixels

// So short that nobody feels a key or a click wait for it.
constexpr std::chrono::milliseconds kSlice{5};

bool isOpeningKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  const bool plain = (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const int key = press.key();
  return plain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
}

bool isLeftRelease(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

}  // namespace

SearchResultWindow::SearchResultWindow(const ApplicationModule& app, SearchResultDialog& dialog,
                                       QWidget* owner)
    : QDialog(owner),
      dialog_(dialog),
      ListView1_(new QTreeView(this)),
      rows_(new SearchResultModel(dialog, this)) {
  setObjectName(QStringLiteral("SearchResultDialog"));
  setWindowTitle(titleFromCaption(app.LoadResString(Message::Find)));
  auto* column = new QVBoxLayout(this);
  column->addWidget(ListView1_);
  makeList();
  addButtons(app);
  resize(kFirstSize);
  dialog_.onUnload = [this] { done(Accepted); };
  dialog_.onSearched = [this] { showFound(); };
  // The timer comes behind all events that wait, and is set anew after each slice alone: when one
  // fails, none follows.
  searching_.setSingleShot(true);
  connect(&searching_, &QTimer::timeout, this, &SearchResultWindow::searchOn);
  if (!dialog_.bSearching()) return;
  setCursor(Qt::BusyCursor);
  searching_.start(0);
}

SearchResultWindow::~SearchResultWindow() {
  dialog_.onUnload = nullptr;
  dialog_.onSearched = nullptr;
}

void SearchResultWindow::makeList() {
  ListView1_->setObjectName(QStringLiteral("ListView1"));
  ListView1_->setAccessibleName(windowTitle());
  ListView1_->setRootIsDecorated(false);
  ListView1_->setUniformRowHeights(true);
  ListView1_->setAllColumnsShowFocus(true);
  ListView1_->setIconSize(TreeIconPainter::iconSize());
  ListView1_->setModel(rows_);
  showCurrent();
  ListView1_->header()->setStretchLastSection(false);
  ListView1_->installEventFilter(this);
  ListView1_->viewport()->installEventFilter(this);
}

void SearchResultWindow::addButtons(const ApplicationModule& app) {
  auto* buttons = new DialogButtons(app, "OKButton", "CancelButton", this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { dialog_.OKButton_Click(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { dialog_.CancelButton_Click(); });
  layout()->addWidget(buttons);
}

void SearchResultWindow::searchOn() {
  if (dialog_.searchOn(kSlice)) searching_.start(0);
}

void SearchResultWindow::showFound() {
  rows_->showFound();
  showCurrent();
  if (!dialog_.bSearching()) unsetCursor();
}

// The first row is where the keys begin.
void SearchResultWindow::showCurrent() {
  if (!ListView1_->currentIndex().isValid()) ListView1_->setCurrentIndex(rows_->index(0, 0));
}

void SearchResultWindow::reject() {
  dialog_.CancelButton_Click();
}

bool SearchResultWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ListView1_->viewport()) {
    if (event->type() == QEvent::Resize) shareWidths();
    if (isLeftRelease(*event)) clickSoon();
  } else if (isOpeningKey(*event)) {
    clickSoon();
    return true;  // Enter would press the button otherwise
  }
  return QDialog::eventFilter(watched, event);
}

// The list has to be done with the event first: the form that opens waits for its own end.
void SearchResultWindow::clickSoon() {
  QMetaObject::invokeMethod(
      this, [this] { ListView1_Click(); }, Qt::QueuedConnection);
}

void SearchResultWindow::ListView1_Click() {
  std::vector<std::size_t> selected;
  for (const QModelIndex& index : ListView1_->selectionModel()->selectedRows()) {
    selected.push_back(static_cast<std::size_t>(index.row()) + 1);
  }
  dialog_.ListView1_Click(selected);
}

void SearchResultWindow::shareWidths() {
  constexpr auto kCount = static_cast<int>(SearchResultDialog::kColumns.size());
  for (int column = 0; column < kCount; ++column) {
    ListView1_->setColumnWidth(column, ListView1_->viewport()->width() / kCount);
  }
}

}  // namespace velra

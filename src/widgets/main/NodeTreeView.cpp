// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/NodeTreeView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QPainter>
#include <vector>

#include "widgets/FocusFrame.h"
#include "widgets/LightFrames.h"
#include "widgets/main/TreeIconPainter.h"
#include "widgets/main/TreeModel.h"

namespace velra {

namespace {

constexpr int kTreeFrame = 2;  // pixels: room for the frame of the focus

QColor between(const QColor& one, const QColor& other, float share) {
  const auto mix = [share](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

// Many palettes have one colour for what is selected with the focus and without it.
void giveInactiveColour(QPalette& palette) {
  const QColor active = palette.color(QPalette::Active, QPalette::Highlight);
  if (palette.color(QPalette::Inactive, QPalette::Highlight) != active) return;
  constexpr float kShare = 0.25F;
  const QColor base = palette.color(QPalette::Inactive, QPalette::Base);
  palette.setColor(QPalette::Inactive, QPalette::Highlight, between(base, active, kShare));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                   palette.color(QPalette::Inactive, QPalette::Text));
}

bool opensForm(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         (event.key() == Qt::Key_F2 && event.modifiers() == Qt::NoModifier);
}

}  // namespace

NodeTreeView::NodeTreeView(TreeModel& model, QWidget* parent) : QTreeView(parent), model_(model) {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(kTreeFrame);
  setHeaderHidden(true);
  setUniformRowHeights(true);  // a row costs nothing until it is seen
  setIconSize(TreeIconPainter::iconSize());
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setResizeContentsPrecision(0);  // asks the rows in sight alone, and draws no other icon
  setModel(&model);
  connect(&model, &TreeModel::expandRequested, this, &QTreeView::expand);
  connect(&model, &TreeModel::currentRequested, this, &QTreeView::setCurrentIndex);
  // A document shows what it has, and not only that it is there.
  connect(&model, &TreeModel::modelReset, this,
          [this] { expand(model_.index(0, 0, QModelIndex())); });
}

bool NodeTreeView::event(QEvent* event) {
  // On a tree the key is for its own node; as the menu's it is for the tree that was clicked last.
  if (event->type() == QEvent::ShortcutOverride && opensForm(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  const bool done = QTreeView::event(event);
  if (event->type() == QEvent::Paint) paintFrame();
  return done;
}

void NodeTreeView::paintFrame() {
  QPainter painter(this);
  if (hasFocus()) return paintFocusFrame(painter, rect(), palette());
  painter.setPen(QPen(palette().base(), kTreeFrame * 2));
  painter.drawRect(rect());
  painter.setPen(LightFrames::outlineOf(palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void NodeTreeView::drawRow(QPainter* painter, const QStyleOptionViewItem& options,
                           const QModelIndex& index) const {
  QStyleOptionViewItem row = options;
  giveInactiveColour(row.palette);
  QTreeView::drawRow(painter, row, index);
}

void NodeTreeView::click(const QModelIndex& index, MouseButton button) {
  Q_EMIT pressed(button);
  if (TreeNode* node = model_.node(index)) Q_EMIT nodeClicked(*node);
}

TreeNode* NodeTreeView::nodeAt(const QPoint& globalPosition) const {
  const QPoint position = viewport()->mapFromGlobal(globalPosition);
  const bool inside = viewport()->rect().contains(position);
  return inside ? model_.node(indexAt(position)) : nullptr;
}

// The arrow that opens and closes a node belongs to the tree itself.
bool NodeTreeView::isOnNode(const QPoint& position) const {
  const QModelIndex index = indexAt(position);
  return index.isValid() && position.x() >= visualRect(index).left();
}

void NodeTreeView::mousePressEvent(QMouseEvent* event) {
  QTreeView::mousePressEvent(event);
  if (event->button() != Qt::LeftButton) return;
  const QPoint position = event->position().toPoint();
  click(isOnNode(position) ? indexAt(position) : QModelIndex(), kLeftButton);
}

void NodeTreeView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  QModelIndex index;
  if (event->reason() == QContextMenuEvent::Keyboard) {
    if (!selectedIndexes().isEmpty()) index = selectedIndexes().constFirst();
    scrollTo(index);
    menuPosition_ = viewport()->mapToGlobal(visualRect(index).bottomLeft());
  } else {
    if (isOnNode(event->pos())) index = indexAt(event->pos());
    menuPosition_ = event->globalPos();
  }
  click(index, kRightButton);
}

void NodeTreeView::keyPressEvent(QKeyEvent* event) {
  if (opensForm(*event)) {
    // Not the one that is still held down from a box that it has closed.
    if (!event->isAutoRepeat()) Q_EMIT formAsked();
    return;
  }
  const QModelIndex before = currentIndex();
  if (event->key() == Qt::Key_Asterisk) {
    expandBelow(before);
    QAbstractItemView::keyPressEvent(event);  // NOLINT(bugprone-parent-virtual-call): past its own
  } else {
    QTreeView::keyPressEvent(event);
  }
  if (currentIndex() != before) click(currentIndex(), kLeftButton);
}

// The toolkit's own way notes each node as open, and most have nothing below them.
void NodeTreeView::expandBelow(const QModelIndex& index) {
  scheduleDelayedItemsLayout();  // until then nodes that open are only noted
  std::vector<TreeNode*> nodes;
  if (TreeNode* node = model_.node(index)) nodes.push_back(node);
  while (!nodes.empty()) {
    TreeNode* node = nodes.back();
    nodes.pop_back();
    if (node->children.empty()) continue;
    expand(model_.indexOf(*node));
    for (const auto& child : node->children) nodes.push_back(child.get());
  }
}

void NodeTreeView::keyReleaseEvent(QKeyEvent* event) {
  const bool shifted = (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
  if (event->key() == Qt::Key_Delete && !shifted && !event->isAutoRepeat()) {
    Q_EMIT deleteReleased();
    return;
  }
  QTreeView::keyReleaseEvent(event);
}

// Who comes by the Tab key finds a node selected, and not only a frame around one.
void NodeTreeView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  const bool byTab =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (!byTab || !currentIndex().isValid()) return;
  if (!selectedIndexes().isEmpty()) return Q_EMIT entered();
  selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
  click(currentIndex(), kLeftButton);
}

void NodeTreeView::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  const QModelIndexList indexes = selectedIndexes();
  model_.select(indexes.isEmpty() ? nullptr : model_.node(indexes.constFirst()));
}

}  // namespace velra

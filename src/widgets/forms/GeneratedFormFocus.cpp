// SPDX-License-Identifier: GPL-3.0-or-later

// Where the keyboard's focus goes on a generated form.
#include <QGroupBox>
#include <QPushButton>
#include <QTabBar>

#include "widgets/Twips.h"
#include "widgets/forms/GeneratedFormFace.h"

namespace velra {

// Until a tab is clicked, sets cover one another: the Tab key goes to what can be seen.
void GeneratedFormFace::takeCoveredFromTabKey() {
  for (std::size_t i = 0; i + kBoxesOfATab < frames_.size(); ++i) {
    for (QWidget* widget : frames_[i]->findChildren<QWidget*>()) {
      if (widget->focusProxy()) continue;  // has none of its own
      covered_.emplace_back(widget, widget->focusPolicy());
      widget->setFocusPolicy(Qt::NoFocus);
    }
  }
}

void GeneratedFormFace::giveCoveredBack() {
  for (const auto& [widget, policy] : covered_) widget->setFocusPolicy(policy);
  covered_.clear();
}

void GeneratedFormFace::focusAfterTurn(QWidget* before) {
  if (before == TabStrip1_) return;
  const bool stays = Picture1_->isAncestorOf(before) && before->isVisible();
  if (stays) return before->setFocus(Qt::OtherFocusReason);
  if (QWidget* first = firstControlInSight()) first->setFocus(Qt::TabFocusReason);
}

void GeneratedFormFace::focusFirstBox() {
  QWidget* first = firstControlInSight();
  (first ? first : OKButt_)->setFocus(Qt::TabFocusReason);
}

QWidget* GeneratedFormFace::firstControlInSight() const {
  for (int slot = 0; slot < kBoxesOfATab; ++slot) {
    const QGroupBox* frame = frameOnTop(slot);
    if (!frame || frame->y() + Picture1_->y() < 0) continue;
    for (QWidget* widget : frame->findChildren<QWidget*>()) {
      if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) return widget;
    }
  }
  return nullptr;
}

QGroupBox* GeneratedFormFace::frameOnTop(int slot) const {
  QGroupBox* top = nullptr;
  for (std::size_t i = static_cast<std::size_t>(slot); i < frames_.size(); i += kBoxesOfATab) {
    if (!frames_[i]->isHidden()) top = frames_[i];
  }
  return top;
}

bool GeneratedFormFace::focusNextPrevChild(bool next) {
  const bool moved = QWidget::focusNextPrevChild(next);
  if (moved) showBoxWithFocus();
  return moved;
}

void GeneratedFormFace::showBoxWithFocus() {
  const QWidget* focused = window()->focusWidget();
  for (const QGroupBox* frame : frames_) {
    if (!focused || !frame->isAncestorOf(focused)) continue;
    scrollTo(scrollToShow(form_.arrTabScroll[selectedTab()], twipsFromPixels(frame->y()),
                          twipsFromPixels(frame->height()), twipsFromPixels(Picture2_->height()),
                          vScrollMax_));
    return;
  }
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/BoxFocus.h"

#include <QGroupBox>
#include <algorithm>

#include "forms/FormTabs.h"

namespace velra {

void BoxFocus::takeCoveredFromTabKey() {
  for (std::size_t i = 0; i + kBoxesOfATab < frames_.size(); ++i) {
    QList<QWidget*> widgets = frames_[i]->findChildren<QWidget*>();
    widgets.append(frames_[i]);
    for (QWidget* widget : widgets) {
      if (widget->focusProxy()) continue;  // has none of its own
      covered_.emplace_back(widget, widget->focusPolicy());
      widget->setFocusPolicy(Qt::NoFocus);
    }
  }
}

void BoxFocus::giveCoveredBack() {
  for (const auto& [widget, policy] : covered_) widget->setFocusPolicy(policy);
  covered_.clear();
}

QWidget* BoxFocus::firstControlInSight() const {
  for (int slot = 0; slot < kBoxesOfATab; ++slot) {
    const QGroupBox* frame = frameOnTop(slot);
    if (!frame || frame->y() + panel_.y() < 0) continue;
    for (QWidget* widget : frame->findChildren<QWidget*>()) {
      if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) return widget;
    }
  }
  return nullptr;
}

const QGroupBox* BoxFocus::frameOnTop(int slot) const {
  const QGroupBox* top = nullptr;
  for (std::size_t i = static_cast<std::size_t>(slot); i < frames_.size(); i += kBoxesOfATab) {
    if (!frames_[i]->isHidden()) top = frames_[i];
  }
  return top;
}

bool BoxFocus::holds(const QWidget& control) const {
  return panel_.isAncestorOf(&control) && control.isVisible();
}

const QGroupBox* BoxFocus::frameAround(const QWidget* control) const {
  const auto at = std::find_if(frames_.begin(), frames_.end(), [&](const QGroupBox* frame) {
    return control && (frame == control || frame->isAncestorOf(control));
  });
  return at == frames_.end() ? nullptr : *at;
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/PaintedPartsAccess.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <vector>

#include "widgets/picture/LargePicture.h"
#include "widgets/picture/VideoPictureWidget.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/FramelistWidget.h"
#include "widgets/tool/PaintedParts.h"

namespace velra {

namespace {

/// One part. It keeps a number and asks anew each time, since screen readers hold it longer than
/// the part lives.
class PartAccess : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PartAccess(QWidget& widget, PaintedParts& parts, int part)
      : widget_(widget), parts_(parts), part_(part) {}

  bool isValid() const override { return part_ < parts_.partCount(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&widget_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QString text(QAccessible::Text kind) const override {
    return isValid() && kind == QAccessible::Name ? parts_.partName(part_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = parts_.partRect(part_);
    return {widget_.mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid()) return state;
    state.selectable = true;
    state.focusable = true;
    state.selected = parts_.partSelected(part_);
    state.focused = widget_.hasFocus() && parts_.currentPart() == part_;
    state.invisible = !widget_.visibleRegion().intersects(parts_.partRect(part_));
    state.disabled = !widget_.isEnabled();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction() && isValid()) parts_.pressPart(part_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QWidget& widget_;
  PaintedParts& parts_;
  int part_;
};

/// A widget with its parts as children, made on demand and always the same for a number.
class PartsAccess : public QAccessibleWidget {
 public:
  PartsAccess(QWidget* widget, PaintedParts& parts, QAccessible::Role role)
      : QAccessibleWidget(widget, role), parts_(parts) {}
  ~PartsAccess() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }
  PartsAccess(const PartsAccess&) = delete;
  PartsAccess& operator=(const PartsAccess&) = delete;

  int childCount() const override { return parts_.partCount(); }

  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    while (ids_.size() <= static_cast<std::size_t>(index)) {
      const int part = static_cast<int>(ids_.size());
      ids_.push_back(QAccessible::registerAccessibleInterface(
          new PartAccess(*widget(), parts_, part)));  // owned by the cache of interfaces
    }
    return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      if (QAccessible::accessibleInterface(ids_[i]) == child) return static_cast<int>(i);
    }
    return -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint place = widget()->mapFromGlobal(QPoint(x, y));
    for (int part = childCount() - 1; part >= 0; --part) {
      if (parts_.partRect(part).contains(place)) return child(part);
    }
    return nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    return widget()->hasFocus() ? child(parts_.currentPart()) : nullptr;
  }

 private:
  PaintedParts& parts_;
  mutable std::vector<QAccessible::Id> ids_;  // of the parts, by their numbers
};

/// The timeline is a slider, besides: in seconds to programs, and by its time code to people.
class TimelineAccess : public PartsAccess, public QAccessibleValueInterface {
 public:
  explicit TimelineAccess(AdvancedSliderWidget& timeline)
      : PartsAccess(&timeline, timeline, QAccessible::Slider), timeline_(timeline) {}

  QString text(QAccessible::Text kind) const override {
    const bool asksTime = kind == QAccessible::Value || kind == QAccessible::Description;
    return asksTime ? timeline_.timeText() : PartsAccess::text(kind);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return PartsAccess::interface_cast(type);
  }
  QVariant currentValue() const override { return timeline_.seconds(); }
  void setCurrentValue(const QVariant& value) override { timeline_.moveTo(value.toDouble()); }
  QVariant maximumValue() const override { return timeline_.lastSecond(); }
  QVariant minimumValue() const override { return timeline_.firstSecond(); }
  QVariant minimumStepSize() const override { return timeline_.stepSeconds(); }

 private:
  AdvancedSliderWidget& timeline_;
};

QAccessibleInterface* accessFor(const QString&, QObject* object) {
  if (auto* timeline = qobject_cast<AdvancedSliderWidget*>(object)) {
    return new TimelineAccess(*timeline);
  }
  if (auto* strip = qobject_cast<FramelistWidget*>(object)) {
    return new PartsAccess(strip, *strip, QAccessible::List);
  }
  if (qobject_cast<VideoPictureWidget*>(object) || qobject_cast<LargePicture*>(object)) {
    auto* movie = static_cast<QWidget*>(object);
    return new QAccessibleWidget(movie, QAccessible::Graphic, movie->accessibleName());
  }
  return nullptr;
}

}  // namespace

void installPaintedPartsAccess() {
  QAccessible::installFactory(accessFor);
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/AccessibilityWalk.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <set>
#include <tuple>

namespace velra::test {

namespace {

class Walk {
 public:
  void visit(QAccessibleInterface& interface) {
    if (interface.state().invisible) return;
    check(interface);
    for (int i = 0; i < interface.childCount(); ++i) {
      if (QAccessibleInterface* child = interface.child(i)) visit(*child);
    }
  }

  void checkObjectNames(QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (isInteractive(*widget) && widget->objectName().isEmpty() && !isPartOfOther(*widget)) {
        faults_.push_back(std::string("no object name: ") + widget->metaObject()->className());
      }
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
      if (!action->text().isEmpty() && action->objectName().isEmpty()) {
        faults_.push_back("no object name: action " + action->text().toStdString());
      }
    }
  }

  std::vector<std::string> take() { return std::move(faults_); }

 private:
  void check(QAccessibleInterface& interface) {
    const QString name = interface.text(QAccessible::Name);
    const QString description = interface.text(QAccessible::Description);
    const std::string where = name.toStdString() + " (" + objectName(interface) + ")";
    const auto* widget = qobject_cast<QWidget*>(interface.object());
    const bool standsForOther = widget && widget->focusProxy();
    if (interface.state().focused && interface.role() == QAccessible::Client && !standsForOther) {
      faults_.push_back("the focus is on nothing: " + where);
    }
    if (!interface.state().focusable || standsForOther) return;
    if (interface.role() == QAccessible::Client || interface.role() == QAccessible::NoRole) {
      faults_.push_back("no role: " + where);
    }
    const bool isList = interface.role() == QAccessible::ComboBox;
    if (isList ? interface.relations(QAccessible::Label).isEmpty() : name.isEmpty()) {
      faults_.push_back("no name: " + where);
    }
    // Cells of tables repeat what their columns hold.
    const bool isCell = interface.role() == QAccessible::TreeItem ||
                        interface.role() == QAccessible::ListItem ||
                        interface.role() == QAccessible::Cell;
    if (!isCell && !seen_.insert({interface.role(), name, description}).second) {
      faults_.push_back("twice: " + where);
    }
  }

  static std::string objectName(const QAccessibleInterface& interface) {
    return interface.object() ? interface.object()->objectName().toStdString() : std::string();
  }

  static bool isInteractive(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget);
  }

  /// The toolkit's own parts of a compound control, as the bars of a text box.
  static bool isPartOfOther(const QWidget& widget) {
    for (const QWidget* up = widget.parentWidget(); up; up = up->parentWidget()) {
      if (up->objectName().startsWith(QLatin1String("qt_"))) return true;
      if (up->inherits("QAbstractScrollArea") || up->inherits("QTabBar")) return true;
    }
    return false;
  }

  std::vector<std::string> faults_;
  std::set<std::tuple<int, QString, QString>> seen_;
};

}  // namespace

std::vector<std::string> accessibilityFaults(QWidget& window) {
  Walk walk;
  if (QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&window)) {
    walk.visit(*interface);
  }
  if (!window.inherits("QFileDialog")) walk.checkObjectNames(window);  // the toolkit's own
  return walk.take();
}

}  // namespace velra::test

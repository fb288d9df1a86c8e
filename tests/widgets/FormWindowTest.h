// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QtTest/qtestspontaneevent.h>
#include <QApplication>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "forms/LoadedForm.h"
#include "forms/MetadataKinds.h"
#include "support/FormObject.h"
#include "widgets/forms/MetadataFormWindow.h"

namespace velra::test {

/// A form's window over an object that the test fills.
class FormWindowTest : public ::testing::Test {
 protected:
  TestApplication application_;
  ApplicationModule& app_ = application_.app;
  std::shared_ptr<FormObject> object_ =
      std::make_shared<FormObject>(app_, ObjectKind::Media, "Format");
  TabScroll scroll_;
  std::unique_ptr<LoadedForm> form_;
  std::unique_ptr<MetadataFormWindow> window_;

  void open(ObjectKind edited = ObjectKind::Media) {
    window_.reset();
    form_ = std::make_unique<LoadedForm>(app_, *metadataKindOf(edited), object_, scroll_);
    form_->Form_Load();
    window_ = std::make_unique<MetadataFormWindow>(app_, *form_, nullptr);
    window_->show();
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  void addTexts(int count) {
    for (int i = 1; i <= count; ++i) {
      object_->add(tyType::String, "Field" + std::to_string(i), "text " + std::to_string(i));
    }
  }

  /// A control by its name: in the window, or in the set of that name.
  template <class T = QWidget>
  T& find(const char* name, QWidget* within = nullptr) {
    T* widget = (within ? within : window_.get())->template findChild<T*>(QLatin1String(name));
    if (!widget) throw std::runtime_error(std::string("no control ") + name);
    return *widget;
  }
  QWidget& panel() { return find("Picture1"); }
  QScrollBar& bar() { return find<QScrollBar>("VScroll1", &find("Picture2")); }
  void clickTab(int tab) {
    auto& tabs = find<QTabBar>("TabStrip1");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
  }
  void wheel(QWidget& over, int rotation) {
    const QPoint place = over.rect().center();
    QWheelEvent event(place, over.mapToGlobal(place), {}, {0, rotation}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);  // else it would not go on to the parents
    qApp->notify(&over, &event);
  }
  const Value& stored(std::size_t position) { return object_->secol().Item(position).vContent(); }
};

}  // namespace velra::test

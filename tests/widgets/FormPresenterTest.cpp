// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/QtFormPresenter.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTreeWidget>

#include "forms/AVDocSchemaDialog.h"
#include "forms/MetadataForm.h"
#include "forms/MetadataKinds.h"
#include "support/FormObject.h"
#include "widgets/AccessibilityWalk.h"
#include "widgets/Announcer.h"
#include "widgets/ModalAnswer.h"

namespace velra {
namespace {

using test::whenModal;

class FormPresenterTest : public ::testing::Test {
 protected:
  test::TestApplication application_;
  test::RecordingMainWindow owner_;
  QtFormPresenter presenter_{application_.app};
  AVDocSchemaDialog dialog_{application_.app, presenter_};
  std::shared_ptr<test::FormObject> object_ = test::objectOfTexts(application_.app, 2);

  SchemaElement& field(std::size_t position) { return object_->secol().Item(position); }
  void showDialog(std::function<void(QDialog&, QTreeWidget&)> act) {
    whenModal([&](QWidget& window) {
      act(dynamic_cast<QDialog&>(window),
          *window.findChild<QTreeWidget*>(QStringLiteral("ListView1")));
    });
    dialog_.ShowDialog(owner_, object_->secol());
  }
  static void press(QDialog& window, const char* name) {
    QTest::mouseClick(window.findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
  }
};

TEST_F(FormPresenterTest, FormsOpenInTheSizeTheyHadLast) {
  MetadataForm form(*metadataKindOf(ObjectKind::Media), application_.app, presenter_);
  form.setObject(object_);
  whenModal([](QWidget& window) {
    EXPECT_EQ(window.objectName(), QStringLiteral("MediaForm"));
    EXPECT_TRUE(window.isModal());
    window.resize(700, 640);
    window.close();
  });
  form.Show(owner_);
  EXPECT_FALSE(object_->bChanged());
  whenModal([&](QWidget& window) {
    EXPECT_EQ(window.size(), QSize(700, 640));
    form.Unload();
    EXPECT_FALSE(window.isVisible());
  });
  form.Show(owner_);
}

TEST_F(FormPresenterTest, NoWindowOpensLargerThanItsScreen) {
  class OwnerWindow : public QWidget, public FormOwner {};
  OwnerWindow owner;
  QRect screen;
  for (const QScreen* each : QGuiApplication::screens()) {
    if (each->name() == QLatin1String("small")) screen = each->availableGeometry();
  }
  owner.setGeometry(screen);
  owner.show();
  EXPECT_EQ(owner.geometry(), screen);  // as large as the screen, and not larger
  owner.hide();
  owner.setGeometry(QRect(screen.topLeft() + QPoint(67, 67), QSize(1900, 300)));
  owner.setMinimumSize(1000, 200);
  owner.show();
  EXPECT_TRUE(screen.contains(owner.geometry()));
  EXPECT_EQ(owner.height(), 300);
  MetadataForm form(*metadataKindOf(ObjectKind::Media), application_.app, presenter_);
  form.setObject(object_);
  for (int showing = 0; showing < 2; ++showing) {
    whenModal([&](QWidget& window) {
      EXPECT_TRUE(screen.contains(window.geometry()));
      const auto* ok = window.findChild<QWidget*>(QStringLiteral("OKButt"));
      EXPECT_TRUE(window.rect().contains(ok->geometry()));
      window.resize(3000, 400);  // remembered
      window.close();
    });
    form.Show(owner);
  }
}

TEST_F(FormPresenterTest, AFormStandsOverItsOwnersWindow) {
  class OwnerWindow : public QWidget, public FormOwner {};
  OwnerWindow owner;
  EXPECT_EQ(presenter_.windowOf(owner), &owner);
  QWidget main;
  presenter_.setMainWindow(&main);
  EXPECT_EQ(presenter_.windowOf(owner_), &main);
}

TEST_F(FormPresenterTest, TicksMoveByMouseAndKeyboard) {
  field(2).setBValid(false);
  QStringList told;  // to people who hear the window
  showDialog([&](QDialog& window, QTreeWidget& list) {
    EXPECT_EQ(test::accessibilityFaults(window), std::vector<std::string>{});
    QStringList headers;
    for (int column = 0; column < list.columnCount(); ++column) {
      headers << list.headerItem()->text(column);
    }
    EXPECT_EQ(headers.join(QLatin1Char('|')), QStringLiteral("Valid|Attribute Name|Type|Comment"));
    EXPECT_EQ(list.topLevelItem(1)->text(1), QStringLiteral("Field2"));
    EXPECT_EQ(list.topLevelItem(1)->text(2), QStringLiteral("String"));
    QObject::connect(window.findChild<Announcer*>(), &Announcer::said,
                     [&told](const QString& sentence) { told << sentence; });
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
    press(window, "OKButton");
  });
  EXPECT_EQ(told, QStringList(
                      {QStringLiteral("Field1: not checked"), QStringLiteral("Field2: checked")}));
  EXPECT_FALSE(field(1).bValid());
  EXPECT_TRUE(field(2).bValid());
  EXPECT_FALSE(dialog_.bCancel());
}

TEST_F(FormPresenterTest, ARefusedTickSpringsBack) {
  field(1).setBReadOnly(true);
  showDialog([&](QDialog& window, QTreeWidget& list) {
    const QRect cell = list.visualItemRect(list.topLevelItem(0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(10, cell.center().y()));
    EXPECT_EQ(application_.ui.takeShown(), std::vector<std::string>{"beep"});
    EXPECT_EQ(list.topLevelItem(0)->checkState(0), Qt::Checked);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      QPoint(10, list.visualItemRect(list.topLevelItem(1)).center().y()));
    EXPECT_EQ(list.topLevelItem(1)->checkState(0), Qt::Unchecked);
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  EXPECT_TRUE(dialog_.bCancel());
  EXPECT_FALSE(object_->bChanged());
}

}  // namespace
}  // namespace velra

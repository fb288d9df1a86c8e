// SPDX-License-Identifier: GPL-3.0-or-later

// The pictures of the guide, taken from the real windows over a copy of the sample:
// velra_camera FOLDER LANGUAGE.
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTemporaryFile>

#include "scenario/Desktop.h"
#include "scenario/Hands.h"
#include "widgets/GuardedApplication.h"
#include "widgets/Texts.h"

namespace velra::test {
namespace {

constexpr const char* kVersion = "Original English sound version";
constexpr const char* kVideo = "Picture of Skarholm Light";
constexpr const char* kTranscript = "Commentary of Skarholm Light";

class Camera {
 public:
  Camera(QString folder, InterfaceLanguage language)
      : folder_(std::move(folder)), language_(language), desktop_(language) {}

  void takeAll() {
    desktop_.start(desktop_.sample());
    desktop_.rules.setLanguage(language_ == InterfaceLanguage::Italian ? 1 : 0);
    desktop_.window.resize(900, 620);
    desktop_.click("tvwMainTree", QLatin1String(kVersion));
    desktop_.view("tvwExpression");
    dragSplitter(160);
    take(desktop_.window, "main-window");
    takeMenu("mnuFile", "file-menu");
    takeMenu("mnuEdit", "edit-menu");
    takeForms();
    takeSearch();
    takeTools();
    takeNewVersion();
  }

 private:
  void take(QWidget& widget, const char* name) {
    QTest::qWait(100);  // what is fetched later, as pictures, comes into view
    widget.grab().save(folder_ + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
  }

  void openNode(const char* tree, const char* title, const std::function<void(QWidget&)>& act) {
    whenModal(act);
    desktop_.chooseFromMenu(tree, QLatin1String(title), "mnuEditMetadata");
  }

  void dragSplitter(int pixels) {
    QWidget& handle = control(desktop_.window, "imgSplitter");
    const QPoint start = handle.rect().center();
    QTest::mousePress(&handle, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&handle, start + QPoint(pixels, 0));
    QTest::mouseRelease(&handle, Qt::LeftButton, Qt::NoModifier, start + QPoint(pixels, 0));
  }

  void takeTab(QWidget& form, int tab, const char* name) {
    auto& tabs = control<QTabBar>(form, "TabStrip1");
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(tab).center());
    take(form, name);
    press(form, "CancelButt");
  }

  void takeMenu(const char* menuName, const char* name) {
    auto& menu = control<QMenu>(desktop_.window, menuName);
    menu.popup(desktop_.window.mapToGlobal(QPoint(40, 120)));
    take(menu, name);
    menu.close();
  }

  void takeForms() {
    openNode("tvwMainTree", kVersion, [this](QWidget& form) { takeTab(form, 0, "version-form"); });
    openNode("tvwMainTree", "Skarholm Light", [this](QWidget& form) {
      form.resize(form.width(), 900);  // down to the thematic fields
      takeTab(form, 0, "document-form");
    });
  }

  void takeSearch() {
    inTurn({[](QWidget& dialog) {
              control<QLineEdit>(dialog, "Text1").setText(QStringLiteral("lamp"));
              press(dialog, "OKButt");
            },
            [this](QWidget& result) {
              take(result, "find");
              press(result, "CancelButton");
            }});
    desktop_.trigger("mnuFileFind");
  }

  void takeTools() {
    openNode("tvwExpression", kVideo, [this](QWidget& tool) {
      clickPart(tool, "advsld", QStringLiteral("The light at night"));
      take(tool, "expression-tool");
      take(control(tool, "Framelist1"), "key-frames");
      whenModal([this](QWidget& dialog) {
        take(dialog, "range-dialog");
        press(dialog, "CancelButton");
      });
      press(tool, "cmdNew");
      press(tool, "CancelButt");
    });
    openNode("tvwExpression", kTranscript, [this](QWidget& tool) {
      press(tool, "cmdPlay");
      const auto& words = control<QPlainTextEdit>(tool, "rtbTrans");
      if (!QTest::qWaitFor([&] { return words.toPlainText().size() > 80; }, 20000)) {
        qFatal("no words come");
      }
      press(tool, "cmdPause");
      take(tool, "transcript");
      press(tool, "CancelButt");
    });
  }

  void takeNewVersion() {
    const QString title = QStringLiteral("Restored 1998");
    willType(title);
    desktop_.chooseFromMenu("tvwMainTree", QStringLiteral("Skarholm Light"), "mnuAddChild");
    openNode("tvwMainTree", "Restored 1998", [this](QWidget& form) {
      take(form, "new-version");
      press(form, "CancelButt");
    });
    whenModal([this](QWidget& dialog) {
      take(dialog, "flags");
      press(dialog, "CancelButton");
    });
    desktop_.chooseFromMenu("tvwMainTree", title, "mnuEditAttributes");
  }

  QString folder_;
  InterfaceLanguage language_;
  Desktop desktop_;
};

}  // namespace
}  // namespace velra::test

namespace {

// Large enough for every window to be whole.
constexpr const char* kScreen = R"({"screens": [
  {"name": "wide", "x": 0, "y": 0, "width": 1600, "height": 1200}]})";

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  QTemporaryFile screens;
  if (!screens.open() || screens.write(kScreen) < 0 || !screens.flush()) return 1;
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  velra::GuardedApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("velra"));
  QApplication::setQuitOnLastWindowClosed(false);
  const auto language = velra::interfaceLanguage(argv[2]);
  velra::Texts::speak(language);
  velra::test::Camera(QString::fromLocal8Bit(argv[1]), language).takeAll();
  return 0;
}

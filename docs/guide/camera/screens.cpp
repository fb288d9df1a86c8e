// SPDX-License-Identifier: GPL-3.0-or-later

// The windows as they look on a screen of a size, in a palette and with a font, over a copy of the
// sample: velra_screens FOLDER WIDTH HEIGHT light|dark|contrast POINTS. What does not fit is told.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTemporaryFile>
#include <QTextStream>

#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "scenario/Desktop.h"
#include "scenario/Hands.h"
#include "support/TemporaryFolder.h"
#include "widgets/GuardedApplication.h"

namespace velra::test {
namespace {

constexpr const char* kFromRightToLeft =
    "\u05e9\u05dc\u05d5\u05dd 1998 \u0645\u0631\u062d\u0628\u0627 (film)";

class Screens {
 public:
  explicit Screens(QString folder) : folder_(std::move(folder)) {}

  void takeAll() {
    rescue_.run([this](RescueStore& store) {
      const SessionId session = store.begin(desktop_.sample(), "a-machine boot 1 1");
      store.keep(session, {{desktop_.sample(), "AVDocument", kFromRightToLeft, "<a/>", false, {}}});
      store.end(session, SessionEnd::Error);
    });
    desktop_.app.rescue = &rescue_;
    desktop_.start(desktop_.sample());
    desktop_.window.resize(desktop_.window.screen()->availableSize().boundedTo({900, 620}));
    ladder_ = desktop_.texts("tvwMainTree");
    desktop_.click("tvwMainTree", ladder_[1]);
    take(desktop_.window, QStringLiteral("main"));
    takeMenus();
    takeForms();
    takeTools();
    takeDialogs();
  }

 private:
  void takeMenus() {
    for (const char* name : {"mnuFile", "mnuEdit"}) {
      auto& menu = control<QMenu>(desktop_.window, name);
      menu.popup(desktop_.window.mapToGlobal(QPoint(0, 0)));
      take(menu, QLatin1String(name));
      menu.close();
    }
  }

  void takeForms() {
    const char* const names[] = {"document", "version", "media", "storage"};
    for (int step = 0; step < 4; ++step) {
      open("tvwMainTree", ladder_[step], "mnuEditMetadata",
           [&](QWidget& form) { takeTabs(form, QLatin1String(names[step])); });
    }
    open("tvwMainTree", ladder_[1], "mnuEditAttributes",
         [&](QWidget& dialog) { take(dialog, QStringLiteral("flags")); });
  }

  void takeTools() {
    open("tvwExpression", QStringLiteral("Picture of Skarholm Light"), "mnuEditMetadata",
         [&](QWidget& tool) {
           clickPart(tool, "advsld", QStringLiteral("The light at night"));
           whenModal([&](QWidget& dialog) {
             take(dialog, QStringLiteral("range"));
             press(dialog, "CancelButton");
           });
           press(tool, "cmdNew");
           strike(Qt::Key_F11);
           auto& picture = control(tool, "LargePicture");
           take(picture, QStringLiteral("picture"));
           picture.close();
           takeTabs(tool, QStringLiteral("tool"));
         });
    open("tvwExpression", QStringLiteral("Commentary of Skarholm Light"), "mnuEditMetadata",
         [&](QWidget& tool) { takeTabs(tool, QStringLiteral("transcript")); });
  }

  void takeDialogs() {
    for (const char* entry :
         {"mnuConnection", "mnuHelpAbout", "mnuFileFindShots", "mnuFileRecover"}) {
      whenModal([&](QWidget& dialog) {
        take(dialog, dialog.objectName());
        static_cast<QDialog&>(dialog).reject();
      });
      desktop_.trigger(entry);
    }
    inTurn({[this](QWidget& dialog) {
              take(dialog, QStringLiteral("find"));
              control<QLineEdit>(dialog, "Text1").setText(QStringLiteral("lamp"));
              press(dialog, "OKButt");
            },
            [this](QWidget& result) {
              take(result, QStringLiteral("found"));
              press(result, "CancelButton");
            }});
    desktop_.trigger("mnuFileFind");
  }

  void open(const char* tree, const QString& node, const char* entry,
            const std::function<void(QWidget&)>& act) {
    whenModal([act](QWidget& window) {
      act(window);
      static_cast<QDialog&>(window).reject();
    });
    desktop_.chooseFromMenu(tree, node, entry);
  }

  void takeTabs(QWidget& form, const QString& name) {
    auto& tabs = control<QTabBar>(form, "TabStrip1");
    for (auto* text : form.findChildren<QPlainTextEdit*>(QStringLiteral("Text1_2"))) {
      text->setPlainText(QString::fromUtf8(kFromRightToLeft));
    }
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      take(form, name + QString::number(tab + 1));
    }
  }

  void take(QWidget& window, const QString& name) {
    QTest::qWait(50);  // what is fetched later, as pictures, comes into view
    window.grab().save(folder_ + u'/' + name + QStringLiteral(".png"));
    const QSize room = window.screen()->availableSize();
    if (window.width() > room.width() || window.height() > room.height()) tell(name, "the window");
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
      const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
      const bool fits = text.boundedTo(button->size()) == text;
      if (button->isVisible() && !fits) tell(name, button->objectName());
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      const int wrapped = label->heightForWidth(label->width());
      const int text = wrapped >= 0 ? wrapped : label->sizeHint().height();
      if (label->isVisible() && text > label->height()) tell(name, label->objectName());
    }
  }

  void tell(const QString& window, const QString& what) const {
    QTextStream(stdout) << folder_ << ' ' << window << ": too little room for " << what << '\n';
  }

  QString folder_;
  TemporaryFolder kept_;
  RescueWriter rescue_{kept_ / "rescue.sqlite"};
  Desktop desktop_;
  QStringList ladder_;
};

QPalette paletteOf(const QString& name) {
  if (name == QLatin1String("light")) return QGuiApplication::palette();
  const bool dark = name == QLatin1String("dark");
  const QColor text = dark ? QColor(230, 230, 230) : QColor(Qt::white);
  QPalette palette(dark ? QColor(49, 54, 59) : QColor(Qt::black),
                   dark ? QColor(42, 46, 50) : QColor(Qt::black));
  palette.setColor(QPalette::Base, dark ? QColor(27, 30, 32) : QColor(Qt::black));
  palette.setColor(QPalette::Highlight, dark ? QColor(61, 174, 233) : QColor(Qt::yellow));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::BrightText, QPalette::ToolTipText}) {
    palette.setColor(QPalette::Active, role, text);
    palette.setColor(QPalette::Inactive, role, text);
  }
  return palette;
}

bool configureScreen(QTemporaryFile& file, const char* width, const char* height) {
  const QByteArray size = QByteArray(R"("width": )") + width + R"(, "height": )" + height;
  const QByteArray text = R"({"screens": [{"name": "one", "x": 0, "y": 0, )" + size + "}]}";
  return file.open() && file.write(text) > 0 && file.flush();
}

}  // namespace
}  // namespace velra::test

int main(int argc, char** argv) {
  QTemporaryFile screen;
  if (argc != 6 || !velra::test::configureScreen(screen, argv[2], argv[3])) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  velra::GuardedApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationName(QStringLiteral("velra"));
  QApplication::setPalette(velra::test::paletteOf(QString::fromLocal8Bit(argv[4])));
  QFont font = QApplication::font();
  font.setPointSize(QByteArray(argv[5]).toInt());
  QApplication::setFont(font);
  velra::test::Screens(QString::fromLocal8Bit(argv[1])).takeAll();
  return 0;
}

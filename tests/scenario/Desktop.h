// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QContextMenuEvent>
#include <QTest>
#include <QTreeView>
#include <memory>
#include <string>

#include "app/ApplicationModule.h"
#include "objects/AVDocument.h"
#include "platform/movie/MediaGraph.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "scenario/Hands.h"
#include "shell/Factory.h"
#include "shell/Start.h"
#include "shell/VideoForm.h"
#include "shell/frmMain.h"
#include "support/SampleFolder.h"
#include "widgets/ModalAnswer.h"
#include "widgets/QtText.h"
#include "widgets/QtUserInterface.h"
#include "widgets/forms/QtFormPresenter.h"
#include "widgets/main/MainFormWindow.h"
#include "widgets/tool/QtVideoForms.h"

namespace velra::test {

/// One run of the whole program with its real windows, over a copy of the sample.
class Desktop {
 public:
  explicit Desktop(InterfaceLanguage language = InterfaceLanguage::Default)
      : Desktop(std::make_shared<SampleFolder>(), language) {}
  /// A further run over a folder that an earlier one has worked in.
  explicit Desktop(std::shared_ptr<const SampleFolder> worked,
                   InterfaceLanguage language = InterfaceLanguage::Default)
      : folder_(std::move(worked)),
        settings_(folder / "machine.ini"),
        app{ui_, MessageCatalogue(language), settings_, userSettings_} {
    ui_.setMainWindow(&window);
    presenter_.setMainWindow(&window);
    rules.setDialogPresenter(&presenter_);
    settings_.write(ApplicationModule::kMachineSection, "XSDPath", data() + "/schema/velra.xsd");
    settings_.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath",
                    data() + "/ThematicKeywords.xml");
  }
  ~Desktop() {
    rules.tvwMainTree.clear();
    rules.tvwExpression.clear();
    app.gAVDoc.reset();
  }

  std::string sample() const { return folder / "sample/lighthouse.xml"; }

  void start(const std::string& commandLine) {
    Main(app, rules, commandLine, {[this] { window.show(); }, [this] { window.showSplash(); }});
  }

  QTreeView& view(const char* name) {
    auto* found = window.findChild<QTreeView*>(QLatin1String(name));
    if (!found) qFatal("no tree %s", name);
    found->expandAll();
    return *found;
  }
  /// Clicks the first node of the text with the left button.
  void click(const char* tree, const QString& text) {
    QTreeView& trees = view(tree);
    const QModelIndexList found =
        trees.model()->match(trees.model()->index(0, 0), Qt::DisplayRole, text, 1,
                             Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) qFatal("no node %s", qPrintable(text));
    trees.scrollTo(found.front());
    QTest::mouseClick(trees.viewport(), Qt::LeftButton, Qt::NoModifier,
                      seenOf(trees, found.front()).center());
  }
  /// Opens the context menu of a node as the right button does, and chooses an entry.
  void chooseFromMenu(const char* tree, const QString& text, const char* action) {
    click(tree, text);
    QTreeView& trees = view(tree);
    const QPoint place = seenOf(trees, trees.currentIndex()).center();
    QWidget& viewport = *trees.viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport.mapToGlobal(place));
    QCoreApplication::sendEvent(&viewport, &event);
    choose(action);
  }
  QStringList texts(const char* tree) {
    QStringList list;
    QTreeView& trees = view(tree);
    for (QModelIndex at = trees.model()->index(0, 0); at.isValid(); at = trees.indexBelow(at)) {
      list << at.data().toString();
    }
    return list;
  }
  void trigger(const char* action) {
    auto* found = window.findChild<QAction*>(QLatin1String(action));
    if (!found || !found->isEnabled()) qFatal("no open entry %s", action);
    found->trigger();
  }

  std::shared_ptr<const SampleFolder> sharedFolder() const { return folder_; }

 private:
  std::shared_ptr<const SampleFolder> folder_;

 public:
  const SampleFolder& folder = *folder_;

 private:
  static QRect seenOf(const QTreeView& trees, const QModelIndex& node) {
    return trees.visualRect(node) & trees.viewport()->rect();
  }
  static std::string data() { return VELRA_SOURCE_DIR "/data"; }

  QtUserInterface ui_;
  MachineSettings settings_;
  UserSettings userSettings_{folder / "user.ini"};

 public:
  ApplicationModule app;

 private:
  QtFormPresenter presenter_{app};
  QtVideoForms videoForms_{app, [this](FormOwner& owner) { return presenter_.windowOf(owner); }};
  VideoFormServices forExpressions_{app, makeMediaGraph, videoForms_};
  Factory factory_{app, presenter_,
                   [this] { return std::make_shared<VideoForm>(forExpressions_); }};

 public:
  frmMain rules{app};
  MainFormWindow window{app, rules};
};

}  // namespace velra::test

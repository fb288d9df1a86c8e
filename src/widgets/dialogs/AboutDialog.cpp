// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/AboutDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "shell/SystemInfo.h"
#include "widgets/ProgramVersion.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

constexpr double kTitleScale = 1.75;  // of the font of the others

}  // namespace

AboutDialog::AboutDialog(const ApplicationModule& app, QWidget* owner) : QDialog(owner), app_(app) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(toQString(app.LoadResString(Message::AboutTitle)));
  auto* column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  QLabel* title = addLabel("lblTitle", QCoreApplication::applicationName());
  QFont font = title->font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * kTitleScale);
  title->setFont(font);
  addLabel("lblVersion", programVersion());
  addLabel("lblDisclaimer", toQString(app.LoadResString(Message::Disclaimer)))->setWordWrap(true);
  addButtons();
}

QLabel* AboutDialog::addLabel(const char* name, const QString& text) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  layout()->addWidget(label);
  return label;
}

void AboutDialog::addButtons() {
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok =
      buttons->addButton(toQString(app_.LoadResString(Message::OK)), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  QPushButton* info = buttons->addButton(toQString(app_.LoadResString(Message::SystemInfo)),
                                         QDialogButtonBox::ActionRole);
  info->setObjectName(QStringLiteral("cmdSysInfo"));
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(info, &QPushButton::clicked, this, &AboutDialog::StartSysInfo);
  layout()->addWidget(buttons);
}

void AboutDialog::StartSysInfo() {
  const std::string tool = systemInfoTool(app_);
  if (tool.empty() || !QProcess::startDetached(pathToQString(tool), {})) {
    app_.ui.messageBox("System Information Is Unavailable At This Time");
  }
}

}  // namespace velra

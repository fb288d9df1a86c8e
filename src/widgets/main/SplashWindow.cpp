// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/SplashWindow.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>

#include "app/ApplicationModule.h"
#include "widgets/ProgramVersion.h"
#include "widgets/QtText.h"
#include "widgets/main/Icons.h"

namespace velra {

namespace {

constexpr int kCompanyProductPoints = 16;
constexpr int kProductNamePoints = 30;
constexpr int kPicturePixels = 96;
constexpr int kMargin = 24;
constexpr int kTextPixels = 360;

QLabel* newLabel(QWidget* parent, const char* name, const QString& text, int points = 0) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  if (points > 0) {
    QFont font = label->font();
    font.setPointSize(points);
    label->setFont(font);
  }
  return label;
}

QLabel* newPicture(QWidget* parent) {
  auto* picture = new QLabel(parent);
  picture->setObjectName(QStringLiteral("imgLogo"));
  picture->setAccessibleName(QCoreApplication::applicationName());
  picture->setPixmap(ownIcon(QStringLiteral("velra")).pixmap(kPicturePixels));
  return picture;
}

}  // namespace

SplashWindow::SplashWindow(const ApplicationModule& app, QWidget* owner)
    : QWidget(owner, Qt::SplashScreen | Qt::WindowDoesNotAcceptFocus) {
  setObjectName(QStringLiteral("frmSplash"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  const auto text = [&app](Message message) { return toQString(app.LoadResString(message)); };
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->addWidget(newPicture(this), 0, 0, 4, 1, Qt::AlignTop);
  QLabel* companyProduct =
      newLabel(this, "lblCompanyProduct", text(Message::ProductDescription), kCompanyProductPoints);
  companyProduct->setWordWrap(true);
  companyProduct->setMinimumWidth(kTextPixels);
  grid->addWidget(companyProduct, 0, 1);
  grid->addWidget(
      newLabel(this, "lblProductName", QCoreApplication::applicationName(), kProductNamePoints), 1,
      1);
  grid->addWidget(newLabel(this, "lblVersion", programVersion()), 2, 1);
  grid->addWidget(newLabel(this, "lblPlatform", text(Message::PlatformName)), 3, 1);
  grid->addWidget(newLabel(this, "lblCopyright", text(Message::Copyright)), 4, 1);
  grid->addWidget(newLabel(this, "lblLicenseTo", text(Message::Licence)), 5, 1);
  adjustSize();
  move(owner->screen()->availableGeometry().center() - rect().center());
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/ShotsDialogWindow.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "platform/movie/MediaGraph.h"
#include "shell/ShotsDialog.h"
#include "widgets/Announcer.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/TickState.h"

namespace velra {

namespace {

constexpr QSize kShotsSize(560, 520);  // logical pixels
constexpr QSize kShotPicture(128, 96);

QIcon iconOf(const PictureFrame& picture) {
  const QImage image(picture.pixels.data(), picture.width, picture.height, picture.width * 4,
                     QImage::Format_RGB32);
  const QPixmap pixmap = QPixmap::fromImage(image);
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);  // else it is tinted, and seen less
  return icon;
}

}  // namespace

ShotsDialogWindow::ShotsDialogWindow(const ApplicationModule& app, ShotsDialog& dialog,
                                     QWidget* owner)
    : QDialog(owner),
      app_(app),
      dialog_(dialog),
      lstShots_(new QListWidget(this)),
      announcer_(*new Announcer(this)) {
  setObjectName(QStringLiteral("ShotsDialog"));
  setWindowTitle(titleFromCaption(app.LoadResString(Message::FindShots)));
  lstShots_->setObjectName(QStringLiteral("lstShots"));
  lstShots_->setAccessibleName(windowTitle());
  lstShots_->setIconSize(kShotPicture);
  lstShots_->setUniformItemSizes(true);
  connect(lstShots_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    dialog_.setTicked(static_cast<std::size_t>(lstShots_->row(item)),
                      item->checkState() == Qt::Checked);
    announcer_.say(item->text() + QStringLiteral(": ") + tickState(item->checkState()));
  });
  auto* column = new QVBoxLayout(this);
  column->addWidget(makeSearch());
  column->addWidget(lstShots_);
  column->addWidget(makeButtons());
  fillList();
  resize(kShotsSize);
  dialog_.onUnload = [this] { done(Accepted); };
  dialog_.onRows = [this] { fillList(); };
}

ShotsDialogWindow::~ShotsDialogWindow() {
  dialog_.onUnload = nullptr;
  dialog_.onRows = nullptr;
}

QDoubleSpinBox* ShotsDialogWindow::addNumber(QLayout& row, const char* name, Message caption,
                                             double value, double most) {
  auto* number = new QDoubleSpinBox(this);
  number->setObjectName(QLatin1String(name));
  number->setRange(0, most);
  number->setDecimals(1);
  number->setSingleStep(0.5);
  number->setValue(value);
  auto* label = new QLabel(toQString(app_.LoadResString(caption)), this);
  label->setBuddy(number);
  row.addWidget(label);
  row.addWidget(number);
  return number;
}

QWidget* ShotsDialogWindow::makeSearch() {
  auto* panel = new QWidget(this);
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins({});
  numThreshold_ = addNumber(*row, "numThreshold", Message::ShotThreshold, dialog_.threshold(),
                            ShotsDialog::kMostThreshold);
  numShortest_ = addNumber(*row, "numShortest", Message::ShortestShot, dialog_.shortest(),
                           ShotsDialog::kLongestShortest);
  auto* search = new QPushButton(toQString(app_.LoadResString(Message::SearchAgain)), panel);
  search->setObjectName(QStringLiteral("cmdSearch"));
  search->setAutoDefault(false);
  connect(search, &QPushButton::clicked, this,
          [this] { dialog_.SearchButton_Click(numThreshold_->value(), numShortest_->value()); });
  row->addStretch();
  row->addWidget(search);
  return panel;
}

QWidget* ShotsDialogWindow::makeButtons() {
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* make = buttons->addButton(toQString(app_.LoadResString(Message::MakeSegments)),
                                         QDialogButtonBox::AcceptRole);
  make->setObjectName(QStringLiteral("cmdMakeSegments"));
  make->setDefault(true);
  QPushButton* cancel = buttons->addButton(toQString(app_.LoadResString(Message::Cancel)),
                                           QDialogButtonBox::RejectRole);
  cancel->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { dialog_.OKButton_Click(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &ShotsDialogWindow::reject);
  return buttons;
}

void ShotsDialogWindow::fillList() {
  const QSignalBlocker quiet(lstShots_);
  lstShots_->clear();
  for (const ShotsDialog::Row& row : dialog_.rows()) {
    auto* item = new QListWidgetItem(iconOf(*row.picture), toQString(row.text), lstShots_);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(row.ticked ? Qt::Checked : Qt::Unchecked);
  }
  lstShots_->setCurrentRow(0);
  lstShots_->setFocus();
}

void ShotsDialogWindow::reject() {
  dialog_.CancelButton_Click();
}

}  // namespace velra

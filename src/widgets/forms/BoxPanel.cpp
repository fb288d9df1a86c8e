// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/BoxPanel.h"

#include <QGroupBox>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "forms/FormFields.h"
#include "widgets/Twips.h"
#include "widgets/forms/FieldControls.h"

namespace velra {

namespace {

QRect pixelRect(const TwipsRect& twips) {
  return {pixelsFromTwips(twips.left), pixelsFromTwips(twips.top), pixelsFromTwips(twips.width),
          pixelsFromTwips(twips.height)};
}

}  // namespace

BoxPanel::BoxPanel(QWidget& form)
    : form_(form),
      Picture2_(new QWidget(&form)),
      Picture1_(new QWidget(Picture2_)),
      VScroll1_(new QScrollBar(Qt::Vertical, Picture2_)),
      HScroll1_(new QScrollBar(Qt::Horizontal, &form)) {
  Picture2_->setObjectName(QStringLiteral("Picture2"));
  Picture1_->setObjectName(QStringLiteral("Picture1"));
  VScroll1_->setObjectName(QStringLiteral("VScroll1"));
  HScroll1_->setObjectName(QStringLiteral("HScroll1"));
}

void BoxPanel::makeBoxes(const ApplicationModule& app, FormFields& fields,
                         CrossLanguageFields* crossLanguage, int extraHeight) {
  makeFrames(app, fields, crossLanguage, extraHeight);
  VScroll1_->raise();
  for (QScrollBar* bar : {VScroll1_, HScroll1_}) {
    bar->setSingleStep(form_layout::kSmallChange);
    bar->setFocusPolicy(Qt::NoFocus);
  }
  QObject::connect(VScroll1_, &QScrollBar::valueChanged, &form_,
                   [this](int value) { onScroll(static_cast<std::int16_t>(-value)); });
  QObject::connect(HScroll1_, &QScrollBar::valueChanged, &form_,
                   [this](int value) { Picture1_->move(pixelsFromTwips(-value), Picture1_->y()); });
}

// The Tab key takes the boxes as they are made: from slot to slot, whichever set stands on top.
void BoxPanel::makeFrames(const ApplicationModule& app, FormFields& fields,
                          CrossLanguageFields* crossLanguage, int extraHeight) {
  auto& boxes = fields.colControls();
  frames_.resize(boxes.size());
  for (std::size_t slot = 0; slot < kBoxesOfATab; ++slot) {
    for (std::size_t i = slot; i < boxes.size(); i += kBoxesOfATab) {
      frames_[i] = makeFieldFrame(boxes[i], crossLanguage, app, extraHeight, Picture1_);
    }
  }
  for (QGroupBox* frame : frames_) frame->raise();
}

int BoxPanel::vScrollWidth() const {
  return twipsFromPixels(VScroll1_->sizeHint().width());
}

int BoxPanel::hScrollHeight() const {
  return twipsFromPixels(HScroll1_->sizeHint().height());
}

void BoxPanel::setSize(const TwipsSize& size) {
  size_ = size;
  Picture1_->resize(pixelsFromTwips(size.width), pixelsFromTwips(size.height));
}

void BoxPanel::place(const FormPlaces& places, int lower) {
  Picture2_->setGeometry(pixelRect(places.viewport).translated(0, lower));
  VScroll1_->setGeometry(pixelRect(places.vScroll));
  VScroll1_->setVisible(places.vScrollVisible);
  HScroll1_->setGeometry(0, Picture2_->geometry().bottom() + 1, form_.width(),
                         HScroll1_->sizeHint().height());
  HScroll1_->setVisible(places.hScrollVisible);
  HScroll1_->setPageStep(twipsFromPixels(form_.width()));
  HScroll1_->setRange(0, -places.hScrollMax);
  vScrollMax_ = places.vScrollMax;
}

void BoxPanel::hideAllBoxes() {
  for (QGroupBox* frame : frames_) frame->hide();
}

void BoxPanel::showBoxes(const BoxRange& boxes) {
  for (int box = boxes.first; box <= boxes.last; ++box) {
    QGroupBox& frame = *frames_[static_cast<std::size_t>(box) - 1];
    frame.raise();
    frame.show();
  }
}

void BoxPanel::scrollTo(std::int16_t value) {
  Picture1_->move(Picture1_->x(), pixelsFromTwips(value));
  const QSignalBlocker quiet(VScroll1_);
  VScroll1_->setRange(0, std::max(0, -vScrollMax_));
  VScroll1_->setPageStep(twipsFromPixels(Picture2_->height()));
  VScroll1_->setValue(-value);
}

std::int16_t BoxPanel::scrollShowing(const QGroupBox& frame, std::int16_t value) const {
  return scrollToShow(value, twipsFromPixels(frame.y()), twipsFromPixels(frame.height()),
                      twipsFromPixels(Picture2_->height()), vScrollMax_);
}

}  // namespace velra

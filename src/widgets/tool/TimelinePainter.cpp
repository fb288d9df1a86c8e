// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/TimelinePainter.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "widgets/QtText.h"
#include "widgets/RuleColours.h"
#include "widgets/Twips.h"

namespace velra {

namespace {

constexpr double kBodyTwips = 375;
constexpr int kLeastWidth = 3;
constexpr int kEndWidth = 2;
constexpr int kBlinkLineHalf = 100;  // twips above and below the row's middle
const QColor kGround(248, 248, 246);
const QColor kGroundDisabled(214, 214, 212);
const QColor kGroundEdge(120, 120, 120);
const QColor kOutline(30, 30, 30);
constexpr int kBesideTitle = 5;   // pixels at both sides
constexpr int kTitleHeight = 17;  // pixels: what a range has above its line

// The desktop's, or as large as fits.
QFont titleFont(QFont font) {
  int size = QFontInfo(font).pixelSize();
  while (size > 1 && QFontMetrics(font).height() > kTitleHeight) font.setPixelSize(--size);
  return font;
}

}  // namespace

QRect TimelinePainter::markRect(const AdvancedSlider::Mark& mark) {
  const int body = pixelsFromTwips(kBodyTwips);
  const int left = pixelsFromTwips(mark.left);
  const int right = pixelsFromTwips(mark.left + mark.width);
  return {left, (kMarkRowHeight - body) / 2, std::max(kLeastWidth, right - left), body};
}

void TimelinePainter::paint(const AdvancedSlider& advsld) {
  paintGround(advsld);
  painter_.save();
  painter_.setClipRect(0, 0, widget_.width(), kMarkRowHeight);
  Placed placed;
  placed.reserve(advsld.marks().size());
  for (const AdvancedSlider::Mark& mark : advsld.marks()) placed.push_back({markRect(mark), &mark});
  for (const PlacedMark& one : placed) paintMark(one.body, *one.mark);
  paintTitles(std::move(placed));
  if (advsld.blinkLine().visible) paintBlinkLine(advsld.blinkLine());
  painter_.restore();
}

void TimelinePainter::paintGround(const AdvancedSlider& advsld) {
  painter_.setPen(kGroundEdge);
  painter_.setBrush(advsld.Enabled() ? kGround : kGroundDisabled);
  painter_.drawRect(0, 1, widget_.width() - 1, kMarkRowHeight - 3);
}

void TimelinePainter::paintMark(const QRect& body, const AdvancedSlider::Mark& mark) {
  const QColor colour = colourOf(mark.colour);
  const bool selected = mark.borderWidth == AdvancedSlider::kSelectedBorder;
  if (body.width() <= 2 * kEndWidth) {
    // The two ends are all of it. Thousands may be selected: their outline is what stays around
    // the inside.
    if (selected) painter_.fillRect(body, kOutline);
    painter_.fillRect(selected ? body.adjusted(1, 1, -1, -1) : body, colour);
    return;
  }
  QColor inside = colour;
  inside.setAlpha(selected ? 70 : 25);
  painter_.fillRect(body, inside);
  // The line of the span, as thick as its border, and an end at each side of it; the title has the
  // room above.
  painter_.fillRect(body.left(), body.bottom() + 1 - mark.borderWidth, body.width(),
                    mark.borderWidth, colour);
  painter_.fillRect(body.left(), body.top(), kEndWidth, body.height(), colour);
  painter_.fillRect(body.right() + 1 - kEndWidth, body.top(), kEndWidth, body.height(), colour);
  if (selected) paintOutline(body);
}

// Lines of a pen take several times as long.
void TimelinePainter::paintOutline(const QRect& body) {
  painter_.fillRect(body.left(), body.top(), body.width(), 1, kOutline);
  painter_.fillRect(body.left(), body.bottom(), body.width(), 1, kOutline);
  painter_.fillRect(body.left(), body.top(), 1, body.height(), kOutline);
  painter_.fillRect(body.right(), body.top(), 1, body.height(), kOutline);
}

// Ranges may overlap, and titles that do cannot be read: each ends where the next range begins.
void TimelinePainter::paintTitles(Placed inOrder) {
  const QFont font = titleFont(widget_.font());
  const QFontMetrics metrics(font);
  const int least = metrics.horizontalAdvance(QStringLiteral("MMM"));
  std::stable_sort(inOrder.begin(), inOrder.end(),
                   [](const auto& a, const auto& b) { return a.mark->left < b.mark->left; });
  painter_.setFont(font);
  painter_.setPen(kOutline);
  for (std::size_t i = 0; i < inOrder.size(); ++i) {
    QRect room = inOrder[i].body;
    if (i + 1 < inOrder.size()) {
      room.setRight(std::min(room.right(), inOrder[i + 1].body.left()));
    }
    room.adjust(kBesideTitle, 0, -kBesideTitle, -AdvancedSlider::kSelectedBorder);
    if (room.width() < least) continue;
    const QString title = metrics.elidedText(lineText(inOrder[i].mark->title).simplified(),
                                             Qt::ElideRight, room.width());
    painter_.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
  }
}

void TimelinePainter::paintBlinkLine(const BlinkLine& line) {
  const int half = pixelsFromTwips(kBlinkLineHalf);
  painter_.fillRect(pixelsFromTwips(line.x) - 1, kMarkRowHeight / 2 - half, 2, 2 * half,
                    colourOf(line.colour));
}

}  // namespace velra

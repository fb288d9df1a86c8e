// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/ToolPanel.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include "app/ApplicationModule.h"
#include "tool/ExpressionTool.h"
#include "widgets/QtText.h"
#include "widgets/Texts.h"
#include "widgets/picture/MoviePictures.h"
#include "widgets/picture/VideoPictureWidget.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/StripView.h"
#include "widgets/tool/ToolButtons.h"

namespace velra {

namespace {

constexpr int kLongParagraph = 2000;  // characters: more than two minutes of speech

}  // namespace

ToolPanel::ToolPanel(const ApplicationModule& app, ExpressionTool& tool, QWidget* parent)
    : QWidget(parent), tool_(tool), pictures_(new MoviePictures(this)) {
  controls_.picVideoWindow = new VideoPictureWidget(*pictures_, this);
  controls_.advsld = new AdvancedSliderWidget(tool.advsld, this);
  controls_.stripView = new StripView(tool.Framelist1, this);
  setObjectName(QStringLiteral("ToolPanel"));
  setAutoFillBackground(true);
  controls_.picVideoWindow->setObjectName(QStringLiteral("picVideoWindow"));
  controls_.advsld->setObjectName(QStringLiteral("advsld"));
  controls_.advsld->setTimeText(
      [&tool](double seconds) { return toQString(tool.player.TimeToText(seconds)); });
  makePlayer(app);
  makeTranscript();
  makeSegmentControls();
  makeTabOrder();
}

QPushButton* ToolPanel::makeButton(const char* name, const QString& caption, const char* toolTip,
                                   Command command, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(QLatin1String(toolTip));
  // Of a caption that is a sign, what is spoken is what it does.
  const bool isSign = !caption.contains(QRegularExpression(QStringLiteral("\\p{L}{3}")));
  const QString spoken = Texts::tr(toolTip);
  if (isSign) button->setAccessibleName(spoken);
  button->setAccessibleDescription(spoken);
  button->setAutoDefault(false);
  // A click leaves the focus where it is, so that the space bar plays on and does not press again.
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QPushButton::clicked, this, [this, command] { command(tool_); });
  return button;
}

void ToolPanel::makePlayer(const ApplicationModule& app) {
  controls_.BackButt = makeButton(
      "BackButt", toQString(app.LoadResString(Message::BackTip)),
      QT_TRANSLATE_NOOP("Texts", "To the parent (sub)expression"),
      [](ExpressionTool& tool) { tool.BackButt(); }, this);
  controls_.txtTime = new QLineEdit(QStringLiteral("00:00:00:00"), this);
  controls_.txtTime->setObjectName(QStringLiteral("txtTime"));
  controls_.txtTime->setToolTip(QStringLiteral("TimeCode"));
  controls_.txtTime->setAccessibleName(Texts::tr("TimeCode"));
  controls_.txtTime->setReadOnly(true);
  controls_.txtTime->setAlignment(Qt::AlignCenter);
  QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (font().pointSizeF() > 0) digits.setPointSizeF(font().pointSizeF());  // as large as the rest
  controls_.txtTime->setFont(digits);
  for (const ButtonLooks& looks : kPlayerButtons) {
    controls_.playerButtons << makeButton(looks.name, QLatin1String(looks.caption), looks.toolTip,
                                          looks.command, this);
  }
}

void ToolPanel::makeTranscript() {
  controls_.rtbTrans = new QPlainTextEdit(this);
  controls_.rtbTrans->setObjectName(QStringLiteral("rtbTrans"));
  controls_.rtbTrans->setAccessibleName(Texts::tr("Transcript"));
  controls_.rtbTrans->setReadOnly(true);
  controls_.rtbTrans->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                              Qt::TextSelectableByKeyboard);
  controls_.rtbTrans->setTabChangesFocus(true);
  controls_.rtbTrans->setUndoRedoEnabled(false);
}

void ToolPanel::makeSegmentControls() {
  controls_.VideoFrame = new QGroupBox(QStringLiteral("Segment controls"), this);
  controls_.VideoFrame->setObjectName(QStringLiteral("VideoFrame"));
  for (const ButtonLooks& looks : kSegmentButtons) {
    controls_.segmentButtons << makeButton(looks.name, QLatin1String(looks.caption), looks.toolTip,
                                           looks.command, controls_.VideoFrame);
  }
}

void ToolPanel::makeTabOrder() {
  QList<QWidget*> order{controls_.BackButt, controls_.txtTime};
  for (QPushButton* button : controls_.playerButtons) order << button;
  order << controls_.rtbTrans;
  for (QPushButton* button : controls_.segmentButtons) order << button;
  order << controls_.advsld << controls_.stripView->widget();
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void ToolPanel::focusFirst() {
  controls_.playerButtons.first()->setFocus(Qt::TabFocusReason);
}

void ToolPanel::showTimeCode(const QString& text) {
  controls_.txtTime->setText(text);
}

void ToolPanel::swapTimeCodeColours(bool swapped) {
  QPalette colours = palette();
  if (swapped) {
    const QColor ground = colours.color(QPalette::Base);
    colours.setColor(QPalette::Base, colours.color(QPalette::Text));
    colours.setColor(QPalette::Text, ground);
  }
  controls_.txtTime->setPalette(colours);
}

void ToolPanel::showTranscript(const QString& text) {
  controls_.rtbTrans->clear();
  appendTranscript(text);
}

// A paragraph is laid out as a whole for each new word, so that a long text is several of them.
void ToolPanel::appendTranscript(const QString& text) {
  QTextCursor end(controls_.rtbTrans->document());
  end.movePosition(QTextCursor::End);
  end.beginEditBlock();
  for (qsizetype at = 0; at < text.size();) {
    if (end.block().length() > kLongParagraph) end.insertBlock();
    const qsizetype blank = text.indexOf(QLatin1Char(' '), at + kLongParagraph);
    const qsizetype stop = blank < 0 ? text.size() : blank;
    end.insertText(text.mid(at, stop - at));
    at = stop;
  }
  end.endEditBlock();
  controls_.rtbTrans->verticalScrollBar()->setValue(
      controls_.rtbTrans->verticalScrollBar()->maximum());
}

QSize ToolPanel::leastSize() const {
  return ToolPanelLayout(*this, controls_).leastSize();
}

void ToolPanel::LayoutControls() {
  const ToolPanelLayout layout(*this, controls_);
  layout.placePlayerControls();
  layout.placeSegmentControls();
  controls_.advsld->fitRules();
  controls_.stripView->fit();
}

}  // namespace velra

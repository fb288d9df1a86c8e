// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/keys/ToolKeys.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>

#include "tool/ExpressionTool.h"
#include "widgets/QtText.h"
#include "widgets/ShiftArgument.h"
#include "widgets/picture/LargePicture.h"
#include "widgets/tool/FramelistWidget.h"

namespace velra {

namespace {

struct ToolKey {
  Qt::Key key;
  Qt::KeyboardModifier modifiers;
  bool repeats;  // while it is held down
  void (*act)(KeyCommands& commands);
};

void copyTimeCode(KeyCommands& commands) {
  const std::string text = commands.timeCode();
  if (!text.empty()) QGuiApplication::clipboard()->setText(toQString(text));
}

template <int Frames>
void stepFrames(KeyCommands& commands) {
  commands.tool().player.step(Frames);
}

template <void (SegmentEditor::*Command)()>
void editSegments(KeyCommands& commands) {
  (commands.tool().segments.*Command)();
}

template <void (KeyCommands::*Command)()>
void callCommand(KeyCommands& commands) {
  (commands.*Command)();
}

constexpr int kManyFrames = 10;

constexpr ToolKey kKeys[] = {
    {Qt::Key_Space, Qt::NoModifier, false,
     [](KeyCommands& commands) { commands.tool().player.PlayOrPause(); }},
    {Qt::Key_Left, Qt::NoModifier, true, stepFrames<-1>},
    {Qt::Key_Right, Qt::NoModifier, true, stepFrames<1>},
    {Qt::Key_Left, Qt::ShiftModifier, true, stepFrames<-kManyFrames>},
    {Qt::Key_Right, Qt::ShiftModifier, true, stepFrames<kManyFrames>},
    {Qt::Key_Left, Qt::ControlModifier, true, editSegments<&SegmentEditor::MoveToPreviousBound>},
    {Qt::Key_Right, Qt::ControlModifier, true, editSegments<&SegmentEditor::MoveToNextBound>},
    {Qt::Key_I, Qt::NoModifier, false, callCommand<&KeyCommands::takeFirstPoint>},
    {Qt::Key_O, Qt::NoModifier, false, callCommand<&KeyCommands::takeSecondPoint>},
    {Qt::Key_K, Qt::NoModifier, false, editSegments<&SegmentEditor::ChangeKeyFrame>},
    {Qt::Key_C, Qt::ControlModifier, false, copyTimeCode},
    {Qt::Key_G, Qt::ControlModifier, false, callCommand<&KeyCommands::askTimeCode>},
};

const ToolKey* toolKeyOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  for (const ToolKey& key : kKeys) {
    if (event.key() == key.key && modifiers == key.modifiers) return &key;
  }
  return nullptr;
}

bool isArrow(const ToolKey& key) {
  return key.key == Qt::Key_Left || key.key == Qt::Key_Right;
}

// One that is only read has no use for what would be typed into another.
template <class Box>
bool boxWants(const Box& box, bool selected, const ToolKey& key) {
  return !box.isReadOnly() || isArrow(key) || (key.act == copyTimeCode && selected);
}

bool isWantedBy(const QWidget& focused, const ToolKey& key) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&focused)) {
    return boxWants(*line, line->hasSelectedText(), key);
  }
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&focused)) {
    return boxWants(*text, text->textCursor().hasSelection(), key);
  }
  // The two that would do the same are no exception.
  if (qobject_cast<const QPushButton*>(&focused)) {
    return key.key == Qt::Key_Space && focused.objectName() != QLatin1String("cmdPlay") &&
           focused.objectName() != QLatin1String("cmdPause");
  }
  const bool walks =
      qobject_cast<const QTabBar*>(&focused) || qobject_cast<const FramelistWidget*>(&focused);
  return walks && isArrow(key) && key.modifiers != Qt::ControlModifier;
}

}  // namespace

ToolKeys::ToolKeys(const Windows& windows, ExpressionTool& tool, const ApplicationModule& app)
    : windows_(windows), commands_(tool, app) {
  // Of the whole program, since controls come while the window shows, such as rows of a set.
  QCoreApplication::instance()->installEventFilter(this);
}

// A key that its control does not take is offered to the controls around it too: it counts once,
// where the focus is.
bool ToolKeys::eventFilter(QObject* watched, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if (!isPress && event->type() != QEvent::KeyRelease) return false;
  const QWidget* inForm = windows_.form.focusWidget();
  const QWidget* focused = inForm ? inForm : &windows_.form;
  const bool large = watched == &windows_.picture;
  if (watched != focused && !large) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (!isPress) release(key, !large);
  if (large) return isPress && press(key, windows_.picture);
  return isPress && windows_.panel.isVisible() && (opensPicture(key) || press(key, *focused));
}

bool ToolKeys::opensPicture(const QKeyEvent& event) {
  const bool opens = event.key() == Qt::Key_F11 && event.modifiers() == Qt::NoModifier;
  if (opens) windows_.picture.present();
  return opens;
}

bool ToolKeys::press(const QKeyEvent& event, const QWidget& focused) {
  const ToolKey* key = toolKeyOf(event);
  if (!key || isWantedBy(focused, *key)) return false;
  if (key->repeats || !event.isAutoRepeat()) key->act(commands_);
  return true;
}

void ToolKeys::release(const QKeyEvent& event, bool inForm) {
  if (event.isAutoRepeat()) return;
  const int shift = shiftArgument(event.modifiers());
  ExpressionTool& tool = commands_.tool();
  if (event.key() == Qt::Key_Delete) tool.Form_KeyUp(ExpressionTool::kDeleteKey, shift);
  if (event.key() == Qt::Key_Escape && inForm) tool.Form_KeyUp(ExpressionTool::kEscKey, shift);
}

}  // namespace velra

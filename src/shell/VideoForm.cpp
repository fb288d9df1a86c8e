// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VideoForm.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "base/ScopedValue.h"
#include "forms/FormTabs.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"
#include "shell/LoadedVideoForm.h"
#include "shell/VideoFormFace.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

bool hasShowableTimes(const Expression& expression) {
  const auto span = expression.ckGetChunk();
  try {
    if (span) SplitTimeCode(span->dStart, 0);
    if (span) SplitTimeCode(span->dend, 0);
  } catch (const RunTimeError&) {
    return false;
  }
  return true;
}

// That of the first segment in which a time is too long, else that of the expression itself.
std::string fileOfTooLongTime(const Expression& expression) {
  for (const ExpressionRef& segment : expression.colSubExpressions()) {
    if (!hasShowableTimes(*segment)) return segment->strGUID();
  }
  return expression.strGUID();
}

}  // namespace

VideoForm::VideoForm(VideoFormServices& services) : services_(services) {}

VideoForm::~VideoForm() = default;

void VideoForm::setObject(const std::shared_ptr<DescribedObject>& object) {
  const auto expression = as<Expression>(object);
  if (object && !expression) raise(kTypeMismatch);
  obj_ = expression;
}

void VideoForm::Show(FormOwner& owner) {
  if (loaded_) return;
  const ExpressionRef obj = obj_.lock();
  if (!obj) raise(kNoObject);
  if (services_.wanted) {
    *services_.wanted = {this, obj, &owner};
    return;
  }
  // A walk through the tree is a loop, so that it may be as long as the person likes.
  Wanted at{this, obj, &owner};
  while (at.form) {
    const ExpressionRef next = at.form->showOnce(*at.owner);
    at = next ? formOf(next, owner) : Wanted{};
  }
}

ExpressionRef VideoForm::showOnce(FormOwner& owner) {
  if (!arrTabScroll_) arrTabScroll_ = std::make_unique<TabScroll>();
  const std::unique_ptr<VideoFormFace> face = services_.faces.makeVideoForm(owner);
  LoadedVideoForm form(services_, obj_.lock(), *arrTabScroll_, *face);
  const ScopedValue mark(loaded_, &form);
  if (!loads(form)) return nullptr;
  face->showModally();
  return form.next();
}

// A number that no cataloguer would type costs the form and not the program.
bool VideoForm::loads(LoadedVideoForm& form) {
  try {
    return form.Form_Load();
  } catch (const RunTimeError& error) {
    if (error.number() != kOverflow) throw;
    services_.app.ui.messageBox(fileOfTooLongTime(*obj_.lock()) +
                                    services_.app.LoadResString(Message::NumberNotShown) +
                                    error.description(),
                                BoxKind::Exclamation);
    return false;
  }
}

VideoForm::Wanted VideoForm::formOf(const ExpressionRef& obj, FormOwner& owner) {
  Wanted found;
  const ScopedValue mark(services_.wanted, &found);
  MainWindow* mainWindow = services_.app.gMainForm;
  obj->ShowForm(mainWindow ? *mainWindow : owner);
  return found;
}

void VideoForm::Unload() {
  if (loaded_) loaded_->Unload();
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ConnectionDialog.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "shell/DialogPresenter.h"

namespace velra {

ConnectionDialog::ConnectionDialog(ApplicationModule& app) : app_(app) {}

void ConnectionDialog::Show(DialogPresenter& presenter, FormOwner& owner) {
  load();
  presenter.showConnectionDialog(owner, *this);
  onUnload = nullptr;
}

// Filling the boxes counts as changing them, so the flag is cleared last.
void ConnectionDialog::load() {
  change(Box::Text1, settings_.strAddress);
  change(Box::Text2, std::to_string(settings_.iPort));
  change(Box::Text3, settings_.strName);
  change(Box::Text4, settings_.strHTTP);
  bChanged_ = false;
}

void ConnectionDialog::change(Box box, const std::string& text) {
  texts_[static_cast<std::size_t>(box)] = text;
  if (box == Box::Text2) {
    Text2_Change();
    return;
  }
  bChanged_ = true;
  if (box == Box::Text1) settings_.strAddress = text;
  if (box == Box::Text3) settings_.strName = text;
  if (box == Box::Text4) settings_.strHTTP = text;
}

void ConnectionDialog::Text2_Change() {
  const std::string& text = this->text(Box::Text2);
  if (text.empty()) return;  // on the way to another number
  const std::optional<double> number = toNumber(text);
  const double port = number ? std::floor(*number) : -1;
  if (port < 0) {
    restorePort();
  } else if (port <= std::numeric_limits<std::int16_t>::max()) {
    settings_.iPort = toInt16(port);
    bChanged_ = true;
  }
}

void ConnectionDialog::restorePort() {
  app_.ui.messageBox(app_.LoadResString(Message::PortNotPositive), BoxKind::Exclamation);
  const std::string last = std::to_string(settings_.iPort);
  // The store may hold a negative number, and to put the same text back changes nothing.
  if (text(Box::Text2) != last) change(Box::Text2, last);
}

void ConnectionDialog::OKButton_Click() {
  settings_.strAddress = text(Box::Text1);
  const std::optional<double> port = toNumber(text(Box::Text2));
  if (!port) raise(kTypeMismatch);
  settings_.iPort = toInt16(*port);
  settings_.strName = text(Box::Text3);
  settings_.strHTTP = text(Box::Text4);
  unload();
}

void ConnectionDialog::CancelButton_Click() {
  bChanged_ = false;
  unload();
}

void ConnectionDialog::unload() {
  if (onUnload) onUnload();
}

}  // namespace velra

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

#include "app/ApplicationModule.h"
#include "app/Message.h"

namespace velra {

class DialogPresenter;
class FormOwner;

/// Asks for the parameters of a server. One instance lives as long as the program.
class ConnectionDialog {
 public:
  explicit ConnectionDialog(ApplicationModule& app);

  /// The text boxes of the dialog, in the order of `kBoxes`.
  enum class Box : std::size_t { Text1, Text2, Text3, Text4 };
  struct BoxTexts {
    const char* name;
    Message caption;
    Message toolTip;
  };
  static constexpr std::array<BoxTexts, 4> kBoxes{
      {{"Text1", Message::ServerAddress, Message::ServerAddressTip},
       {"Text2", Message::Port, Message::PortTip},
       {"Text3", Message::Datamanager, Message::DatamanagerTip},
       {"Text4", Message::HttpServer, Message::HttpServerTip}}};

  /// strAddress, iPort, strName and strHTTP.
  const ConnectionSettings& settings() const { return settings_; }
  void setSettings(const ConnectionSettings& settings) { settings_ = settings; }

  /// Has anything been changed, and not cancelled, since the dialog was shown?
  bool bChanged() const { return bChanged_; }

  /// Shows the dialog with the settings and returns when it has closed.
  void Show(DialogPresenter& presenter, FormOwner& owner);

  /// What a box holds.
  const std::string& text(Box box) const { return texts_[static_cast<std::size_t>(box)]; }

  /// The text of a box has changed. A port that is negative or no number is refused with a message,
  /// and the box holds the last good one again.
  void change(Box box, const std::string& text);

  /// Takes all four boxes. A port that is empty or no number raises kTypeMismatch, one that does
  /// not fit into 16 bits kOverflow.
  void OKButton_Click();
  void CancelButton_Click();

  /// Closes the window; the face sets it.
  std::function<void()> onUnload;

 private:
  void load();
  void Text2_Change();
  void restorePort();
  void unload();

  ApplicationModule& app_;
  ConnectionSettings settings_;
  std::array<std::string, kBoxes.size()> texts_;
  bool bChanged_ = false;
};

}  // namespace velra

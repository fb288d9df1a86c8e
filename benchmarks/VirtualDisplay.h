// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <string>

namespace velra::bench {

/// An X server of one's own without a screen, which ends with this.
class VirtualDisplay {
 public:
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay&) = delete;
  VirtualDisplay& operator=(const VirtualDisplay&) = delete;

  /// As DISPLAY names it; "" where none could be started.
  const std::string& name() const { return name_; }

 private:
  QProcess server_;
  std::string name_;
};

}  // namespace velra::bench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace velra {

class ApplicationModule;

/// The greeting of the first two seconds.
class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  /// Stands in the middle of its owner's screen.
  SplashWindow(const ApplicationModule& app, QWidget* owner);
};

}  // namespace velra

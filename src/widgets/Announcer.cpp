// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/Announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

namespace velra {

namespace {

constexpr int kBetweenValues = 400;  // milliseconds

/// A part of the application, since those of a dialog are spoken with the dialog's name each time.
class AnnouncerAccess : public QAccessibleWidget {
 public:
  explicit AnnouncerAccess(Announcer* announcer)
      : QAccessibleWidget(announcer, QAccessible::Notification) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(QCoreApplication::instance());
  }
};

QAccessibleInterface* announcerAccess(const QString&, QObject* object) {
  auto* announcer = qobject_cast<Announcer*>(object);
  return announcer ? new AnnouncerAccess(announcer) : nullptr;
}

}  // namespace

Announcer::Announcer(QWidget* window) : QWidget(window) {
  QAccessible::installFactory(announcerAccess);  // once, however often it is called
  setObjectName(QStringLiteral("announcer"));
  hide();  // or it would be spoken, without a sentence, when its window appears
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, [this] { say(waiting_); });
}

void Announcer::say(const QString& sentence) {
  later_.stop();
  sinceSaid_.start();
  setAccessibleName(sentence);
  QAccessibleEvent appears(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appears);
  Q_EMIT said(sentence);
}

void Announcer::sayOften(const QString& value) {
  waiting_ = value;
  if (later_.isActive()) return;
  const qint64 passed = sinceSaid_.isValid() ? sinceSaid_.elapsed() : kBetweenValues;
  later_.start(static_cast<int>(qMax<qint64>(0, kBetweenValues - passed)));
}

}  // namespace velra

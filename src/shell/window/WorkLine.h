#pragma once

#include "library/LongWork.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// What the window shows of work that takes long. Main thread.
class WorkLine : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // Empty while there is none.
  Q_PROPERTY(QString text READ text NOTIFY textChanged)
  // From 0 to 1; 0 while nobody knows.
  Q_PROPERTY(double share READ share NOTIFY shareChanged)

 public:
  // Borrows it.
  explicit WorkLine(LongWork& work, QObject* parent = nullptr) : QObject(parent), work_(work) {
    connect(&work, &LongWork::textChanged, this, &WorkLine::textChanged);
    connect(&work, &LongWork::shareChanged, this, &WorkLine::shareChanged);
  }

  QString text() const { return work_.text(); }
  double share() const { return work_.share(); }
  Q_INVOKABLE void cancel() { work_.cancel(); }

 signals:
  void textChanged();
  void shareChanged();

 private:
  LongWork& work_;
};

}  // namespace tarnloft

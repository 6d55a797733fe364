#pragma once

#include <QMutex>
#include <QSet>
#include <QString>

namespace tarnloft {

// The packages that are shown without their fonts and pictures, as these may have ended the
// program: whoever would decode one of their files asks first. Any thread.
class PlainBrands {
 public:
  bool contains(const QString& packageURL) const {
    const QMutexLocker locker(&mutex_);
    return packages_.contains(packageURL);
  }
  void add(const QString& packageURL) {
    const QMutexLocker locker(&mutex_);
    packages_.insert(packageURL);
  }
  void remove(const QString& packageURL) {
    const QMutexLocker locker(&mutex_);
    packages_.remove(packageURL);
  }

 private:
  mutable QMutex mutex_;
  QSet<QString> packages_;
};

}  // namespace tarnloft

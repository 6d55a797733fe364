#pragma once

#include "platform/desktop/PosixFileStore.h"

#include <QFileInfo>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QWaitCondition>

namespace tarnloft {

// The real disk, on which copies of named files wait until the test lets them go.
class HeldStore : public PosixFileStore {
 public:
  void hold(const QString& name) {
    const QMutexLocker lock(&mutex_);
    held_.insert(name);
  }
  void release(const QString& name) {
    const QMutexLocker lock(&mutex_);
    held_.remove(name);
    changed_.wakeAll();
  }
  // Copies that the main thread made itself.
  int onMainThread = 0;

  Result<void> copyFile(const QString& source, const QString& target) override {
    if (QThread::currentThread() == main_) ++onMainThread;
    {
      QMutexLocker lock(&mutex_);
      while (held_.contains(QFileInfo(source).fileName())) changed_.wait(&mutex_);
    }
    return PosixFileStore::copyFile(source, target);
  }

 private:
  QThread* const main_ = QThread::currentThread();
  QMutex mutex_;
  QWaitCondition changed_;
  QSet<QString> held_;
};

}  // namespace tarnloft

#pragma once

#include "platform/desktop/files/PosixFileStore.h"

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
  mutable int onMainThread = 0;

  Result<void> copyFile(const QString& source, const QString& target) override {
    await(source);
    return PosixFileStore::copyFile(source, target);
  }
  Result<std::shared_ptr<OpenFolder>> openFolder(const QString& path,
                                                 const QString& root) const override {
    return PosixFileStore::openFolder(path, root)
        .map([this](auto folder) -> std::shared_ptr<OpenFolder> {
          return std::make_shared<Folder>(*this, std::move(folder));
        });
  }

 private:
  class Folder : public OpenFolder {
   public:
    Folder(const HeldStore& store, std::shared_ptr<OpenFolder> inner)
        : store_(store), inner_(std::move(inner)) {}
    Result<void> copyIn(const QString& source, const QString& name, Progress& progress) override {
      store_.await(source);
      return inner_->copyIn(source, name, progress);
    }
    Result<void> writeIn(QByteArrayView bytes, const QString& name) override {
      return inner_->writeIn(bytes, name);
    }
    Result<QString> path() const override { return inner_->path(); }

   private:
    const HeldStore& store_;
    std::shared_ptr<OpenFolder> inner_;
  };

  void await(const QString& source) const {
    if (QThread::currentThread() == main_) ++onMainThread;
    QMutexLocker lock(&mutex_);
    while (held_.contains(QFileInfo(source).fileName())) changed_.wait(&mutex_);
  }

  QThread* const main_ = QThread::currentThread();
  mutable QMutex mutex_;
  mutable QWaitCondition changed_;
  QSet<QString> held_;
};

}  // namespace tarnloft

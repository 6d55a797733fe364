#pragma once

#include "assets/AssetSpec.h"
#include "assets/BackgroundWork.h"
#include "platform/FileStore.h"
#include "platform/Images.h"
#include "platform/Videos.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Gives views what files tell of themselves, read in the background. Keeps nothing. Borrows what it
// is given. Main thread.
class AssetSpecs : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")

 public:
  enum class Kind {
    Image,
    Video,
    File  // its form and its size alone
  };
  Q_ENUM(Kind)

  AssetSpecs(const FileStore& files, Images& images, Videos& videos, BackgroundWork& work,
             QObject* parent = nullptr)
      : QObject(parent), files_(files), images_(images), videos_(videos), work_(work) {}

  // The task can be dropped until `done` is called.
  BackgroundWork::TaskPtr read(Kind kind, const QString& path,
                               std::function<void(const AssetSpec& spec)> done);

 private:
  const FileStore& files_;
  Images& images_;
  Videos& videos_;
  BackgroundWork& work_;
};

}  // namespace tarnloft

#pragma once

#include "assets/ThumbnailLoader.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The door of views to the one loader of small pictures; handed from view to view. Borrows it.
class Thumbnails : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")

 public:
  explicit Thumbnails(ThumbnailLoader& loader, QObject* parent = nullptr)
      : QObject(parent), loader_(loader) {}

  ThumbnailLoader& loader() const { return loader_; }
  // Files that could not be read may be read now.
  void retry() { emit retried(); }

 signals:
  void retried();

 private:
  ThumbnailLoader& loader_;
};

}  // namespace tarnloft

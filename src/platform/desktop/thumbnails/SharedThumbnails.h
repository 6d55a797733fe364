#pragma once

#include "platform/ThumbnailStore.h"

#include <QThreadPool>

#include <atomic>
#include <chrono>

namespace tarnloft {

// The folders of thumbnails that the desktop's programs share, by the freedesktop.org thumbnail
// managing standard, version 0.9. Written by a thread of its own, whose end forgets what waits.
class SharedThumbnails : public ThumbnailStore {
 public:
  // "$XDG_CACHE_HOME/thumbnails", or where that stands without it.
  static QString sharedFolder();

  explicit SharedThumbnails(QString folder = sharedFolder());
  ~SharedThumbnails() override;
  Q_DISABLE_COPY_MOVE(SharedThumbnails)

  std::optional<QImage> find(const QString& path, Size size, Maker maker) const override;
  void keep(const QString& path, Size size, const QImage& picture) override;

  // Forgets what hasn't begun and waits for what has, at most so long; false if it still runs.
  bool finish(std::chrono::milliseconds patience);

  // As GLib writes it, since its hash is the thumbnail's name.
  static QByteArray uriOf(const QString& path);

 private:
  QString fileOf(const QByteArray& uri, Size size) const;

  const QString folder_;
  std::atomic<int> waiting_ = 0;
  QThreadPool writer_;  // the last member: its thread uses the others
};

}  // namespace tarnloft

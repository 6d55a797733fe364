#pragma once

#include "platform/Images.h"

#include <QMutex>
#include <QSemaphore>
#include <QStringList>

#include <functional>

namespace tarnloft {

// Pictures that need no files. Each slow call is noted as it begins and goes on when the test opens
// the gate for it. Any thread.
class GatedImages : public Images {
 public:
  std::optional<ImageProperties> properties(const QString&) override { return told; }
  std::optional<QSizeF> vectorSize(const QString&) override { return toldVectorSize; }

  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override {
    pass(QString("%1 %2").arg(path).arg(maxPixel));
    if (path.startsWith("bad")) return std::nullopt;
    return QImage(maxPixel, 1, QImage::Format_RGB32);
  }

  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override {
    const auto name = rawValue(format);
    pass("%1 %2 %3x%4 %5".arg(path, QString::fromLatin1(name.data(), qsizetype(name.size())))
             .arg(size.width())
             .arg(size.height())
             .arg(quality));
    if (path.startsWith("bad")) return std::nullopt;
    return QByteArray(size.width() * 1000, 'x');
  }

  // Lets so many calls through, those to come included.
  void open(int calls) { gate_.release(calls); }
  // Returns once so many calls have begun since the start.
  void awaitBegun(int calls) {
    begunSignal_.acquire(calls - awaited_);
    awaited_ = calls;
  }
  QStringList begun() const {
    const QMutexLocker lock(&mutex_);
    return begun_;
  }

  std::optional<ImageProperties> told;
  std::optional<QSizeF> toldVectorSize;

 private:
  void pass(const QString& call) {
    {
      const QMutexLocker lock(&mutex_);
      begun_ << call;
    }
    begunSignal_.release();
    gate_.acquire();
  }

  mutable QMutex mutex_;
  QStringList begun_;
  QSemaphore gate_, begunSignal_;
  int awaited_ = 0;
};

}  // namespace tarnloft

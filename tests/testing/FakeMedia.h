#pragma once

#include "platform/ClipPlayer.h"
#include "platform/Images.h"
#include "platform/Videos.h"

#include <QColor>
#include <QMutex>
#include <QSemaphore>
#include <QStringList>

#include <functional>

namespace tarnloft {

// Pictures that need no files: of the colour that is the path, else red, and twice as wide as high.
// There is none behind a path with "bad", "broken" or "missing" in it. Each slow call is noted as
// it begins; behind a closed gate it goes on when the test opens it. Any thread.
class FakeImages : public Images {
 public:
  std::optional<ImageProperties> told;
  std::optional<QSizeF> toldVectorSize;
  std::function<QByteArray(ExportFormat, QSize)> converted = [](ExportFormat, QSize size) {
    return QByteArray(size.width() * 1000, 'x');
  };

  std::optional<ImageProperties> properties(const QString& path) override {
    return isAbsent(path) ? std::nullopt : told;
  }
  std::optional<QSizeF> vectorSize(const QString&) override { return toldVectorSize; }
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override {
    pass(QString("%1 %2").arg(path).arg(maxPixel));
    if (isAbsent(path)) return std::nullopt;
    QImage image(maxPixel, maxPixel / 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::isValidColor(path) ? QColor(path) : Qt::red);
    return image;
  }
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override {
    const auto name = rawValue(format);
    pass(QString("%1 %2 %3x%4 %5")
             .arg(path, QString::fromLatin1(name.data(), qsizetype(name.size())))
             .arg(size.width())
             .arg(size.height())
             .arg(quality));
    return isAbsent(path) ? std::nullopt : std::optional(converted(format, size));
  }

  void close() { gate_.acquire(gate_.available()); }
  // Lets so many calls through, those to come included.
  void open(int calls = many) { gate_.release(calls); }
  // Returns once so many calls have begun since the start.
  void awaitBegun(int calls) {
    begunSignal_.acquire(calls - awaited_);
    awaited_ = calls;
  }
  // As "path 64", or "path jpeg 8x6 0.85".
  QStringList begun() const {
    const QMutexLocker lock(&mutex_);
    return begun_;
  }

 private:
  static constexpr int many = 1'000'000;

  static bool isAbsent(const QString& path) {
    return path.contains("bad") || path.contains("broken") || path.contains("missing");
  }
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
  QSemaphore gate_{many}, begunSignal_;
  int awaited_ = 0;
};

// Clips of blue frames; none behind a path with "broken" in it.
class FakeVideos : public Videos {
 public:
  std::optional<VideoProperties> told;

  std::optional<VideoProperties> properties(const QString&) override { return told; }
  std::optional<QImage> frame(const QString& path, double /*seconds*/, int maxPixel) override {
    if (path.contains("broken")) return std::nullopt;
    QImage image(maxPixel, maxPixel, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image;
  }
};

// Plays no clip, and does what it is told to. Main thread.
class FakeClips : public ClipPlayers {
 public:
  struct Player : ClipPlayer {
    FakeClips& clips;
    std::function<void()> tell;
    ClipStatus now{.state = ClipStatus::State::open, .hasPictures = true, .duration = 60};
    double volume = 1;
    int steps = 0;
    QSize room;
    QImage image;

    Player(FakeClips& of, std::function<void()> changed) : clips(of), tell(std::move(changed)) {
      clips.player = this;
    }
    ~Player() override { clips.player = nullptr; }
    Q_DISABLE_COPY_MOVE(Player)

    void set(const std::function<void(ClipStatus&)>& change) {
      change(now);
      tell();
    }
    void show(const QImage& picture) {
      image = picture;
      set([](ClipStatus& status) { ++status.pictures; });
    }
    void play() override {
      set([](ClipStatus& status) { status.isPlaying = true; });
    }
    void pause() override {
      set([](ClipStatus& status) { status.isPlaying = false; });
    }
    void seek(double seconds) override {
      set([&](ClipStatus& status) { status.position = qBound(0.0, seconds, status.duration); });
    }
    void step(Step step) override { steps += step == Step::forth ? 1 : -1; }
    void setVolume(double loudness) override { volume = loudness; }
    void setRoom(QSize pixels) override { room = pixels; }
    ClipStatus status() const override { return now; }
    QImage picture() const override { return image; }
  };

  Player* player = nullptr;  // the one that was opened last, while it is there
  QString path;

  std::unique_ptr<ClipPlayer> open(const ClipSource& source,
                                   std::function<void()> changed) override {
    path = source.path;
    return std::make_unique<Player>(*this, std::move(changed));
  }
  bool finish(std::chrono::milliseconds) override { return player == nullptr; }
};

}  // namespace tarnloft

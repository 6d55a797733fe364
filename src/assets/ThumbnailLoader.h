#pragma once

#include "assets/BackgroundWork.h"
#include "platform/Images.h"

#include <QCache>
#include <QHash>

namespace tarnloft {

// Small pictures of files, decoded at their size in the background and kept: one for the whole
// process. A file's path stands for its content, so a file must never be rewritten. Main thread.
class ThumbnailLoader {
  struct Job;

 public:
  // The picture, its longer side at most the size asked for, or none if the file can't be read.
  using Done = std::function<void(const std::optional<QImage>& image)>;

  // One requester's interest; its end withdraws the request. May outlive the loader.
  class Request {
   public:
    Request() = default;
    Request(Request&& other) noexcept;
    Request& operator=(Request&& other) noexcept;
    ~Request() { cancel(); }
    Q_DISABLE_COPY(Request)

    // `Done` is not called any more. A decode that nobody wants and that hasn't begun is dropped;
    // one that has begun is finished and kept.
    void cancel();

   private:
    friend class ThumbnailLoader;
    Request(std::weak_ptr<Job> job, int waiter) : job_(std::move(job)), waiter_(waiter) {}

    std::weak_ptr<Job> job_;
    int waiter_ = 0;
  };

  // Both outlive the loader, and every decode that it started.
  ThumbnailLoader(Images& images, BackgroundWork& work);
  ~ThumbnailLoader();
  Q_DISABLE_COPY_MOVE(ThumbnailLoader)

  // A picture that is kept comes at once, before this returns. Files that can't be read are tried
  // anew each time.
  [[nodiscard]] Request thumbnail(const QString& path, int maxPixel, Done done);

  static constexpr int cacheLimit = 512;

 private:
  std::shared_ptr<Job> jobFor(const QString& path, int maxPixel);
  void finish(Job& job, const std::optional<QImage>& image);
  void abandon(Job& job);

  Images& images_;
  BackgroundWork& work_;
  QCache<QString, QImage> cache_{cacheLimit};
  QHash<QString, std::shared_ptr<Job>> jobs_;  // asked for and not yet there
};

}  // namespace tarnloft

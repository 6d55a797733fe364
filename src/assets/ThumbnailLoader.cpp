#include "assets/ThumbnailLoader.h"

#include <deque>
#include <utility>

namespace tarnloft {

struct ThumbnailLoader::Job {
  struct Waiter {
    int id;
    Done done;
  };

  ThumbnailLoader* loader;  // null once it has gone
  QString key;
  BackgroundWork::TaskPtr task;
  std::deque<Waiter> waiters;
  int nextWaiter = 0;
};

namespace {

QString keyOf(const QString& path, int maxPixel) {
  return path + QLatin1Char('|') + QString::number(maxPixel);
}

}  // namespace

ThumbnailLoader::Request::Request(Request&& other) noexcept
    : job_(std::exchange(other.job_, {})), waiter_(other.waiter_) {}

ThumbnailLoader::Request& ThumbnailLoader::Request::operator=(Request&& other) noexcept {
  if (this == &other) return *this;
  cancel();
  job_ = std::exchange(other.job_, {});
  waiter_ = other.waiter_;
  return *this;
}

void ThumbnailLoader::Request::cancel() {
  const auto job = std::exchange(job_, {}).lock();
  if (!job) return;
  std::erase_if(job->waiters, [&](const Job::Waiter& waiter) { return waiter.id == waiter_; });
  if (job->waiters.empty() && job->loader) job->loader->abandon(*job);
}

ThumbnailLoader::ThumbnailLoader(Images& images, BackgroundWork& work)
    : images_(images), work_(work) {}

ThumbnailLoader::~ThumbnailLoader() {
  for (const auto& job : std::as_const(jobs_)) {
    job->loader = nullptr;
    job->task->drop();
  }
}

ThumbnailLoader::Request ThumbnailLoader::thumbnail(const QString& path, int maxPixel, Done done) {
  if (const QImage* image = cache_.object(keyOf(path, maxPixel))) {
    done(QImage(*image));  // a copy, as the callee may ask for more and so evict it
    return {};
  }
  const auto job = jobFor(path, maxPixel);
  const int waiter = job->nextWaiter++;
  job->waiters.push_back({waiter, std::move(done)});
  return {job, waiter};
}

std::shared_ptr<ThumbnailLoader::Job> ThumbnailLoader::jobFor(const QString& path, int maxPixel) {
  const QString key = keyOf(path, maxPixel);
  if (auto wanted = jobs_.value(key)) {
    wanted->task->raise();
    return wanted;
  }
  auto job = std::make_shared<Job>(Job{this, key, {}, {}, 0});
  const auto image = std::make_shared<std::optional<QImage>>();
  job->task = work_.start(
      [&images = images_, path, maxPixel, image] { *image = images.thumbnail(path, maxPixel); },
      [weak = std::weak_ptr(job), image] {
        const auto wanted = weak.lock();
        if (wanted && wanted->loader) wanted->loader->finish(*wanted, *image);
      });
  jobs_.insert(key, job);
  return job;
}

void ThumbnailLoader::finish(Job& job, const std::optional<QImage>& image) {
  job.loader = nullptr;
  jobs_.remove(job.key);
  if (image) cache_.insert(job.key, new QImage(*image));
  while (!job.waiters.empty()) {
    const Done done = std::move(job.waiters.front().done);
    job.waiters.pop_front();
    done(image);
  }
}

void ThumbnailLoader::abandon(Job& job) {
  if (!job.task->drop()) return;
  job.loader = nullptr;
  jobs_.remove(job.key);
}

}  // namespace tarnloft

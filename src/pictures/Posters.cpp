#include "pictures/Posters.h"

#include <utility>

namespace tarnloft {

Posters::Request& Posters::Request::operator=(Request&& other) noexcept {
  if (this == &other) return *this;
  cancel();
  task_ = std::move(other.task_);
  done_ = std::move(other.done_);
  return *this;
}

void Posters::Request::cancel() {
  if (const auto done = std::exchange(done_, {})) *done = nullptr;
  if (const auto task = std::exchange(task_, {})) task->drop();
}

Posters::Request Posters::poster(const QString& path, Done done) {
  Request request;
  request.done_ = std::make_shared<Done>(std::move(done));
  const auto frame = std::make_shared<std::optional<QImage>>();
  request.task_ = work_.start([&videos = videos_, path,
                               frame] { *frame = videos.frame(path, posterSeconds, posterPixels); },
                              [frame, waiting = request.done_] {
                                // Taken out first: what it does may end the request.
                                if (const Done taken = std::exchange(*waiting, nullptr))
                                  taken(*frame);
                              });
  return request;
}

}  // namespace tarnloft

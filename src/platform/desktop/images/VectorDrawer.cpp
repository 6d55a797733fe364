#include "platform/desktop/images/VectorDrawer.h"

#include "platform/desktop/images/VectorWorker.h"

namespace tarnloft {

struct VectorDrawer::Answer {
  QSizeF points;
  QImage image;  // null if only the size was asked for
};

namespace {

VectorRequest requestFor(VectorKind kind, VectorAction action, const QByteArray& file,
                         QSize size = {}) {
  return {kind, action, size.width(), size.height(), std::uint64_t(file.size())};
}

bool isSound(const VectorReply& reply) {
  return reply.pointsWidth > 0 && reply.pointsHeight > 0 && reply.width >= 0 && reply.height >= 0 &&
         std::int64_t(reply.width) * reply.height <= vectorLimits::pixels;
}

}  // namespace

VectorDrawer::VectorDrawer(QString program) : program_(std::move(program)) {}

VectorDrawer::~VectorDrawer() = default;

std::optional<QSizeF> VectorDrawer::measure(VectorKind kind, const QByteArray& file) {
  const auto answer = ask(requestFor(kind, VectorAction::measure, file), file);
  return answer ? std::optional(answer->points) : std::nullopt;
}

std::optional<QImage> VectorDrawer::fit(VectorKind kind, const QByteArray& file, int maxPixel) {
  return draw(requestFor(kind, VectorAction::fit, file, {maxPixel, maxPixel}), file);
}

std::optional<QImage> VectorDrawer::stretch(VectorKind kind, const QByteArray& file, QSize size) {
  return draw(requestFor(kind, VectorAction::stretch, file, size), file);
}

std::optional<QImage> VectorDrawer::draw(const VectorRequest& request, const QByteArray& file) {
  auto answer = ask(request, file);
  return answer && !answer->image.isNull() ? std::optional(std::move(answer->image)) : std::nullopt;
}

std::optional<VectorDrawer::Answer> VectorDrawer::ask(const VectorRequest& request,
                                                      const QByteArray& file) {
  if (request.fileBytes > vectorLimits::fileBytes) return std::nullopt;
  auto worker = takeWorker();
  if (!worker) return std::nullopt;
  VectorReply reply;
  worker->begin(std::chrono::seconds(vectorLimits::wallSeconds));
  if (!worker->send(&request, sizeof request) || !worker->send(file.constData(), file.size()) ||
      !worker->receive(&reply, sizeof reply)) {
    return std::nullopt;  // and the worker ends
  }
  Answer answer{{reply.pointsWidth, reply.pointsHeight}, {}};
  const bool sound = isSound(reply);
  if (sound && reply.width > 0 && reply.height > 0) {
    answer.image = QImage(reply.width, reply.height, QImage::Format_ARGB32_Premultiplied);
    // Rows of 4-byte pixels have no padding.
    if (answer.image.isNull() ||
        !worker->receive(answer.image.bits(), qint64(answer.image.sizeInBytes()))) {
      return std::nullopt;
    }
  }
  keep(std::move(worker));
  return sound ? std::optional(std::move(answer)) : std::nullopt;
}

std::unique_ptr<VectorWorker> VectorDrawer::takeWorker() {
  for (;;) {
    std::unique_ptr<VectorWorker> worker;
    {
      const QMutexLocker lock(&mutex_);
      if (idle_.empty()) break;
      worker = std::move(idle_.back());
      idle_.pop_back();
    }
    if (worker->isAlive()) return worker;
  }
  return VectorWorker::start(program_);
}

void VectorDrawer::keep(std::unique_ptr<VectorWorker> worker) {
  constexpr int requestsEach = 200;  // what its libraries leak stays bounded
  if (worker->requests() >= requestsEach) return;
  const QMutexLocker lock(&mutex_);
  idle_.push_back(std::move(worker));
}

}  // namespace tarnloft

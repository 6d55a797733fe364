#include "library/LongWork.h"

#include <algorithm>

namespace tarnloft {

using namespace std::chrono_literals;

LongWork::LongWork() {
  look_.setInterval(100ms);
  connect(&look_, &QTimer::timeout, this, &LongWork::look);
}

std::shared_ptr<Progress> LongWork::begin(const QString& text) {
  auto progress = std::make_shared<Progress>();
  begin(progress, text);
  return progress;
}

void LongWork::begin(const std::shared_ptr<Progress>& progress, const QString& text) {
  pieces_.push_back({text, progress, std::chrono::steady_clock::now()});
  look_.start();
}

void LongWork::end(const std::shared_ptr<Progress>& progress) {
  const bool wasTold = isTold_ && pieces_.front().progress == progress;
  std::erase_if(pieces_, [&](const Piece& piece) { return piece.progress == progress; });
  if (pieces_.empty()) look_.stop();
  if (!wasTold) return;
  isTold_ = false;
  look();
  emit textChanged();
}

void LongWork::look() {
  if (pieces_.empty()) return;
  const bool isLong = std::chrono::steady_clock::now() - pieces_.front().begun >= 1s;
  if (isLong && !std::exchange(isTold_, true)) emit textChanged();
  if (isTold_) emit shareChanged();
}

QString LongWork::text() const { return isTold_ ? pieces_.front().text : QString(); }

double LongWork::share() const { return isTold_ ? pieces_.front().progress->share() : 0; }

void LongWork::cancel() {
  if (isTold_) pieces_.front().progress->cancel();
}

}  // namespace tarnloft

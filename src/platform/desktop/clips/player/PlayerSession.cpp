#include "platform/desktop/clips/player/PlayerSession.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

ClipStatus PlayerSession::statusLocked() const {
  return {.state = state,
          .hasPictures = hasPictures,
          .hasSound = hasSound,
          .isPlaying = isPlaying,
          .isWaiting = isWaiting,
          .position = moment,
          .duration = std::max(duration, toldDuration),
          .pictures = shownCount};
}

void PlayerSession::close() {
  setListener(nullptr);
  isClosed = true;
  const QMutexLocker lock(&mutex);
  forReader.wakeAll();
  forPresenter.wakeAll();
}

void PlayerSession::setListener(std::function<void()> changed) {
  const QMutexLocker lock(&listenerMutex_);
  changed_ = std::move(changed);
}

void PlayerSession::tell() {
  const QMutexLocker lock(&listenerMutex_);
  if (changed_) changed_();
}

}  // namespace tarnloft

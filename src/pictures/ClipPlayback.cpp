#include "pictures/ClipPlayback.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

ClipPlayback::ClipPlayback(ClipPlayers& players, const QString& path)
    : player_(players.open({path}, [this] {
        if (!isFollowing_.exchange(true))
          QMetaObject::invokeMethod(this, &ClipPlayback::follow, Qt::QueuedConnection);
      })) {
  status_ = player_->status();
}

void ClipPlayback::follow() {
  isFollowing_ = false;
  const ClipStatus before = std::exchange(status_, player_->status());
  if (status_.pictures != before.pictures) emit pictureChanged();
  emit changed();
}

bool ClipPlayback::isSoundAlone() const {
  return status_.state == ClipStatus::State::open && !status_.hasPictures;
}

void ClipPlayback::toggle() { player_->status().isPlaying ? pause() : play(); }

void ClipPlayback::stepForth() {
  if (!player_->status().isPlaying) player_->step(ClipPlayer::Step::forth);
}

void ClipPlayback::stepBack() {
  if (!player_->status().isPlaying) player_->step(ClipPlayer::Step::back);
}

void ClipPlayback::setVolume(double volume) {
  volume_ = std::clamp(volume, 0.0, 1.0);
  isMuted_ = false;
  applyVolume();
}

void ClipPlayback::setMuted(bool muted) {
  isMuted_ = muted;
  applyVolume();
}

// As loud as it seems: hearing goes by the logarithm, for which the cube is near enough.
void ClipPlayback::applyVolume() {
  player_->setVolume(isMuted_ ? 0 : volume_ * volume_ * volume_);
  emit volumeChanged();
}

}  // namespace tarnloft

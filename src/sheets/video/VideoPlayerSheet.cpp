#include "sheets/video/VideoPlayerSheet.h"

#include "model/ShownText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnloft {

VideoPlayerSheet::VideoPlayerSheet(std::unique_ptr<ItemBinding> item, ClipPlayers& players,
                                   Preferences& preferences, const QString& path)
    : item_(std::move(item)), playback_(players, path) {
  const QString volumeKey = QStringLiteral("playerVolume");
  const double volume = preferences.number(volumeKey).value_or(1);
  if (volume >= 0 && volume <= 1) playback_.setVolume(volume);
  connect(&playback_, &ClipPlayback::volumeChanged, this, [this, &preferences, volumeKey] {
    preferences.setNumber(volumeKey, playback_.volume());
  });
  connect(item_.get(), &ItemBinding::changed, this, &VideoPlayerSheet::follow);
  connect(item_.get(), &ItemBinding::gone, &playback_, &ClipPlayback::pause);
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
  connect(&playback_, &ClipPlayback::changed, this, &VideoPlayerSheet::timesChanged);
  follow();
}

void VideoPlayerSheet::follow() {
  const auto* const video = std::get_if<VideoPayload>(&item_->item().payload);
  if (!video) return;
  const QString name = video->name.value_or(QString());
  const QString title = shownText(name.isEmpty() ? video->asset.originalName : name);
  if (std::exchange(title_, title) != title) emit titleChanged();
}

QString VideoPlayerSheet::timeText(int seconds) {
  const QChar zero = QLatin1Char('0');
  const int hours = seconds / 3600, minutes = seconds / 60 % 60;
  const QString rest = QStringLiteral("%1").arg(seconds % 60, 2, 10, zero);
  if (hours == 0) return QStringLiteral("%1:%2").arg(minutes).arg(rest);
  return QStringLiteral("%1:%2:%3").arg(hours).arg(minutes, 2, 10, zero).arg(rest);
}

// At the end all of it, though it be no whole number of seconds.
int VideoPlayerSheet::shownSeconds() const {
  const double position = playback_.position(), duration = playback_.duration();
  return duration > 0 && position >= duration ? int(std::lround(duration)) : int(position);
}

QString VideoPlayerSheet::elapsed() const { return timeText(shownSeconds()); }

QString VideoPlayerSheet::remaining() const {
  if (playback_.duration() <= 0) return {};
  const double rest = playback_.duration() - shownSeconds();
  return QStringLiteral("−") + timeText(std::max(0, int(std::lround(rest))));
}

bool VideoPlayerSheet::press(int key, int modifiers) {
  if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  constexpr double louder = 0.1;
  const double leap = modifiers & Qt::ShiftModifier ? 1 : 5;  // seconds
  switch (key) {
    case Qt::Key_Space: playback_.toggle(); return true;
    case Qt::Key_Left: playback_.seekBy(-leap); return true;
    case Qt::Key_Right: playback_.seekBy(leap); return true;
    case Qt::Key_Comma: playback_.stepBack(); return true;
    case Qt::Key_Period: playback_.stepForth(); return true;
    case Qt::Key_Up: playback_.setVolume(playback_.volume() + louder); return true;
    case Qt::Key_Down: playback_.setVolume(playback_.volume() - louder); return true;
    case Qt::Key_M: playback_.setMuted(!playback_.isMuted()); return true;
    case Qt::Key_Home: playback_.seek(0); return true;
    case Qt::Key_End: playback_.seekEnd(); return true;
    default: return false;
  }
}

}  // namespace tarnloft

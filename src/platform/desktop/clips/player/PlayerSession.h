#pragma once

#include "platform/ClipPlayer.h"
#include "platform/desktop/clips/player/SoundQueue.h"

#include <QMutex>
#include <QMutexLocker>
#include <QWaitCondition>

#include <atomic>
#include <deque>

namespace tarnloft {

// A picture, and from when to when it is shown.
struct TimedPicture {
  double begin = 0, end = 0;  // seconds of the clip
  QImage image;
};

// What the threads of one player share: the one that asks, the reader, which alone touches the
// file, and the presenter, which never waits for the disk. Each member but the last ones is used
// under the mutex.
struct PlayerSession {
  QMutex mutex;
  QWaitCondition forReader, forPresenter;

  // What is wanted.
  double volume = 1;
  double target = 0;
  QSize room;
  int seeks = 0;  // so many were asked for; what is in the queues is of one of them
  int steps = 0;  // to pictures that come next
  bool isPlaying = false;
  bool hasStepped = false;  // since the last seek

  // What was read: of that seek, from its target on.
  double toldDuration = 0;
  double picturesEnd = 0;  // where the last one ends that has been read
  std::deque<TimedPicture> pictures;
  SoundQueue sound;
  ClipStatus::State state = ClipStatus::State::opening;
  int readSeeks = 0;
  bool hasPictures = false, hasSound = false;
  bool picturesEnded = false, soundEnded = false;
  bool isLost = false;     // the file can't be read any more
  bool breaksOff = false;  // the file is broken behind what is in the queues

  // What is presented.
  double moment = 0;
  double duration = 0;    // once the end has been seen
  double showsSince = 0;  // the moment from which the picture is shown
  QImage shown;
  int shownCount = 0;
  bool isWaiting = false;
  bool isAtEnd = false;

  // Since when the reader waits for the disk, in milliseconds of the steady clock; 0 if it doesn't.
  std::atomic<qint64> readingSince = 0;
  std::atomic<bool> isClosed = false;

  // Under the mutex.
  ClipStatus statusLocked() const;
  // Nothing is wanted any more.
  void close();
  void setListener(std::function<void()> changed);
  // Without the mutex.
  void tell();

 private:
  QMutex listenerMutex_;
  std::function<void()> changed_;
};

}  // namespace tarnloft

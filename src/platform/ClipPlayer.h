#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace tarnloft {

// Where the playing of a clip stands.
struct ClipStatus {
  enum class State {
    opening,
    open,
    broken  // it can't be played, or not from here on
  };
  State state = State::opening;
  bool hasPictures = false;  // these two once it is open
  bool hasSound = false;
  bool isPlaying = false;
  bool isWaiting = false;  // it would play, and has nothing yet to show or to sound
  double position = 0;     // seconds since the beginning
  double duration = 0;     // seconds, as far as it is known
  int pictures = 0;        // so many have been shown: another one is when this changes
};

// Plays one clip; paused at its beginning at first. At its end it pauses on the last picture. Files
// are foreign, as for `Videos`, and pictures are shown as it shows them. Sound goes to the desktop;
// where that takes none, all goes on in silence. One thread. No call waits for anything. Its end
// releases all, in the background where a disk holds it up.
class ClipPlayer {
 public:
  virtual ~ClipPlayer() = default;

  // From the beginning again if it stands at its end.
  virtual void play() = 0;
  virtual void pause() = 0;
  // To what is shown so many seconds after the beginning, or at the ends.
  virtual void seek(double seconds) = 0;
  // Pauses at the next picture, or at the one before.
  enum class Step { back, forth };
  virtual void step(Step step) = 0;
  // From 0 to 1.
  virtual void setVolume(double volume) = 0;
  // Pictures are made as large as this room allows, without being distorted. Until it is known, in
  // their own size.
  virtual void setRoom(QSize pixels) = 0;

  virtual ClipStatus status() const = 0;
  // What is shown; null for nothing.
  virtual QImage picture() const = 0;
};

struct ClipSource {
  QString path;
  // Whether that file may be read, if it must be asked: once, on a thread of the player's.
  std::function<bool()> isAllowed = {};
};

// Makes players. Main thread.
class ClipPlayers {
 public:
  virtual ~ClipPlayers() = default;

  // `changed` is called on any thread when there is news, shall only pass this on, and isn't called
  // any more once the player has gone.
  virtual std::unique_ptr<ClipPlayer> open(const ClipSource& source,
                                           std::function<void()> changed) = 0;

  // For the end: waits for what players that have gone still do, at most so long. False if some
  // still does.
  virtual bool finish(std::chrono::milliseconds patience) = 0;
};

}  // namespace tarnloft

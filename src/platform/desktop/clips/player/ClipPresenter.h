#pragma once

#include "platform/desktop/clips/player/PlayerSession.h"
#include "platform/desktop/clips/player/PlayingClock.h"
#include "platform/desktop/clips/player/SoundOutput.h"

namespace tarnloft {

// Shows a session's pictures and sounds its sound when their time has come, on a thread of its own
// that never waits for the disk.
class ClipPresenter {
 public:
  // Without outputs in silence.
  ClipPresenter(PlayerSession& session, SoundOutputs* outputs)
      : session_(session), outputs_(outputs) {}

  // Returns soon after the session has been closed.
  void run();

 private:
  using Time = PlayingClock::Time;

  void openSound(QMutexLocker<QMutex>& lock);
  // The steps of each turn; all under the session's mutex.
  void turn(Time now);
  void followSeek();
  void turnSound(Time now);
  bool isPrepared() const;
  bool isStarved(Time now) const;
  void feedSound();
  std::optional<double> heard(Time now, bool ran);
  void showDue();
  void show(TimedPicture picture);
  void takeSteps();
  void endIfOver();
  QDeadlineTimer nextTurn() const;
  bool hasNews(Time now);

  PlayerSession& session_;
  SoundOutputs* const outputs_;
  std::unique_ptr<SoundOutput> sound_;  // null for none
  bool isSoundOpened_ = false;          // or there is none
  SoundOutput::State soundState_ = SoundOutput::State::opening;
  Time soundOpeningAt_;  // it was ready last then, or was opened
  PlayingClock clock_;
  int seeks_ = 0;        // the seek that is presented
  int shownSeeks_ = -1;  // the seek that the picture is of
  bool isPrepared_ = false;
  bool runs_ = false, soundRuns_ = false;
  double writtenEnd_ = 0;  // the moment up to which sound was written
  double lastHeard_ = 0;
  Time heardOnAt_, toldAt_;
  ClipStatus told_;
};

}  // namespace tarnloft

#include "platform/desktop/clips/player/LibavClipPlayers.h"

#include "platform/desktop/clips/player/ClipPresenter.h"
#include "platform/desktop/clips/player/ClipReader.h"

#include <algorithm>

namespace tarnloft {
namespace {

constexpr int mostThreads = 1000;  // those that a dead disk holds must not keep others from playing

class LibavClipPlayer : public ClipPlayer {
 public:
  explicit LibavClipPlayer(std::shared_ptr<PlayerSession> session) : session_(std::move(session)) {}
  ~LibavClipPlayer() override { session_->close(); }
  Q_DISABLE_COPY_MOVE(LibavClipPlayer)

  void play() override {
    change([](PlayerSession& session) {
      const bool isBroken = session.state == ClipStatus::State::broken;
      if (isBroken && !isBrokenLater(session)) return;
      if (session.isAtEnd || isBroken) {
        seekTo(session, 0);
      } else if (session.hasStepped) {
        seekTo(session, session.moment);  // sound went its own way
      }
      session.isPlaying = true;
    });
  }

  void pause() override {
    change([](PlayerSession& session) { session.isPlaying = false; });
  }

  void seek(double seconds) override {
    change([&](PlayerSession& session) { seekTo(session, seconds); });
  }

  void step(Step step) override {
    change([&](PlayerSession& session) {
      session.isPlaying = false;
      if (step == Step::back) return seekTo(session, session.showsSince - justBefore);
      session.hasStepped = true;
      ++session.steps;
    });
  }

  void setVolume(double volume) override {
    change([&](PlayerSession& session) { session.volume = std::clamp(volume, 0.0, 1.0); });
  }

  // While it plays, the next pictures are soon there anyway.
  void setRoom(QSize pixels) override {
    change([&](PlayerSession& session) {
      if (session.room == pixels) return;
      session.room = pixels;
      if (session.shownCount > 0 && !session.isPlaying) seekTo(session, session.moment);
    });
  }

  ClipStatus status() const override {
    const QMutexLocker lock(&session_->mutex);
    return session_->statusLocked();
  }

  QImage picture() const override {
    const QMutexLocker lock(&session_->mutex);
    return session_->shown;
  }

 private:
  static constexpr double justBefore = 0.0005;  // seconds

  // A clip that breaks off somewhere may be fine where it goes.
  static void seekTo(PlayerSession& session, double seconds) {
    const double duration = std::max(session.duration, session.toldDuration);
    session.target = std::max(0.0, duration > 0 ? std::min(seconds, duration) : seconds);
    session.moment = session.target;
    session.isAtEnd = session.hasStepped = false;
    ++session.seeks;
    if (isBrokenLater(session)) session.state = ClipStatus::State::open;
  }

  static bool isBrokenLater(const PlayerSession& session) {
    return session.breaksOff && !session.isLost;
  }

  template <class Change>
  void change(Change&& change) {
    {
      const QMutexLocker lock(&session_->mutex);
      change(*session_);
      session_->forReader.wakeAll();
      session_->forPresenter.wakeAll();
    }
    session_->tell();
  }

  const std::shared_ptr<PlayerSession> session_;
};

}  // namespace

LibavClipPlayers::LibavClipPlayers(SoundOutputs* outputs) : outputs_(outputs) {
  threads_.setMaxThreadCount(mostThreads);
  threads_.setExpiryTimeout(0);
}

std::unique_ptr<ClipPlayer> LibavClipPlayers::open(const ClipSource& source,
                                                   std::function<void()> changed) {
  const auto session = std::make_shared<PlayerSession>();
  session->setListener(std::move(changed));
  threads_.start([session, source] { libav::ClipReader(*session, source).run(); });
  threads_.start([session, outputs = outputs_] { ClipPresenter(*session, outputs).run(); });
  return std::make_unique<LibavClipPlayer>(session);
}

bool LibavClipPlayers::finish(std::chrono::milliseconds patience) {
  return threads_.waitForDone(int(std::max<qint64>(0, patience.count())));
}

}  // namespace tarnloft

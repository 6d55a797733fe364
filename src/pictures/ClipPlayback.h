#pragma once

#include "platform/ClipPlayer.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <atomic>

namespace tarnloft {

// A clip that is played, for views. Its end releases all. Main thread.
class ClipPlayback : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who play one")
  Q_PROPERTY(bool opening READ isOpening NOTIFY changed)
  Q_PROPERTY(bool broken READ isBroken NOTIFY changed)
  Q_PROPERTY(bool soundAlone READ isSoundAlone NOTIFY changed)
  Q_PROPERTY(bool playing READ isPlaying NOTIFY changed)
  Q_PROPERTY(bool waiting READ isWaiting NOTIFY changed)
  Q_PROPERTY(double position READ position NOTIFY changed)  // seconds
  Q_PROPERTY(double duration READ duration NOTIFY changed)  // seconds; 0 while it isn't known
  Q_PROPERTY(double volume READ volume WRITE setVolume NOTIFY volumeChanged)  // 0 to 1
  Q_PROPERTY(bool muted READ isMuted WRITE setMuted NOTIFY volumeChanged)

 public:
  // Opens it, paused. The players are borrowed.
  ClipPlayback(ClipPlayers& players, const QString& path);

  bool isOpening() const { return status_.state == ClipStatus::State::opening; }
  bool isBroken() const { return status_.state == ClipStatus::State::broken; }
  bool isSoundAlone() const;
  bool isPlaying() const { return status_.isPlaying; }
  bool isWaiting() const { return status_.isWaiting; }
  double position() const { return status_.position; }
  double duration() const { return status_.duration; }
  double volume() const { return volume_; }
  // One that is set is heard.
  void setVolume(double volume);
  bool isMuted() const { return isMuted_; }
  void setMuted(bool muted);

  Q_INVOKABLE void play() { player_->play(); }
  Q_INVOKABLE void pause() { player_->pause(); }
  // Plays, or pauses.
  Q_INVOKABLE void toggle();
  Q_INVOKABLE void seek(double seconds) { player_->seek(seconds); }
  Q_INVOKABLE void seekBy(double seconds) { seek(player_->status().position + seconds); }
  // To the end.
  Q_INVOKABLE void seekEnd() { seek(duration()); }
  // While it is paused: shows the next picture, or the one before.
  Q_INVOKABLE void stepForth();
  Q_INVOKABLE void stepBack();

  // Null for nothing.
  QImage picture() const { return player_->picture(); }
  // Pictures are made for that room.
  void setRoom(QSize pixels) { player_->setRoom(pixels); }

 signals:
  void changed();
  void volumeChanged();
  void pictureChanged();

 private:
  void follow();
  void applyVolume();

  ClipStatus status_;
  double volume_ = 1;
  bool isMuted_ = false;
  std::atomic<bool> isFollowing_ = false;  // it has been told of news, and will look
  std::unique_ptr<ClipPlayer> player_;     // the last member: it uses the others
};

}  // namespace tarnloft

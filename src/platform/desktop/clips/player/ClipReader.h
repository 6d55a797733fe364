#pragma once

#include "platform/desktop/clips/LibavPicture.h"
#include "platform/desktop/clips/player/ClipTrack.h"
#include "platform/desktop/clips/player/PlayerSession.h"
#include "platform/desktop/clips/player/SoundConverter.h"

#include <chrono>

namespace tarnloft::libav {

// Reads and decodes a clip for its session, a little ahead of what is presented, on a thread of its
// own. The only one that touches the file.
class ClipReader {
 public:
  ClipReader(PlayerSession& session, ClipSource source)
      : session_(session), source_(std::move(source)) {}

  // Returns once the session has been closed, and the disk lets it go.
  void run();

 private:
  enum class Work { seek, pictures, sound, none };

  bool open();
  bool openClip();
  Work awaitWork();
  void doWork(Work work);
  // True once the track has a packet to decode, or never gets one any more.
  bool hasInput(const ClipTrack& track) const;
  void readPacket();

  void seek();
  bool jumpTo(double seconds);
  // Begins further in front than the last time; false if it began at the very beginning.
  bool beginEarlier();

  void decodePictures();
  void meet(const AVFrame& frame);
  void show(const AVFrame& frame, double begin, double end);
  bool isLate(double begin, double end);
  std::optional<QImage> pictureOf(const AVFrame& frame);
  double lengthOf(const AVFrame& frame) const;
  void endPictures();
  void decodeSound();
  bool isCutOff() const;

  PlayerSession& session_;
  const ClipSource source_;
  QDeadlineTimer deadline_;
  std::unique_ptr<Clip> clip_;
  std::unique_ptr<ClipTrack> pictures_, sound_;  // null without such a track
  Orientation orientation_;
  PictureMaker maker_;
  SoundConverter converter_;

  int seeks_ = 0;  // the seek that is worked for
  double target_ = 0;
  size_t tries_ = 0;         // of that seek
  bool isFromBegin_ = true;  // reading began at the file's beginning
  bool isAtEnd_ = false;     // of the file, or of what can be read
  bool isBroken_ = false;
  bool isLost_ = false;     // it couldn't be opened anew
  bool isTooLate_ = false;  // reading must begin earlier for the target
  int failures_ = 0;        // packets that couldn't be decoded since the last picture
  bool hasFirst_ = false;   // the picture that is shown at the target has been made
  Frame candidate_;         // for it: the last one in front of the target
  double candidateBegin_ = 0, candidateEnd_ = 0;
  double picturesEnd_ = 0, soundEnd_ = 0;
  std::chrono::steady_clock::time_point lastShown_;
};

}  // namespace tarnloft::libav

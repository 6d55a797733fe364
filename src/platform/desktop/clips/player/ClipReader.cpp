#include "platform/desktop/clips/player/ClipReader.h"

#include "platform/desktop/clips/player/SoundOutput.h"

#include <QThread>

#include <algorithm>
#include <cmath>

namespace tarnloft::libav {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto mostTimePerStep = 10s;  // of the file's reading; a broken one may find no end
constexpr size_t mostPictures = 4;     // ahead
constexpr double soundAhead = 1;       // seconds
constexpr size_t mostWaitingBytes = size_t(64) << 20;
constexpr int mostFailures = 30;      // packets
constexpr double instant = 1e-6;      // seconds; times are sums of fractions
constexpr int largestOwnSize = 1920;  // pixels, while the room isn't known

// How far in front of a target reading begins: some containers land behind it, or where the
// pictures need earlier ones.
constexpr double stepsBack[] = {0, 2, 10};

int decodingThreads() { return std::clamp(QThread::idealThreadCount(), 1, 4); }

qint64 milliseconds(Clock::time_point time) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
}

}  // namespace

void ClipReader::run() {
  const bool isOpen = open();
  {
    const QMutexLocker lock(&session_.mutex);
    session_.state = isOpen ? ClipStatus::State::open : ClipStatus::State::broken;
    session_.isPlaying = session_.isPlaying && isOpen;
    if (isOpen) {
      const int64_t duration = clip_->format().duration;
      session_.toldDuration = duration > 0 ? double(duration) / AV_TIME_BASE : 0;
      session_.hasPictures = pictures_ != nullptr;
      session_.hasSound = sound_ != nullptr;
      session_.picturesEnded = !pictures_;
      session_.soundEnded = !sound_;
    }
    session_.forPresenter.wakeAll();
  }
  session_.tell();
  if (!isOpen) return;
  for (Work work = awaitWork(); work != Work::none && !isLost_; work = awaitWork()) doWork(work);
  if (!isLost_) return;
  const QMutexLocker lock(&session_.mutex);
  session_.isLost = true;
  session_.state = ClipStatus::State::broken;
  session_.isPlaying = false;
  session_.forPresenter.wakeAll();
}

bool ClipReader::open() {
  session_.readingSince = milliseconds(Clock::now());
  const bool isOpen = (!source_.isAllowed || source_.isAllowed()) && openClip();
  session_.readingSince = 0;
  return isOpen;
}

// A clip whose pictures can't be decoded is broken; one that has none may still sound.
bool ClipReader::openClip() {
  deadline_ = QDeadlineTimer(mostTimePerStep);
  pictures_.reset();
  sound_.reset();
  clip_ = Clip::open(source_.path, [this] { return session_.isClosed || deadline_.hasExpired(); });
  if (!clip_) return false;
  const auto makeTrack = [](AVStream* stream, int threads) {
    Decoder decoder = stream ? openDecoder(*stream, threads) : nullptr;
    return decoder ? std::make_unique<ClipTrack>(*stream, std::move(decoder)) : nullptr;
  };
  AVStream* const pictures = clip_->videoStream();
  pictures_ = makeTrack(pictures, decodingThreads());
  sound_ = makeTrack(clip_->soundStream(), 1);
  if (pictures ? !pictures_ : !sound_) return false;
  const ClipTrack& leading = pictures_ ? *pictures_ : *sound_;
  clip_->keepOnly(leading.stream(), sound_ ? &sound_->stream() : nullptr);
  if (pictures) orientation_ = orientationOf(*pictures);
  isFromBegin_ = true;
  return true;
}

ClipReader::Work ClipReader::awaitWork() {
  const QMutexLocker lock(&session_.mutex);
  for (;;) {
    if (session_.isClosed) return Work::none;
    // Who seeks and seeks anew sees something of each, if only for a moment.
    const bool isFirstMissing = !hasFirst_ && !session_.picturesEnded;
    if (session_.seeks != seeks_ && !isFirstMissing) return Work::seek;
    if (isFirstMissing) return Work::pictures;
    if (!session_.soundEnded && session_.sound.seconds() < soundAhead) return Work::sound;
    if (!session_.picturesEnded && session_.pictures.size() < mostPictures) return Work::pictures;
    session_.forReader.wait(&session_.mutex);
  }
}

void ClipReader::doWork(Work work) {
  if (work == Work::seek) return seek();
  const bool forPictures = work == Work::pictures;
  if (!hasInput(forPictures ? *pictures_ : *sound_)) return readPacket();
  forPictures ? decodePictures() : decodeSound();
}

bool ClipReader::hasInput(const ClipTrack& track) const {
  const size_t waiting =
      (pictures_ ? pictures_->waitingBytes() : 0) + (sound_ ? sound_->waitingBytes() : 0);
  return track.isWaitedFor() || isAtEnd_ || waiting > mostWaitingBytes;
}

void ClipReader::readPacket() {
  deadline_ = QDeadlineTimer(mostTimePerStep);
  session_.readingSince = milliseconds(Clock::now());
  Packet packet(av_packet_alloc());
  const Clip::Reading reading = clip_->readNext(*packet);
  session_.readingSince = 0;
  if (reading != Clip::Reading::packet) {
    isAtEnd_ = true;
    isBroken_ = reading == Clip::Reading::failure;
    return;
  }
  for (ClipTrack* const track : {pictures_.get(), sound_.get()}) {
    if (track && packet->stream_index == track->stream().index)
      return track->put(std::move(packet));
  }
}

void ClipReader::seek() {
  {
    const QMutexLocker lock(&session_.mutex);
    seeks_ = session_.readSeeks = session_.seeks;
    target_ = session_.target;
    session_.pictures.clear();
    session_.sound.clear(target_);
    session_.picturesEnded = !pictures_;
    session_.soundEnded = !sound_;
    session_.breaksOff = false;
    session_.picturesEnd = 0;
  }
  tries_ = 0;
  while (!jumpTo(target_ - stepsBack[tries_]) && beginEarlier()) continue;
}

bool ClipReader::jumpTo(double seconds) {
  hasFirst_ = isAtEnd_ = isBroken_ = isFromBegin_ = false;
  failures_ = 0;
  candidate_.reset();
  converter_.restart();
  if (pictures_) pictures_->restart();
  if (sound_) sound_->restart();
  deadline_ = QDeadlineTimer(mostTimePerStep);
  const AVStream& leading = (pictures_ ? *pictures_ : *sound_).stream();
  const int64_t time = clip_->timestampAt(std::max(seconds, 0.0), leading);
  session_.readingSince = milliseconds(Clock::now());
  const int code = av_seek_frame(&clip_->format(), leading.index, time, AVSEEK_FLAG_BACKWARD);
  session_.readingSince = 0;
  return code >= 0;
}

// The last resort is to open the file anew and read up to the target: that is always right.
bool ClipReader::beginEarlier() {
  if (isFromBegin_) return false;
  while (++tries_ < std::size(stepsBack)) {
    if (target_ > stepsBack[tries_ - 1] && jumpTo(target_ - stepsBack[tries_])) return true;
  }
  session_.readingSince = milliseconds(Clock::now());
  const bool hadPictures = pictures_ != nullptr, hadSound = sound_ != nullptr;
  const bool isSame =
      openClip() && (pictures_ != nullptr) == hadPictures && (sound_ != nullptr) == hadSound;
  session_.readingSince = 0;
  hasFirst_ = false;
  candidate_.reset();
  failures_ = 0;
  isAtEnd_ = isBroken_ = false;
  isLost_ = !isSame;
  return isSame;
}

void ClipReader::decodePictures() {
  const bool isGood = pictures_->decode([this](const AVFrame& frame) { meet(frame); });
  if (std::exchange(isTooLate_, false)) {
    beginEarlier();
    return;
  }
  failures_ = isGood ? failures_ : failures_ + 1;
  if (failures_ > mostFailures) isBroken_ = true;
  if (pictures_->isDone() || failures_ > mostFailures) endPictures();
}

double ClipReader::lengthOf(const AVFrame& frame) const {
  const AVStream& stream = pictures_->stream();
  if (frame.pkt_duration > 0) return double(frame.pkt_duration) * av_q2d(stream.time_base);
  const AVRational rate = stream.avg_frame_rate;
  return rate.num > 0 && rate.den > 0 ? 1 / av_q2d(rate) : 0.04;
}

void ClipReader::meet(const AVFrame& frame) {
  if (isTooLate_) return;
  failures_ = 0;
  const double begin = frame.best_effort_timestamp == AV_NOPTS_VALUE
                           ? picturesEnd_
                           : clip_->secondsOf(frame.best_effort_timestamp, pictures_->stream());
  const double end = begin + lengthOf(frame);
  picturesEnd_ = end;
  if (hasFirst_) return show(frame, begin, end);
  const bool isPast = begin > target_ + instant;
  const bool isIt = !isPast && frame.pkt_duration > 0 && end > target_ + instant;
  if (isPast && candidate_) show(*candidate_, candidateBegin_, candidateEnd_);  // the one before
  isTooLate_ = isPast && !hasFirst_ && !isFromBegin_;
  if (isTooLate_) return;
  if (isPast || isIt) return show(frame, begin, end);
  candidate_.reset(av_frame_clone(&frame));
  candidateBegin_ = begin;
  candidateEnd_ = end;
}

// What nobody will see isn't made; but now and then one is, so that the clip is seen to go on.
bool ClipReader::isLate(double begin, double end) {
  constexpr auto longestPause = 250ms;
  const QMutexLocker lock(&session_.mutex);
  session_.picturesEnd = end;
  const bool isPresented = session_.isPlaying && session_.seeks == seeks_;
  return isPresented && hasFirst_ && session_.moment > end + (end - begin) &&
         Clock::now() - lastShown_ < longestPause;
}

void ClipReader::show(const AVFrame& frame, double begin, double end) {
  if (isLate(begin, end)) return;
  auto picture = pictureOf(frame);
  if (!picture) return;
  hasFirst_ = true;
  lastShown_ = Clock::now();
  const QMutexLocker lock(&session_.mutex);
  session_.pictures.push_back({begin, end, std::move(*picture)});
  session_.forPresenter.wakeAll();
}

std::optional<QImage> ClipReader::pictureOf(const AVFrame& frame) {
  QSize room;
  {
    const QMutexLocker lock(&session_.mutex);
    room = session_.room;
  }
  const bool isTurned = orientation_.quarterTurns % 2 != 0;
  const QSize stored(frame.width, frame.height);
  const AVRational shape = av_guess_sample_aspect_ratio(
      &clip_->format(), clip_->format().streams[pictures_->stream().index],
      const_cast<AVFrame*>(&frame));
  const QSize size = room.isEmpty()
                         ? shownSize(stored, shape, largestOwnSize)
                         : fittedSize(stored, shape, isTurned ? room.transposed() : room);
  const auto picture = maker_.pictureOf(frame, size);
  return picture ? std::optional(oriented(*picture, orientation_)) : std::nullopt;
}

// A clip that is shorter than its own tables of samples tell has been cut.
bool ClipReader::isCutOff() const {
  const AVFormatContext& format = clip_->format();
  const bool isTold = format.duration > 0 &&
                      format.duration_estimation_method == AVFMT_DURATION_FROM_STREAM &&
                      QByteArrayView(format.iformat->name) != "flv";
  const double told = double(format.duration) / AV_TIME_BASE;
  return isTold && std::max(picturesEnd_, soundEnd_) < told - std::max(1.0, told / 20);
}

void ClipReader::endPictures() {
  if (!hasFirst_ && candidate_) show(*candidate_, candidateBegin_, candidateEnd_);
  if (!hasFirst_ && (beginEarlier() || isLost_)) return;
  const QMutexLocker lock(&session_.mutex);
  session_.picturesEnded = true;
  session_.picturesEnd = picturesEnd_;
  session_.breaksOff = isBroken_ || !hasFirst_ || isCutOff();
  session_.forPresenter.wakeAll();
}

void ClipReader::decodeSound() {
  sound_->decode([this](const AVFrame& frame) {
    const std::vector<float> samples = converter_.samplesOf(frame);
    const double length = double(samples.size()) / SoundOutput::channels / SoundOutput::rate;
    const QMutexLocker lock(&session_.mutex);
    const double begin = frame.best_effort_timestamp == AV_NOPTS_VALUE
                             ? session_.sound.end()
                             : clip_->secondsOf(frame.best_effort_timestamp, sound_->stream());
    soundEnd_ = begin + length;
    if (soundEnd_ > target_) session_.sound.add(begin, samples);
  });
  const QMutexLocker lock(&session_.mutex);
  session_.soundEnded = sound_->isDone();
  if (session_.soundEnded && !pictures_) session_.breaksOff = isBroken_ || isCutOff();
  session_.forPresenter.wakeAll();
}

}  // namespace tarnloft::libav

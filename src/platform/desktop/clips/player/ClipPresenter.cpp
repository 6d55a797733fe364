#include "platform/desktop/clips/player/ClipPresenter.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr double preparedSound = 0.2;  // seconds that are there before playing begins
constexpr auto soundPatience = 1s;     // for a sound server to answer
constexpr auto deafPatience = 2s;      // for sound that was written to be heard
constexpr auto diskPatience = 250ms;
constexpr double mostDelay = 1;   // seconds of pictures behind the sound
constexpr double early = 0.001;   // seconds; less than anyone sees
constexpr double instant = 1e-6;  // seconds; times are sums of fractions

}  // namespace

void ClipPresenter::run() {
  QMutexLocker lock(&session_.mutex);
  while (!session_.isClosed) {
    if (session_.hasSound && !isSoundOpened_) openSound(lock);
    const Time now = std::chrono::steady_clock::now();
    turn(now);
    if (hasNews(now)) {
      lock.unlock();
      session_.tell();
      lock.relock();
      if (session_.isClosed) break;
    }
    session_.forPresenter.wait(&session_.mutex, nextTurn());
  }
  lock.unlock();
  sound_.reset();
}

void ClipPresenter::openSound(QMutexLocker<QMutex>& lock) {
  isSoundOpened_ = true;
  lock.unlock();
  if (outputs_) sound_ = outputs_->open();
  soundOpeningAt_ = std::chrono::steady_clock::now();
  lock.relock();
}

void ClipPresenter::turn(Time now) {
  followSeek();
  turnSound(now);
  const bool ran = runs_;
  isPrepared_ = isPrepared_ || isPrepared();
  runs_ = session_.isPlaying && isPrepared_ && !isStarved(now);
  if (sound_ && std::exchange(soundRuns_, runs_) != runs_) sound_->setRunning(runs_);
  clock_.advance(now, ran, heard(now, ran));
  if (session_.readSeeks == seeks_) {
    feedSound();
    takeSteps();
    showDue();
    endIfOver();
    session_.moment = clock_.moment();
  } else if (shownSeeks_ != session_.readSeeks && !session_.pictures.empty()) {
    // Another seek came meanwhile; something is to be seen of each.
    shownSeeks_ = session_.readSeeks;
    session_.shown = session_.pictures.front().image;
    ++session_.shownCount;
  }
  session_.isWaiting = session_.isPlaying && !runs_;
}

void ClipPresenter::followSeek() {
  if (std::exchange(seeks_, session_.seeks) == session_.seeks) return;
  clock_.set(session_.target);
  isPrepared_ = runs_ = false;
  session_.steps = 0;
  writtenEnd_ = session_.target;
  if (sound_) sound_->clear();
  session_.forReader.wakeAll();
}

void ClipPresenter::turnSound(Time now) {
  if (!sound_) return;
  soundState_ = sound_->turn();
  if (soundState_ != SoundOutput::State::opening) soundOpeningAt_ = now;
  const bool isDeaf = soundRuns_ && now - heardOnAt_ > deafPatience && !session_.sound.isEmpty();
  const bool isLate =
      soundState_ == SoundOutput::State::opening && now - soundOpeningAt_ > soundPatience;
  if (soundState_ == SoundOutput::State::gone || isDeaf || isLate) sound_.reset();
}

bool ClipPresenter::isPrepared() const {
  if (session_.state == ClipStatus::State::opening || session_.readSeeks != seeks_) return false;
  if (sound_ && soundState_ == SoundOutput::State::opening) return false;
  const bool hasPicture = session_.picturesEnded || shownSeeks_ == seeks_;
  return hasPicture && (session_.soundEnded || session_.sound.seconds() >= preparedSound ||
                        writtenEnd_ > session_.target);
}

// What there was is used up, and the disk gives nothing or decoding is far behind.
bool ClipPresenter::isStarved(Time now) const {
  const auto since = std::chrono::milliseconds(session_.readingSince.load());
  const bool isReading = since.count() > 0 && now.time_since_epoch() - since > diskPatience;
  const bool hasNoPicture = !session_.picturesEnded && session_.pictures.empty();
  const bool hasNoSound = !session_.soundEnded && session_.sound.isEmpty();
  const bool isBehind = clock_.moment() > session_.picturesEnd + mostDelay;
  return (hasNoPicture && isBehind) || (isReading && (hasNoPicture || hasNoSound));
}

void ClipPresenter::feedSound() {
  if (sound_ && soundState_ == SoundOutput::State::ready) {
    std::vector<float> samples = session_.sound.take(sound_->room());
    if (samples.empty()) return;
    const auto volume = float(session_.volume);
    for (float& sample : samples) sample *= volume;
    sound_->write(samples.data(), int(samples.size()) / SoundOutput::channels);
    writtenEnd_ = session_.sound.begin();
    session_.forReader.wakeAll();
  } else if (!sound_ && session_.sound.begin() < clock_.moment()) {
    session_.sound.skipTo(clock_.moment());
    session_.forReader.wakeAll();
  }
}

// None where there is no sound, or none any more.
std::optional<double> ClipPresenter::heard(Time now, bool ran) {
  if (!ran) heardOnAt_ = now;
  if (!runs_ || !sound_ || soundState_ != SoundOutput::State::ready) return std::nullopt;
  const auto unheard = sound_->unheard();
  const double moment = writtenEnd_ - unheard.value_or(0);
  const bool isOver = session_.soundEnded && session_.sound.isEmpty() && unheard && *unheard <= 0;
  if (isOver || std::abs(std::exchange(lastHeard_, moment) - moment) > early / 10) heardOnAt_ = now;
  return unheard && !isOver ? std::optional(moment) : std::nullopt;
}

void ClipPresenter::show(TimedPicture picture) {
  session_.shown = std::move(picture.image);
  session_.showsSince = picture.begin;
  ++session_.shownCount;
  shownSeeks_ = seeks_;
  session_.forReader.wakeAll();
}

void ClipPresenter::takeSteps() {
  auto& pictures = session_.pictures;
  for (; session_.steps > 0 && !pictures.empty() && shownSeeks_ == seeks_; --session_.steps) {
    clock_.set(pictures.front().begin);
    show(std::move(pictures.front()));
    pictures.pop_front();
  }
  if (session_.picturesEnded && pictures.empty()) session_.steps = 0;
}

// The first one of a seek at once, whenever it begins.
void ClipPresenter::showDue() {
  auto& pictures = session_.pictures;
  std::optional<TimedPicture> due;
  const double moment = clock_.moment() + (runs_ ? early : instant);
  while (!pictures.empty() &&
         (pictures.front().begin <= moment || (shownSeeks_ != seeks_ && !due))) {
    due = std::move(pictures.front());
    pictures.pop_front();
  }
  if (due) show(std::move(*due));
}

void ClipPresenter::endIfOver() {
  const bool isAllRead = session_.picturesEnded && session_.pictures.empty() &&
                         session_.soundEnded && session_.sound.isEmpty();
  if (!isAllRead || session_.state != ClipStatus::State::open) return;
  const double end = std::max({session_.picturesEnd, writtenEnd_, session_.sound.begin()});
  const bool showsNothing = session_.hasPictures && shownSeeks_ != seeks_;
  if (session_.breaksOff && (showsNothing || (runs_ && clock_.moment() >= end))) {
    session_.state = ClipStatus::State::broken;
    session_.isPlaying = runs_ = false;
  } else if (runs_ && clock_.moment() >= end) {
    session_.isPlaying = runs_ = false;
    session_.isAtEnd = true;
    session_.duration = end;
    clock_.set(end);
  }
}

QDeadlineTimer ClipPresenter::nextTurn() const {
  const bool isPreparing = session_.isPlaying && !runs_;
  if (!runs_) return QDeadlineTimer(isPreparing ? 20ms : 500ms);
  const auto& pictures = session_.pictures;
  std::chrono::duration<double> wait = 10ms;
  if (!pictures.empty()) {
    wait = std::min(wait, std::chrono::duration<double>(pictures.front().begin - clock_.moment()));
  }
  const auto rest = std::chrono::duration_cast<std::chrono::microseconds>(wait);
  return QDeadlineTimer(std::max<std::chrono::microseconds>(rest, 500us), Qt::PreciseTimer);
}

bool ClipPresenter::hasNews(Time now) {
  ClipStatus status = session_.statusLocked();
  const bool isMoment =
      std::abs(status.position - told_.position) > early && (!runs_ || now - toldAt_ > 100ms);
  const bool isOther = status.pictures != told_.pictures || status.state != told_.state ||
                       status.isPlaying != told_.isPlaying || status.isWaiting != told_.isWaiting ||
                       status.duration != told_.duration || status.hasSound != told_.hasSound;
  if (!isMoment && !isOther) return false;
  told_ = status;
  toldAt_ = now;
  return true;
}

}  // namespace tarnloft

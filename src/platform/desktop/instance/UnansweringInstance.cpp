#include "platform/desktop/instance/UnansweringInstance.h"

#include <csignal>

namespace tarnloft {

using namespace std::chrono_literals;

UnansweringInstance::UnansweringInstance(RunningInstance& start) : start_(start) {
  connect(&asking_, &QTimer::timeout, this, &UnansweringInstance::ask);
  connect(&socket_, &QLocalSocket::connected, this,
          [this] { socket_.write(RunningInstance::showRequest()); });
  connect(&socket_, &QLocalSocket::readyRead, this, &UnansweringInstance::listen);
  patience_.setSingleShot(true);
  connect(&patience_, &QTimer::timeout, this, &UnansweringInstance::endByForce);
  asking_.start(100ms);
}

// One question at a time: it waits in the other one's queue until that reads it.
void UnansweringInstance::ask() {
  if (start_.tryClaim()) return settle(RunningInstance::Start::first);
  if (ending_ && ending_->hasEnded()) {  // another start was quicker, which will answer
    ending_.reset();
    patience_.stop();
  }
  if (ending_ || socket_.state() != QLocalSocket::UnconnectedState) return;
  answer_.clear();
  socket_.connectToServer(start_.socketPath());
}

void UnansweringInstance::listen() {
  answer_ += socket_.readAll();
  if (answer_ == RunningInstance::shownAnswer()) settle(RunningInstance::Start::shown);
}

void UnansweringInstance::end(std::chrono::milliseconds patience) {
  if (ending_) return;
  const auto holder = start_.holder();
  ending_ = holder ? OtherProcess::of(*holder) : std::nullopt;
  if (!ending_) return emit endFailed();
  socket_.abort();
  isForced_ = false;
  ending_->signal(SIGTERM);
  ending_->signal(SIGCONT);  // one that was stopped may save what it has
  patience_.start(patience);
}

void UnansweringInstance::endByForce() {
  if (!ending_) return;
  if (std::exchange(isForced_, true)) {
    ending_.reset();
    return emit endFailed();
  }
  ending_->signal(SIGKILL);
  patience_.start();
}

void UnansweringInstance::settle(RunningInstance::Start start) {
  asking_.stop();
  patience_.stop();
  socket_.abort();
  emit settled(start);
}

}  // namespace tarnloft

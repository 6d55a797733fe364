#pragma once

#include "platform/SystemUpdater.h"

#include <QStringList>

#include <utility>

namespace tarnloft {

// Ends each piece of work when the test says how.
class FakeUpdater : public SystemUpdater {
 public:
  bool isThere = true;
  bool isOther = false;
  QStringList asked;  // by whom, and for what
  Found found;
  Ended ended;
  Progress progress;
  std::function<void()> replaced;

  void look(std::function<void()> isThereNow) override {
    if (isThere) isThereNow();
  }
  void check(Asker asker, Found told) override {
    note(asker, "checks");
    found = std::move(told);
  }
  void download(const Update& update, Progress told, Ended end) override {
    note(Asker::clock, "downloads " + update.version);
    progress = std::move(told);
    ended = std::move(end);
  }
  void install(const Update& update, Asker asker, Progress told, Ended end) override {
    note(asker, "installs " + update.version);
    progress = std::move(told);
    ended = std::move(end);
  }
  void cancel() override {
    const auto cancelled = failure(ErrorKind::io, "Cancelled");
    if (found) return std::exchange(found, nullptr)(cancelled);
    ended(cancelled);
  }
  bool isReplaced() const override { return isOther; }
  void watch(std::function<void()> replacedNow) override { replaced = std::move(replacedNow); }

 private:
  void note(Asker asker, const QString& what) {
    asked << (asker == Asker::user ? "user " : "clock ") + what;
  }
};

}  // namespace tarnloft

#include "assets/ImportProgress.h"

namespace tarnloft {

using namespace std::chrono_literals;

ImportProgress::ImportProgress() {
  moment_.setSingleShot(true);
  moment_.setInterval(700ms);
  connect(&moment_, &QTimer::timeout, this, [this] {
    isLong_ = true;
    emit textChanged();
  });
}

void ImportProgress::begin(const QString& name) {
  if (names_.isEmpty()) moment_.start();
  names_ << name;
  if (isLong_) emit textChanged();
}

void ImportProgress::end(const QString& name) {
  names_.removeOne(name);
  if (names_.isEmpty()) moment_.stop();
  if (!isLong_) return;
  isLong_ = !names_.isEmpty();
  emit textChanged();
}

QString ImportProgress::text() const {
  if (!isLong_) return {};
  return names_.size() == 1 ? QStringLiteral("Adding “%1”…").arg(names_.first())
                            : QStringLiteral("Adding %1 files…").arg(names_.size());
}

}  // namespace tarnloft

#include "library/OpeningWatch.h"

#include <utility>

namespace tarnloft {

OpeningWatch::OpeningWatch(FileStore& files, DiskWork& disk, QString file,
                           std::shared_ptr<PlainBrands> plain)
    : files_(files), disk_(disk), file_(std::move(file)), plain_(std::move(plain)) {
  standing_.setSingleShot(true);
  standing_.setInterval(standing);
  connect(&standing_, &QTimer::timeout, this, [this] { end(); });
  if (file_.isEmpty()) return;
  record_ = OpeningRecord::read(files_, file_);
  ended_ = std::exchange(record_.opening, {});
  if (!ended_.isEmpty() && !isSuspect(ended_)) record_.suspects << ended_;
  for (const QString& suspect : std::as_const(record_.suspects)) plain_->add(suspect);
  if (!ended_.isEmpty()) write();
}

std::function<bool(const QString&)> OpeningWatch::marking() const {
  return [&files = files_, file = file_, record = record_](const QString& packageURL) {
    if (record.suspects.contains(packageURL)) return false;
    if (!file.isEmpty()) OpeningRecord{packageURL, record.suspects}.write(files, file);
    return true;
  };
}

void OpeningWatch::begin(const QString& packageURL) {
  if (std::exchange(record_.opening, packageURL) != packageURL) write();
  standing_.start();
}

void OpeningWatch::began(const QString& packageURL) {
  record_.opening = packageURL;
  standing_.start();
}

bool OpeningWatch::end() {
  standing_.stop();
  if (record_.opening.isEmpty()) return false;
  const QString opened = std::exchange(record_.opening, {});
  if (!isPlain(opened)) record_.suspects.removeAll(opened);
  write();
  return true;
}

void OpeningWatch::moved(const QString& from, const QString& to) {
  if (isPlain(from)) plain_->add(to);
  if (record_.opening == from) record_.opening = to;
  const qsizetype place = record_.suspects.indexOf(from);
  if (place >= 0) record_.suspects[place] = to;
  if (record_.opening == to || place >= 0) write();
}

void OpeningWatch::write() {
  if (file_.isEmpty()) return;
  disk_.run([&files = files_, file = file_, record = record_] { record.write(files, file); }, [] {},
            DiskWork::Patience::none);
}

}  // namespace tarnloft

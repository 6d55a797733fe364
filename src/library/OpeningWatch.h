#pragma once

#include "library/OpeningRecord.h"
#include "library/PlainBrands.h"
#include "platform/DiskWork.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace tarnloft {

// Which package is being opened, kept on disk for as long as that may end the program, so that the
// next start knows. What ended it is a suspect, and plain, until it has stood as a whole. Work on
// the disk goes behind what was asked for before. Main thread.
class OpeningWatch : public QObject {
 public:
  static constexpr std::chrono::seconds standing{5};  // of a page that counts as opened

  // Reads what the last end has left. Without a file's path nothing is kept.
  OpeningWatch(FileStore& files, DiskWork& disk, QString file, std::shared_ptr<PlainBrands> plain);

  // The package whose opening ended the program, until it is answered; empty for none.
  const QString& ended() const { return ended_; }
  // That suspect isn't opened by itself: unless there is another question, it is one.
  void ask(const QString& packageURL) {
    if (ended_.isEmpty()) ended_ = packageURL;
  }
  void answer() { ended_.clear(); }
  bool isSuspect(const QString& packageURL) const { return record_.suspects.contains(packageURL); }
  bool isPlain(const QString& packageURL) const { return plain_->contains(packageURL); }
  // It shall be shown as a whole.
  void trust(const QString& packageURL) { plain_->remove(packageURL); }

  // For a piece of work on the disk that opens a package: writes so, and gives false for a suspect.
  std::function<bool(const QString& packageURL)> marking() const;
  // The package is about to be read, or shown.
  void begin(const QString& packageURL);
  // The same for one that `marking` wrote.
  void began(const QString& packageURL);
  // Its page stands, or the program ends as it should. True if there was something to write.
  bool end();
  void moved(const QString& from, const QString& to);

 private:
  void write();

  FileStore& files_;
  DiskWork& disk_;
  const QString file_;
  const std::shared_ptr<PlainBrands> plain_;
  OpeningRecord record_;
  QString ended_;
  QTimer standing_;
};

}  // namespace tarnloft

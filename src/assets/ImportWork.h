#pragma once

#include "library/LongWork.h"

#include <QPointer>
#include <QStringList>
#include <QThreadPool>

namespace tarnloft {

// The files of one call on their way in, as work that the window tells once it takes long, and that
// the user may end. Main thread.
class ImportWork {
 public:
  // Told by nobody without `told`.
  explicit ImportWork(LongWork* told) : told_(told) {}

  // They are known by these names.
  void begin(const QStringList& names);
  // Adds a file's size to what is to be done.
  void measure(const QString& path, QThreadPool& workers) const;
  void end();

  // For those who copy. Any thread.
  Progress& progress() const { return *progress_; }

 private:
  const QPointer<LongWork> told_;
  std::shared_ptr<Progress> progress_ = std::make_shared<Progress>();
};

}  // namespace tarnloft

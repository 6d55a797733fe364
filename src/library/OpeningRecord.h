#pragma once

#include "platform/FileStore.h"

#include <QStringList>

namespace tarnloft {

// What is remembered of brands that were being opened when the program ended. It stands in a file
// of the user's state, written before a package is read and again once its page has stood for a
// while or the program ends as it should.
struct OpeningRecord {
  QString opening;       // the package; empty for none
  QStringList suspects;  // packages that ended the program, until they have stood as a whole

  bool operator==(const OpeningRecord&) const = default;

  // A file that isn't there, or can't be read, tells of nothing.
  static OpeningRecord read(const FileStore& files, const QString& path);
  // A failure is nothing to tell the user of: what is lost is a question after a crash.
  void write(FileStore& files, const QString& path) const;
};

}  // namespace tarnloft

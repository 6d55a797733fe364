#pragma once

#include "document/BrandDocument.h"

#include <QObject>

#include <memory>
#include <vector>

namespace tarnloft {

// The documents that were let go while work of theirs wasn't on disk. Each is kept, and tries to
// save, until it is. Main thread.
class UnsavedDocuments : public QObject {
  Q_OBJECT

 public:
  // Saves it, and keeps it while that hasn't been done.
  void keep(std::unique_ptr<BrandDocument> document);
  // Gives one back to be the open one again, or to be thrown away; null if none is of that package.
  std::unique_ptr<BrandDocument> take(const QString& packageURL);
  BrandDocument* at(const QString& packageURL) const;
  std::vector<BrandDocument*> all() const;

 signals:
  // One came, went, or tells something else of its save.
  void changed();

 private:
  void release();

  std::vector<std::unique_ptr<BrandDocument>> documents_;
};

}  // namespace tarnloft

#include "library/OpeningRecord.h"

#include "document/AtomicWrite.h"
#include "document/Package.h"

#include <algorithm>

namespace tarnloft {
namespace {

// No path holds it.
constexpr QChar separator = u'\0';

constexpr qint64 largest = 1024 * 1024;

}  // namespace

OpeningRecord OpeningRecord::read(const FileStore& files, const QString& path) {
  const auto file = files.open(path, Package::folderOf(path));
  if (!file) return {};
  QByteArray bytes(std::min((*file)->size(), largest), Qt::Uninitialized);
  if ((*file)->read(bytes.data(), bytes.size()) != bytes.size()) return {};
  QStringList paths = QString::fromUtf8(bytes).split(separator);
  OpeningRecord record{paths.takeFirst(), {}};
  record.suspects = paths;
  return record;
}

void OpeningRecord::write(FileStore& files, const QString& path) const {
  if (!files.makeFolder(Package::folderOf(path))) return;
  const QByteArray bytes = (QStringList(opening) + suspects).join(separator).toUtf8();
  (void)writeAtomically(files, path, Durability::atomic,
                        [&](FileWriter& file) { return file.write(bytes); });
}

}  // namespace tarnloft

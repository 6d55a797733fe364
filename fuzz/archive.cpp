// The unpacker on any bytes: it never crashes, and nothing that it unpacks leads out of the folder.
#include "platform/desktop/archives/ZipArchiver.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const QTemporaryDir folder;
  const QString archive = folder.filePath(QStringLiteral("a.zip"));
  const QString target = folder.filePath(QStringLiteral("deep/target"));
  QFile file(archive);
  if (!QDir().mkpath(target) || !file.open(QIODevice::WriteOnly)) std::abort();
  file.write(reinterpret_cast<const char*>(data), qint64(size));
  file.close();
  Progress progress;
  (void)ZipArchiver({1 << 20, 0, 100}).extract(archive, target, progress);
  const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  if (QDir(folder.path()).entryList(all).size() != 2) std::abort();
  if (QDir(folder.filePath(QStringLiteral("deep"))).entryList(all).size() != 1) std::abort();
  qint64 total = 0;
  for (QDirIterator entries(target, all, QDirIterator::Subdirectories); entries.hasNext();) {
    const QFileInfo entry(entries.next());
    const QString end = entry.canonicalFilePath();
    if (!end.isEmpty() && !end.startsWith(target + QLatin1Char('/'))) std::abort();
    if (!entry.isSymLink() && entry.isFile()) total += entry.size();
  }
  if (total > 1 << 20) std::abort();
  return 0;
}

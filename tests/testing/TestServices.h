#pragma once

#include "document/DocumentServices.h"
#include "platform/desktop/files/PosixFileStore.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

namespace tarnloft {

class ListedLog : public SystemLog {
 public:
  void write(const QString& text) override { lines << text; }
  QStringList lines;
};

// A scratch folder on the real disk and the services of a document in it. The clock stands still
// until a test moves it.
struct TestServices {
  QTemporaryDir folder;
  PosixFileStore files;
  ListedLog log;
  Timestamp now{std::chrono::milliseconds(1772357460123)};

  DocumentServices services() {
    return {files, log, [this] { return now; }};
  }
  QString path(const QString& name) const { return folder.filePath(name); }
};

inline QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The names in a folder, hidden ones included.
inline QStringList namesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                QDir::NoDotAndDotDot);
}

inline bool writeFile(const QString& path, const QByteArray& content) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

}  // namespace tarnloft

#include "platform/desktop/fonts/FreeTypeFonts.h"

#include "platform/desktop/files/PosixFiles.h"
#include "platform/desktop/fonts/FontFile.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QMutex>
#include <QThread>
#include <QThreadPool>

namespace tarnloft {

using namespace freetype;

namespace {

constexpr qint64 largestFile = qint64(128) << 20;
constexpr qint64 ordinaryFile = qint64(4) << 20;  // read and registered within a frame

std::unique_ptr<FontFile> read(const posix::OpenFile& file) {
  if (file.info.st_size > largestFile) return nullptr;
  const auto bytes = posix::contentOf(file);
  return bytes ? FontFile::open(*bytes) : nullptr;
}

bool isMainThread() { return QThread::currentThread() == qApp->thread(); }

}  // namespace

// What is registered already. Any thread, but for `add`.
class FreeTypeFonts::Registry {
 public:
  // False if a file in that state was entered before.
  bool enter(const FileIdentity& file) {
    const QMutexLocker lock(&mutex_);
    if (files_.contains(file)) return false;
    files_ << file;
    return true;
  }

  // Main thread.
  void add(const QList<QByteArray>& fonts) {
    for (const QByteArray& font : fonts) {
      if (fonts_.contains(font)) continue;
      fonts_ << font;
      QFontDatabase::addApplicationFontFromData(font);
    }
  }

 private:
  QMutex mutex_;
  QList<FileIdentity> files_;
  QList<QByteArray> fonts_;  // shares the database's own copies
};

FreeTypeFonts::FreeTypeFonts() : registry_(std::make_shared<Registry>()) {}
FreeTypeFonts::~FreeTypeFonts() = default;

std::optional<FontNames> FreeTypeFonts::names(const QString& path) {
  const auto opened = posix::openRegularFile(path);
  const auto font = opened ? read(*opened) : nullptr;
  return font ? font->names() : std::nullopt;
}

void FreeTypeFonts::registerForProcess(const QString& path) {
  if (!qobject_cast<QGuiApplication*>(qApp)) return;  // nothing is drawn in this process
  auto opened = posix::openRegularFile(path);
  if (!opened || !registry_->enter(posix::identityOf(opened->info))) return;
  const bool isOrdinary = opened->info.st_size <= ordinaryFile;
  const auto file = std::make_shared<posix::OpenFile>(std::move(*opened));
  const auto work = [file, registry = registry_] {
    const auto font = read(*file);
    if (!font) return;
    QMetaObject::invokeMethod(qApp,
                              [registry, fonts = font->unwrapped()] { registry->add(fonts); });
  };
  if (isOrdinary || !isMainThread()) return work();
  QThreadPool::globalInstance()->start(work);
}

}  // namespace tarnloft

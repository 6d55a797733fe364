#include "platform/desktop/fonts/CheckedFonts.h"

#include "platform/desktop/fonts/FontChecks.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QMutex>

namespace tarnloft {

using namespace decoding;

namespace {

// Of all registered fonts: each stays in memory for as long as the process.
constexpr qsizetype mostBytes = qsizetype(160) << 20;

}  // namespace

// What is registered already. Any thread, but for `add`.
class CheckedFonts::Registry {
 public:
  explicit Registry(SystemLog& log) : log_(log) {}

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
      if (bytes_ + font.size() > mostBytes) {
        log_.write(QStringLiteral("A font isn't drawn: the fonts together are too large"));
        continue;
      }
      bytes_ += font.size();
      fonts_ << font;
      QFontDatabase::addApplicationFontFromData(font);
    }
  }

 private:
  SystemLog& log_;
  QMutex mutex_;
  QList<FileIdentity> files_;
  QList<QByteArray> fonts_;  // shares the database's own copies
  qsizetype bytes_ = 0;
};

CheckedFonts::CheckedFonts(std::shared_ptr<DecoderPool> decoders, SystemLog& log)
    : decoders_(std::move(decoders)), registry_(std::make_shared<Registry>(log)) {
  checks_.setMaxThreadCount(2);
}

CheckedFonts::~CheckedFonts() { checks_.clear(); }

bool CheckedFonts::finish(std::chrono::milliseconds patience) {
  checks_.clear();
  return checks_.waitForDone(int(patience.count()));
}

std::optional<FontNames> CheckedFonts::names(const QString& path) {
  const auto file = posix::openRegularFile(path);
  return file ? FontChecks::namesOf(*decoders_, *file) : std::nullopt;
}

void CheckedFonts::registerForProcess(const QString& path) {
  if (!qobject_cast<QGuiApplication*>(qApp)) return;  // nothing is drawn in this process
  auto opened = posix::openRegularFile(path);
  if (!opened || !registry_->enter(posix::identityOf(opened->info))) return;
  const auto file = std::make_shared<posix::OpenFile>(std::move(*opened));
  checks_.start([file, decoders = decoders_, registry = registry_] {
    QMetaObject::invokeMethod(qApp, [registry, fonts = FontChecks::soundFonts(*decoders, *file)] {
      registry->add(fonts);
    });
  });
}

}  // namespace tarnloft

#include "platform/desktop/thumbnails/SharedThumbnails.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <QUrl>

#include <algorithm>

namespace tarnloft {
namespace {

const QString uriKey = QStringLiteral("Thumb::URI");
const QString timeKey = QStringLiteral("Thumb::MTime");
const QString sizeKey = QStringLiteral("Thumb::Size");
const QString makerKey = QStringLiteral("Software");
const QString ourName = QStringLiteral("Tarn Loft");

constexpr QFile::Permissions ownersFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownersFolder = ownersFile | QFile::ExeOwner;

// What tells one state of a file from another; empty for one that isn't there.
QString timeOf(const QFileInfo& file) {
  return file.isFile() ? QString::number(file.lastModified().toSecsSinceEpoch()) : QString();
}

bool makeFolder(const QString& folder) {
  if (QFileInfo(folder).isDir()) return true;
  return QDir().mkpath(folder) && QFile::setPermissions(folder, ownersFolder);
}

struct Marks {
  QByteArray uri;
  QString time;
  qint64 bytes;
};

void write(const QString& target, const QImage& picture, const Marks& marks) {
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) return;
  file.setPermissions(ownersFile);
  QImageWriter writer(&file, "png");
  writer.setCompression(30);  // of 100: quick, and not much larger
  // By the picture: the writer itself takes no colon in a key.
  QImage marked = picture;
  marked.setText(uriKey, QString::fromLatin1(marks.uri));
  marked.setText(timeKey, marks.time);
  marked.setText(sizeKey, QString::number(marks.bytes));
  marked.setText(makerKey, ourName);
  if (writer.write(marked)) file.commit();
}

}  // namespace

QString SharedThumbnails::sharedFolder() {
  const QString cache = qEnvironmentVariable("XDG_CACHE_HOME");
  const bool isUsable = QDir::isAbsolutePath(cache);
  return (isUsable ? cache : QDir::homePath() + QStringLiteral("/.cache")) +
         QStringLiteral("/thumbnails");
}

SharedThumbnails::SharedThumbnails(QString folder) : folder_(std::move(folder)) {
  writer_.setMaxThreadCount(1);
  writer_.setThreadPriority(QThread::LowPriority);
}

SharedThumbnails::~SharedThumbnails() { writer_.clear(); }

bool SharedThumbnails::finish(std::chrono::milliseconds patience) {
  writer_.clear();
  return writer_.waitForDone(int(patience.count()));
}

QByteArray SharedThumbnails::uriOf(const QString& path) {
  QByteArray uri = QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded);
  return uri.replace(';', "%3B").replace('[', "%5B").replace(']', "%5D");
}

QString SharedThumbnails::fileOf(const QByteArray& uri, Size size) const {
  const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
  return folder_ + (size == Size::large ? QStringLiteral("/large/") : QStringLiteral("/x-large/")) +
         QString::fromLatin1(name) + QStringLiteral(".png");
}

std::optional<QImage> SharedThumbnails::find(const QString& path, Size size, Maker maker) const {
  const QByteArray uri = uriOf(path);
  QImageReader reader(fileOf(uri, size), "png");
  const QSize stored = reader.size();
  if (!stored.isValid() || std::max(stored.width(), stored.height()) > int(size))
    return std::nullopt;
  QImage picture = reader.read();
  const QString time = timeOf(QFileInfo(path));
  const bool isOfFile = !time.isEmpty() && picture.text(timeKey) == time &&
                        picture.text(uriKey) == QString::fromLatin1(uri);
  const bool isTrusted = maker == Maker::anyProgram || picture.text(makerKey) == ourName;
  if (picture.isNull() || !isOfFile || !isTrusted) return std::nullopt;
  return std::move(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void SharedThumbnails::keep(const QString& path, Size size, const QImage& picture) {
  constexpr int mostWaiting = 64;  // pictures in memory; others are kept the next time
  if (waiting_ >= mostWaiting) return;
  ++waiting_;
  const QFileInfo source(path);
  const Marks marks{uriOf(path), timeOf(source), source.size()};
  writer_.start([this, marks, size, picture] {
    const QString target = fileOf(marks.uri, size);
    if (!marks.time.isEmpty() && makeFolder(folder_) && makeFolder(QFileInfo(target).path()))
      write(target, picture, marks);
    --waiting_;
  });
}

}  // namespace tarnloft

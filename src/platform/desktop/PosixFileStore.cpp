#include "platform/desktop/PosixFileStore.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace tarnloft {
namespace {

tl::unexpected<Error> systemFailure(int code) {
  return failure(code == ENOENT ? ErrorKind::notFound : ErrorKind::io,
                 QString::fromStdString(std::generic_category().message(code)));
}

Result<void> done(int status) {
  if (status == 0) return {};
  return systemFailure(errno);
}

// The path as the system takes it. The system would end it at a NUL, and so name another file.
std::optional<QByteArray> native(const QString& path) {
  if (path.isEmpty() || path.contains(QChar(u'\0'))) return std::nullopt;
  return QFile::encodeName(path);
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

// Some file systems have no way to wait for the medium; there is nothing more to do on them.
Result<void> synced(const Descriptor& file) {
  if (::fsync(file.number()) == 0 || errno == EINVAL || errno == ENOTSUP) return {};
  return systemFailure(errno);
}

class PosixReader : public FileReader {
 public:
  PosixReader(Descriptor file, qint64 size) : file_(std::move(file)), size_(size) {}

  Result<qint64> read(char* buffer, qint64 capacity) override {
    for (;;) {
      const ssize_t count = ::read(file_.number(), buffer, size_t(capacity));
      if (count >= 0) return count;
      if (errno != EINTR) return systemFailure(errno);
    }
  }
  qint64 size() const override { return size_; }

 private:
  Descriptor file_;
  qint64 size_;
};

class PosixWriter : public FileWriter {
 public:
  PosixWriter(Descriptor file, QString path) : file_(std::move(file)), path_(std::move(path)) {}

  const QString& path() const override { return path_; }

  Result<void> write(QByteArrayView bytes) override {
    while (!bytes.isEmpty()) {
      const ssize_t count = ::write(file_.number(), bytes.data(), size_t(bytes.size()));
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return systemFailure(errno);
      bytes = bytes.sliced(count);
    }
    return {};
  }

  Result<void> repeat(qint64 offset, qint64 length) override {
    std::vector<char> buffer(size_t(std::min<qint64>(length, 1 << 20)));
    while (length > 0) {
      const size_t wanted = size_t(std::min<qint64>(length, qint64(buffer.size())));
      const ssize_t count = ::pread(file_.number(), buffer.data(), wanted, offset);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return systemFailure(count < 0 ? errno : EIO);
      if (auto written = write({buffer.data(), count}); !written) return written;
      offset += count;
      length -= count;
    }
    return {};
  }

  Result<void> truncate(qint64 size) override {
    if (::ftruncate(file_.number(), size) != 0) return systemFailure(errno);
    return ::lseek(file_.number(), size, SEEK_SET) < 0 ? systemFailure(errno) : Result<void>();
  }

  Result<void> sync() override { return synced(file_); }

 private:
  Descriptor file_;
  QString path_;
};

bool standsInside(const QString& canonicalPath, const QString& root) {
  if (root.isEmpty()) return true;
  const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
  return !canonicalRoot.isEmpty() && canonicalPath.startsWith(canonicalRoot + QLatin1Char('/'));
}

QString folderOf(const QString& path) {
  const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
  return slash < 0 ? QStringLiteral("./") : path.left(slash + 1);
}

QString temporaryPath(const QString& target) {
  return folderOf(target) + QStringLiteral(".tarnloft-") +
         QString::number(QRandomGenerator::system()->generate64(), 36);
}

constexpr mode_t newFileMode = 0666;

// The rights of the file that will be replaced; none if there isn't one.
std::optional<mode_t> presentMode(const QByteArray& path) {
  struct stat info;
  if (::stat(path.constData(), &info) != 0) return std::nullopt;
  return info.st_mode & 07777;
}

}  // namespace

bool PosixFileStore::exists(const QString& path) const {
  const auto name = native(path);
  struct stat info;
  return name && ::lstat(name->constData(), &info) == 0;
}

Result<std::unique_ptr<FileReader>> PosixFileStore::open(const QString& path,
                                                         const QString& root) const {
  if (!native(path)) return systemFailure(EINVAL);
  const QString canonicalPath = QFileInfo(path).canonicalFilePath();
  if (canonicalPath.isEmpty()) return systemFailure(ENOENT);
  if (!standsInside(canonicalPath, root)) {
    return failure(ErrorKind::refused, QStringLiteral("The file is outside of its package"));
  }
  Descriptor file(::open(QFile::encodeName(canonicalPath).constData(),
                         O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (!file.isOpen()) return systemFailure(errno);
  struct stat info;
  if (::fstat(file.number(), &info) != 0) return systemFailure(errno);
  if (!S_ISREG(info.st_mode)) return failure(ErrorKind::refused, QStringLiteral("Not a file"));
  return std::make_unique<PosixReader>(std::move(file), info.st_size);
}

Result<QString> PosixFileStore::resolved(const QString& path) const {
  if (!native(path)) return systemFailure(EINVAL);
  if (!QFileInfo(path).isSymLink()) return path;
  const QString target = QFileInfo(path).canonicalFilePath();
  if (target.isEmpty()) return systemFailure(ENOENT);
  return target;
}

Result<void> PosixFileStore::makeFolder(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  if (::mkdir(name->constData(), 0777) == 0) return {};
  if (errno == EEXIST) return QFileInfo(path).isDir() ? Result<void>() : systemFailure(ENOTDIR);
  const QString parent = folderOf(path).chopped(1);
  if (errno != ENOENT || parent.isEmpty() || exists(parent)) return systemFailure(errno);
  return makeFolder(parent).and_then([&] { return makeFolder(path); });
}

Result<std::unique_ptr<FileWriter>> PosixFileStore::createTemporary(const QString& target) {
  const auto targetName = native(target);
  if (!targetName) return systemFailure(EINVAL);
  const QString path = temporaryPath(target);
  Descriptor file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC,
                         newFileMode));
  if (!file.isOpen()) return systemFailure(errno);
  // Best effort: on some file systems rights can't be set.
  if (const auto mode = presentMode(*targetName)) (void)::fchmod(file.number(), *mode);
  return std::make_unique<PosixWriter>(std::move(file), path);
}

Result<void> PosixFileStore::replace(const QString& temporary, const QString& target) {
  const auto from = native(temporary), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  struct stat info;
  const bool present = ::lstat(to->constData(), &info) == 0;
  if (present && !S_ISREG(info.st_mode) && !S_ISLNK(info.st_mode)) {
    return failure(ErrorKind::refused, QStringLiteral("Something other than a file is there"));
  }
  return done(::rename(from->constData(), to->constData()));
}

Result<void> PosixFileStore::syncFolder(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  Descriptor folder(::open(name->constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) return systemFailure(errno);
  return synced(folder);
}

Result<void> PosixFileStore::remove(const QString& path) {
  const auto name = native(path);
  return name ? done(::unlink(name->constData())) : systemFailure(EINVAL);
}

Result<void> PosixFileStore::moveFolder(const QString& path, const QString& target) {
  const auto from = native(path), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  if (::renameat2(AT_FDCWD, from->constData(), AT_FDCWD, to->constData(), RENAME_NOREPLACE) == 0) {
    return {};
  }
  if (errno != EINVAL) return systemFailure(errno);
  // The file system can't check and rename in one step.
  if (exists(target)) return systemFailure(EEXIST);
  return done(::rename(from->constData(), to->constData()));
}

}  // namespace tarnloft

#include "platform/desktop/PosixFileStore.h"

#include "platform/desktop/PosixFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <optional>

namespace tarnloft {

using namespace posix;

namespace {

// The path as the system takes it. The system would end it at a NUL, and so name another file.
std::optional<QByteArray> native(const QString& path) {
  if (path.isEmpty() || path.contains(QChar(u'\0'))) return std::nullopt;
  return QFile::encodeName(path);
}

bool liesInside(const QString& canonicalPath, const QString& root) {
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

std::optional<FileIdentity> PosixFileStore::identity(const QString& path) const {
  const auto name = native(path);
  struct stat info;
  if (!name || ::lstat(name->constData(), &info) != 0) return std::nullopt;
  return identityOf(info);
}

bool PosixFileStore::standsInside(const QString& path, const QString& root) const {
  if (!native(path)) return false;
  const QString canonicalPath = QFileInfo(path).canonicalFilePath();
  return !canonicalPath.isEmpty() && liesInside(canonicalPath, root);
}

Result<QStringList> PosixFileStore::list(const QString& folder) const {
  const auto name = native(folder);
  if (!name) return systemFailure(EINVAL);
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(name->constData()), ::closedir);
  if (!entries) return systemFailure(errno);
  QStringList names;
  while (const dirent* entry = ::readdir(entries.get())) {
    if (entry->d_name[0] != '.') names << QFile::decodeName(entry->d_name);
  }
  names.sort();
  return names;
}

Result<std::unique_ptr<FileReader>> PosixFileStore::open(const QString& path,
                                                         const QString& root) const {
  if (!native(path)) return systemFailure(EINVAL);
  const QString canonicalPath = QFileInfo(path).canonicalFilePath();
  if (canonicalPath.isEmpty()) return systemFailure(ENOENT);
  if (!liesInside(canonicalPath, root)) {
    return failure(ErrorKind::refused, QStringLiteral("The file is outside of its package"));
  }
  Descriptor file(::open(QFile::encodeName(canonicalPath).constData(),
                         O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (!file.isOpen()) return systemFailure(errno);
  struct stat info;
  if (::fstat(file.number(), &info) != 0) return systemFailure(errno);
  if (!S_ISREG(info.st_mode)) return failure(ErrorKind::refused, QStringLiteral("Not a file"));
  return makeReader(std::move(file), info);
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

Result<void> PosixFileStore::copyFile(const QString& source, const QString& target) {
  const auto from = native(source), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  const Descriptor in(::open(from->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!in.isOpen()) return systemFailure(errno);
  struct stat info;
  if (::fstat(in.number(), &info) != 0) return systemFailure(errno);
  if (!S_ISREG(info.st_mode)) return failure(ErrorKind::refused, QStringLiteral("Not a file"));
  const Descriptor out(::open(to->constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, newFileMode));
  if (!out.isOpen()) return systemFailure(errno);
  if (auto copied = copyContent(in, out); !copied) {
    (void)::unlink(to->constData());
    return copied;
  }
  // Best effort: on some file systems rights or times can't be set.
  const timespec times[] = {info.st_atim, info.st_mtim};
  (void)::fchmod(out.number(), info.st_mode & 0777);
  (void)::futimens(out.number(), times);
  return {};
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
  return makeWriter(std::move(file), path);
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

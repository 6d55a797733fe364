#include "platform/desktop/PosixFileStore.h"

#include "platform/desktop/PosixFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace tarnloft {

using namespace posix;

namespace {

bool liesInside(const QString& canonicalPath, const QString& root) {
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
  if (::lstat(path.constData(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  return info.st_mode & 0777;
}

bool isReplaceable(const QByteArray& path) {
  struct stat info;
  return ::lstat(path.constData(), &info) != 0 || S_ISREG(info.st_mode) || S_ISLNK(info.st_mode);
}

tl::unexpected<Error> notReplaceable() {
  return failure(ErrorKind::refused, QStringLiteral("Something other than a file is there"));
}

Result<void> copyLink(const QByteArray& source, const QByteArray& target) {
  QByteArray content(PATH_MAX, Qt::Uninitialized);
  const ssize_t length = ::readlink(source.constData(), content.data(), size_t(content.size()));
  if (length < 0) return systemFailure(errno);
  content.truncate(length);
  return done(::symlink(content.constData(), target.constData()));
}

// Best effort: on some file systems they can't be set.
Result<void> setRightsAndTimes(const QByteArray& path, const struct stat& info) {
  const timespec times[] = {info.st_atim, info.st_mtim};
  (void)::chmod(path.constData(), info.st_mode & 0777);
  (void)::utimensat(AT_FDCWD, path.constData(), times, 0);
  return {};
}

// Makes a folder that only the user can enter, or makes one of the user's such.
Result<void> makePrivateFolder(const QByteArray& path) {
  if (::mkdir(path.constData(), 0700) == 0) return {};
  if (errno != EEXIST) return systemFailure(errno);
  struct stat info;
  if (::lstat(path.constData(), &info) != 0) return systemFailure(errno);
  if (!S_ISDIR(info.st_mode) || info.st_uid != ::geteuid()) return systemFailure(EEXIST);
  return (info.st_mode & 077) == 0 ? Result<void>() : done(::chmod(path.constData(), 0700));
}

// A file without a name can be given one only through it.
bool hasProc() { return ::access("/proc/self/fd", F_OK) == 0; }

}  // namespace

bool PosixFileStore::exists(const QString& path) const {
  const auto name = native(path);
  struct stat info;
  return name && ::lstat(name->constData(), &info) == 0;
}

bool PosixFileStore::isFolder(const QString& path) const {
  return native(path) && QFileInfo(path).isDir();
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
  if (auto beneath = openBeneath(path, root)) {
    return makeReader(std::move(beneath->file), beneath->info);
  }
  if (!native(path)) return systemFailure(EINVAL);
  const QString canonicalPath = QFileInfo(path).canonicalFilePath();
  if (canonicalPath.isEmpty()) return systemFailure(ENOENT);
  if (!liesInside(canonicalPath, root)) {
    return failure(ErrorKind::refused, QStringLiteral("The file is outside of its package"));
  }
  auto opened = openRegularFile(canonicalPath, Links::refuse);
  if (!opened) return tl::unexpected(opened.error());
  return makeReader(std::move(opened->file), opened->info);
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

Result<QString> PosixFileStore::makeTemporaryFolder(const QString& name) {
  const QString root = QDir::tempPath(), path = root + QLatin1Char('/') + name;
  if (root.isEmpty() || !native(path)) return systemFailure(ENOENT);
  if (makePrivateFolder(QFile::encodeName(path))) return path;
  QString own = path + QLatin1Char('-') + QString::number(::geteuid());
  return makePrivateFolder(QFile::encodeName(own)).map([&] { return own; });
}

Result<void> PosixFileStore::copyFile(const QString& source, const QString& target) {
  const auto to = native(target);
  if (!to) return systemFailure(EINVAL);
  const auto in = openRegularFile(source);
  if (!in) return tl::unexpected(in.error());
  const Descriptor out(::open(to->constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, newFileMode));
  if (!out.isOpen()) return systemFailure(errno);
  if (auto copied = copyContent(in->file, out); !copied) {
    (void)::unlink(to->constData());
    return copied;
  }
  return setRightsAndTimes(*to, in->info);
}

Result<void> PosixFileStore::copyFolder(const QString& source, const QString& target) {
  if (!native(source) || !native(target)) return systemFailure(EINVAL);
  const QString temporary = temporaryPath(target);
  auto copied = copyTree(source, temporary).and_then([&] { return moveFolder(temporary, target); });
  if (!copied) QDir(temporary).removeRecursively();
  return copied;
}

// Leaves what was copied by then on failure.
Result<void> PosixFileStore::copyTree(const QString& source, const QString& target) {
  struct stat info;
  if (::stat(QFile::encodeName(source).constData(), &info) != 0) return systemFailure(errno);
  if (!S_ISDIR(info.st_mode)) return systemFailure(ENOTDIR);
  if (auto made = makeFolder(target); !made) return made;
  const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  for (const QFileInfo& entry : QDir(source).entryInfoList(everything)) {
    const QString copy = target + QLatin1Char('/') + entry.fileName();
    Result<void> copied;
    if (entry.isSymLink()) {
      copied = copyLink(QFile::encodeName(entry.filePath()), QFile::encodeName(copy));
    } else if (entry.isDir()) {
      copied = copyTree(entry.filePath(), copy);
    } else if (entry.isFile()) {
      copied = copyFile(entry.filePath(), copy);
    }
    if (!copied) return copied;
  }
  return setRightsAndTimes(QFile::encodeName(target), info);
}

Result<std::unique_ptr<FileWriter>> PosixFileStore::createTemporary(const QString& target) {
  const auto targetName = native(target);
  if (!targetName) return systemFailure(EINVAL);
  if (!isReplaceable(*targetName)) return notReplaceable();
  const auto present = presentMode(*targetName);
  const mode_t mode = present.value_or(newFileMode);
  const QByteArray folder = QFile::encodeName(folderOf(target));
  QByteArray name;  // none while the file system knows files without one
  int file = hasProc() ? ::open(folder.constData(), O_RDWR | O_TMPFILE | O_CLOEXEC, mode) : -1;
  if (file < 0) {
    name = QFile::encodeName(temporaryPath(target));
    file = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  }
  if (file < 0) return systemFailure(errno);
  // The new file's rights went through the user's mask, which the old one's don't. Best effort.
  if (present) (void)::fchmod(file, mode);
  return std::make_unique<PosixWriter>(Descriptor(file), name);
}

Result<void> PosixFileStore::replace(FileWriter& temporary, const QString& target) {
  const auto name = native(target);
  if (!name) return systemFailure(EINVAL);
  if (!isReplaceable(*name)) return notReplaceable();
  return static_cast<PosixWriter&>(temporary).moveTo(QFile::encodeName(temporaryPath(target)),
                                                     *name);
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

Result<void> PosixFileStore::removeFolder(const QString& path) {
  struct stat info;
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  if (::lstat(name->constData(), &info) != 0) return systemFailure(errno);
  if (!S_ISDIR(info.st_mode)) return systemFailure(ENOTDIR);
  if (QDir(path).removeRecursively()) return {};
  return failure(ErrorKind::io, QStringLiteral("Some of the folder could not be removed"));
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

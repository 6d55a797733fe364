#include "platform/desktop/files/PosixFileStore.h"

#include "platform/desktop/files/PosixNewFile.h"
#include "platform/desktop/files/PosixOpenFolder.h"
#include "platform/desktop/files/PosixTrees.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace tarnloft {

using namespace posix;

namespace {

// The rights of the file that will be replaced; none if there isn't one.
std::optional<mode_t> presentMode(const QByteArray& path) {
  struct stat info;
  if (::lstat(path.constData(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  return info.st_mode & 0777;
}

// The path of what may be replaced: a file, a link or nothing.
Result<QByteArray> replaceable(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  struct stat info;
  if (::lstat(name->constData(), &info) != 0 || S_ISREG(info.st_mode) || S_ISLNK(info.st_mode)) {
    return *name;
  }
  return failure(ErrorKind::refused, QStringLiteral("Something other than a file is there"));
}

NewFile& newFile(FileWriter& writer) { return static_cast<PosixWriter&>(writer).newFile(); }

// Makes a folder that only the user can enter, or makes one of the user's such.
Result<void> makePrivateFolder(const QByteArray& path) {
  if (::mkdir(path.constData(), 0700) == 0) return {};
  if (errno != EEXIST) return systemFailure(errno);
  struct stat info;
  if (::lstat(path.constData(), &info) != 0) return systemFailure(errno);
  if (!S_ISDIR(info.st_mode) || info.st_uid != ::geteuid()) return systemFailure(EEXIST);
  return (info.st_mode & 077) == 0 ? Result<void>() : done(::chmod(path.constData(), 0700));
}

Result<QStringList> sortedNames(const QString& folder, bool (*isWanted)(const QByteArray&)) {
  const auto path = native(folder);
  if (!path) return systemFailure(EINVAL);
  return namesIn(*path).map([&](const QByteArrayList& names) {
    QStringList wanted;
    for (const QByteArray& name : names) {
      if (isWanted(name)) wanted << QFile::decodeName(name);
    }
    wanted.sort();
    return wanted;
  });
}

}  // namespace

bool PosixFileStore::exists(const QString& path) const {
  const auto name = native(path);
  struct stat info;
  return name && ::lstat(name->constData(), &info) == 0;
}

bool PosixFileStore::isFolder(const QString& path) const {
  return native(path) && QFileInfo(path).isDir();
}

Result<FileIdentity> PosixFileStore::identity(const QString& path) const {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  struct stat info;
  if (::lstat(name->constData(), &info) == 0) return identityOf(info);
  // Nothing stands behind a file either.
  return systemFailure(errno == ENOTDIR ? ENOENT : errno);
}

bool PosixFileStore::standsInside(const QString& path, const QString& root) const {
  const auto name = canonicalPath(path), top = canonicalPath(root);
  return name && top && name->startsWith(*top + '/');
}

Result<QStringList> PosixFileStore::list(const QString& folder) const {
  return sortedNames(folder, [](const QByteArray& name) { return !name.startsWith('.'); });
}

Result<QStringList> PosixFileStore::listAll(const QString& folder) const {
  return sortedNames(folder, [](const QByteArray& /*name*/) { return true; });
}

Result<std::unique_ptr<FileReader>> PosixFileStore::open(const QString& path,
                                                         const QString& root) const {
  return openFileInside(path, root).map([](OpenFile file) {
    return makeReader(std::move(file.file), file.info);
  });
}

Result<std::shared_ptr<OpenFolder>> PosixFileStore::openFolder(const QString& path,
                                                               const QString& root) const {
  return openFolderInside(path, root).map([](Descriptor folder) -> std::shared_ptr<OpenFolder> {
    return std::make_shared<PosixOpenFolder>(std::move(folder));
  });
}

Result<QString> PosixFileStore::resolved(const QString& path) const {
  if (!native(path)) return systemFailure(EINVAL);
  if (!QFileInfo(path).isSymLink()) return path;
  return canonicalPath(path).and_then(textOf);
}

Result<void> PosixFileStore::makeFolder(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  if (::mkdir(name->constData(), 0777) == 0) return {};
  if (errno == EEXIST) return QFileInfo(path).isDir() ? Result<void>() : systemFailure(ENOTDIR);
  const QString parent = path.left(path.lastIndexOf(QLatin1Char('/')));
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
  const auto from = native(source), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  return NewFile::copyOf(*from, openParent(*to)).and_then([&](NewFile copy) {
    return copy.appearAs(nameOf(*to));
  });
}

Result<void> PosixFileStore::copyFolder(const QString& source, const QString& target,
                                        Progress& progress) {
  const auto from = native(source), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  const QByteArray temporary = folderOf(*to) + temporaryName();
  const auto settle = [&] {
    auto synced = posix::syncFolder(folderOf(*to));
    if (!synced) (void)renameToFree(AT_FDCWD, *to, AT_FDCWD, temporary);
    return synced;
  };
  progress.expect(sizeOfTree(*from));
  auto copied = copyTree(*from, temporary, progress)
                    .and_then([&] { return posix::syncTree(temporary); })
                    .and_then([&] { return renameToFree(AT_FDCWD, temporary, AT_FDCWD, *to); })
                    .and_then(settle);
  if (!copied) (void)removeTree(temporary);
  return copied;
}

Result<std::unique_ptr<FileWriter>> PosixFileStore::createTemporary(const QString& target) {
  const auto path = replaceable(target);
  if (!path) return tl::unexpected(path.error());
  const auto present = presentMode(*path);
  const mode_t mode = present ? *present | 0600 : newFileMode;
  return NewFile::make(openParent(*path), mode)
      .map([&](NewFile file) -> std::unique_ptr<FileWriter> {
        // They went through the user's mask, which the old file's didn't. Best effort.
        if (present) (void)::fchmod(file.file().number(), mode);
        return std::make_unique<PosixWriter>(std::move(file));
      });
}

Result<void> PosixFileStore::replace(FileWriter& temporary, const QString& target) {
  return replaceable(target).and_then(
      [&](const QByteArray& path) { return newFile(temporary).moveOver(path); });
}

Result<Replaced> PosixFileStore::exchange(FileWriter& temporary, const QString& target) {
  return replaceable(target).and_then([&](const QByteArray& path) {
    return newFile(temporary).exchangeWith(path).map([&](const QByteArray& name) {
      return Replaced{name.isEmpty() ? QString() : QFile::decodeName(folderOf(path) + name)};
    });
  });
}

Result<void> PosixFileStore::moveOver(const QString& path, const QString& target) {
  const auto from = native(path);
  if (!from) return systemFailure(EINVAL);
  return replaceable(target).and_then(
      [&](const QByteArray& to) { return done(::rename(from->constData(), to.constData())); });
}

Result<void> PosixFileStore::syncFolder(const QString& path) {
  const auto name = native(path);
  return name ? posix::syncFolder(*name) : systemFailure(EINVAL);
}

Result<void> PosixFileStore::syncTree(const QString& path) {
  const auto name = native(path);
  return name ? posix::syncTree(*name) : systemFailure(EINVAL);
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
  return S_ISDIR(info.st_mode) ? removeTree(*name) : systemFailure(ENOTDIR);
}

Result<void> PosixFileStore::moveFolder(const QString& path, const QString& target) {
  const auto from = native(path), to = native(target);
  if (!from || !to) return systemFailure(EINVAL);
  return renameToFree(AT_FDCWD, *from, AT_FDCWD, *to);
}

QStringList PosixFileStore::temporaries(const QString& folder) const {
  QStringList names = listAll(folder).value_or(QStringList());
  names.removeIf([](const QString& name) { return !posix::isTemporaryName(name.toLatin1()); });
  return names;
}

void PosixFileStore::sweepTemporaries(const QString& folder, std::chrono::hours age) {
  if (const auto name = native(folder)) posix::sweepTemporaries(*name, age);
}

}  // namespace tarnloft

#include "platform/desktop/files/PosixTrees.h"

#include "platform/desktop/files/PosixNewFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <ftw.h>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace tarnloft::posix {
namespace {

bool isItselfOrParent(const QByteArray& name) { return name == "." || name == ".."; }

Result<Descriptor> openFolder(const QByteArray& path) {
  Descriptor folder(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) return systemFailure(errno);
  return folder;
}

Result<void> copyEntry(const QByteArray& source, const QByteArray& target, Progress& progress) {
  struct stat info;
  if (::lstat(source.constData(), &info) != 0) return systemFailure(errno);
  if (S_ISDIR(info.st_mode)) return copyTree(source, target, progress);
  if (S_ISREG(info.st_mode)) {
    return NewFile::copyOf(source, openParent(target), progress).and_then([&](NewFile copy) {
      return copy.appearAs(nameOf(target));
    });
  }
  if (!S_ISLNK(info.st_mode)) return {};
  return linkContent(source).and_then([&](const QByteArray& content) {
    return done(::symlink(content.constData(), target.constData()));
  });
}

Result<void> syncEach(const QByteArray& path);

Result<void> syncEntry(const QByteArray& path) {
  struct stat info;
  if (::lstat(path.constData(), &info) != 0) return systemFailure(errno);
  if (S_ISDIR(info.st_mode)) return syncEach(path);
  if (!S_ISREG(info.st_mode)) return {};
  const Descriptor file(::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return file.isOpen() ? synced(file) : systemFailure(errno);
}

Result<void> syncEach(const QByteArray& path) {
  const auto names = namesIn(path);
  if (!names) return tl::unexpected(names.error());
  for (const QByteArray& name : *names) {
    if (auto entry = syncEntry(path + '/' + name); !entry) return entry;
  }
  return syncFolder(path);
}

// User-space file systems aren't told when all of them is to be synced.
bool isInUserSpace(const Descriptor& folder) {
  struct statfs info;
  return ::fstatfs(folder.number(), &info) == 0 && info.f_type == FUSE_SUPER_MAGIC;
}

int removeEntry(const char* path, const struct stat* /*info*/, int /*kind*/, FTW* /*place*/) {
  (void)std::remove(path);  // what stays is found in the end
  return 0;
}

bool isLeftBehind(const QByteArray& path, qint64 before) {
  struct stat info;
  if (::lstat(path.constData(), &info) != 0 || info.st_uid != ::geteuid()) return false;
  if (!S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode)) return false;
  const FileIdentity identity = identityOf(info);
  return std::max(identity.modified, identity.changed) < before;
}

}  // namespace

Result<QByteArrayList> namesIn(const QByteArray& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.constData()), ::closedir);
  if (!entries) return systemFailure(errno);
  QByteArrayList names;
  for (;;) {
    errno = 0;
    const dirent* const entry = ::readdir(entries.get());
    if (!entry) break;
    if (const QByteArray name = entry->d_name; !isItselfOrParent(name)) names << name;
  }
  if (errno != 0) return systemFailure(errno);
  return names;
}

Result<void> copyTree(const QByteArray& source, const QByteArray& target, Progress& progress) {
  struct stat info;
  if (::stat(source.constData(), &info) != 0) return systemFailure(errno);
  const auto names = namesIn(source);
  if (!names) return tl::unexpected(names.error());
  if (::mkdir(target.constData(), 0700) != 0) return systemFailure(errno);
  for (const QByteArray& name : *names) {
    const QByteArray inside = '/' + name;
    if (auto copied = copyEntry(source + inside, target + inside, progress); !copied) return copied;
  }
  return openFolder(target).map([&](const Descriptor& copy) { setRightsAndTimes(copy, info); });
}

qint64 sizeOfTree(const QByteArray& path) {
  qint64 size = 0;
  for (const QByteArray& name : namesIn(path).value_or(QByteArrayList())) {
    const QByteArray inside = path + '/' + name;
    struct stat info;
    if (::lstat(inside.constData(), &info) != 0) continue;
    if (S_ISREG(info.st_mode)) size += info.st_size;
    if (S_ISDIR(info.st_mode)) size += sizeOfTree(inside);
  }
  return size;
}

Result<void> removeTree(const QByteArray& path) {
  constexpr int openFolders = 16;
  if (::nftw(path.constData(), removeEntry, openFolders, FTW_DEPTH | FTW_PHYS) != 0) {
    return systemFailure(errno);
  }
  struct stat info;
  if (::lstat(path.constData(), &info) != 0) return {};
  return failure(ErrorKind::io, QStringLiteral("Some of the folder could not be removed"));
}

Result<void> syncFolder(const QByteArray& path) {
  return openFolder(path).and_then([](const Descriptor& folder) { return synced(folder); });
}

Result<void> syncTree(const QByteArray& path) {
  const auto folder = openFolder(path);
  if (!folder) return tl::unexpected(folder.error());
  if (isInUserSpace(*folder)) return syncEach(path);
  if (::syncfs(folder->number()) == 0) return {};
  const bool isUnknown = errno == ENOSYS || errno == EINVAL || errno == ENOTSUP || errno == EPERM;
  return isUnknown ? syncEach(path) : systemFailure(errno);
}

void sweepTemporaries(const QByteArray& folder, std::chrono::hours age) {
  const auto before = std::chrono::system_clock::now().time_since_epoch() - age;
  for (const QByteArray& name : namesIn(folder).value_or(QByteArrayList())) {
    const QByteArray path = folder + '/' + name;
    if (isTemporaryName(name) && isLeftBehind(path, std::chrono::nanoseconds(before).count())) {
      (void)removeTree(path);
    }
  }
}

}  // namespace tarnloft::posix

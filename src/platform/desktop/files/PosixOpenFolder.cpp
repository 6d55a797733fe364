#include "platform/desktop/files/PosixOpenFolder.h"

#include "model/FileName.h"
#include "platform/desktop/files/PosixNewFile.h"

#include <QFile>

#include <cerrno>

namespace tarnloft::posix {
namespace {

Result<QByteArray> plainName(const QString& name) {
  if (isPlainFileName(name)) return QFile::encodeName(name);
  return failure(ErrorKind::refused, QStringLiteral("Not a plain file name"));
}

// Gives the file its name in the folder, so that both survive a power cut.
Result<void> settle(NewFile file, const QByteArray& name, const Descriptor& folder) {
  auto appeared = synced(file.file()).and_then([&] { return file.appearAs(name); });
  if (!appeared) return appeared;
  auto settled = synced(folder);
  if (!settled) (void)::unlinkat(folder.number(), name.constData(), 0);
  return settled;
}

}  // namespace

Result<void> PosixOpenFolder::copyIn(const QString& source, const QString& name,
                                     Progress& progress) {
  const auto from = native(source);
  const auto plain = plainName(name);
  if (!from || !plain) return from ? tl::unexpected(plain.error()) : systemFailure(EINVAL);
  return NewFile::copyOf(*from, folder_.duplicate(), progress).and_then([&](NewFile copy) {
    return settle(std::move(copy), *plain, folder_);
  });
}

Result<void> PosixOpenFolder::writeIn(QByteArrayView bytes, const QString& name) {
  const auto plain = plainName(name);
  if (!plain) return tl::unexpected(plain.error());
  return NewFile::make(folder_.duplicate(), newFileMode).and_then([&](NewFile file) {
    return writeAll(file.file(), bytes).and_then([&] {
      return settle(std::move(file), *plain, folder_);
    });
  });
}

Result<QString> PosixOpenFolder::path() const {
  auto path = linkContent("/proc/self/fd/" + QByteArray::number(folder_.number()));
  if (!path) return tl::unexpected(path.error());
  struct stat here, there;
  if (::fstat(folder_.number(), &here) != 0) return systemFailure(errno);
  // Of a deleted folder the system tells where it stood, with a remark.
  const bool isThere = ::lstat(path->constData(), &there) == 0 && here.st_ino == there.st_ino &&
                       here.st_dev == there.st_dev;
  return isThere ? textOf(*path) : systemFailure(ENOENT);
}

}  // namespace tarnloft::posix

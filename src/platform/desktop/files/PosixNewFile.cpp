#include "platform/desktop/files/PosixNewFile.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <vector>

namespace tarnloft::posix {
namespace {

constexpr const char* temporaryPrefix = ".tarnloft-";

// A file without a name can be given one only through it.
bool hasProc() { return ::access("/proc/self/fd", F_OK) == 0; }

bool canNotCheck(int code) { return code == EINVAL || code == ENOSYS; }

bool isDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z'); }

}  // namespace

QByteArray temporaryName() {
  return temporaryPrefix + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
}

bool isTemporaryName(const QByteArray& name) {
  constexpr qsizetype mostDigits = 13;  // of 64 bits in base 36
  if (!name.startsWith(temporaryPrefix)) return false;
  const QByteArrayView digits = QByteArrayView(name).sliced(qstrlen(temporaryPrefix));
  return !digits.isEmpty() && digits.size() <= mostDigits &&
         std::all_of(digits.begin(), digits.end(), isDigit);
}

QByteArray folderOf(const QByteArray& path) {
  const qsizetype slash = path.lastIndexOf('/');
  return slash < 0 ? "./" : path.left(slash + 1);
}

Descriptor openParent(const QByteArray& path) {
  return Descriptor(::open(folderOf(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

QByteArray nameOf(const QByteArray& path) { return path.mid(path.lastIndexOf('/') + 1); }

Result<void> renameToFree(int fromFolder, const QByteArray& from, int toFolder,
                          const QByteArray& to) {
  if (::renameat2(fromFolder, from.constData(), toFolder, to.constData(), RENAME_NOREPLACE) == 0) {
    return {};
  }
  if (!canNotCheck(errno)) return systemFailure(errno);
  // The file system can't check and rename in one step.
  struct stat info;
  if (::fstatat(toFolder, to.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0) {
    return systemFailure(EEXIST);
  }
  return done(::renameat(fromFolder, from.constData(), toFolder, to.constData()));
}

Result<NewFile> NewFile::make(Descriptor folder, mode_t rights) {
  if (!folder.isOpen()) return systemFailure(errno);
  QByteArray name;
  int file = -1;
  if (hasProc()) {
    file = ::openat(folder.number(), ".", O_RDWR | O_TMPFILE | O_CLOEXEC, rights);
  }
  if (file < 0) {
    name = temporaryName();
    constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    file = ::openat(folder.number(), name.constData(), flags, rights);
  }
  if (file < 0) return systemFailure(errno);
  return NewFile(std::move(folder), Descriptor(file), name);
}

Result<NewFile> NewFile::copyOf(const QByteArray& source, Descriptor folder, Progress& progress) {
  if (!folder.isOpen()) return systemFailure(errno);
  const auto in = openRegularFile(source);
  if (!in) return tl::unexpected(in.error());
  auto copy = make(std::move(folder), (in->info.st_mode & 0777) | 0600);
  if (!copy) return copy;
  if (auto copied = copyContent(in->file, copy->file(), progress); !copied) {
    return tl::unexpected(copied.error());
  }
  setRightsAndTimes(copy->file(), in->info);
  return copy;
}

NewFile::NewFile(NewFile&& other) noexcept
    : folder_(std::move(other.folder_)),
      file_(std::move(other.file_)),
      hiddenName_(std::exchange(other.hiddenName_, {})) {}

NewFile::~NewFile() {
  if (!hiddenName_.isEmpty()) (void)::unlinkat(folder_.number(), hiddenName_.constData(), 0);
}

Result<void> NewFile::link(const QByteArray& name) {
  const QByteArray self = "/proc/self/fd/" + QByteArray::number(file_.number());
  return done(
      ::linkat(AT_FDCWD, self.constData(), folder_.number(), name.constData(), AT_SYMLINK_FOLLOW));
}

Result<void> NewFile::takeHiddenName() {
  if (!hiddenName_.isEmpty()) return {};
  const QByteArray name = temporaryName();
  return link(name).map([&] { hiddenName_ = name; });
}

Result<void> NewFile::appearAs(const QByteArray& name) {
  if (hiddenName_.isEmpty()) return link(name);
  return renameToFree(folder_.number(), hiddenName_, folder_.number(), name).map([&] {
    hiddenName_.clear();
  });
}

Result<void> NewFile::moveOver(const QByteArray& target) {
  if (auto named = takeHiddenName(); !named) return named;
  return done(::renameat(folder_.number(), hiddenName_.constData(), AT_FDCWD, target.constData()))
      .map([&] { hiddenName_.clear(); });
}

Result<QByteArray> NewFile::exchangeWith(const QByteArray& target) {
  if (auto named = takeHiddenName(); !named) return tl::unexpected(named.error());
  if (::renameat2(folder_.number(), hiddenName_.constData(), AT_FDCWD, target.constData(),
                  RENAME_EXCHANGE) == 0) {
    return std::exchange(hiddenName_, {});
  }
  if (errno != ENOENT && !canNotCheck(errno)) return systemFailure(errno);
  // What comes to stand there in between must not be replaced unseen.
  auto moved = errno == ENOENT ? renameToFree(folder_.number(), hiddenName_, AT_FDCWD, target)
                               : moveOver(target);
  return moved.map([&] {
    hiddenName_.clear();
    return QByteArray();
  });
}

Result<void> PosixWriter::repeat(qint64 offset, qint64 length) {
  std::vector<char> buffer(size_t(std::min<qint64>(length, 1 << 20)));
  while (length > 0) {
    const size_t wanted = size_t(std::min<qint64>(length, qint64(buffer.size())));
    const ssize_t count = ::pread(new_.file().number(), buffer.data(), wanted, offset);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return systemFailure(count < 0 ? errno : EIO);
    if (auto written = write({buffer.data(), count}); !written) return written;
    offset += count;
    length -= count;
  }
  return {};
}

Result<void> PosixWriter::overwrite(qint64 offset, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t count =
        ::pwrite(new_.file().number(), bytes.data(), size_t(bytes.size()), offset);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return systemFailure(count < 0 ? errno : EIO);
    offset += count;
    bytes = bytes.sliced(count);
  }
  return {};
}

Result<void> PosixWriter::truncate(qint64 size) {
  if (::ftruncate(new_.file().number(), size) != 0) return systemFailure(errno);
  return ::lseek(new_.file().number(), size, SEEK_SET) < 0 ? systemFailure(errno) : Result<void>();
}

FileIdentity PosixWriter::identity() const {
  struct stat info {};
  (void)::fstat(new_.file().number(), &info);
  return identityOf(info);
}

}  // namespace tarnloft::posix

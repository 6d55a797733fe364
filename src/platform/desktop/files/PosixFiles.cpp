#include "platform/desktop/files/PosixFiles.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <linux/fs.h>
#include <linux/openat2.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <system_error>
#include <vector>

namespace tarnloft::posix {
namespace {

class PosixReader : public FileReader {
 public:
  PosixReader(Descriptor file, const FileIdentity& identity)
      : file_(std::move(file)), identity_(identity) {}

  Result<qint64> read(char* buffer, qint64 capacity) override {
    for (;;) {
      const ssize_t count = ::read(file_.number(), buffer, size_t(capacity));
      if (count >= 0) return count;
      if (errno != EINTR) return systemFailure(errno);
    }
  }
  qint64 size() const override { return identity_.size; }
  FileIdentity identity() const override { return identity_; }

 private:
  Descriptor file_;
  FileIdentity identity_;
};

bool sharesBlocks(const Descriptor& source, const Descriptor& target) {
  return ::ioctl(target.number(), FICLONE, source.number()) == 0;
}

// False with nothing copied where the system can't copy between the two files.
Result<bool> copiedBySystem(const Descriptor& source, const Descriptor& target,
                            Progress& progress) {
  constexpr size_t piece = size_t(1) << 26;
  for (bool begun = false;; begun = true) {
    const ssize_t count =
        ::copy_file_range(source.number(), nullptr, target.number(), nullptr, piece, 0);
    if (count == 0) return begun;  // an empty first piece may be a file that can't tell its size
    if (count < 0 && !begun) return false;
    if (count < 0) return systemFailure(errno);
    if (auto wanted = progress.advance(count); !wanted) return tl::unexpected(wanted.error());
  }
}

Result<void> copiedByHand(const Descriptor& source, const Descriptor& target, Progress& progress) {
  std::vector<char> buffer(1 << 20);
  for (;;) {
    const ssize_t count = ::read(source.number(), buffer.data(), buffer.size());
    if (count == 0) return {};
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    if (auto written = writeAll(target, {buffer.data(), count}); !written) return written;
    if (auto wanted = progress.advance(count); !wanted) return wanted;
  }
}

qint64 nanoseconds(const timespec& time) {
  return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

tl::unexpected<Error> systemFailure(int code) {
  return failure(code == ENOENT ? ErrorKind::notFound : ErrorKind::io,
                 QString::fromStdString(std::generic_category().message(code)));
}

Result<void> done(int status) {
  if (status == 0) return {};
  return systemFailure(errno);
}

Result<void> synced(const Descriptor& file) {
  if (::fsync(file.number()) == 0 || errno == EINVAL || errno == ENOTSUP) return {};
  return systemFailure(errno);
}

std::optional<QByteArray> native(const QString& path) {
  if (path.isEmpty() || path.contains(QChar(u'\0'))) return std::nullopt;
  return QFile::encodeName(path);
}

Result<QString> textOf(const QByteArray& path) {
  QString text = QFile::decodeName(path);
  if (QFile::encodeName(text) != path) return systemFailure(EILSEQ);
  return text;
}

Result<QByteArray> canonicalPath(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  const std::unique_ptr<char, void (*)(void*)> canonical(::realpath(name->constData(), nullptr),
                                                         ::free);
  if (!canonical) return systemFailure(errno);
  return QByteArray(canonical.get());
}

Result<QByteArray> linkContent(const QByteArray& path) {
  QByteArray content(PATH_MAX, Qt::Uninitialized);
  const ssize_t length = ::readlink(path.constData(), content.data(), size_t(content.size()));
  if (length < 0) return systemFailure(errno);
  content.truncate(length);
  return content;
}

namespace {

constexpr int reading = O_RDONLY | O_CLOEXEC | O_NONBLOCK;

Result<Descriptor> opened(int number) {
  if (number < 0) return systemFailure(errno);
  return Descriptor(number);
}

Result<OpenFile> regularFile(Result<Descriptor> file) {
  if (!file) return tl::unexpected(file.error());
  struct stat info;
  if (::fstat(file->number(), &info) != 0) return systemFailure(errno);
  if (!S_ISREG(info.st_mode)) return failure(ErrorKind::refused, QStringLiteral("Not a file"));
  return OpenFile{std::move(*file), info};
}

// What is to be opened as seen from the root; none if the paths don't tell.
std::optional<QByteArray> wayInside(const QByteArray& path, const QByteArray& root) {
  if (path == root) return QByteArrayLiteral(".");
  if (!path.startsWith(root + '/')) return std::nullopt;
  return path.mid(root.size() + 1);
}

// It leads out, were it only to come back, or the system knows no such way.
bool saysNothing(int code) {
  constexpr std::array codes{EXDEV, ELOOP, ENOSYS, EINVAL, E2BIG, EPERM, EAGAIN};
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

// Opens what stands inside the root by a way that at no moment leads out of it. None where that
// says nothing of what is there.
std::optional<Result<Descriptor>> openBeneath(const QByteArray& path, const QByteArray& root,
                                              int flags) {
  const auto way = wayInside(path, root);
  if (!way) return std::nullopt;
  const Descriptor folder(::open(root.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) return Result<Descriptor>(systemFailure(errno));
  open_how how{};
  how.flags = quint64(flags);
  how.resolve = RESOLVE_BENEATH;
  const auto number = ::syscall(SYS_openat2, folder.number(), way->constData(), &how, sizeof how);
  if (number < 0 && saysNothing(errno)) return std::nullopt;
  return opened(int(number));
}

Result<Descriptor> openCanonical(const QString& path, const QString& root, int flags) {
  const auto name = canonicalPath(path), top = canonicalPath(root);
  if (!name || !top) return tl::unexpected(name ? top.error() : name.error());
  if (!wayInside(*name, *top)) {
    return failure(ErrorKind::refused, QStringLiteral("It stands outside of its package"));
  }
  return opened(::open(name->constData(), flags | O_NOFOLLOW));
}

Result<Descriptor> openInside(const QString& path, const QString& root, int flags) {
  const auto name = native(path), top = native(root);
  if (!name || !top) return systemFailure(EINVAL);
  if (auto beneath = openBeneath(*name, *top, flags)) return std::move(*beneath);
  return openCanonical(path, root, flags);
}

}  // namespace

Result<OpenFile> openRegularFile(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  return openRegularFile(*name);
}

Result<OpenFile> openRegularFile(const QByteArray& path) {
  return regularFile(opened(::open(path.constData(), reading)));
}

Result<OpenFile> openFileInside(const QString& path, const QString& root) {
  return regularFile(openInside(path, root, reading));
}

Result<Descriptor> openFolderInside(const QString& path, const QString& root) {
  return openInside(path, root, reading | O_DIRECTORY);
}

Result<QByteArray> contentOf(const OpenFile& file) {
  QByteArray bytes(file.info.st_size, Qt::Uninitialized);
  qsizetype filled = 0;
  while (filled < bytes.size()) {
    const ssize_t count =
        ::pread(file.file.number(), bytes.data() + filled, size_t(bytes.size() - filled), filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    if (count == 0) break;  // cut short since it was opened
    filled += count;
  }
  bytes.truncate(filled);
  return bytes;
}

void setRightsAndTimes(const Descriptor& file, const struct stat& info) {
  const mode_t owners = S_ISDIR(info.st_mode) ? 0700 : 0600;
  const timespec times[] = {info.st_atim, info.st_mtim};
  (void)::fchmod(file.number(), (info.st_mode & 0777) | owners);
  (void)::futimens(file.number(), times);
}

FileIdentity identityOf(const struct stat& info) {
  return {info.st_dev, info.st_ino, info.st_size, nanoseconds(info.st_mtim),
          nanoseconds(info.st_ctim)};
}

std::unique_ptr<FileReader> makeReader(Descriptor file, const struct stat& info) {
  return std::make_unique<PosixReader>(std::move(file), identityOf(info));
}

Result<void> writeAll(const Descriptor& file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t count = ::write(file.number(), bytes.data(), size_t(bytes.size()));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    bytes = bytes.sliced(count);
  }
  return {};
}

Result<void> copyContent(const Descriptor& source, const Descriptor& target, Progress& progress) {
  if (sharesBlocks(source, target)) return {};
  const auto copied = copiedBySystem(source, target, progress);
  if (!copied) return tl::unexpected(copied.error());
  if (*copied) return {};
  return copiedByHand(source, target, progress);
}

}  // namespace tarnloft::posix

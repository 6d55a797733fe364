#include "platform/desktop/PosixFiles.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
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
Result<bool> copiedBySystem(const Descriptor& source, const Descriptor& target) {
  constexpr size_t piece = size_t(1) << 30;
  for (bool begun = false;; begun = true) {
    const ssize_t count =
        ::copy_file_range(source.number(), nullptr, target.number(), nullptr, piece, 0);
    if (count == 0) return begun;  // an empty first piece may be a file that can't tell its size
    if (count < 0 && !begun) return false;
    if (count < 0) return systemFailure(errno);
  }
}

Result<void> copiedByHand(const Descriptor& source, FileWriter& target) {
  std::vector<char> buffer(1 << 20);
  for (;;) {
    const ssize_t count = ::read(source.number(), buffer.data(), buffer.size());
    if (count == 0) return {};
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    if (auto written = target.write({buffer.data(), count}); !written) return written;
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

namespace {

constexpr int reading = O_RDONLY | O_CLOEXEC | O_NONBLOCK;

Result<OpenFile> regularFile(Descriptor file) {
  if (!file.isOpen()) return systemFailure(errno);
  struct stat info;
  if (::fstat(file.number(), &info) != 0) return systemFailure(errno);
  if (!S_ISREG(info.st_mode)) return failure(ErrorKind::refused, QStringLiteral("Not a file"));
  return OpenFile{std::move(file), info};
}

}  // namespace

Result<OpenFile> openRegularFile(const QString& path, Links links) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  const int onLinks = links == Links::refuse ? O_NOFOLLOW : 0;
  return regularFile(Descriptor(::open(name->constData(), reading | onLinks)));
}

Result<OpenFile> openBeneath(const QString& path, const QString& root) {
  const auto name = native(path), top = native(root + QLatin1Char('/'));
  if (!name || !top || !name->startsWith(*top)) return systemFailure(EINVAL);
  const Descriptor folder(::open(top->constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!folder.isOpen()) return systemFailure(errno);
  open_how how{};
  how.flags = reading;
  how.resolve = RESOLVE_BENEATH;
  const char* const way = name->constData() + top->size();
  return regularFile(
      Descriptor(int(::syscall(SYS_openat2, folder.number(), way, &how, sizeof how))));
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

FileIdentity identityOf(const struct stat& info) {
  return {info.st_dev, info.st_ino, info.st_size, nanoseconds(info.st_mtim),
          nanoseconds(info.st_ctim)};
}

std::unique_ptr<FileReader> makeReader(Descriptor file, const struct stat& info) {
  return std::make_unique<PosixReader>(std::move(file), identityOf(info));
}

PosixWriter::~PosixWriter() {
  if (!name_.isEmpty()) (void)::unlink(name_.constData());
}

Result<void> PosixWriter::write(QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t count = ::write(file_.number(), bytes.data(), size_t(bytes.size()));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    bytes = bytes.sliced(count);
  }
  return {};
}

Result<void> PosixWriter::repeat(qint64 offset, qint64 length) {
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

Result<void> PosixWriter::truncate(qint64 size) {
  if (::ftruncate(file_.number(), size) != 0) return systemFailure(errno);
  return ::lseek(file_.number(), size, SEEK_SET) < 0 ? systemFailure(errno) : Result<void>();
}

FileIdentity PosixWriter::identity() const {
  struct stat info {};
  (void)::fstat(file_.number(), &info);
  return identityOf(info);
}

Result<void> PosixWriter::moveTo(const QByteArray& name, const QByteArray& target) {
  if (name_.isEmpty()) {
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(file_.number());
    if (::linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0) {
      return systemFailure(errno);
    }
    name_ = name;
  }
  if (::rename(name_.constData(), target.constData()) != 0) return systemFailure(errno);
  name_.clear();
  return {};
}

Result<void> copyContent(const Descriptor& source, const Descriptor& target) {
  if (sharesBlocks(source, target)) return {};
  const auto copied = copiedBySystem(source, target);
  if (!copied) return tl::unexpected(copied.error());
  if (*copied) return {};
  PosixWriter writer(Descriptor(::dup(target.number())), QByteArray());
  return copiedByHand(source, writer);
}

}  // namespace tarnloft::posix

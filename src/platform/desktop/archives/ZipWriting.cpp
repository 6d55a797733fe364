#include "platform/desktop/archives/LibArchive.h"
#include "platform/desktop/archives/ZipArchiver.h"
#include "platform/desktop/files/PosixFiles.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <optional>
#include <vector>

namespace tarnloft {
namespace {

using namespace posix;
using namespace zip;

// Assets are mostly compressed already: level 6 takes three times as long for hardly a byte less.
constexpr const char* options = "zip:compression-level=1,zip:hdrcharset=UTF-8";
constexpr size_t pieceSize = 1 << 20;

struct Output {
  FileWriter& file;
  std::optional<Error> error;
};

la_ssize_t writeOut(archive* /*unused*/, void* client, const void* bytes, size_t count) {
  auto& output = *static_cast<Output*>(client);
  const auto written = output.file.write({static_cast<const char*>(bytes), qsizetype(count)});
  if (written) return la_ssize_t(count);
  output.error = written.error();
  return -1;
}

// Adds files and folders, one after the other, under names relative to the archived folder's own.
class ZipWriter {
 public:
  explicit ZipWriter(FileWriter& target) : output_{target, {}} {}

  Result<void> write(const QString& folder) {
    archive* const out = handle_.get();
    if (::archive_write_set_format_zip(out) != ARCHIVE_OK ||
        ::archive_write_set_options(out, options) != ARCHIVE_OK ||
        ::archive_write_set_bytes_in_last_block(out, 1) != ARCHIVE_OK ||
        ::archive_write_open2(out, &output_, nullptr, writeOut, nullptr, nullptr) != ARCHIVE_OK) {
      return failed();
    }
    const QByteArray path = QFile::encodeName(folder);
    auto added = add(path, path.mid(path.lastIndexOf('/') + 1));
    if (!added) return added;
    return ::archive_write_close(out) == ARCHIVE_OK ? Result<void>() : failed();
  }

 private:
  tl::unexpected<Error> failed() const {
    return output_.error ? tl::unexpected(*output_.error) : failureOf(handle_.get());
  }

  Result<void> add(const QByteArray& path, const QByteArray& name) {
    struct stat info;
    if (::lstat(path.constData(), &info) != 0) return systemFailure(errno);
    if (S_ISDIR(info.st_mode)) return addFolder(path, name, info);
    if (S_ISLNK(info.st_mode)) return addLink(path, name, info);
    if (S_ISREG(info.st_mode)) return addFile(path, name);
    return {};
  }

  Result<void> addFolder(const QByteArray& path, const QByteArray& name, const struct stat& info) {
    if (auto begun = begin(name, info, {}); !begun) return begun;
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QDir folder(QFile::decodeName(path));
    if (!folder.isReadable()) return systemFailure(EACCES);
    for (const QString& entry : folder.entryList(everything, QDir::Name)) {
      const QByteArray inside = '/' + QFile::encodeName(entry);
      if (auto added = add(path + inside, name + inside); !added) return added;
    }
    return {};
  }

  Result<void> addLink(const QByteArray& path, const QByteArray& name, const struct stat& info) {
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), target.data(), size_t(target.size()));
    if (length < 0) return systemFailure(errno);
    return begin(name, info, target.left(length));
  }

  Result<void> addFile(const QByteArray& path, const QByteArray& name) {
    const Descriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!file.isOpen()) return systemFailure(errno);
    struct stat info;
    if (::fstat(file.number(), &info) != 0) return systemFailure(errno);
    if (auto begun = begin(name, info, {}); !begun) return begun;
    for (qint64 left = info.st_size;;) {
      const ssize_t count = ::read(file.number(), buffer_.data(), buffer_.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return systemFailure(errno);
      left -= count;
      // An entry whose length isn't the one it told would be refused by those who read it.
      if (left < 0 || (count == 0 && left > 0)) return changedMeanwhile();
      if (count == 0) return {};
      if (::archive_write_data(handle_.get(), buffer_.data(), size_t(count)) < 0) return failed();
    }
  }

  static tl::unexpected<Error> changedMeanwhile() {
    return failure(ErrorKind::io, QStringLiteral("A file was changed while it was archived"));
  }

  Result<void> begin(const QByteArray& name, const struct stat& info,
                     const QByteArray& linkTarget) {
    const Entry entry(::archive_entry_new());
    ::archive_entry_copy_stat(entry.get(), &info);
    ::archive_entry_copy_pathname(entry.get(), name.constData());
    if (S_ISLNK(info.st_mode)) ::archive_entry_copy_symlink(entry.get(), linkTarget.constData());
    if (::archive_write_header(handle_.get(), entry.get()) >= ARCHIVE_WARN) return {};
    return failed();
  }

  Output output_;
  Archive handle_{::archive_write_new()};
  std::vector<char> buffer_ = std::vector<char>(pieceSize);
};

}  // namespace

Result<void> ZipArchiver::archive(const QString& folder, FileWriter& target) {
  const zip::Utf8Names names;
  return ZipWriter(target).write(folder);
}

}  // namespace tarnloft

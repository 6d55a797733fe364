#include "platform/desktop/archives/LibArchive.h"
#include "platform/desktop/archives/ZipArchiver.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringDecoder>

#include <array>
#include <iconv.h>

namespace tarnloft {
namespace {

using namespace zip;

tl::unexpected<Error> refused(const char* reason) {
  return failure(ErrorKind::refused, QString::fromLatin1(reason));
}

// Old archives hold names in the code page of the first PCs, without saying so.
QByteArray fromOldCodePage(const QByteArray& name) {
  const iconv_t converter = ::iconv_open("UTF-8", "CP437");
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the C library tells failure by it
  if (converter == iconv_t(-1)) return {};
  QByteArray source = name, text(name.size() * 3, Qt::Uninitialized);
  char *in = source.data(), *out = text.data();
  size_t inLeft = size_t(source.size()), outLeft = size_t(text.size());
  const bool converted = ::iconv(converter, &in, &inLeft, &out, &outLeft) != size_t(-1);
  ::iconv_close(converter);
  text.chop(qsizetype(outLeft));
  return converted ? text : QByteArray();
}

QByteArray utf8Name(const QByteArray& name) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  (void)QString(decoder(name));
  return decoder.hasError() ? fromOldCodePage(name) : name;
}

// The parts of a path that stays below its beginning; none for any other.
std::optional<QByteArrayList> partsOf(const QByteArray& path) {
  if (path.isEmpty() || path.startsWith('/') || path.contains('\\')) return std::nullopt;
  QByteArrayList parts;
  for (const QByteArray& part : path.split('/')) {
    if (part == "..") return std::nullopt;
    if (!part.isEmpty() && part != ".") parts << part;
  }
  return parts;
}

// True if a link that stands in the folder `depth` levels below the unpacked one leads to a place
// inside of the archive's own top folder. Steps upwards count only at its beginning: behind another
// link they'd lead elsewhere than they seem to.
bool linkStaysInside(const QByteArray& target, qsizetype depth) {
  if (target.isEmpty() || target.startsWith('/')) return false;
  qsizetype up = 0;
  bool descended = false;
  for (const QByteArray& part : target.split('/')) {
    if (part.isEmpty() || part == ".") continue;
    if (part != "..") {
      descended = true;
    } else if (descended) {
      return false;
    } else {
      ++up;
    }
  }
  return up < depth;
}

// What other systems put beside the files: a second tree of them, and settings of their windows.
bool isForeignClutter(const QByteArrayList& parts) {
  return parts.first() == "__MACOSX" || parts.last() == ".DS_Store";
}

class ZipReader {
 public:
  ZipReader(const QString& folder, const UnpackLimits& limits, Progress& progress)
      : folder_(QFile::encodeName(QFileInfo(folder).canonicalFilePath())),
        limits_(limits),
        progress_(progress) {}

  Result<void> read(const QString& path) {
    // An empty path would unpack into the root of the file system.
    if (folder_.isEmpty()) return failure(ErrorKind::io, QStringLiteral("There is no such folder"));
    left_ = limits_.size + limits_.growth * QFileInfo(path).size();
    progress_.expect(QFileInfo(path).size());
    ::archive_read_support_format_zip(in_.get());
    ::archive_write_disk_set_options(out_.get(), ARCHIVE_EXTRACT_TIME | ARCHIVE_EXTRACT_PERM |
                                                     ARCHIVE_EXTRACT_SECURE_SYMLINKS |
                                                     ARCHIVE_EXTRACT_SECURE_NODOTDOT);
    const QByteArray file = QFile::encodeName(path);
    constexpr size_t blockSize = 1 << 18;
    if (::archive_read_open_filename(in_.get(), file.constData(), blockSize) != ARCHIVE_OK) {
      return failureOf(in_.get());
    }
    for (int count = 0;; ++count) {
      archive_entry* entry = nullptr;
      const int status = ::archive_read_next_header(in_.get(), &entry);
      // Folders get their times and rights when all is in them.
      if (status == ARCHIVE_EOF) return closed();
      if (status < ARCHIVE_WARN) return failureOf(in_.get());
      if (count == limits_.entries) return refused("The archive holds too many files");
      if (auto unpacked = unpack(entry); !unpacked) return unpacked;
    }
  }

 private:
  Result<void> closed() {
    return ::archive_write_close(out_.get()) == ARCHIVE_OK ? Result<void>() : failureOf(out_.get());
  }

  Result<void> unpack(archive_entry* entry) {
    const auto parts = partsOf(utf8Name(::archive_entry_pathname(entry)));
    if (!parts) return refused("A path leads out of the archive");
    if (parts->isEmpty() || isForeignClutter(*parts)) return {};
    if (auto allowed = check(entry, *parts); !allowed) return allowed;
    ::archive_entry_copy_pathname(entry, (folder_ + '/' + parts->join('/')).constData());
    std::optional<la_int64_t> size;
    if (::archive_entry_size_is_set(entry)) size = ::archive_entry_size(entry);
    // Else a file that is shorter than it claims would be filled up with a hole of any size.
    ::archive_entry_unset_size(entry);
    if (::archive_write_header(out_.get(), entry) != ARCHIVE_OK) return failureOf(out_.get());
    if (::archive_entry_filetype(entry) == AE_IFREG) {
      if (auto copied = copyContent(size); !copied) return copied;
    }
    if (::archive_write_finish_entry(out_.get()) < ARCHIVE_WARN) return failureOf(out_.get());
    return {};
  }

  // Also sees to it that whoever unpacks can read, change and remove what was unpacked.
  Result<void> check(archive_entry* entry, const QByteArrayList& parts) {
    if (::archive_entry_is_encrypted(entry)) return refused("The archive is encrypted");
    if (::archive_entry_hardlink(entry)) return refused("The archive holds a hard link");
    const auto rights = ::archive_entry_perm(entry) & 0777;
    switch (::archive_entry_filetype(entry)) {
      case AE_IFDIR: ::archive_entry_set_perm(entry, rights | 0700); return {};
      case AE_IFREG: ::archive_entry_set_perm(entry, rights | 0600); break;
      case AE_IFLNK:
        if (linkStaysInside(::archive_entry_symlink(entry), parts.size() - 1)) break;
        return refused("A link leads out of the archive");
      default: return refused("The archive holds something other than files");
    }
    const QByteArray path = parts.join('/');
    if (files_.contains(path)) return refused("The archive holds a file twice");
    files_.insert(path);
    return {};
  }

  Result<void> copyContent(std::optional<la_int64_t> claimed) {
    for (la_int64_t total = 0;;) {
      const void* bytes = nullptr;
      size_t count = 0;
      la_int64_t offset = 0;
      const int status = ::archive_read_data_block(in_.get(), &bytes, &count, &offset);
      if (status == ARCHIVE_EOF) {
        const bool whole = !claimed || *claimed == total;
        return whole ? Result<void>() : refused("A file is shorter than it claims");
      }
      if (status < ARCHIVE_OK) return failureOf(in_.get());
      const qint64 before = std::exchange(taken_, ::archive_filter_bytes(in_.get(), -1));
      if (auto wanted = progress_.advance(taken_ - before); !wanted) return wanted;
      total = offset + la_int64_t(count);
      left_ -= qint64(count);
      if (left_ < 0) return refused("The archive grows too large");
      if (::archive_write_data_block(out_.get(), bytes, count, offset) < ARCHIVE_OK) {
        return failureOf(out_.get());
      }
    }
  }

  const QByteArray folder_;
  const UnpackLimits& limits_;
  Progress& progress_;
  Archive in_{::archive_read_new()};
  Archive out_{::archive_write_disk_new()};
  QSet<QByteArray> files_;
  qint64 left_ = 0;   // bytes that may still be unpacked
  qint64 taken_ = 0;  // bytes of the archive
};

}  // namespace

Result<void> ZipArchiver::extract(const QString& archive, const QString& folder,
                                  Progress& progress) {
  const zip::Utf8Names names;
  return ZipReader(folder, limits_, progress).read(archive);
}

}  // namespace tarnloft

#include "platform/desktop/archives/DeflatedPiece.h"
#include "platform/desktop/archives/ZipArchiver.h"
#include "platform/desktop/archives/ZipFile.h"
#include "platform/desktop/files/PosixFiles.h"

#include <QDir>
#include <QFile>
#include <QThreadPool>

#include <cerrno>
#include <climits>
#include <deque>
#include <future>
#include <vector>

namespace tarnloft {
namespace {

using namespace posix;
using namespace zip;

constexpr qsizetype pieceSize = 1 << 20;

// What is archived, found before anything is written, so that its amount is known.
struct Source {
  QByteArray path;
  QByteArray name;  // in the archive
  struct stat info;
};

// All that stands at the path: folders in front of what is in them, sockets and the like left out.
Result<void> collect(const QByteArray& path, const QByteArray& name, std::vector<Source>& sources) {
  Source source{path, name, {}};
  if (::lstat(path.constData(), &source.info) != 0) return systemFailure(errno);
  const mode_t mode = source.info.st_mode;
  if (S_ISREG(mode) || S_ISLNK(mode)) sources.push_back(source);
  if (!S_ISDIR(mode)) return {};
  source.name += '/';
  source.info.st_size = 0;
  sources.push_back(source);
  const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  const QDir folder(QFile::decodeName(path));
  if (!folder.isReadable()) return systemFailure(EACCES);
  for (const QString& entry : folder.entryList(everything, QDir::Name)) {
    const QByteArray inside = '/' + QFile::encodeName(entry);
    if (auto added = collect(path + inside, name + inside, sources); !added) return added;
  }
  return {};
}

tl::unexpected<Error> changedMeanwhile() {
  return failure(ErrorKind::io, QStringLiteral("A file was changed while it was archived"));
}

// At most so many bytes from there; fewer at the file's end.
Result<QByteArray> readPiece(const Descriptor& file, qint64 offset, qint64 most) {
  QByteArray piece(qsizetype(most), Qt::Uninitialized);
  qsizetype filled = 0;
  while (filled < piece.size()) {
    const ssize_t count = ::pread(file.number(), piece.data() + filled,
                                  size_t(piece.size() - filled), offset + filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return systemFailure(errno);
    if (count == 0) break;
    filled += count;
  }
  piece.truncate(filled);
  return piece;
}

// By what stands at some places of the file.
Result<Method> methodFor(const Descriptor& file, qint64 size) {
  constexpr qint64 places = 8, sample = 16 * 1024;
  QByteArray samples;
  for (qint64 place = 0; place < places; ++place) {
    const auto read = readPiece(file, std::max<qint64>(0, size - sample) * place / (places - 1),
                                std::min(sample, size));
    if (!read) return tl::unexpected(read.error());
    samples += *read;
    if (size <= sample) break;
  }
  return isCompressedAlready(samples) ? Method::store : Method::deflate;
}

// Adds files and folders, one after the other. This thread reads and writes, the others compress:
// pieces wait in their order until they are written, over the ends of files too.
class ZipWriter {
 public:
  ZipWriter(FileWriter& target, Progress& progress) : zip_(target), progress_(progress) {
    workers_.setThreadPriority(QThread::LowPriority);
    mostPieces_ = 2 * size_t(workers_.maxThreadCount()) + 2;
  }

  Result<void> write(const QByteArray& folder) {
    std::vector<Source> sources;
    return collect(folder, folder.mid(folder.lastIndexOf('/') + 1), sources).and_then([&] {
      qint64 amount = 0;
      for (const Source& source : sources) amount += source.info.st_size;
      progress_.expect(amount);
      return addAll(sources);
    });
  }

 private:
  struct Piece {
    const Source* source;
    Method method;
    bool isFirst;
    bool isLast;
    std::future<DeflatedPiece> made;
  };

  Result<void> addAll(std::vector<Source>& sources) {
    for (Source& source : sources) {
      if (auto added = add(source); !added) return added;
    }
    while (!pieces_.empty()) {
      if (auto written = writeFirst(); !written) return written;
    }
    return zip_.finish();
  }

  Result<void> add(Source& source) {
    if (S_ISREG(source.info.st_mode)) return addFile(source);
    QByteArray content;
    if (S_ISLNK(source.info.st_mode)) {
      const auto target = linkContent(source.path);
      if (!target) return tl::unexpected(target.error());
      content = *target;
    }
    return push({&source, Method::store, true, true, {}}, [content] { return stored(content); });
  }

  Result<void> addFile(Source& source) {
    const Descriptor file(
        ::open(source.path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    // It may have been replaced since it was found.
    if (!file.isOpen() || ::fstat(file.number(), &source.info) != 0) return systemFailure(errno);
    const qint64 size = source.info.st_size;
    const auto method = methodFor(file, size);
    if (!method) return tl::unexpected(method.error());
    QByteArray before;
    for (qint64 offset = 0;;) {
      const qint64 wanted = std::min<qint64>(pieceSize, size - offset);
      const auto piece = readPiece(file, offset, wanted);
      if (!piece) return tl::unexpected(piece.error());
      if (piece->size() != wanted) return changedMeanwhile();
      const bool isFirst = offset == 0, isLast = (offset += wanted) == size;
      auto pushed = push({&source, *method, isFirst, isLast, {}}, [piece = *piece, before, isLast,
                                                                   method = *method] {
        return method == Method::store ? stored(piece) : deflated(piece, before, isLast);
      });
      if (!pushed) return pushed;
      if (isLast) break;
      before = piece->last(std::min(reach, piece->size()));
    }
    struct stat now;
    if (::fstat(file.number(), &now) != 0) return systemFailure(errno);
    return now.st_size == size ? Result<void>() : changedMeanwhile();
  }

  Result<void> push(Piece piece, std::function<DeflatedPiece()> make) {
    auto task = std::make_shared<std::packaged_task<DeflatedPiece()>>(std::move(make));
    piece.made = task->get_future();
    pieces_.push_back(std::move(piece));
    workers_.start([task] { (*task)(); });
    return pieces_.size() < mostPieces_ ? Result<void>() : writeFirst();
  }

  Result<void> writeFirst() {
    Piece piece = std::move(pieces_.front());
    pieces_.pop_front();
    const DeflatedPiece made = piece.made.get();
    if (made.length > 0 && made.bytes.isEmpty()) return systemFailure(ENOMEM);
    if (piece.isFirst) {
      size_ = 0;
      checksum_ = 0;
      auto begun = zip_.begin(piece.source->name, piece.source->info, piece.method);
      if (!begun) return begun;
    }
    size_ += made.length;
    checksum_ = checksumBehind(checksum_, made);
    if (auto written = zip_.write(made.bytes); !written) return written;
    if (auto wanted = progress_.advance(made.length); !wanted) return wanted;
    return piece.isLast ? zip_.end(size_, checksum_) : Result<void>();
  }

  ZipFile zip_;
  Progress& progress_;
  size_t mostPieces_;
  std::deque<Piece> pieces_;
  qint64 size_ = 0;  // of what the entry that is written was made from so far
  unsigned long checksum_ = 0;
  QThreadPool workers_;  // ends first
};

}  // namespace

Result<void> ZipArchiver::archive(const QString& folder, FileWriter& target, Progress& progress) {
  return ZipWriter(target, progress).write(QFile::encodeName(folder));
}

}  // namespace tarnloft

#include "platform/desktop/archives/DeflatedPiece.h"

#include <memory>
#include <zlib.h>

namespace tarnloft::zip {
namespace {

constexpr int quick = 1;
constexpr int thorough = 6;

const Bytef* dataOf(const QByteArray& bytes) {
  return reinterpret_cast<const Bytef*>(bytes.constData());
}

unsigned long checksumOf(const QByteArray& bytes) {
  return ::crc32(::crc32(0, nullptr, 0), dataOf(bytes), uInt(bytes.size()));
}

struct Ender {
  void operator()(z_stream* stream) const { ::deflateEnd(stream); }
};

// Empty on failure.
QByteArray deflate(const QByteArray& bytes, const QByteArray& before, int level, int flush) {
  z_stream stream = {};
  constexpr int windowBits = -15, memoryLevel = 8;  // without zlib's own header
  if (::deflateInit2(&stream, level, Z_DEFLATED, windowBits, memoryLevel, Z_DEFAULT_STRATEGY) !=
      Z_OK) {
    return {};
  }
  const std::unique_ptr<z_stream, Ender> end(&stream);
  if (!before.isEmpty()) ::deflateSetDictionary(&stream, dataOf(before), uInt(before.size()));
  constexpr uLong ofFlush = 16;
  QByteArray made(qsizetype(::deflateBound(&stream, uLong(bytes.size())) + ofFlush),
                  Qt::Uninitialized);
  stream.next_in = const_cast<Bytef*>(dataOf(bytes));
  stream.avail_in = uInt(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(made.data());
  stream.avail_out = uInt(made.size());
  const int result = ::deflate(&stream, flush);
  const bool isWhole = flush == Z_FINISH ? result == Z_STREAM_END : result == Z_OK;
  if (!isWhole || stream.avail_in > 0 || stream.avail_out == 0) return {};
  made.truncate(qsizetype(stream.total_out));
  return made;
}

}  // namespace

DeflatedPiece deflated(const QByteArray& piece, const QByteArray& before, bool isLast) {
  return {deflate(piece, before, thorough, isLast ? Z_FINISH : Z_SYNC_FLUSH), piece.size(),
          checksumOf(piece)};
}

DeflatedPiece stored(const QByteArray& piece) { return {piece, piece.size(), checksumOf(piece)}; }

unsigned long checksumBehind(unsigned long before, const DeflatedPiece& piece) {
  return ::crc32_combine(before, piece.checksum, piece.length);
}

bool isCompressedAlready(const QByteArray& samples) {
  constexpr double least = 0.975;  // of its size that is left
  const QByteArray made = deflate(samples, {}, quick, Z_FINISH);
  return double(made.size()) >= least * double(samples.size());
}

}  // namespace tarnloft::zip

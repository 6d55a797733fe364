#include "platform/desktop/archives/ZipFile.h"

#include <QStringDecoder>
#include <QtEndian>

#include <ctime>
#include <utility>
#include <zip.h>
#include <zlib.h>

namespace tarnloft::zip {

// What the library writes through.
struct ZipFile::Output {
  FileWriter& file;
  qint64 size = 0;
  qint64 place = 0;
  std::optional<Error> error = {};

  Result<void> put(QByteArrayView bytes) {
    if (place == size) return file.write(bytes);
    const qint64 over = std::min<qint64>(bytes.size(), size - place);
    return file.overwrite(place, bytes.first(over)).and_then([&] {
      return over == bytes.size() ? Result<void>() : file.write(bytes.sliced(over));
    });
  }

  static voidpf open(voidpf output, const void* /*name*/, int /*mode*/) { return output; }
  static uLong read(voidpf /*output*/, voidpf /*stream*/, void* /*bytes*/, uLong /*count*/) {
    return 0;
  }
  static uLong write(voidpf client, voidpf /*stream*/, const void* bytes, uLong count) {
    auto& output = *static_cast<Output*>(client);
    const auto written = output.put({static_cast<const char*>(bytes), qsizetype(count)});
    if (!written) {
      output.error = written.error();
      return 0;
    }
    output.place += qint64(count);
    output.size = std::max(output.size, output.place);
    return count;
  }
  static ZPOS64_T tell(voidpf client, voidpf /*stream*/) {
    return ZPOS64_T(static_cast<Output*>(client)->place);
  }
  static long seek(voidpf client, voidpf /*stream*/, ZPOS64_T offset, int origin) {
    auto& output = *static_cast<Output*>(client);
    const qint64 from = origin == ZLIB_FILEFUNC_SEEK_SET   ? 0
                        : origin == ZLIB_FILEFUNC_SEEK_CUR ? output.place
                                                           : output.size;
    output.place = from + qint64(offset);
    return 0;
  }
  static int close(voidpf /*output*/, voidpf /*stream*/) { return 0; }
  static int failed(voidpf client, voidpf /*stream*/) {
    return static_cast<Output*>(client)->error ? 1 : 0;
  }
};

namespace {

constexpr int raw = 1;

// The time of the last change in seconds since 1970, which the format's own field tells in steps of
// two and without a zone: "UT" of the Info-ZIP project's extra fields.
QByteArray timeField(const struct stat& info) {
  QByteArray field("UT\x05\x00\x01", 5);
  const quint32 seconds = qToLittleEndian(quint32(info.st_mtim.tv_sec));
  return field.append(reinterpret_cast<const char*>(&seconds), sizeof seconds);
}

zip_fileinfo factsOf(const struct stat& info) {
  zip_fileinfo facts = {};
  std::tm local = {};
  if (const std::time_t time = info.st_mtim.tv_sec; ::localtime_r(&time, &local)) {
    constexpr int before = 1900, earliest = 1980;
    facts.tmz_date = {uInt(local.tm_sec),  uInt(local.tm_min),
                      uInt(local.tm_hour), uInt(local.tm_mday),
                      uInt(local.tm_mon),  uInt(std::max(local.tm_year + before, earliest))};
  }
  constexpr uLong isFolder = 0x10;
  facts.external_fa = uLong(info.st_mode) << 16 | (S_ISDIR(info.st_mode) ? isFolder : 0);
  return facts;
}

bool isUtf8(const QByteArray& name) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(name);
  return !text.isNull() && !decoder.hasError();
}

}  // namespace

ZipFile::ZipFile(FileWriter& target) : output_(new Output{target}) {
  zlib_filefunc64_def functions = {};
  functions.zopen64_file = Output::open;
  functions.zread_file = Output::read;
  functions.zwrite_file = Output::write;
  functions.ztell64_file = Output::tell;
  functions.zseek64_file = Output::seek;
  functions.zclose_file = Output::close;
  functions.zerror_file = Output::failed;
  functions.opaque = output_.get();
  handle_ = ::zipOpen2_64("", APPEND_STATUS_CREATE, nullptr, &functions);
}

ZipFile::~ZipFile() {
  if (handle_) ::zipClose(handle_, nullptr);
}

Result<void> ZipFile::resultOf(int status) const {
  if (output_->error) return tl::unexpected(*output_->error);
  if (status == ZIP_OK) return {};
  return failure(ErrorKind::io, QStringLiteral("The archive failed"));
}

Result<void> ZipFile::begin(const QByteArray& name, const struct stat& info, Method method) {
  if (!handle_) return resultOf(ZIP_INTERNALERROR);
  constexpr uLong byUnix = 3 << 8 | 45, utf8 = 1 << 11;
  constexpr off_t largest = 0xf0000000;  // deflated, too, that fits into 32 bits
  const zip_fileinfo facts = factsOf(info);
  const QByteArray time = timeField(info);
  return resultOf(::zipOpenNewFileInZip4_64(
      handle_, name.constData(), &facts, time.constData(), uInt(time.size()), time.constData(),
      uInt(time.size()), nullptr, method == Method::store ? 0 : Z_DEFLATED, Z_DEFAULT_COMPRESSION,
      raw, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, nullptr, 0, byUnix,
      isUtf8(name) ? utf8 : 0, info.st_size > largest));
}

Result<void> ZipFile::write(const QByteArray& bytes) {
  return resultOf(::zipWriteInFileInZip(handle_, bytes.constData(), unsigned(bytes.size())));
}

Result<void> ZipFile::end(qint64 size, unsigned long checksum) {
  return resultOf(::zipCloseFileInZipRaw64(handle_, ZPOS64_T(size), checksum));
}

Result<void> ZipFile::finish() {
  return resultOf(::zipClose(std::exchange(handle_, nullptr), nullptr));
}

}  // namespace tarnloft::zip

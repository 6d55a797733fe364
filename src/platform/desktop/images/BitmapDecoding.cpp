#include "platform/desktop/images/BitmapFile.h"

#include <QBuffer>
#include <QImageReader>

#include <array>
#include <sys/stat.h>

namespace tarnloft {
namespace {

using namespace decoding;

// Its complaints about foreign files are ours to judge.
void swallow(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

void startVips() {
  ::setenv("VIPS_DISC_THRESHOLD", "64g", 1);  // there is no disk to put anything aside on
  if (VIPS_INIT("tarnloft") != 0) qFatal("libvips: %s", vips_error_buffer());
  g_log_set_handler("VIPS", GLogLevelFlags(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE), swallow,
                    nullptr);
  vips_block_untrusted_set(TRUE);
  vips_operation_block_set("VipsForeignLoadMatrix", TRUE);  // reads any text with two numbers
  vips_concurrency_set(1);
  vips_cache_set_max(0);
}

void unref(VipsBlob* blob) { vips_area_unref(VIPS_AREA(blob)); }

// Loaders and savers load their own libraries and tables at their first use.
void tryEachKind() {
  std::array<char, 64> nothing{};
  for (const char* loader : {"pngload_buffer", "jpegload_buffer", "gifload_buffer",
                             "webpload_buffer", "tiffload_buffer", "heifload_buffer"}) {
    try {
      vips::VImage out;
      const std::unique_ptr<VipsBlob, decltype(&unref)> blob(
          vips_blob_new(nullptr, nothing.data(), nothing.size()), unref);
      vips::VImage::call(loader,
                         vips::VImage::option()->set("buffer", blob.get())->set("out", &out));
    } catch (const vips::VError&) {
      vips_error_clear();
    }
  }
  for (const char* format : {"bmp", "ico"}) {
    QImageReader reader;
    QByteArray empty;
    QBuffer buffer(&empty);
    buffer.open(QIODevice::ReadOnly);
    reader.setDecideFormatFromContent(false);
    reader.setFormat(format);
    reader.setDevice(&buffer);
    static_cast<void>(reader.canRead());
  }
}

class BitmapDecoding : public FileDecoder {
 public:
  void prepare() override {
    startVips();
    tryEachKind();
  }

  std::unique_ptr<ForeignFile> open(const Request& request, int descriptor) override {
    vips_error_clear();
    const auto kind = ImageKind(request.kind);
    if (kind == ImageKind::pixels) return openPixels(descriptor, {request.width, request.height});
    struct stat info {};
    if (::fstat(descriptor, &info) != 0) return nullptr;
    return openBitmap(ImageFile(kind, descriptor, info.st_size));
  }
};

}  // namespace

FileDecoder& decoding::moduleDecoder() {
  static BitmapDecoding decoder;
  return decoder;
}

}  // namespace tarnloft

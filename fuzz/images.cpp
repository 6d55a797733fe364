// Picture files of any bytes: none crashes the readers, and what they give is within its bounds.
// Drawings are not tried; they go to a program of their own, which is not there.
#include "platform/desktop/images/VipsImages.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  static VipsImages images{QString()};
  const int file = ::memfd_create("picture", MFD_CLOEXEC);
  if (file < 0 || ::write(file, data, size) != ssize_t(size)) std::abort();
  const QString path = QStringLiteral("/proc/self/fd/%1").arg(file);
  const auto properties = images.properties(path);
  if (properties && properties->size.isEmpty()) std::abort();
  const auto thumbnail = images.thumbnail(path, 64);
  if (thumbnail && (thumbnail->width() > 64 || thumbnail->height() > 64)) std::abort();
  images.convert(path, ExportFormat::jpeg, {20, 10}, 0.5);
  ::close(file);
  return 0;
}

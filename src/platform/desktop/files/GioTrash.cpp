#include "platform/desktop/files/GioTrash.h"

#include "platform/desktop/files/PosixNewFile.h"

#include <cerrno>
#include <gio/gio.h>
#include <memory>

namespace tarnloft {
namespace {

using namespace posix;

struct Closer {
  void operator()(GFile* file) const { g_object_unref(file); }
  void operator()(GError* error) const { g_error_free(error); }
};

// On a full disk the library writes an empty record, from which nobody could restore. The trash is
// on the same file system.
Result<void> hasRoomForRecord(const QByteArray& path) {
  const QByteArray record(4096, ' ');
  return NewFile::make(openParent(path), 0600).and_then([&](const NewFile& probe) {
    return writeAll(probe.file(), record).and_then([&] { return synced(probe.file()); });
  });
}

Result<void> trash(const QByteArray& path) {
  // The local files' own door: others would ask the session bus.
  const std::unique_ptr<GFile, Closer> file(
      g_vfs_get_file_for_path(g_vfs_get_local(), path.constData()));
  GError* error = nullptr;
  if (g_file_trash(file.get(), nullptr, &error)) return {};
  const std::unique_ptr<GError, Closer> owned(error);
  const bool isMissing = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_NOT_FOUND);
  return failure(isMissing ? ErrorKind::notFound : ErrorKind::io,
                 QString::fromUtf8(error->message));
}

}  // namespace

Result<void> GioTrash::moveToTrash(const QString& path) {
  const auto name = native(path);
  if (!name) return systemFailure(EINVAL);
  return hasRoomForRecord(*name).and_then([&] { return trash(*name); });
}

}  // namespace tarnloft

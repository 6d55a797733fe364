#include "platform/desktop/files/TextPath.h"

#include "platform/desktop/files/PosixNewFile.h"

#include <fcntl.h>

namespace tarnloft {
namespace {

using namespace posix;

constexpr QChar inNoPath(u'\0');

// The dot makes it the folder's path rather than that of a link to it.
std::optional<QString> heldOpen(const QByteArray& folder) {
  const int number = ::open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (number < 0) return std::nullopt;
  return QStringLiteral("/proc/self/fd/%1/.").arg(number);
}

}  // namespace

QString textPathOf(const char* path) {
  if (const auto text = textOf(path)) return *text;
  if (const auto folder = heldOpen(path)) return *folder;
  const auto name = textOf(nameOf(path));
  const auto folder = name ? heldOpen(folderOf(path)) : std::nullopt;
  return folder ? *folder + QLatin1Char('/') + *name : inNoPath;
}

}  // namespace tarnloft

#include "platform/desktop/images/ImageFile.h"

#include <unistd.h>

namespace tarnloft {

QByteArray ImageFile::read(qint64 offset, qsizetype length) const {
  QByteArray bytes(length, Qt::Uninitialized);
  qsizetype done = 0;
  while (done < length) {
    const ssize_t got =
        ::pread(descriptor_, bytes.data() + done, size_t(length - done), offset + done);
    if (got <= 0) break;
    done += got;
  }
  bytes.truncate(done);
  return bytes;
}

}  // namespace tarnloft

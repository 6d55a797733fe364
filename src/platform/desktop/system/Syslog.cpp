#include "platform/desktop/system/Syslog.h"

#include <syslog.h>

namespace tarnloft {

void Syslog::write(const QString& text) {
  QByteArray line = "Tarn Loft: " + text.toUtf8();
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  }
  ::syslog(LOG_USER | LOG_NOTICE, "%s", line.constData());
}

}  // namespace tarnloft

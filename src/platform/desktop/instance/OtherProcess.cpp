#include "platform/desktop/instance/OtherProcess.h"

#include <QFile>
#include <QString>

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

extern "C" {  // which the header itself lacks
#include <sys/pidfd.h>
}

namespace tarnloft {
namespace {

// Without its folder, which an update may have changed. Empty for a process that can't be looked
// at.
QString programOf(const QString& process) {
  QString path = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process));
  const auto replaced = QStringLiteral(" (deleted)");
  if (path.endsWith(replaced)) path.chop(replaced.size());
  return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isOurs(const QString& process) {
  struct stat info;
  const QByteArray folder = QFile::encodeName(QStringLiteral("/proc/") + process);
  if (::stat(folder.constData(), &info) != 0 || info.st_uid != ::geteuid()) return false;
  const QString program = programOf(process);
  return !program.isEmpty() && program == programOf(QStringLiteral("self"));
}

}  // namespace

std::optional<OtherProcess> OtherProcess::of(qint64 pid) {
  if (pid <= 0 || pid == ::getpid()) return std::nullopt;
  OtherProcess process(::pidfd_open(pid_t(pid), 0));
  // Looked at behind the opening, so that it's the one that was opened.
  if (process.descriptor_ < 0 || !isOurs(QString::number(pid)) || process.hasEnded()) {
    return std::nullopt;
  }
  return process;
}

OtherProcess::OtherProcess(OtherProcess&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

OtherProcess& OtherProcess::operator=(OtherProcess&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

OtherProcess::~OtherProcess() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void OtherProcess::signal(int number) const {
  (void)::pidfd_send_signal(descriptor_, number, nullptr, 0);
}

bool OtherProcess::hasEnded() const {
  pollfd state{descriptor_, POLLIN, 0};
  return ::poll(&state, 1, 0) > 0;
}

}  // namespace tarnloft

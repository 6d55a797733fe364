#include "platform/desktop/images/VectorWorker.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnloft {
namespace {

// The program's standard input is the socket; it prints nothing and inherits nothing else.
class SpawnActions {
 public:
  explicit SpawnActions(int socket) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawn_file_actions_adddup2(&actions_, socket, STDIN_FILENO);
    ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
  }
  ~SpawnActions() { ::posix_spawn_file_actions_destroy(&actions_); }
  Q_DISABLE_COPY_MOVE(SpawnActions)

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

std::optional<pid_t> spawn(const QString& program, int socket) {
  const SpawnActions actions(socket);
  QByteArray path = QFile::encodeName(program);
  char* arguments[] = {path.data(), nullptr};
  pid_t process = 0;
  const int error =
      ::posix_spawn(&process, path.constData(), actions.get(), nullptr, arguments, environ);
  return error == 0 ? std::optional(process) : std::nullopt;
}

}  // namespace

std::unique_ptr<VectorWorker> VectorWorker::start(const QString& program) {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return nullptr;
  const auto process = spawn(program, ends[1]);
  ::close(ends[1]);
  if (!process) {
    ::close(ends[0]);
    return nullptr;
  }
  return std::unique_ptr<VectorWorker>(new VectorWorker(*process, ends[0]));
}

VectorWorker::~VectorWorker() {
  ::close(socket_);
  ::kill(process_, SIGKILL);
  while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

bool VectorWorker::isAlive() const {
  pollfd state{socket_, POLLIN, 0};  // it speaks only when asked
  return ::poll(&state, 1, 0) == 0;
}

void VectorWorker::begin(std::chrono::seconds time) {
  deadline_ = QDeadlineTimer(time);
  ++requests_;
}

bool VectorWorker::send(const void* bytes, qint64 size) {
  const char* next = static_cast<const char*>(bytes);
  while (size > 0) {
    if (!await(POLLOUT)) return false;
    const ssize_t sent = ::send(socket_, next, size_t(size), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent < 0 && errno != EAGAIN && errno != EINTR) return false;
    next += qMax<ssize_t>(sent, 0);
    size -= qMax<ssize_t>(sent, 0);
  }
  return true;
}

bool VectorWorker::receive(void* bytes, qint64 size) {
  char* next = static_cast<char*>(bytes);
  while (size > 0) {
    if (!await(POLLIN)) return false;
    const ssize_t received = ::recv(socket_, next, size_t(size), MSG_DONTWAIT);
    if (received == 0 || (received < 0 && errno != EAGAIN && errno != EINTR)) return false;
    next += qMax<ssize_t>(received, 0);
    size -= qMax<ssize_t>(received, 0);
  }
  return true;
}

bool VectorWorker::await(short events) {
  for (;;) {
    pollfd state{socket_, events, 0};
    const int ready = ::poll(&state, 1, int(deadline_.remainingTime()));
    if (ready > 0) return true;
    if (ready == 0 || errno != EINTR) return false;
  }
}

}  // namespace tarnloft

#include "platform/desktop/decoding/ChildProcess.h"

#include "platform/desktop/decoding/Protocol.h"
#include "platform/desktop/files/PosixFiles.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnloft::decoding {
namespace {

class SpawnActions {
 public:
  SpawnActions(int input, std::optional<int> output) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
    openNothing(STDOUT_FILENO);
    openNothing(STDERR_FILENO);
    if (output) ::posix_spawn_file_actions_adddup2(&actions_, *output, outputNumber);
    ::posix_spawn_file_actions_addclosefrom_np(&actions_, output ? outputNumber + 1 : outputNumber);
  }
  ~SpawnActions() { ::posix_spawn_file_actions_destroy(&actions_); }
  Q_DISABLE_COPY_MOVE(SpawnActions)

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  void openNothing(int number) {
    ::posix_spawn_file_actions_addopen(&actions_, number, "/dev/null", O_WRONLY, 0);
  }

  posix_spawn_file_actions_t actions_;
};

}  // namespace

std::unique_ptr<ChildProcess> ChildProcess::start(const QString& program, const char* argument,
                                                  int input, std::optional<int> output) {
  const SpawnActions actions(input, output);
  QByteArray path = QFile::encodeName(program), text = argument;
  char* arguments[] = {path.data(), text.data(), nullptr};
  pid_t number = 0;
  if (::posix_spawn(&number, path.constData(), actions.get(), nullptr, arguments, environ) != 0) {
    return nullptr;
  }
  return std::unique_ptr<ChildProcess>(new ChildProcess(number));
}

ChildProcess::~ChildProcess() {
  if (isOver_) return;
  ::kill(number_, SIGKILL);
  while (::waitpid(number_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

bool ChildProcess::succeeds(std::chrono::milliseconds patience) {
  const posix::Descriptor process(int(::syscall(SYS_pidfd_open, number_, 0)));
  pollfd ending{process.number(), POLLIN, 0};
  if (!process.isOpen() || ::poll(&ending, 1, int(patience.count())) != 1) return false;
  int status = 0;
  isOver_ = ::waitpid(number_, &status, 0) == number_;
  return isOver_ && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace tarnloft::decoding

#include "platform/desktop/decoding/DecoderProcess.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>

namespace tarnloft::decoding {
namespace {

rlim_t processorSeconds(pid_t process) {
  clockid_t clock;
  timespec used{};
  if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0) return 0;
  return rlim_t(used.tv_sec);
}

}  // namespace

std::unique_ptr<DecoderProcess> DecoderProcess::start(const QString& program, Role role) {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return nullptr;
  posix::Descriptor ours(ends[0]), theirs(ends[1]);
  auto process = ChildProcess::start(program, roleNames[int(role)], theirs.number());
  if (!process) return nullptr;
  return std::unique_ptr<DecoderProcess>(new DecoderProcess(std::move(process), std::move(ours)));
}

bool DecoderProcess::isAlive() const {
  pollfd state{socket_.number(), POLLIN, 0};
  return ::poll(&state, 1, 0) == 0;  // it speaks only when asked
}

bool DecoderProcess::awaitReady() {
  Hello word;
  if (!isReady_) isReady_ = receive(word) && word == Hello{};
  return isReady_;
}

void DecoderProcess::begin(std::chrono::seconds time, std::chrono::seconds processorTime) {
  deadline_ = QDeadlineTimer(time);
  const rlimit bound{processorSeconds(process_->number()) + 1 + rlim_t(processorTime.count()),
                     RLIM_INFINITY};
  ::prlimit(process_->number(), RLIMIT_CPU, &bound, nullptr);
}

// The hard bound, which it has set for itself, tells what it had by then.
void DecoderProcess::grantMemory(std::uint64_t bytes) {
  rlimit bound{};
  ::prlimit(process_->number(), RLIMIT_DATA, nullptr, &bound);
  if (bound.rlim_max == RLIM_INFINITY) return;  // where the bound can't be used
  bound.rlim_cur = bound.rlim_max - limits::exportMemory + std::min(bytes, limits::exportMemory);
  ::prlimit(process_->number(), RLIMIT_DATA, &bound, nullptr);
}

std::optional<Reply> DecoderProcess::ask(const Request& request, int descriptor) {
  files_ += request.action == Action::open;
  Reply reply;
  return send(request, descriptor) && receive(reply) ? std::optional(reply) : std::nullopt;
}

bool DecoderProcess::tell(const Request& request) { return send(request, -1); }

// A request is far smaller than what a socket takes at once.
bool DecoderProcess::send(const Request& request, int descriptor) {
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
  Request copy = request;
  iovec content{&copy, sizeof copy};
  msghdr message{};
  message.msg_iov = &content;
  message.msg_iovlen = 1;
  if (descriptor >= 0) {
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    cmsghdr* const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof descriptor);
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
  }
  return await(POLLOUT) &&
         ::sendmsg(socket_.number(), &message, MSG_NOSIGNAL | MSG_DONTWAIT) == ssize_t(sizeof copy);
}

template <class Word>
bool DecoderProcess::receive(Word& word) {
  char* next = reinterpret_cast<char*>(&word);
  size_t left = sizeof word;
  while (left > 0) {
    if (!await(POLLIN)) return false;
    const ssize_t received = ::recv(socket_.number(), next, left, MSG_DONTWAIT);
    if (received == 0 || (received < 0 && errno != EAGAIN && errno != EINTR)) return false;
    next += std::max<ssize_t>(received, 0);
    left -= size_t(std::max<ssize_t>(received, 0));
  }
  return true;
}

bool DecoderProcess::await(short events) {
  for (;;) {
    pollfd state{socket_.number(), events, 0};
    const int ready = ::poll(&state, 1, int(deadline_.remainingTime()));
    if (ready > 0) return true;
    if (ready == 0 || errno != EINTR) return false;
  }
}

}  // namespace tarnloft::decoding

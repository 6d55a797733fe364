#include "platform/desktop/system/TerminationSignals.h"

#include <array>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tarnloft {
namespace {

constexpr std::array handled{SIGTERM, SIGHUP, SIGINT};
constexpr unsigned patience = 10;  // seconds

int& wakeup() {
  static int descriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  return descriptor;
}

// May do no more than what is safe at any moment of the program.
void request(int) {
  const quint64 one = 1;
  (void)!::write(wakeup(), &one, sizeof one);
  ::alarm(patience);  // whose signal ends the process
}

void handleBy(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int number : handled) ::sigaction(number, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals() : notifier_(wakeup(), QSocketNotifier::Read) {
  connect(&notifier_, &QSocketNotifier::activated, this, [this] {
    quint64 count = 0;
    (void)!::read(wakeup(), &count, sizeof count);
    emit requested();
  });
  handleBy(request);
}

TerminationSignals::~TerminationSignals() { handleBy(SIG_DFL); }

}  // namespace tarnloft

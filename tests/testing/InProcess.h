#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnloft {

// Runs it in a process of its own, which may be given limits or be killed; gives that one's wait
// status. Its exit status is 0 for true.
inline int inProcess(const std::function<bool()>& work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work() ? 0 : 1);
  int status = -1;
  ::waitpid(child, &status, 0);
  return status;
}

inline bool succeedsInProcess(const std::function<bool()>& work) {
  const int status = inProcess(work);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace tarnloft

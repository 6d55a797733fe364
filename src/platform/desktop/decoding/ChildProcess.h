#pragma once

#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <sys/types.h>

namespace tarnloft::decoding {

// A running program of ours. Ended on destruction.
class ChildProcess {
 public:
  // With one argument, its standard input and perhaps `outputNumber` as told, and nothing else of
  // ours open. Null if it can't be started.
  static std::unique_ptr<ChildProcess> start(const QString& program, const char* argument,
                                             int input, std::optional<int> output = {});
  ~ChildProcess();
  Q_DISABLE_COPY_MOVE(ChildProcess)

  pid_t number() const { return number_; }
  // Waits for its end; false also if it takes longer.
  bool succeeds(std::chrono::milliseconds patience);

 private:
  explicit ChildProcess(pid_t number) : number_(number) {}

  pid_t number_;
  bool isOver_ = false;
};

}  // namespace tarnloft::decoding

#pragma once

#include "platform/desktop/decoding/ChildProcess.h"
#include "platform/desktop/decoding/Protocol.h"
#include "platform/desktop/files/PosixFiles.h"

#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace tarnloft::decoding {

// One running decoder and the socket to it. Ended on destruction.
class DecoderProcess {
 public:
  // Null if the program can't be started.
  static std::unique_ptr<DecoderProcess> start(const QString& program, Role role);
  Q_DISABLE_COPY_MOVE(DecoderProcess)

  // False once it has ended by itself. When it is ready.
  bool isAlive() const;
  int files() const { return files_; }  // that it has had

  // From now on all must be through within the time, a part of which it may use the processor.
  void begin(std::chrono::seconds time, std::chrono::seconds processorTime);
  // Waits for it to have loaded its libraries and to be shut in. False if that fails, or if it is
  // of another version.
  bool awaitReady();
  // So much it may have beyond what it needs for itself. When it is ready.
  void grantMemory(std::uint64_t bytes);

  // A descriptor goes with the request unless it is below 0. None if the decoder has ended or its
  // time is up; it is of no use then.
  std::optional<Reply> ask(const Request& request, int descriptor);
  // A request without a reply.
  bool tell(const Request& request);

 private:
  DecoderProcess(std::unique_ptr<ChildProcess> process, posix::Descriptor socket)
      : process_(std::move(process)), socket_(std::move(socket)) {}
  bool send(const Request& request, int descriptor);
  template <class Word>
  bool receive(Word& word);
  bool await(short events);

  const std::unique_ptr<ChildProcess> process_;
  const posix::Descriptor socket_;
  bool isReady_ = false;
  int files_ = 0;
  QDeadlineTimer deadline_;
};

}  // namespace tarnloft::decoding

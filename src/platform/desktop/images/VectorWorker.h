#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <memory>
#include <sys/types.h>

namespace tarnloft {

// One running drawing program and the socket to it. Ended on destruction.
class VectorWorker {
 public:
  // Null if the program can't be started.
  static std::unique_ptr<VectorWorker> start(const QString& program);
  ~VectorWorker();
  Q_DISABLE_COPY_MOVE(VectorWorker)

  // False once the program has ended by itself.
  bool isAlive() const;

  // A new request; all of it must be through within the time.
  void begin(std::chrono::seconds time);
  int requests() const { return requests_; }

  // Whole or not at all. False if the program ended or time is up; the worker is of no use then.
  bool send(const void* bytes, qint64 size);
  bool receive(void* bytes, qint64 size);

 private:
  VectorWorker(pid_t process, int socket) : process_(process), socket_(socket) {}
  bool await(short events);

  pid_t process_;
  int socket_;
  int requests_ = 0;
  QDeadlineTimer deadline_;
};

}  // namespace tarnloft

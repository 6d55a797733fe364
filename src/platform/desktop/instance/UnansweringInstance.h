#pragma once

#include "platform/desktop/instance/OtherProcess.h"
#include "platform/desktop/instance/RunningInstance.h"

#include <QLocalSocket>
#include <QTimer>

namespace tarnloft {

// The running instance that gave a later start no answer: it is asked on, and ended if the user
// wants that. Main thread, with its event loop.
class UnansweringInstance : public QObject {
  Q_OBJECT

 public:
  // Begins to ask. `start` is the later one.
  explicit UnansweringInstance(RunningInstance& start);

  // Asks it to end, and ends it by force if it is still there after that time. Its answers don't
  // count from now on.
  void end(std::chrono::milliseconds patience = std::chrono::seconds(3));

 signals:
  // Once: `first`, because the other one has ended, or `shown`, because it answered after all.
  void settled(tarnloft::RunningInstance::Start start);
  // It isn't one that may be ended from here, or can't be ended even by force. Asking goes on.
  void endFailed();

 private:
  void ask();
  void listen();
  void endByForce();
  void settle(RunningInstance::Start start);

  RunningInstance& start_;
  QTimer asking_;
  QLocalSocket socket_;
  QByteArray answer_;
  std::optional<OtherProcess> ending_;
  QTimer patience_;  // runs out for the one that is ending
  bool isForced_ = false;
};

}  // namespace tarnloft

#pragma once

#include "platform/desktop/instance/UnansweringInstance.h"

#include <QEventLoop>
#include <QQmlEngine>

#include <memory>

namespace tarnloft {

// A start that got no answer from the instance that runs: tells the user so, and offers to end that
// one. Needs a QApplication. Main thread.
class UnansweredStart : public QObject {
  Q_OBJECT

 public:
  explicit UnansweredStart(RunningInstance& start);

  // Returns when it's settled what this start is; `noAnswer` if the user leaves it at that.
  RunningInstance::Start ask();

 private slots:
  void end();
  void dismiss();

 private:
  void tellFailure();
  void finish(RunningInstance::Start start);

  UnansweringInstance other_;
  QQmlEngine engine_;
  std::unique_ptr<QObject> window_;
  QEventLoop loop_;
};

}  // namespace tarnloft

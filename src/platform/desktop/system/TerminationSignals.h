#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace tarnloft {

// The system's requests to end: SIGTERM, SIGHUP and SIGINT, told in the event loop. Of a program
// whose event loop doesn't come by for ten seconds it is the end at once. One in a process; main
// thread, with an application object.
class TerminationSignals : public QObject {
  Q_OBJECT

 public:
  TerminationSignals();
  ~TerminationSignals() override;
  Q_DISABLE_COPY_MOVE(TerminationSignals)

 signals:
  void requested();

 private:
  QSocketNotifier notifier_;
};

}  // namespace tarnloft

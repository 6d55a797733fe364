#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>

namespace tarnloft {

// The user's one running program. The first start holds a lock for as long as it lives, which a
// crash gives back; each later start asks it to show its window. Main thread.
class RunningInstance : public QObject {
  Q_OBJECT

 public:
  enum class Start {
    first,    // this process is the running instance
    shown,    // another one runs and has shown its window
    noAnswer  // another one runs and doesn't answer
  };

  // Lock and socket stand in the folder, which belongs to the user alone.
  explicit RunningInstance(const QString& folder);

  // Decides which this process is. Waits for another one that is just starting or ending, at most
  // that long. Needs no application object.
  Start claim(std::chrono::milliseconds patience = std::chrono::seconds(10));

  // The first instance's: answers other starts from now on. Needs an application object.
  bool listen();

  // The user's folder for files that live as long as the session.
  static QString runtimeFolder();

 signals:
  // Another start asks for the window.
  void showRequested();

 private:
  bool askToShow(const QDeadlineTimer& deadline) const;
  void answerNext();

  const QString socketPath_;
  QLockFile lock_;
  QLocalServer server_;
};

}  // namespace tarnloft

#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>
#include <optional>

namespace tarnloft {

// The user's one running program. The first start holds a lock for as long as it lives, which a
// crash gives back; each later start asks it to come forward. Main thread.
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
  // that long. The action is what it is asked to do, a word without spaces; none shows its
  // window. Needs no application object.
  Start claim(const QByteArray& action = {},
              std::chrono::milliseconds patience = std::chrono::seconds(3));

  // The same without waiting and without asking: true if this process is the first from now on.
  bool tryClaim() { return lock_.tryLock(0); }
  // The process that holds the lock, if that can be read.
  std::optional<qint64> holder() const;

  // The first instance's: answers other starts from now on. Needs an application object.
  bool listen();

  // Lets a next start be the first one, before this process ends.
  void release();

  // How a later start asks, and what it is told when the window is shown. The request holds the
  // token by which the launcher lets this process raise a window on Wayland, if there is one.
  const QString& socketPath() const { return socketPath_; }
  static QByteArray showRequest(const QByteArray& action = {});
  static QByteArray shownAnswer() { return QByteArrayLiteral("shown\n"); }

  // The user's folder for files that live as long as the session.
  static QString runtimeFolder();

 signals:
  // Another start asks for that action, or by none for the window. Meanwhile its token is the one
  // that the toolkit raises windows with.
  void requested(const QByteArray& action);

 private:
  bool askToShow(const QByteArray& action, const QDeadlineTimer& deadline) const;
  void answerNext();

  const QString socketPath_;
  QLockFile lock_;
  QLocalServer server_;
};

}  // namespace tarnloft

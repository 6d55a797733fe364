#include "platform/desktop/instance/RunningInstance.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace tarnloft {
namespace {

constexpr int pause = 20;  // milliseconds between two tries
constexpr qint64 longestRequest = 4096;
constexpr auto activationToken = "XDG_ACTIVATION_TOKEN";
const auto show = QByteArrayLiteral("show ");
const auto quickGrab = QByteArrayLiteral("quick-grab ");

}  // namespace

RunningInstance::RunningInstance(const QString& folder)
    : socketPath_(folder + QStringLiteral("/tarnloft.socket")),
      lock_(folder + QStringLiteral("/tarnloft.lock")) {
  lock_.setStaleLockTime(0);  // a living holder's lock is good however old it is
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&server_, &QLocalServer::newConnection, this, &RunningInstance::answerNext);
}

RunningInstance::Start RunningInstance::claim(Wish wish, std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  do {
    if (tryClaim()) return Start::first;
    if (askToShow(wish, deadline)) return Start::shown;
    QThread::msleep(pause);  // it starts or ends just now
  } while (!deadline.hasExpired());
  return Start::noAnswer;
}

std::optional<qint64> RunningInstance::holder() const {
  qint64 process = 0;
  QString host, program;
  return lock_.getLockInfo(&process, &host, &program) ? std::optional(process) : std::nullopt;
}

bool RunningInstance::askToShow(Wish wish, const QDeadlineTimer& deadline) const {
  QLocalSocket socket;
  socket.connectToServer(socketPath_);
  if (!socket.waitForConnected(int(deadline.remainingTime()))) return false;
  socket.write(showRequest(wish));
  QByteArray answer;
  while (answer != shownAnswer()) {
    if (!socket.waitForReadyRead(int(deadline.remainingTime()))) return false;
    answer += socket.readAll();
  }
  return true;
}

QByteArray RunningInstance::showRequest(Wish wish) {
  return (wish == Wish::quickGrab ? quickGrab : show) +
         qgetenv(activationToken).toPercentEncoding() + '\n';
}

bool RunningInstance::listen() {
  QLocalServer::removeServer(socketPath_);  // one that a crash has left; the lock is ours
  return server_.listen(socketPath_);
}

void RunningInstance::answerNext() {
  QLocalSocket* const socket = server_.nextPendingConnection();
  connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
    if (!socket->canReadLine()) {
      if (socket->bytesAvailable() >= longestRequest) socket->abort();
      return;
    }
    const QByteArray request = socket->readLine(longestRequest);
    const bool isQuickGrab = request.startsWith(quickGrab);
    if (!isQuickGrab && !request.startsWith(show)) return socket->abort();
    const auto token =
        QByteArray::fromPercentEncoding(request.sliced(request.indexOf(' ') + 1).trimmed());
    if (!token.isEmpty()) qputenv(activationToken, token);
    isQuickGrab ? emit quickGrabRequested() : emit showRequested();
    qunsetenv(activationToken);
    socket->write(shownAnswer());
  });
}

QString RunningInstance::runtimeFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

}  // namespace tarnloft

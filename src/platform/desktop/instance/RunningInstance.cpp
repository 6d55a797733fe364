#include "platform/desktop/instance/RunningInstance.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>

namespace tarnloft {
namespace {

constexpr int pause = 20;  // milliseconds between two tries
constexpr qint64 longestRequest = 64 << 10;
constexpr auto activationToken = "XDG_ACTIVATION_TOKEN";
const auto show = QByteArrayLiteral("show");

const auto perform = QByteArrayLiteral("do:");  // and the action's name

// What a start may ask for; none for anything else that comes by the socket.
std::optional<QByteArray> actionOf(const QByteArray& word) {
  if (word == show) return QByteArray();
  return word.startsWith(perform) ? std::optional(word.sliced(perform.size())) : std::nullopt;
}

}  // namespace

RunningInstance::RunningInstance(const QString& folder)
    : socketPath_(folder + QStringLiteral("/tarnloft.socket")),
      lock_(folder + QStringLiteral("/tarnloft.lock")) {
  lock_.setStaleLockTime(0);  // a living holder's lock is good however old it is
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&server_, &QLocalServer::newConnection, this, &RunningInstance::answerNext);
}

RunningInstance::Start RunningInstance::claim(const QByteArray& action,
                                              std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  do {
    if (tryClaim()) return Start::first;
    if (askToShow(action, deadline)) return Start::shown;
    QThread::msleep(pause);  // it starts or ends just now
  } while (!deadline.hasExpired());
  return Start::noAnswer;
}

std::optional<qint64> RunningInstance::holder() const {
  qint64 process = 0;
  QString host, program;
  return lock_.getLockInfo(&process, &host, &program) ? std::optional(process) : std::nullopt;
}

bool RunningInstance::askToShow(const QByteArray& action, const QDeadlineTimer& deadline) const {
  QLocalSocket socket;
  socket.connectToServer(socketPath_);
  if (!socket.waitForConnected(int(deadline.remainingTime()))) return false;
  socket.write(showRequest(action));
  QByteArray answer;
  while (answer != shownAnswer()) {
    if (!socket.waitForReadyRead(int(deadline.remainingTime()))) return false;
    answer += socket.readAll();
  }
  return true;
}

QByteArray RunningInstance::showRequest(const QByteArray& action) {
  return (action.isEmpty() ? show : perform + action) + ' ' +
         qgetenv(activationToken).toPercentEncoding() + '\n';
}

bool RunningInstance::listen() {
  QLocalServer::removeServer(socketPath_);  // one that a crash has left; the lock is ours
  return server_.listen(socketPath_);
}

void RunningInstance::release() {
  server_.close();
  lock_.unlock();
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
    const qsizetype end = request.indexOf(' ');
    const auto action = actionOf(request.first(std::max<qsizetype>(end, 0)));
    if (!action) return socket->abort();
    const auto token = QByteArray::fromPercentEncoding(request.sliced(end + 1).trimmed());
    if (!token.isEmpty()) qputenv(activationToken, token);
    emit requested(*action);
    qunsetenv(activationToken);
    socket->write(shownAnswer());
  });
}

QString RunningInstance::runtimeFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

}  // namespace tarnloft

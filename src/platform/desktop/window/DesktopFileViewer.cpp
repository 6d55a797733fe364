#include "platform/desktop/window/DesktopFileViewer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace tarnloft {

void DesktopFileViewer::reveal(const QString& path) {
  if (!QFileInfo::exists(path)) return;
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.FileManager1"),
      QStringLiteral("/org/freedesktop/FileManager1"),
      QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
  const QString url = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
  call << QStringList(url) << QString();
  auto* const watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call));
  // Without a bus the call has failed by now, and the watcher tells of it all the same.
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [this, watcher, path] {
    if (watcher->isError()) openFolder(QFileInfo(path).absolutePath());
    watcher->deleteLater();
  });
}

void DesktopFileViewer::openFolder(const QString& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

}  // namespace tarnloft

#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariant>

namespace tarnloft {

// The running program on the session bus, by the desktop's standard for applications: what
// launchers and key settings call to have it come forward or do one of its actions. Main thread.
class ApplicationBus : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  static QString name() { return QStringLiteral("com.quillmoor.tarnloft"); }

  // False if there is no bus, or the name is another program's.
  bool listen();

 public slots:
  Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
  Q_SCRIPTABLE void Open(const QStringList& files, const QVariantMap& platformData);
  Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                   const QVariantMap& platformData);

 signals:
  // During these the caller's token is the one with which the toolkit raises windows.
  void activated();
  void actionActivated(const QString& action);
  void opened(const QStringList& paths);
};

}  // namespace tarnloft

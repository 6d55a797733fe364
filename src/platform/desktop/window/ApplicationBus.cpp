#include "platform/desktop/window/ApplicationBus.h"

#include <QDBusConnection>
#include <QUrl>

namespace tarnloft {
namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

// Lends the token for its own life.
class LentToken {
 public:
  explicit LentToken(const QVariantMap& platformData) {
    const QByteArray token =
        platformData.value(QStringLiteral("activation-token")).toString().toUtf8();
    if (!token.isEmpty()) qputenv(variable, token);
  }
  ~LentToken() { qunsetenv(variable); }
  Q_DISABLE_COPY_MOVE(LentToken)
};

}  // namespace

bool ApplicationBus::listen() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  return bus.registerObject(QStringLiteral("/com/quillmoor/tarnloft"), this,
                            QDBusConnection::ExportScriptableSlots) &&
         bus.registerService(name());
}

void ApplicationBus::Activate(const QVariantMap& platformData) {
  const LentToken token(platformData);
  emit activated();
}

// Those that aren't this machine's files are left out.
void ApplicationBus::Open(const QStringList& files, const QVariantMap& platformData) {
  const LentToken token(platformData);
  QStringList paths;
  for (const QString& file : files) paths << QUrl(file).toLocalFile();
  paths.removeAll(QString());
  emit opened(paths);
}

void ApplicationBus::ActivateAction(const QString& action, const QVariantList&,
                                    const QVariantMap& platformData) {
  const LentToken token(platformData);
  emit actionActivated(action);
}

}  // namespace tarnloft

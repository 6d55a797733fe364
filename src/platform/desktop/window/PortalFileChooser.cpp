#include "platform/desktop/window/PortalFileChooser.h"

#include "platform/desktop/window/ExportedWindow.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMimeDatabase>
#include <QRandomGenerator>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace tarnloft {

// The portal's own types: a filter's patterns, and a filter with its name.
struct PortalPattern {
  uint kind;  // 1 for a MIME type
  QString pattern;
};

struct PortalFilter {
  QString name;
  QList<PortalPattern> patterns;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const PortalPattern& pattern) {
  argument.beginStructure();
  argument << pattern.kind << pattern.pattern;
  argument.endStructure();
  return argument;
}

static QDBusArgument& operator<<(QDBusArgument& argument, const PortalFilter& filter) {
  argument.beginStructure();
  argument << filter.name << filter.patterns;
  argument.endStructure();
  return argument;
}

// Asked for by the registration; no such value ever comes.
static const QDBusArgument& operator>>(const QDBusArgument& argument, PortalPattern& pattern) {
  argument.beginStructure();
  argument >> pattern.kind >> pattern.pattern;
  argument.endStructure();
  return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, PortalFilter& filter) {
  argument.beginStructure();
  argument >> filter.name >> filter.patterns;
  argument.endStructure();
  return argument;
}

namespace {

constexpr int patience = 5000;  // milliseconds, with a portal that is just starting

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");

void registerTypes() {
  qDBusRegisterMetaType<PortalPattern>();
  qDBusRegisterMetaType<QList<PortalPattern>>();
  qDBusRegisterMetaType<PortalFilter>();
  qDBusRegisterMetaType<QList<PortalFilter>>();
}

QString classOf(const QString& mimeType) {
  if (mimeType.startsWith(QLatin1String("image/"))) return QStringLiteral("Images");
  if (mimeType.startsWith(QLatin1String("video/"))) return QStringLiteral("Videos");
  if (mimeType.startsWith(QLatin1String("font/"))) return QStringLiteral("Fonts");
  return QMimeDatabase().mimeTypeForName(mimeType).comment();
}

QVariantMap optionsOf(const FileQuestion& question, const QString& token) {
  using Kind = FileQuestion::Kind;
  QVariantMap options{{QStringLiteral("handle_token"), token}, {QStringLiteral("modal"), true}};
  if (question.kind == Kind::files) options.insert(QStringLiteral("multiple"), true);
  if (!question.acceptText.isEmpty()) {
    options.insert(QStringLiteral("accept_label"), question.acceptText);
  }
  if (question.kind == Kind::folder) options.insert(QStringLiteral("directory"), true);
  if (question.kind == Kind::save) {
    options.insert(QStringLiteral("current_name"), question.suggestedName);
  }
  if (!question.folder.isEmpty()) {  // the portal wants it with its end
    options.insert(QStringLiteral("current_folder"), QFile::encodeName(question.folder) + '\0');
  }
  if (!question.mimeTypes.isEmpty()) {
    PortalFilter filter{classOf(question.mimeTypes.first()), {}};
    for (const QString& type : question.mimeTypes) filter.patterns << PortalPattern{1, type};
    options.insert(QStringLiteral("filters"), QVariant::fromValue(QList<PortalFilter>{filter}));
  }
  return options;
}

}  // namespace

std::optional<QStringList> PortalFileChooser::ask(const FileQuestion& question, QWindow* window) {
  registerTypes();
  QDBusConnection bus = QDBusConnection::sessionBus();
  const ExportedWindow parent(window);
  const QString token = QStringLiteral("tarnloft%1").arg(QRandomGenerator::system()->generate());
  // Known before the call, so that the answer can't be missed.
  const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  const QString request =
      QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
  const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
  bus.connect(portal, request, requestInterface, QStringLiteral("Response"), this,
              SLOT(answered(QDBusMessage)));
  auto call = QDBusMessage::createMethodCall(
      portal, QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.FileChooser"),
      question.kind == FileQuestion::Kind::save ? QStringLiteral("SaveFile")
                                                : QStringLiteral("OpenFile"));
  call << parent.handle() << question.title << optionsOf(question, token);
  const QDBusPendingCallWatcher asked(bus.asyncCall(call, patience));
  connect(&asked, &QDBusPendingCallWatcher::finished, this, [&] {
    if (asked.isError()) finish(std::nullopt);
  });
  const QDBusServiceWatcher living(portal, bus, QDBusServiceWatcher::WatchForUnregistration);
  connect(&living, &QDBusServiceWatcher::serviceUnregistered, this,
          [this] { finish(QStringList()); });
  qGuiApp->installEventFilter(this);
  const bool isAnswered = loop_.exec() == 0;
  qGuiApp->removeEventFilter(this);
  // One that is late, or still open at the program's end, must not stay behind.
  if (!isAnswered || asked.isError()) {
    bus.send(
        QDBusMessage::createMethodCall(portal, request, requestInterface, QStringLiteral("Close")));
  }
  return isAnswered ? paths_ : QStringList();
}

void PortalFileChooser::answered(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  if (arguments.size() != 2) return;
  QStringList paths;
  const auto results = qdbus_cast<QVariantMap>(arguments.at(1));
  const bool isChosen = arguments.at(0).toUInt() == 0;
  for (const QString& uri : results.value(QStringLiteral("uris")).toStringList()) {
    const QUrl url(uri);
    if (isChosen && url.isLocalFile()) paths << url.toLocalFile();
  }
  finish(paths);
}

void PortalFileChooser::finish(std::optional<QStringList> paths) {
  paths_ = std::move(paths);
  loop_.exit(0);
}

// The dialog is another program's, so nothing else keeps the user from going on in these windows.
bool PortalFileChooser::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop: return true;
    case QEvent::Close: event->ignore(); return true;
    default: return false;
  }
}

}  // namespace tarnloft

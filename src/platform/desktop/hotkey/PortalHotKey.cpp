#include "platform/desktop/hotkey/PortalHotKey.h"

#include "platform/VirtualKeys.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <optional>
#include <utility>

namespace tarnloft {

// As it stands in the portal's lists.
struct PortalShortcut {
  QString id;
  QVariantMap properties;
};

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktop = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsPortal = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
constexpr int restingTime = 1000;  // milliseconds, before a portal that has gone is asked again

// By the portal's standard for shortcuts: "CTRL+ALT+space". Empty for a key without a name.
QString written(quint32 keyCode, quint32 modifiers) {
  const VirtualKey* const key = virtualKey(keyCode);
  if (!key) return {};
  QString text;
  if (modifiers & HotKeyModifier::control) text += QLatin1String("CTRL+");
  if (modifiers & HotKeyModifier::option) text += QLatin1String("ALT+");
  if (modifiers & HotKeyModifier::shift) text += QLatin1String("SHIFT+");
  if (modifiers & HotKeyModifier::command) text += QLatin1String("LOGO+");
  return text + key->symbol.toString();
}

// One for each combination: a desktop keeps the first that it was told for an ID, whatever later
// sessions wish for.
QString idFor(const QString& wished) { return QLatin1String("quick-grab ") + wished; }

QVariant listOf(const QString& wished) {
  return QVariant::fromValue(
      QList<PortalShortcut>{{idFor(wished),
                             {{QStringLiteral("description"), QStringLiteral("Quick Grab")},
                              {QStringLiteral("preferred_trigger"), wished}}}});
}

// None if the answer doesn't know the key; empty for a key without a combination.
std::optional<QString> triggerIn(const QVariantMap& results, const QString& id) {
  const QVariant list = results.value(QStringLiteral("shortcuts"));
  if (!list.canConvert<QDBusArgument>()) return std::nullopt;
  for (const PortalShortcut& shortcut : qdbus_cast<QList<PortalShortcut>>(list)) {
    if (shortcut.id == id)
      return shortcut.properties.value(QStringLiteral("trigger_description")).toString();
  }
  return std::nullopt;
}

struct Answer {
  uint code = 2;
  QVariantMap results;
};

Answer answerOf(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  if (arguments.size() != 2) return {};
  return {arguments.at(0).toUInt(), qdbus_cast<QVariantMap>(arguments.at(1))};
}

QDBusMessage call(const QString& path, const QString& interface, const QString& method) {
  return QDBusMessage::createMethodCall(portal, path, interface, method);
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& out, const PortalShortcut& shortcut) {
  out.beginStructure();
  out << shortcut.id << shortcut.properties;
  out.endStructure();
  return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, PortalShortcut& shortcut) {
  in.beginStructure();
  in >> shortcut.id >> shortcut.properties;
  in.endStructure();
  return in;
}

void PortalHotKey::install(std::function<void()> pressed, std::function<void()> stateChanged) {
  pressed_ = std::move(pressed);
  stateChanged_ = std::move(stateChanged);
  qDBusRegisterMetaType<PortalShortcut>();
  qDBusRegisterMetaType<QList<PortalShortcut>>();
  QDBusConnection::sessionBus().connect(portal, desktop, shortcutsPortal,
                                        QStringLiteral("Activated"), this,
                                        SLOT(activated(QDBusMessage)));
  connect(&living_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    session_.clear();
    if (state_ == State::waiting) setState(State::unavailable);  // ended over the question
    if (state_ != State::registered && state_ != State::taken) return;
    setState(State::waiting);
    rest_.start(restingTime);
  });
  rest_.setSingleShot(true);
  connect(&rest_, &QTimer::timeout, this, &PortalHotKey::makeSession);
}

void PortalHotKey::update(quint32 keyCode, quint32 modifiers) {
  closeSession();
  wished_ = modifiers ? written(keyCode, modifiers) : QString();
  if (wished_.isEmpty()) return setState(modifiers ? State::unavailable : State::off);
  setState(State::waiting);
  makeSession();
}

void PortalHotKey::makeSession() {
  // With the key right away, as one desktop binds it only then without asking the user.
  ask(QStringLiteral("CreateSession"), {},
      {{QStringLiteral("session_handle_token"), QStringLiteral("tarnloft")},
       {QStringLiteral("shortcuts"), listOf(wished_)}},
      SLOT(sessionMade(QDBusMessage)));
}

void PortalHotKey::ask(const QString& method, QVariantList arguments, QVariantMap options,
                       const char* slot) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  const QString token = QStringLiteral("tarnloft_hotkey%1").arg(++asked_);
  QString sender = bus.baseService().mid(1);
  sender.replace(QLatin1Char('.'), QLatin1Char('_'));
  awaited_ = QStringLiteral("%1/request/%2/%3").arg(desktop, sender, token);
  bus.connect(portal, awaited_, QStringLiteral("org.freedesktop.portal.Request"),
              QStringLiteral("Response"), this, slot);
  options.insert(QStringLiteral("handle_token"), token);
  QDBusMessage question = call(desktop, shortcutsPortal, method);
  question.setArguments(arguments << options);
  auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, place = awaited_] {
    watcher->deleteLater();
    if (watcher->isError() && place == awaited_) setState(State::unavailable);
  });
}

bool PortalHotKey::isAwaited(const QDBusMessage& message) const {
  return message.path() == awaited_ && state_ == State::waiting;
}

void PortalHotKey::sessionMade(const QDBusMessage& message) {
  if (!isAwaited(message)) return;
  const Answer answer = answerOf(message);
  session_ = answer.results.value(QStringLiteral("session_handle")).toString();
  if (answer.code != 0 || session_.isEmpty()) return fail(answer.code);
  ask(QStringLiteral("ListShortcuts"), {QVariant::fromValue(QDBusObjectPath(session_))}, {},
      SLOT(listed(QDBusMessage)));
}

void PortalHotKey::listed(const QDBusMessage& message) {
  if (!isAwaited(message)) return;
  const Answer answer = answerOf(message);
  if (answer.code != 0) return fail(answer.code);
  const auto trigger = triggerIn(answer.results, idFor(wished_));
  if (trigger) return setState(trigger->isEmpty() ? State::taken : State::registered, *trigger);
  // The desktop may ask the user, who may take their time.
  ask(QStringLiteral("BindShortcuts"),
      {QVariant::fromValue(QDBusObjectPath(session_)), listOf(wished_), QString()}, {},
      SLOT(bound(QDBusMessage)));
}

void PortalHotKey::bound(const QDBusMessage& message) {
  if (!isAwaited(message)) return;
  const Answer answer = answerOf(message);
  if (answer.code != 0) return fail(answer.code);
  const QString trigger = triggerIn(answer.results, idFor(wished_)).value_or(QString());
  setState(trigger.isEmpty() ? State::taken : State::registered, trigger);
}

void PortalHotKey::activated(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  if (arguments.size() < 2 || arguments.at(1).toString() != idFor(wished_)) return;
  if (qvariant_cast<QDBusObjectPath>(arguments.at(0)).path() == session_) pressed_();
}

void PortalHotKey::closeSession() {
  rest_.stop();
  awaited_.clear();
  if (session_.isEmpty()) return;
  QDBusConnection::sessionBus().asyncCall(call(std::exchange(session_, QString()),
                                               QStringLiteral("org.freedesktop.portal.Session"),
                                               QStringLiteral("Close")));
}

void PortalHotKey::fail(uint code) {
  log_.write(QStringLiteral("failed to register global hotkey (status %1)").arg(code));
  setState(State::taken);
}

void PortalHotKey::setState(State state, const QString& trigger) {
  const bool isOther = state_ != state || trigger_ != trigger;
  state_ = state;
  trigger_ = trigger;
  if (isOther && stateChanged_) stateChanged_();
}

}  // namespace tarnloft

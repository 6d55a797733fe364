#include "platform/desktop/window/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

const QString name = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

// The desktop's settings, on a connection of its own.
class FakeSettings : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  explicit FakeSettings(uint scheme) : m_scheme(scheme) {
    m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    m_bus.registerService(name);
  }
  ~FakeSettings() override {
    m_bus.unregisterService(name);
    m_bus.unregisterObject(path);
  }

  void change(uint scheme, const QString& of = group) {
    m_scheme = scheme;
    auto signal = QDBusMessage::createSignal(
        path, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    signal << of << key << QVariant::fromValue(QDBusVariant(scheme));
    m_bus.send(signal);
  }

  int asked = 0;

 public slots:
  QDBusVariant Read(const QString& /*ofGroup*/, const QString& /*ofKey*/) {
    ++asked;
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_scheme)));  // wrapped twice, as told
  }

 private:
  uint m_scheme;
  QDBusConnection m_bus =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("settings"));
};

void colorDesktop(const QColor& window, const QColor& text) {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  QGuiApplication::setPalette(palette);
  QCoreApplication::processEvents();
}

}  // namespace

// Light or dark, by the user's wish, the portal and the palette, in this order.
class TestAppearance : public QObject {
  Q_OBJECT

 private slots:
  void init() { colorDesktop(Qt::white, Qt::black); }
  void followsThePaletteWithoutAPortal();
  void asksThePortalOnce_data();
  void asksThePortalOnce();
  void followsThePortalsChanges();
  void theUsersWishWins();
};

void TestAppearance::followsThePaletteWithoutAPortal() {
  DesktopAppearance appearance;
  QVERIFY(!appearance.isDark());
  const QSignalSpy changes(&appearance, &DesktopAppearance::darkChanged);
  colorDesktop(Qt::black, Qt::white);
  QTRY_VERIFY(appearance.isDark());
  QCOMPARE(changes.count(), 1);
}

void TestAppearance::asksThePortalOnce_data() {
  QTest::addColumn<uint>("scheme");
  QTest::addColumn<bool>("paletteDark");
  QTest::addColumn<bool>("dark");
  QTest::newRow("dark on a light palette") << 1U << false << true;
  QTest::newRow("light on a dark palette") << 2U << true << false;
  QTest::newRow("no preference, light palette") << 0U << false << false;
  QTest::newRow("no preference, dark palette") << 0U << true << true;
}

void TestAppearance::asksThePortalOnce() {
  QFETCH(uint, scheme);
  QFETCH(bool, paletteDark);
  QFETCH(bool, dark);
  if (paletteDark) colorDesktop(Qt::black, Qt::white);
  const FakeSettings settings(scheme);
  const DesktopAppearance appearance;
  QTRY_COMPARE(settings.asked, 1);
  QTRY_COMPARE(appearance.isDark(), dark);
}

void TestAppearance::followsThePortalsChanges() {
  FakeSettings settings(2);
  const DesktopAppearance appearance;
  QTRY_COMPARE(settings.asked, 1);
  settings.change(1);
  QTRY_VERIFY(appearance.isDark());
  settings.change(2, QStringLiteral("some.other.group"));
  settings.change(0);  // no preference: the palette, which is light
  QTRY_VERIFY(!appearance.isDark());
}

void TestAppearance::theUsersWishWins() {
  FakeSettings settings(1);
  DesktopAppearance appearance;
  QTRY_VERIFY(appearance.isDark());
  appearance.setOverride(AppearanceOverride::light);
  QVERIFY(!appearance.isDark());
  const QSignalSpy changes(&appearance, &DesktopAppearance::darkChanged);
  settings.change(2);
  settings.change(1);
  colorDesktop(Qt::black, Qt::white);
  appearance.setOverride(AppearanceOverride::dark);
  appearance.setOverride(AppearanceOverride::none);
  QVERIFY(appearance.isDark());
  QCOMPARE(changes.count(), 1);
}

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"

#include "platform/desktop/window/DesktopAppearance.h"
#include "platform/desktop/window/DesktopMotion.h"
#include "testing/BusService.h"
#include "testing/Cases.h"

#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace tarnloft;
using namespace std::chrono_literals;

namespace {

const QString path = "/org/freedesktop/portal/desktop";
const QString group = "org.freedesktop.appearance";
const QString scheme = "color-scheme";

// The desktop's settings.
class FakeSettings {
 public:
  FakeSettings(const QString& ofGroup, const QString& ofKey, const QVariant& value)
      : known_{ofGroup, ofKey}, value_(value) {}
  explicit FakeSettings(uint colors) : FakeSettings(group, scheme, colors) {}

  void change(const QString& ofGroup, const QString& ofKey, const QVariant& value) const {
    bus.tell(path, "org.freedesktop.portal.Settings", "SettingChanged",
             {ofGroup, ofKey, QVariant::fromValue(QDBusVariant(value))});
  }
  void change(uint colors) const { change(group, scheme, colors); }

  BusService bus{
      "org.freedesktop.portal.Desktop", [this](const QDBusMessage& call) {
        if (call.arguments() != known_) return refusal(call);
        const QDBusVariant value(value_);  // wrapped twice, as told
        return call.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(value))));
      }};

 private:
  QVariantList known_;
  QVariant value_;
};

void colorDesktop(const QColor& window, const QColor& text) {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  QGuiApplication::setPalette(palette);
  QCoreApplication::processEvents();
}

}  // namespace

// Light or dark, by the user's wish, the portal and the palette, in this order; and whether things
// move.
class TestAppearance : public QObject {
  Q_OBJECT

 private slots:
  void init() { colorDesktop(Qt::white, Qt::black); }

  // first: as in the program, nothing is registered yet
  void followsAPortalThatComesLater() {
    const DesktopAppearance appearance;
    QTest::qWait(50);  // until nobody has answered
    FakeSettings settings(1);
    QTRY_VERIFY(appearance.isDark());
    settings.change(2);
    QTRY_VERIFY(!appearance.isDark());
    settings.change(group, "contrast", 1U);
    QTest::qWait(50);
    QVERIFY(!appearance.isDark());
    colorDesktop(Qt::black, Qt::white);
    settings.change(0);  // no preference: the palette
    QTRY_VERIFY(appearance.isDark());
  }

  // Without a turn of the event loop.
  void isKnownBeforeTheFirstFrame() {
    QThread desktop;
    FakeSettings settings(1);
    settings.bus.moveToThread(&desktop);
    desktop.start();
    DesktopAppearance appearance;
    appearance.settle(10s);
    QVERIFY(appearance.isDark());
    desktop.quit();
    desktop.wait();
  }

  void theToolkitsColorsFollow() {
    DesktopAppearance appearance;
    const auto window = [] { return QGuiApplication::palette().color(QPalette::Window); };
    const auto follow = [&] {
      appearance.setColors(QPalette(appearance.isDark() ? QColor(0x202020) : QColor(0xe0e0e0)));
    };
    connect(&appearance, &DesktopAppearance::darkChanged, this, follow);
    follow();
    QCOMPARE(window(), QColor(Qt::white));  // the desktop's own
    appearance.setOverride(AppearanceOverride::dark);
    QCOMPARE(window(), QColor(0x202020));
    appearance.setOverride(AppearanceOverride::none);
    QVERIFY(!appearance.isDark());
  }

  void theUsersWishWins() {
    FakeSettings settings(1);
    DesktopAppearance appearance;
    QTRY_VERIFY(appearance.isDark());
    appearance.setOverride(AppearanceOverride::light);
    QVERIFY(!appearance.isDark());
    const QSignalSpy changes(&appearance, &DesktopAppearance::darkChanged);
    DesktopAppearance unbiased;  // hears of a change when the other one does
    QTRY_VERIFY(unbiased.isDark());
    settings.change(2);
    QTRY_VERIFY(!unbiased.isDark());
    settings.change(1);
    QTRY_VERIFY(unbiased.isDark());
    colorDesktop(Qt::black, Qt::white);
    appearance.setOverride(AppearanceOverride::dark);
    appearance.setOverride(AppearanceOverride::none);
    QVERIFY(appearance.isDark());
    QCOMPARE(changes.count(), 1);
  }

  void desktopsAskForLessMovement() {
    const Cases<QString, QString, QVariant, QVariant> cases{
        {"common", group, "reduced-motion", 1U, 0U},
        {"GNOME", "org.gnome.desktop.interface", "enable-animations", false, true},
        {"Plasma", "org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0", "0.5"}};
    cases.check([](const QString& ofGroup, const QString& key, const QVariant& still,
                   const QVariant& moving) {
      FakeSettings settings(ofGroup, key, still);
      DesktopMotion motion;
      QList<bool> told;
      motion.follow([&told](bool reduced) { told << reduced; });
      QCOMPARE(told, QList<bool>{false});  // at once, without waiting for an answer
      QTRY_COMPARE(told, (QList<bool>{false, true}));
      settings.change(ofGroup, key, moving);
      QTRY_COMPARE(told, (QList<bool>{false, true, false}));
      settings.change("some.other.group", key, still);
      settings.change(ofGroup, key, moving);
      settings.change(ofGroup, key, still);
      QTRY_COMPARE(told, (QList<bool>{false, true, false, true}));
    });
  }
};

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"

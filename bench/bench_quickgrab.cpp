// The quick grab panel: shown again, beside a window of the toolkit's without a frame that holds
// one list of 300 rows; a letter typed in a brand of 10,000 items beside one of 20, of which it
// finds the same. On the offscreen platform.
#include "Measure.h"
#include "Ratio.h"
#include "controls/motion/Motion.h"
#include "controls/symbols/SymbolFont.h"
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"
#include "quickgrab/TestPanel.h"
#include "quickgrab/panel/QuickGrabPanel.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <limits>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)

using namespace tarnloft;

namespace {

constexpr int rounds = 25;

// From the act to the frame that shows all that comes of it.
double milliseconds(const std::function<QQuickWindow*()>& act) {
  QElapsedTimer clock;
  clock.start();
  QQuickWindow* const window = act();
  QCoreApplication::processEvents();
  (void)window->grabWindow();
  return double(clock.nsecsElapsed()) / 1e6;
}

// One in three is an image, from `others` on none.
QList<Section> sections(int items, int others = std::numeric_limits<int>::max()) {
  QList<Section> result;
  for (int i = 0; i < items; ++i) {
    if (i % 50 == 0) result << Section::create(QStringLiteral("Section %1").arg(i / 50));
    result.last().items.append(i % 3 || i >= others ? colorItem(QStringLiteral("Colour %1").arg(i))
                                                    : imageItem(QStringLiteral("Image %1").arg(i)));
  }
  return result;
}

// The panel over a brand, loaded as the program does it while it rests.
struct Panel {
  TestPanel desk;
  QQmlEngine engine;
  QuickGrabPanel panel{[this]() -> QQmlEngine& { return engine; }, desk.grabServices(),
                       [] { return true; }};

  explicit Panel(const QList<Section>& sections) : desk(sections) {
    desk.grab->setActive(false);
    Theme::of(engine);
    Motion::of(engine).setReduced(true);
    panel.prepare();
    QTest::qWait(1000);
  }

  QQuickWindow* show() {
    panel.toggle(QuickGrabPanel::By::key);
    return panel.window();
  }

  double showing() {
    const double taken = milliseconds([&] { return show(); });
    QTest::qWait(50);  // pictures
    panel.close();
    QCoreApplication::processEvents();
    return taken;
  }

  double typing() {
    QQuickWindow* const window = show();
    QTest::qWait(300);
    std::vector<double> taken;
    for (int i = 0; i < rounds; ++i) {
      taken.push_back(milliseconds([&] {
        QTest::keyClick(window, Qt::Key_M);
        return window;
      }));
      QTest::keyClick(window, Qt::Key_Backspace);
      (void)window->grabWindow();
    }
    panel.close();
    return median(taken);
  }
};

constexpr char referenceQml[] = R"(
  import QtQuick
  import QtQuick.Controls.Basic
  Window {
    width: 340; height: 480; flags: Qt.Tool | Qt.FramelessWindowHint
    ListView { anchors.fill: parent; model: 300
      delegate: ItemDelegate { required property int index; text: "Row " + index; width: 340 } }
  })";

// The toolkit's window.
struct Reference {
  QQmlEngine engine;
  std::unique_ptr<QQuickWindow> window;

  Reference() {
    QQmlComponent component(&engine);
    component.setData(referenceQml, QUrl());
    window.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window) qFatal("%s", qPrintable(component.errorString()));
  }

  double showing() const {
    const double taken = milliseconds([&] {
      window->show();
      window->raise();
      window->requestActivate();
      return window.get();
    });
    QTest::qWait(50);
    window->hide();
    QCoreApplication::processEvents();
    return taken;
  }
};

void compareShowing() {
  Reference reference;
  (void)reference.showing();  // which makes its rows
  Panel panel(sections(300));
  const double first = panel.showing();
  std::vector<double> again, theirs, ratios;
  for (int i = 0; i < rounds; ++i) {
    again.push_back(panel.showing());
    theirs.push_back(reference.showing());
    ratios.push_back(again.back() / theirs.back());
  }
  std::printf("\npanel shown: first %.1f ms, again %.1f (aim: under 50); the toolkit's %.1f\n",
              first, median(again), median(theirs));
  printRatio("panel of 300 assets shown again / a window with a list of 300 rows", median(ratios),
             Aim::atMost, 1.3);
  printRatio("panel shown for the first time / again", first / median(again), Aim::atMost, 3);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  const QGuiApplication application(argc, argv);
  qInstallMessageHandler([](auto, const auto&, const QString&) {});  // what the platform can't do
  prepareTypography();
  symbols::fontFamily();  // as the program does, before any text, which it would lay out again
  compareShowing();
  const double few = Panel(sections(20)).typing();
  const double same = Panel(sections(10'000, 20)).typing();
  const double many = Panel(sections(10'000)).typing();
  std::printf(
      "a letter in the panel: %.1f ms with 20 items, %.1f where the same are found in 10,000, %.1f "
      "where more than fill the panel\n",
      few, same, many);
  printRatio("a letter in the panel's search, 10,000 items / 20, finding the same", same / few,
             Aim::atMost, 2);
}

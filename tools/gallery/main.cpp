// Shows every control in its states, for people who work on them.
//   tarnloft_gallery [--dark] [--accent #RRGGBB] [--scale FACTOR] [--page TITLE] [--screenshot
//   FILE]
// With --screenshot the whole gallery is drawn into the file; it needs no display unless
// QT_QPA_PLATFORM asks for one.
#include "controls/motion/Motion.h"
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_GalleryPlugin)

namespace {

using namespace tarnloft;

constexpr int settling = 900;  // milliseconds until nothing moves any more

// Both have to be in the environment before the application object is made.
void prepareEnvironment(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const QByteArray argument(argv[i]);
    if (argument == "--screenshot" && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
      qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argument == "--scale" && i + 1 < argc) qputenv("QT_SCALE_FACTOR", argv[i + 1]);
  }
}

void saveWindow(QQuickWindow* window, const QString& path) {
  const bool saved = window->grabWindow().save(path);
  if (!saved) std::fprintf(stderr, "Can't write %s\n", qPrintable(path));
  QCoreApplication::exit(saved ? 0 : 1);
}

}  // namespace

int main(int argc, char** argv) {
  prepareEnvironment(argc, argv);
  QGuiApplication application(argc, argv);
  prepareTypography();

  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions(
      {{QStringLiteral("dark"), QStringLiteral("In the dark look.")},
       {QStringLiteral("accent"), QStringLiteral("The tint."), QStringLiteral("colour")},
       {QStringLiteral("scale"), QStringLiteral("Device pixels per point."),
        QStringLiteral("factor")},
       {QStringLiteral("page"), QStringLiteral("One page alone."), QStringLiteral("title")},
       {QStringLiteral("screenshot"), QStringLiteral("Draw into a file."),
        QStringLiteral("file")}});
  parser.process(application);
  const QString file = parser.value(QStringLiteral("screenshot"));

  QQmlApplicationEngine engine;
  Theme& theme = Theme::of(engine);
  theme.setDark(parser.isSet(QStringLiteral("dark")));
  theme.setAccent(QColor(parser.value(QStringLiteral("accent"))));
  Motion::of(engine).setReduced(!file.isEmpty());  // nothing half faded in
  engine.setInitialProperties({{QStringLiteral("whole"), !file.isEmpty()},
                               {QStringLiteral("only"), parser.value(QStringLiteral("page"))}});
  engine.load(QUrl(QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/Gallery/Gallery.qml")));
  if (engine.rootObjects().isEmpty()) return 1;
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  if (!file.isEmpty()) QTimer::singleShot(settling, window, [=] { saveWindow(window, file); });
  return QGuiApplication::exec();
}

// Draws the page of a brand into a file, for looking at it.
//   workspace_pictures PACKAGE FILE [--dark] [--scale FACTOR] [--size WIDTHxHEIGHT] [--scroll Y]
//                      [--select SECTION,ITEM] [--hover X,Y]
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"
#include "platform/desktop/images/VipsImages.h"
#include "workspace/TestWorkspace.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_WorkspacePlugin)

using namespace tarnloft;

namespace {

// Both have to be in the environment before the application object is made.
void prepareEnvironment(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  for (int i = 1; i + 1 < argc; ++i) {
    if (qstrcmp(argv[i], "--scale") == 0) qputenv("QT_SCALE_FACTOR", argv[i + 1]);
  }
}

}  // namespace

int main(int argc, char** argv) {
  prepareEnvironment(argc, argv);
  QGuiApplication application(argc, argv);
  prepareTypography();
  QCommandLineParser parser;
  parser.addOptions({{"dark", ""},
                     {"scale", "", "f", "1"},
                     {"size", "", "s", "1000x760"},
                     {"scroll", "", "y", "0"},
                     {"select", "", "n"},
                     {"hover", "", "p"}});
  parser.process(application);
  VipsImages images(QCoreApplication::applicationDirPath() + "/" TARNLOFT_VECTORS);

  TestWorkspace test(parser.positionalArguments().value(0), images);
  QQuickView view;
  Theme& theme = Theme::of(*view.engine());
  theme.setDark(parser.isSet("dark"));
  view.setColor(theme.palette().windowBackground);
  view.setResizeMode(QQuickView::SizeRootObjectToView);
  const QStringList size = parser.value("size").split('x');
  view.resize(size.at(0).toInt(), size.at(1).toInt());
  view.setInitialProperties({{"workspace", QVariant::fromValue(test.workspace.get())}});
  view.setSource(QUrl("qrc:/qt-project.org/imports/TarnLoft/Workspace/BrandPage.qml"));
  view.show();
  QTest::qWait(400);
  for (QQuickItem* item : view.rootObject()->findChildren<QQuickItem*>()) {
    if (item->inherits("QQuickFlickable")) item->setProperty("contentY", parser.value("scroll"));
  }
  if (parser.isSet("select")) {
    const QStringList at = parser.value("select").split(',');
    auto& section = test.section(at.at(0).toInt());
    test.selection.toggle(section.items()->items().at(at.at(1).toInt()).id, section.id());
  }
  if (parser.isSet("hover")) {
    const QStringList at = parser.value("hover").split(',');
    QTest::mouseMove(&view, {at.at(0).toInt(), at.at(1).toInt()});
  }
  QTest::qWait(1200);
  const bool isSaved = view.grabWindow().save(parser.positionalArguments().value(1));
  if (!isSaved) std::fprintf(stderr, "Can't write the picture\n");
  return isSaved ? 0 : 1;
}

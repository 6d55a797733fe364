#include "entry/ApplicationModule.h"
#include "entry/application/TarnLoftApp.h"
#include "entry/late/LateServices.h"
#include "entry/selftest/SelfTest.h"
#include "platform/controls/Typography.h"
#include "platform/desktop/PosixFileStore.h"
#include "platform/desktop/Syslog.h"
#include "platform/desktop/instance/RunningInstance.h"

#include <QApplication>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SheetsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_ShellPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_WorkspacePlugin)

using namespace tarnloft;

namespace {

int fail(const char* reason) {
  std::fprintf(stderr, "Tarn Loft: %s\n", reason);
  return 1;
}

int runWindows(RunningInstance& instance) {
  prepareTypography();
  TarnLoftApp app;
  QObject::connect(&instance, &RunningInstance::showRequested, &app.appDelegate(),
                   &AppDelegate::applicationShouldHandleReopen);
  if (!instance.listen()) std::fputs("Tarn Loft: a second start won't find this one\n", stderr);
  if (!app.start()) return fail("the interface can't be loaded");
  const int status = QApplication::exec();
  // All is saved by now, and the system takes the rest.
  if (!app.finish()) std::_Exit(status);
  return status;
}

}  // namespace

int tarnloftSelfTest(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  PosixFileStore files;
  Syslog log;
  LateImages images;
  return SelfTest::run({files, log}, images) ? 0 : 1;
}

int tarnloftApplication(int argc, char** argv) {
  RunningInstance instance(RunningInstance::runtimeFolder());
  switch (instance.claim()) {
    case RunningInstance::Start::shown: return 0;
    case RunningInstance::Start::noAnswer: return fail("it runs already, but doesn't answer");
    case RunningInstance::Start::first: break;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("tarnloft"));
  QApplication::setApplicationDisplayName(QStringLiteral("Tarn Loft"));
  QApplication::setDesktopFileName(QStringLiteral("tarnloft"));
  QApplication::setQuitOnLastWindowClosed(false);
  return runWindows(instance);
}

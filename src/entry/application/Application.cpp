#include "controls/theme/Typography.h"
#include "entry/ApplicationModule.h"
#include "entry/application/TarnLoftApp.h"
#include "entry/application/UnansweredStart.h"
#include "entry/late/LateServices.h"
#include "entry/selftest/SelfTest.h"
#include "platform/desktop/files/PosixFileStore.h"
#include "platform/desktop/instance/RunningInstance.h"
#include "platform/desktop/system/Syslog.h"
#include "platform/desktop/window/WindowActivation.h"

#include <QApplication>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SheetsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_ShellPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_WorkspacePlugin)

using namespace tarnloft;

namespace {

using Start = RunningInstance::Start;

int fail(const char* reason) {
  std::fprintf(stderr, "Tarn Loft: %s\n", reason);
  return 1;
}

// The toolkit ends a process without one.
bool hasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int runWindows(RunningInstance& instance) {
  TarnLoftApp app;
  QObject::connect(&instance, &RunningInstance::showRequested, &app.appDelegate(), [&app] {
    allowActivation();
    app.appDelegate().applicationShouldHandleReopen();
  });
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
  auto start = instance.claim();
  if (start == Start::shown) return 0;
  if (start == Start::noAnswer && !hasDisplay()) return fail("it runs already, but doesn't answer");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("tarnloft"));
  QApplication::setDesktopFileName(QStringLiteral("tarnloft"));
  QApplication::setQuitOnLastWindowClosed(false);
  prepareTypography();
  if (start == Start::noAnswer) start = UnansweredStart(instance).ask();
  switch (start) {
    case Start::shown: return 0;
    case Start::noAnswer: return 1;
    case Start::first: break;
  }
  // From here on, as the toolkit puts it behind each title that doesn't end with it.
  QApplication::setApplicationDisplayName(QStringLiteral("Tarn Loft"));
  return runWindows(instance);
}

#include "controls/theme/Typography.h"
#include "entry/ApplicationModule.h"
#include "entry/CommandLine.h"
#include "entry/application/TarnLoftApp.h"
#include "entry/application/UnansweredStart.h"
#include "entry/selftest/SelfTest.h"
#include "platform/desktop/decoding/CagedImages.h"
#include "platform/desktop/files/PosixFileStore.h"
#include "platform/desktop/instance/RunningInstance.h"
#include "platform/desktop/system/AutostartEntry.h"
#include "platform/desktop/system/Syslog.h"
#include "platform/desktop/window/ApplicationBus.h"
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

// What the program begins with.
TarnLoftApp::Opening openingOf(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const Mode mode = modeOf(arguments);
  const auto* const application = std::get_if<ApplicationMode>(&mode);
  if (application && application->isQuickGrab) return TarnLoftApp::Opening::quickGrab;
  const bool isHidden = qgetenv(AutostartEntry::startVariable) == AutostartEntry::hidden;
  return isHidden ? TarnLoftApp::Opening::nothing : TarnLoftApp::Opening::window;
}

int runWindows(RunningInstance& instance, TarnLoftApp::Opening opening) {
  TarnLoftApp app(opening);
  QObject::connect(&instance, &RunningInstance::showRequested, &app.appDelegate(), [&app] {
    allowActivation();
    app.appDelegate().applicationShouldHandleReopen();
  });
  QObject::connect(&instance, &RunningInstance::quickGrabRequested, &app,
                   &TarnLoftApp::showQuickGrab);
  ApplicationBus bus;
  QObject::connect(&bus, &ApplicationBus::activated, &app.appDelegate(), [&app] {
    allowActivation();
    app.appDelegate().applicationShouldHandleReopen();
  });
  QObject::connect(&bus, &ApplicationBus::actionActivated, &app, &TarnLoftApp::perform);
  (void)bus.listen();  // nothing is lost without: a second start still finds this one
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
  CagedImages images(std::make_shared<decoding::DecoderPool>(DesktopServices::decoderProgram()));
  return SelfTest::run({files, log}, images) ? 0 : 1;
}

int tarnloftApplication(int argc, char** argv) {
  using Opening = TarnLoftApp::Opening;
  const Opening opening = openingOf(argc, argv);
  RunningInstance instance(RunningInstance::runtimeFolder());
  // A session's start has nothing to ask of a program that runs already.
  if (opening == Opening::nothing && !instance.tryClaim()) return 0;
  auto start = opening == Opening::nothing
                   ? Start::first
                   : instance.claim(opening == Opening::quickGrab ? RunningInstance::Wish::quickGrab
                                                                  : RunningInstance::Wish::window);
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
  return runWindows(instance, opening);
}

#include "controls/pointing/TouchpadMouse.h"
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

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QtQml/qqmlextensionplugin.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SheetsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_ShellPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_UpdatesPlugin)
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

// What this start is asked for beside the window.
ApplicationMode askedOf(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const Mode mode = modeOf(arguments);
  const auto* const application = std::get_if<ApplicationMode>(&mode);
  return application ? *application : ApplicationMode();
}

bool asksNothing(const ApplicationMode& asked) { return asked == ApplicationMode(); }

// Some actions have a window of their own.
TarnLoftApp::Opening openingOf(const ApplicationMode& asked, bool isHidden) {
  const bool hasOwn = !asked.action.isEmpty() && asked.action != QLatin1String("new-brand");
  const bool isNothing = hasOwn || (isHidden && asksNothing(asked));
  return isNothing ? TarnLoftApp::Opening::nothing : TarnLoftApp::Opening::window;
}

QIcon windowIcon() {
  QIcon icon;
  for (const char* const size : {"16", "24", "32", "48", "64", "128"})
    icon.addFile(QStringLiteral(":/tarnloft/icons/%1.png").arg(QLatin1String(size)));
  return icon;
}

// In this very process, which a session's supervisor goes on knowing. Comes back only if that
// fails.
void startAnew(RunningInstance& instance, QByteArray program) {
  instance.release();
  qunsetenv(AutostartEntry::startVariable);
  const std::array<char*, 2> arguments{program.data(), nullptr};
  ::execv(program.constData(), arguments.data());
  std::perror("Tarn Loft: can't be started anew");
}

int runWindows(RunningInstance& instance, TarnLoftApp::Opening opening,
               const ApplicationMode& first) {
  // As long as it is known: the file may be replaced by a newer one.
  const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
  TarnLoftApp app(opening);
  const auto answer = [&app](const ApplicationMode& asked) {
    asked.files.isEmpty() ? app.perform(asked.action) : app.open(asked.files);
  };
  QObject::connect(&instance, &RunningInstance::requested, &app,
                   [answer](const QByteArray& word) { answer(askedBy(word)); });
  ApplicationBus bus;
  QObject::connect(&bus, &ApplicationBus::activated, &app, [&app] { app.perform({}); });
  QObject::connect(&bus, &ApplicationBus::actionActivated, &app, &TarnLoftApp::perform);
  QObject::connect(&bus, &ApplicationBus::opened, &app, &TarnLoftApp::open);
  (void)bus.listen();  // nothing is lost without: a second start still finds this one
  if (!instance.listen()) std::fputs("Tarn Loft: a second start won't find this one\n", stderr);
  if (!app.start()) return fail("the interface can't be loaded");
  if (!asksNothing(first)) answer(first);
  const int status = QApplication::exec();
  const bool isFinished = app.finish();
  if (app.sequel() == TarnLoftApp::Sequel::newStart) startAnew(instance, program);
  // All is saved by now, and the system takes the rest.
  if (!isFinished) std::_Exit(status);
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
  const ApplicationMode asked = askedOf(argc, argv);
  const bool isHidden = qgetenv(AutostartEntry::startVariable) == AutostartEntry::hidden;
  RunningInstance instance(RunningInstance::runtimeFolder());
  // A session's start has nothing to ask of a program that runs already.
  const bool isSilent = isHidden && asksNothing(asked);
  if (isSilent && !instance.tryClaim()) return 0;
  auto start = isSilent ? Start::first : instance.claim(wordOf(asked));
  if (start == Start::shown) return 0;
  if (start == Start::noAnswer && !hasDisplay()) return fail("it runs already, but doesn't answer");
  QApplication application(argc, argv);
  TouchpadMouse touchpadMouse;
  application.installEventFilter(&touchpadMouse);
  QApplication::setApplicationName(QStringLiteral("tarnloft"));
  QApplication::setDesktopFileName(ApplicationBus::name());  // by which taskbars know its windows
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
  // Wayland's desktops take it from the desktop file.
  if (QGuiApplication::platformName() == QLatin1String("xcb"))
    QApplication::setWindowIcon(windowIcon());
  return runWindows(instance, openingOf(asked, isHidden), asked);
}

#include "entry/ApplicationModule.h"
#include "entry/selftest/SelfTest.h"
#include "platform/desktop/PosixFileStore.h"
#include "platform/desktop/Syslog.h"

#include <QCoreApplication>

#include <cstdio>

using namespace tarnloft;

int tarnloftSelfTest(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  PosixFileStore files;
  Syslog log;
  return SelfTest::run({files, log}) ? 0 : 1;
}

int tarnloftApplication(int /*argc*/, char** /*argv*/) {
  std::fputs("Tarn Loft: this version has no window yet; see --export-page in the README.\n",
             stderr);
  return 1;
}

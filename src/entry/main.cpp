#include "entry/Main.h"

#include "platform/desktop/PosixFileStore.h"
#include "platform/desktop/Syslog.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>
#include <langinfo.h>
#include <string_view>

namespace {

// The toolkit complains on standard error about a locale that isn't UTF-8, before it switches to
// one that is. The headless modes print nothing but what they must, so that is done beforehand.
void useUtf8Locale() {
  std::setlocale(LC_ALL, "");
  if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") qputenv("LC_ALL", "C.UTF-8");
}

int startApplication() {
  std::fputs("Tarn Loft: this version has no window yet; see --export-page in the README.\n",
             stderr);
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  useUtf8Locale();
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const QCoreApplication application(argc, argv);
  tarnloft::PosixFileStore files;
  tarnloft::Syslog log;
  return tarnloft::Main::run(arguments, {files, log}, startApplication);
}

#include "entry/Main.h"

#include "platform/desktop/PosixFileStore.h"
#include "platform/desktop/Syslog.h"

#include <QCoreApplication>
#include <QFile>

#include <clocale>
#include <cstdio>
#include <langinfo.h>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

namespace {

// The toolkit complains on standard error about a locale that isn't UTF-8, before it switches to
// one that is. The headless modes print nothing but what they must, so that is done beforehand.
void useUtf8Locale() {
  std::setlocale(LC_ALL, "");
  if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") qputenv("LC_ALL", "C.UTF-8");
}

// Without HOME the toolkit takes the root folder for the user's own.
void useHomeFolder() {
  if (qEnvironmentVariableIsSet("HOME")) return;
  if (const passwd* user = ::getpwuid(::getuid())) qputenv("HOME", user->pw_dir);
}

// An argument whose bytes have no text form would name another file; the empty text names none.
QString argumentText(const char* argument) {
  const QString text = QFile::decodeName(argument);
  return QFile::encodeName(text) == argument ? text : QString();
}

int startApplication() {
  std::fputs("Tarn Loft: this version has no window yet; see --export-page in the README.\n",
             stderr);
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  useUtf8Locale();
  useHomeFolder();
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << argumentText(argv[i]);
  const QCoreApplication application(argc, argv);
  tarnloft::PosixFileStore files;
  tarnloft::Syslog log;
  return tarnloft::Main::run(arguments, {files, log}, startApplication);
}

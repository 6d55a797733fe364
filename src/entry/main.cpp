#include "entry/ApplicationModule.h"
#include "entry/QuickModes.h"
#include "entry/SupportFolder.h"
#include "model/ItemPayload.h"
#include "platform/desktop/files/PosixFileStore.h"
#include "platform/desktop/files/TextPath.h"
#include "platform/desktop/system/Syslog.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <langinfo.h>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

using namespace tarnloft;

namespace {

// The toolkit complains on standard error about a locale that isn't UTF-8, before it switches to
// one that is. The headless modes print nothing but what they must, so that is done beforehand.
void useUtf8Locale() {
  std::setlocale(LC_ALL, "");
  if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") qputenv("LC_ALL", "C.UTF-8");
}

bool isAbsolute(const char* path) { return path && path[0] == '/'; }

// Without HOME the toolkit takes the root folder for the user's own, with a relative one whatever
// folder the program was started in.
void useHomeFolder() {
  if (isAbsolute(std::getenv("HOME"))) return;
  const passwd* const user = ::getpwuid(::getuid());
  qputenv("HOME", user && isAbsolute(user->pw_dir) ? user->pw_dir : "/");
}

// Such folders are to be ignored; here, so that every library does.
void ignoreRelativeFolders() {
  for (const char* name :
       {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"}) {
    if (!isAbsolute(std::getenv(name))) qunsetenv(name);
  }
}

// Looks beside the program, or for an installed one in its folder of modules.
int runInModule(const char* entryName, int argc, char** argv) {
  void* const module = ::dlopen("libtarnloft-application.so", RTLD_LAZY | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, entryName) : nullptr;
  if (entry) return reinterpret_cast<TarnLoftEntry>(entry)(argc, argv);
  std::fprintf(stderr, "Tarn Loft: %s\n", ::dlerror());
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  useUtf8Locale();
  useHomeFolder();
  ignoreRelativeFolders();
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << textPathOf(argv[i]);
  PosixFileStore files;
  Syslog log;
  const auto quickly = [&](auto&& run, const auto& mode) {
    const QCoreApplication application(argc, argv);
    return run(mode, DocumentServices{files, log}) ? 0 : 1;
  };
  const Mode asked = modeOf(arguments);
  // The windows' program does so away from its main thread.
  if (!std::holds_alternative<ApplicationMode>(asked)) SupportFolder::migrateIfNeeded(files, log);
  return std::visit(
      Overloaded{
          [&](const SelfTestMode&) { return runInModule("tarnloftSelfTest", argc, argv); },
          [&](const PageExportMode& mode) { return quickly(QuickModes::exportPage, mode); },
          [&](const LogoSeedingMode& mode) { return quickly(QuickModes::seedLogo, mode); },
          [&](const ApplicationMode&) { return runInModule("tarnloftApplication", argc, argv); },
      },
      asked);
}

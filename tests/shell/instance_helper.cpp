// One start of a program that runs once a user, for the test of it: says on standard output what it
// became, and as the first, each time that another start asks for its window.
#include "platform/desktop/instance/RunningInstance.h"

#include <QCoreApplication>

#include <cstdio>

using namespace tarnloft;

namespace {

void say(const char* text) {
  std::puts(text);
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  RunningInstance instance(QString::fromLocal8Bit(argv[1]));
  switch (instance.claim(std::chrono::milliseconds(argc > 2 ? std::atoi(argv[2]) : 10000))) {
    case RunningInstance::Start::shown: say("shown"); return 0;
    case RunningInstance::Start::noAnswer: say("no answer"); return 1;
    case RunningInstance::Start::first: break;
  }
  const QCoreApplication application(argc, argv);
  QObject::connect(&instance, &RunningInstance::showRequested, [] { say("asked"); });
  if (!instance.listen()) return 2;
  say("first");
  return QCoreApplication::exec();
}

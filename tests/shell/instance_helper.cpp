// One start of a program that runs once a user, for the test of it: says on standard output what it
// became, and as the first, each time that another start asks for its window. Arguments: the
// folder, its patience in milliseconds, and "end" to end one that doesn't answer, or "deaf" to be
// one that doesn't end when it is asked to.
#include "platform/desktop/instance/UnansweringInstance.h"

#include <QCoreApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>

using namespace tarnloft;

namespace {

void say(const char* text) {
  std::puts(text);
  std::fflush(stdout);
}

using Start = RunningInstance::Start;

Start endOther(RunningInstance& instance) {
  UnansweringInstance other(instance);
  Start became = Start::noAnswer;
  QObject::connect(&other, &UnansweringInstance::settled, [&](Start start) {
    became = start;
    QCoreApplication::quit();
  });
  QObject::connect(&other, &UnansweringInstance::endFailed, [] {
    say("failed");
    QCoreApplication::quit();
  });
  // Behind the first question.
  QTimer::singleShot(300, &other, [&] { other.end(std::chrono::milliseconds(300)); });
  QCoreApplication::exec();
  return became;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments().mid(1);
  RunningInstance instance(words.first());
  if (words.last() == QLatin1String("deaf")) std::signal(SIGTERM, SIG_IGN);
  Start start = instance.claim({}, std::chrono::milliseconds(words.value(1, "10000").toInt()));
  if (start == Start::noAnswer) {
    say("no answer");
    if (words.size() > 2) start = endOther(instance);
  }
  if (start == Start::shown) say("shown");
  if (start != Start::first) return start == Start::shown ? 0 : 1;
  QObject::connect(&instance, &RunningInstance::requested, [] { say("asked"); });
  if (!instance.listen()) return 2;
  say("first");
  return QCoreApplication::exec();
}

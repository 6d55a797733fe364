// The program at rest in the tray, as a session starts it, for a minute beside an empty window with
// an icon in the tray that only waits. Needs an X server; its tray is trayer.
#include "Home.h"
#include "Ratio.h"

#include <QProcess>
#include <QThread>

#include <unistd.h>

using namespace tarnloft;

namespace {

constexpr int settling = 40, resting = 60;  // seconds

// What a process has used so far, and holds.
struct Use {
  QHash<QString, qint64> wakeUps;  // by thread
  double seconds = 0;              // of a processor
  double resident = 0, own = 0;    // megabytes; what no other process shares
};

double numberBehind(const QByteArray& text, const char* name) {
  const auto at = text.indexOf(name);
  if (at < 0) stop("a process tells nothing of itself");
  const QByteArray rest = text.mid(at + qsizetype(qstrlen(name)), 40).trimmed();
  return rest.left(rest.indexOf(rest.contains(' ') ? ' ' : '\n')).toDouble();
}

Use useOf(qint64 process) {
  const QString folder = QStringLiteral("/proc/%1/").arg(process);
  Use use;
  const QString tasks = folder + QStringLiteral("task/");
  for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QByteArray status = contentOf(tasks + task + QStringLiteral("/status"));
    use.wakeUps[task] = qint64(numberBehind(status, "\nvoluntary_ctxt_switches:"));
  }
  const QByteArray stat = contentOf(folder + QStringLiteral("stat"));
  const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
  use.seconds =
      (fields.at(11).toDouble() + fields.at(12).toDouble()) / double(::sysconf(_SC_CLK_TCK));
  const QByteArray memory = contentOf(folder + QStringLiteral("smaps_rollup"));
  use.resident = numberBehind(memory, "\nRss:") / 1024;
  use.own =
      (numberBehind(memory, "\nPrivate_Clean:") + numberBehind(memory, "\nPrivate_Dirty:")) / 1024;
  return use;
}

// Of the threads that are there at the end: those of one that ended meanwhile can't be known.
qint64 wakeUpsBetween(const Use& before, const Use& after) {
  qint64 count = 0;
  for (const auto& [task, all] : after.wakeUps.asKeyValueRange())
    count += all - before.wakeUps.value(task);
  return count;
}

struct Program {
  QProcess process;

  Program(const QString& path, const QProcessEnvironment& environment,
          const QStringList& arguments = {}) {
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(path, arguments);
    if (!process.waitForStarted()) stop(qPrintable(path));
  }
  ~Program() {
    process.terminate();
    if (!process.waitForFinished(5000)) process.kill();
    process.waitForFinished();
  }
  Use use() const { return useOf(process.processId()); }
};

}  // namespace

int main() {
  Home home;
  home.addBrands(20);
  QProcessEnvironment environment = home.environment();
  const Program tray(QStringLiteral("trayer"), environment);
  QThread::sleep(1);
  const Program waiting(QStringLiteral(RESTING_WINDOW), environment);
  environment.insert(QStringLiteral("TARNLOFT_START"), QStringLiteral("hidden"));
  {
    // A session starts what its user has used before: the brands have their order.
    const Program before(QStringLiteral(TARNLOFT_PROGRAM), environment);
    QThread::sleep(5);
  }
  const Program ours(QStringLiteral(TARNLOFT_PROGRAM), environment);
  QThread::sleep(settling);
  const Use before = ours.use(), theirsBefore = waiting.use();
  QThread::sleep(resting);
  const Use after = ours.use(), theirs = waiting.use();
  const auto woken = wakeUpsBetween(before, after);
  const auto theirsWoken = wakeUpsBetween(theirsBefore, theirs);
  std::printf(
      "\nat rest for %d s: woken %lld times, %.0f ms of a processor; the waiting program "
      "%lld times, %.0f ms (aim: at most 2 wake-ups more)  %s\n",
      resting, static_cast<long long>(woken), (after.seconds - before.seconds) * 1e3,
      static_cast<long long>(theirsWoken), (theirs.seconds - theirsBefore.seconds) * 1e3,
      woken - theirsWoken <= 2 ? "met" : "MISSED");
  std::printf("resident: %.0f MB, of which its own %.0f; the empty window %.0f and %.0f\n",
              after.resident, after.own, theirs.resident, theirs.own);
  printRatio("memory at rest / an empty window with an icon in the tray",
             after.resident / theirs.resident, Aim::atMost, 1.3);
}

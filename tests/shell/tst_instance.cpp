#include <QDir>
#include <QLocalSocket>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

namespace {

class Starts {
 public:
  ~Starts() {
    for (QProcess* process : processes_) {
      process->kill();
      process->waitForFinished();
      delete process;
    }
  }
  QProcess& start(const QStringList& more = {}) {
    auto* const process = new QProcess;
    processes_ << process;
    process->start(QStringLiteral(INSTANCE_HELPER), QStringList(folder.path()) + more);
    process->waitForStarted();
    return *process;
  }
  QTemporaryDir folder;

 private:
  QList<QProcess*> processes_;
};

// The next line that it says, without its end.
QByteArray line(QProcess& process) {
  while (!process.canReadLine()) {
    if (!process.waitForReadyRead(20000)) return "(nothing)";
  }
  return process.readLine().trimmed();
}

}  // namespace

// One running program a user, tried with real processes.
class TestInstance : public QObject {
  Q_OBJECT

 private slots:
  void aCrashLeavesNothingBehind() {
    Starts starts;
    QProcess& first = starts.start();
    QCOMPARE(line(first), "first");
    first.kill();
    first.waitForFinished();
    QVERIFY(QDir(starts.folder.path()).entryList(QDir::System).contains("tarnloft.socket"));
    QProcess& next = starts.start();
    QCOMPARE(line(next), "first");
    QCOMPARE(line(starts.start()), "shown");
  }

  void startsAtTheSameMomentAgreeOnOne() {
    for (int round = 0; round < 5; ++round) {
      Starts starts;
      QList<QProcess*> all;
      for (int i = 0; i < 4; ++i) all << &starts.start();
      QList<QByteArray> lines;
      QProcess* first = nullptr;
      for (QProcess* process : all) {
        lines << line(*process);
        if (lines.last() == "first") first = process;
      }
      std::ranges::sort(lines);
      QCOMPARE(lines, QList<QByteArray>({"first", "shown", "shown", "shown"}));
      for (int i = 0; i < 3; ++i) QCOMPARE(line(*first), "asked");
    }
  }

  void aStrangerOnTheSocketDoesNoHarm() {
    Starts starts;
    QProcess& first = starts.start();
    QCOMPARE(line(first), "first");
    QLocalSocket stranger;
    stranger.connectToServer(starts.folder.filePath("tarnloft.socket"));
    QVERIFY(stranger.waitForConnected());
    stranger.write("anything else\n");
    stranger.flush();
    QVERIFY(stranger.waitForDisconnected(20000));
    QCOMPARE(line(starts.start()), "shown");
    QCOMPARE(line(first), "asked");
  }

  // It goes on as soon as it is asked to end, and its answers don't count any more.
  void endsOneThatDoesNotAnswerByForce() {
    Starts starts;
    QProcess& first = starts.start({"10000", "deaf"});
    QCOMPARE(line(first), "first");
    ::kill(pid_t(first.processId()), SIGSTOP);
    QProcess& second = starts.start({"200", "end"});
    QCOMPARE(line(second), "no answer");
    QCOMPARE(line(second), "first");
    QVERIFY(first.waitForFinished(20000));
    QCOMPARE(first.exitStatus(), QProcess::CrashExit);
    QCOMPARE(first.exitCode(), SIGKILL);
    QCOMPARE(line(starts.start()), "shown");
    QCOMPARE(line(second), "asked");
  }

  void endsNoOtherProgram() {
    Starts starts;
    QLockFile lock(starts.folder.filePath("tarnloft.lock"));
    QVERIFY(lock.lock());
    QProcess& second = starts.start({"200", "end"});
    QCOMPARE(line(second), "no answer");
    QCOMPARE(line(second), "failed");
    QVERIFY(second.waitForFinished(20000));
  }
};

QTEST_GUILESS_MAIN(TestInstance)
#include "tst_instance.moc"

#include "model/Json.h"
#include "testing/TestServices.h"

#include <QProcess>
#include <QTest>

using namespace tarnloft;

// The program as users run it: another process, without a display.
class TestProgram : public QObject {
  Q_OBJECT

 private slots:
  void selfTestPassesAndCleansUp();
  void takesOverTheOldSupportFolderInEveryMode();
  void refusesNamesThatAreNoText();
  void failsWithoutAWord_data();
  void failsWithoutAWord();
};

namespace {

struct Run {
  int status = -1;
  QByteArray output;
  QByteArray errors;
};

struct Program {
  QTemporaryDir home;

  Run run(const QStringList& arguments) {
    QDir().mkpath(home.filePath(QStringLiteral("tmp")));
    QProcess process;
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("share")));
    environment.insert(QStringLiteral("TMPDIR"), home.filePath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home.path());
    process.start(QStringLiteral(TARNLOFT_PROGRAM), arguments);
    if (!process.waitForFinished(60000)) return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
  }
};

}  // namespace

void TestProgram::selfTestPassesAndCleansUp() {
  Program program;
  const Run run = program.run({QStringLiteral("--export-page"), QStringLiteral("a"),
                               QStringLiteral("b"), QStringLiteral("--selftest")});
  QCOMPARE(run.status, 0);
  QCOMPARE(run.errors, QByteArray());
  QList<QByteArray> lines = run.output.split('\n');
  QCOMPARE(lines.takeFirst(), QByteArray("Tarn Loft self-test"));
  QCOMPARE(lines.takeLast(), QByteArray());
  QCOMPARE(lines.takeLast(), QByteArray::number(lines.size() - 2) + " passed, 0 failed");
  QCOMPARE(lines.takeLast(), QByteArray());
  for (const QByteArray& line : lines) QVERIFY2(line.startsWith("  ✔ "), line);
  // The folder of drags outlives the program: a receiver may read from it long after.
  const QDir temporary(program.home.filePath(QStringLiteral("tmp")));
  QCOMPARE(temporary.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
           QStringList("tarnloft-drag"));
}

void TestProgram::takesOverTheOldSupportFolderInEveryMode() {
  Program program;
  const QString share = program.home.filePath(QStringLiteral("share"));
  QVERIFY(writeFile(share + QStringLiteral("/Fenwright/x"), "kept"));
  const Run run = program.run({QStringLiteral("--seed-logo"), QStringLiteral("missing")});
  QCOMPARE(run.status, 1);
  QCOMPARE(contentOf(share + QStringLiteral("/Tarn Loft/x")), QByteArray("kept"));
  QVERIFY(run.output.isEmpty() && run.errors.isEmpty());
}

void TestProgram::refusesNamesThatAreNoText() {
  Program program;
  const QString package = program.home.filePath(QStringLiteral("p.tarnloft"));
  QVERIFY(writeFile(package + QStringLiteral("/manifest.json"),
                    *encode(Brand::create(QStringLiteral("x")))));
  // Only a shell can hand over bytes that are no text.
  QProcess shell;
  shell.start(
      QStringLiteral("/bin/sh"),
      {QStringLiteral("-c"),
       QStringLiteral("\"$1\" --export-page \"$2\" \"$3/$(printf 'caf\\351').html\""),
       QStringLiteral("sh"), QStringLiteral(TARNLOFT_PROGRAM), package, program.home.path()});
  QVERIFY(shell.waitForFinished());
  QCOMPARE(shell.exitCode(), 1);
  QCOMPARE(QDir(program.home.path()).entryList({QStringLiteral("caf*")}), QStringList());
}

void TestProgram::failsWithoutAWord_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::newRow("no package") << QStringList{QStringLiteral("--export-page"), QStringLiteral("x"),
                                             QStringLiteral("page.html")};
  QTest::newRow("a name with a line break")
      << QStringList{QStringLiteral("--seed-logo"), QStringLiteral("a\nb")};
  QTest::newRow("an empty path") << QStringList{QStringLiteral("--seed-logo"), QString()};
  QTest::newRow("the root") << QStringList{QStringLiteral("--export-page"), QStringLiteral("/"),
                                           QStringLiteral("/")};
}

void TestProgram::failsWithoutAWord() {
  QFETCH(QStringList, arguments);
  Program program;
  const Run run = program.run(arguments);
  QCOMPARE(run.status, 1);
  QVERIFY(run.output.isEmpty() && run.errors.isEmpty());
  QVERIFY(!QFile::exists(program.home.filePath(QStringLiteral("page.html"))));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"

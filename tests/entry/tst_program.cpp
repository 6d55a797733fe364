#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QProcess>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

using namespace tarnloft;

namespace {

struct Run {
  int status = -1;
  QByteArray output;
  QByteArray errors;
};

struct Program {
  QTemporaryDir home;
  QProcessEnvironment environment;

  Program() {
    QDir().mkpath(path("tmp"));
    set("HOME", home.path());
    set("XDG_DATA_HOME", path("share"));
    set("TMPDIR", path("tmp"));
    set("LC_ALL", "C");
  }
  QString path(const QString& name) const { return home.filePath(name); }
  void set(const char* name, const QString& value) { environment.insert(name, value); }

  Run run(const QStringList& arguments) const {
    return runOther(QStringLiteral(TARNLOFT_PROGRAM), arguments);
  }
  // By a shell script, in which "$t" is the program: only a shell can hand over bytes that are no
  // text.
  Run runByShell(const QString& script) const {
    return runOther("/bin/sh", {"-c", "t=$0; " + script, QStringLiteral(TARNLOFT_PROGRAM)});
  }

 private:
  Run runOther(const QString& program, const QStringList& arguments) const {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home.path());
    process.start(program, arguments);
    if (!process.waitForFinished(60000)) return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
  }
};

// With one picture.
bool writePackage(const QString& package) {
  Brand brand = Brand::create("Acme");
  const AssetRef asset{"a.png", "Mark.png"};
  brand.sections.first().items.append(Item::create(ImagePayload{asset, "Mark"}));
  return writeFile(package + "/manifest.json", *encode(brand)) &&
         writeFile(package + "/assets/a.png", "picture");
}

}  // namespace

// The program as users run it: another process, without a display.
class TestProgram : public QObject {
  Q_OBJECT

 private slots:
  void selfTestPassesAndCleansUp() {
    Program program;
    QVERIFY(writeFile(program.path("tmp/tarnloft-drag/mine.png"), "x"));
    const Run run = program.run({"--export-page", "a", "b", "--selftest"});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, QByteArray());
    QList<QByteArray> lines = run.output.split('\n');
    QCOMPARE(lines.takeFirst(), QByteArray("Tarn Loft self-test"));
    QCOMPARE(lines.takeLast(), QByteArray());
    QCOMPARE(lines.takeLast(), QByteArray::number(lines.size() - 2) + " passed, 0 failed");
    QCOMPARE(lines.takeLast(), QByteArray());
    for (const QByteArray& line : lines) QVERIFY2(line.startsWith("  ✔ "), line);
    QCOMPARE(namesIn(program.path("tmp")), QStringList("tarnloft-drag"));
    QCOMPARE(contentOf(program.path("tmp/tarnloft-drag/mine.png")),
             "x");  // what is dragged just now
  }

  void failedSelfTestCleansUp() {
    const Cases<QString, QByteArray> cases{
        {"a full disk", "trap '' XFSZ; ulimit -f 0; exec \"$t\" --selftest",
         "x package saves + reloads  <-- FAILED"},
        {"a reader that is gone", "mkfifo f; true < f & exec 3> f; wait; \"$t\" --selftest >&3",
         ""},
        {"no temporary folder", "TMPDIR=$TMPDIR/not/there \"$t\" --selftest",
         "0 passed, 1 failed"}};
    cases.check([&](const QString& script, const QByteArray& line) {
      Program program;
      const Run run = program.runByShell(script);
      QCOMPARE(run.status, 1);
      QVERIFY(run.output.contains(line));
      QCOMPARE(namesIn(program.path("tmp")), QStringList());
    });
  }

  void takesFoldersThatAreNoText() {
    Program program;
    QVERIFY(writePackage(program.path("p.tarnloft")));
    const QString moved = "d=$(printf 'caf\\351'); mkdir $d; mv p.tarnloft $d.tarnloft; ";
    const Run run = program.runByShell(
        moved +
        "\"$t\" --seed-logo $d.tarnloft && \"$t\" --export-page $d.tarnloft $d/page.html && "
        "cat $d/page.html; rm $d/page.html; ls -A $d $d.tarnloft >&2; rm -r $d*");
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.contains("<h1>Acme</h1>") && run.output.contains("Acme Logo"));
    QCOMPARE(run.errors, "caf\351:\n\ncaf\351.tarnloft:\nassets\nmanifest.json\n");
  }

  // The old support folder is taken over where the program looks for its data.
  void looksOnlyInAbsoluteFolders() {
    const Cases<QString, QString, QString> cases{{"relative data", "%1", "share", ".local/share"},
                                                 {"absolute data", "%1", "%1/share", "share"},
                                                 {"no data", "%1", "", ".local/share"},
                                                 {"nothing absolute", "home", "share", ""}};
    cases.check([&](const QString& home, const QString& data, const QString& found) {
      const passwd* const user = ::getpwuid(::getuid());
      if (user && QFile::exists(QFile::decodeName(user->pw_dir) + "/.local/share/Fenwright")) {
        QSKIP("The user's own folder of that name isn't for tests");
      }
      Program program;
      program.set("HOME", QString(home).replace("%1", program.home.path()));
      program.set("XDG_DATA_HOME", QString(data).replace("%1", program.home.path()));
      QStringList folders{".local/share", "share", "home/.local/share"};
      for (const QString& each : folders) QVERIFY(QDir().mkpath(program.path(each + "/Fenwright")));
      QCOMPARE(program.run({"--seed-logo", "missing"}).status, 1);
      if (!found.isEmpty()) QVERIFY(QFile::exists(program.path(found + "/Tarn Loft")));
      folders.removeOne(found);
      for (const QString& each : folders) QVERIFY(QFile::exists(program.path(each + "/Fenwright")));
    });
  }
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"

#include "platform/desktop/system/IniPreferences.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnloft;

// Files of preferences that aren't as the program left them.
class TestPreferences : public QObject {
  Q_OBJECT

 private slots:
  void whatIsDamagedIsKeptAndTold() {
    const Cases<QByteArray, QString> cases{{"a line", "[General]\na=dark\ngarbage\nb=x\n", "dark"},
                                           {"cut off", "[General]\na=dark\nbr", "dark"},
                                           {"another kind", "<html>\n", ""},
                                           {"zeros", QByteArray(300, '\0'), ""}};
    cases.check([&](const QByteArray& content, const QString& read) {
      // Another one may have been kept, or this one at an earlier start.
      for (const auto& [kept, files] : {std::pair("other", 3), {content.constData(), 2}}) {
        TestServices disk;
        const QString path = disk.path("p.ini");
        QVERIFY(writeFile(path, content));
        QVERIFY(writeFile(path + ".damaged",
                          QByteArray(kept, qsizetype(files == 2 ? content.size() : 5))));
        {
          IniPreferences preferences(path, disk.log);
          QCOMPARE(preferences.text("a").value_or(""), read);
          preferences.setText("c", "new");
        }
        QCOMPARE(disk.log.lines.size(), 1);
        QCOMPARE(contentOf(path + (files == 3 ? ".damaged-2" : ".damaged")), content);
        QCOMPARE(namesIn(disk.folder.path()).size(), files);
        QVERIFY(
            contentOf(path).startsWith(read.isEmpty() ? "[General]\nc=new" : "[General]\na=dark"));
      }
    });
  }

  void whatIsNoFileIsMovedAway() {
    TestServices disk;
    const QString path = disk.path("p.ini");
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    IniPreferences(path, disk.log).setText("a", "new");
    QCOMPARE(IniPreferences(path, disk.log).text("a"), "new");
    QCOMPARE(disk.log.lines.size(), 1);
  }

  void whatCannotBeWrittenHoldsForTheRun() {
    TestServices disk;
    QVERIFY(QDir().mkpath(disk.path("p.ini/in the way")) &&
            QDir().mkpath(disk.path("p.ini.displaced")));
    {
      IniPreferences preferences(disk.path("p.ini"), disk.log);
      for (const char* value : {"one", "two"}) {
        preferences.setText("a", value);
        QCOMPARE(preferences.text("a"), value);
        QTest::qWait(1);
      }
    }
    QCOMPARE(disk.log.lines.size(), 1);
  }
};

QTEST_GUILESS_MAIN(TestPreferences)
#include "tst_preferences.moc"

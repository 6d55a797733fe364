#include "assets/KeptMedia.h"
#include "platform/desktop/thumbnails/SharedThumbnails.h"
#include "testing/Cases.h"
#include "testing/FakeMedia.h"
#include "testing/TestServices.h"

#include <QProcess>
#include <QTest>

using namespace tarnloft;

namespace {

using Maker = ThumbnailStore::Maker;
using Size = ThumbnailStore::Size;

// A file, and a cache of thumbnails that its pictures are kept in.
struct CacheTest {
  TestServices disk;
  QString cache = disk.path("cache/thumbnails");
  QString file = disk.path("Juniper & Salt [1];.tarnloft/assets/é.jpg");
  std::unique_ptr<SharedThumbnails> store = std::make_unique<SharedThumbnails>(cache);
  FakeImages images;
  FakeVideos videos;
  KeptImages kept{images, *store};

  CacheTest() { (void)writeFile(file, "x"); }
  QStringList names(const char* folder) const { return namesIn(cache + '/' + folder); }
  QString only(const char* folder) const {
    return cache + '/' + folder + '/' + names(folder).value(0);
  }
  // As another program would, with that width, for the file as it is now.
  void write(const char* folder, int width, const QString& uri) const {
    QImage picture(width, 9, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setText("Thumb::URI", uri);
    picture.setText("Thumb::MTime",
                    QString::number(QFileInfo(file).lastModified().toSecsSinceEpoch()));
    QVERIFY(picture.save(only(folder), "png"));
  }
  void setTime(int seconds) const {
    QFile opened(file);
    QVERIFY(opened.open(QIODevice::ReadWrite));
    QVERIFY(opened.setFileTime(QDateTime::fromSecsSinceEpoch(seconds),
                               QFileDevice::FileModificationTime));
  }
};

}  // namespace

class TestSharedThumbnails : public QObject {
  Q_OBJECT

 private slots:
  // What another program finds, by its own naming and checks.
  void othersFindWhatIsKept() {
    CacheTest test;
    test.setTime(1'700'000'000);
    QVERIFY(test.kept.thumbnail(test.file, 192));
    QTRY_COMPARE(test.names("large").size(), 1);
    QProcess other;
    other.start("/usr/bin/python3", {"-c",
                                     "import sys, hashlib\n"
                                     "from gi.repository import GLib\n"
                                     "uri = GLib.filename_to_uri(sys.argv[1], None)\n"
                                     "print(uri, hashlib.md5(uri.encode()).hexdigest() + '.png')",
                                     test.file});
    QVERIFY(other.waitForFinished());
    const QString told = QString::fromUtf8(other.readAllStandardOutput()).trimmed();
    QTRY_VERIFY(!QImage(test.only("large")).isNull());
    const QImage picture(test.only("large"));
    QCOMPARE(picture.text("Thumb::URI") + ' ' + test.names("large").first(), told);
    QCOMPARE(picture.text("Thumb::MTime"), "1700000000");
    QCOMPARE(picture.text("Thumb::Size"), "1");
    QCOMPARE(picture.size(), QSize(256, 128));
    const auto owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(test.only("large")), owners);
    QCOMPARE(QFile::permissions(test.cache + "/large"), owners | QFile::ExeOwner | QFile::ExeUser);
    QCOMPARE(namesIn(QFileInfo(test.file).path()).size(), 1);  // nothing beside the file
  }

  void aSecondRunReadsNoFile() {
    CacheTest test;
    for (const int pixels : {64, 256, 257, 512, 600}) (void)test.kept.thumbnail(test.file, pixels);
    QTRY_COMPARE(test.names("x-large").size(), 1);
    QTRY_VERIFY(test.store->find(test.file, Size::large, Maker::thisProgram));
    QTRY_VERIFY(test.store->find(test.file, Size::xLarge, Maker::thisProgram));
    const qsizetype before = test.images.begun().size();
    SharedThumbnails again(test.cache);
    KeptImages kept(test.images, again);
    for (const int pixels : {64, 256, 257, 512})
      QCOMPARE(kept.thumbnail(test.file, pixels)->size(), QSize(pixels, pixels / 2));
    QCOMPARE(test.images.begun().size(), before);
    QCOMPARE(kept.thumbnail(test.file, 600)->width(), 600);  // larger ones aren't kept
    QCOMPARE(test.images.begun().size(), before + 1);
  }

  void whatDoesntFitTheFileIsMadeAnew() {
    const Cases<std::function<void(CacheTest&)>> cases{
        {"file changed", [](CacheTest& test) { test.setTime(1); }},
        {"file gone", [](CacheTest& test) { QFile::remove(test.file); }},
        {"damaged", [](CacheTest& test) { (void)writeFile(test.only("large"), "no picture"); }},
        {"cut", [](CacheTest& test) { QFile(test.only("large")).resize(120); }},
        {"of another file", [](CacheTest& test) { test.write("large", 9, "file:///other.jpg"); }},
        {"too large",
         [](CacheTest& test) { test.write("large", 300, SharedThumbnails::uriOf(test.file)); }}};
    cases.check([](const auto& happens) {
      CacheTest test;
      (void)test.kept.thumbnail(test.file, 100);
      QTRY_VERIFY(test.store->find(test.file, Size::large, Maker::anyProgram));
      happens(test);
      QVERIFY(!test.store->find(test.file, Size::large, Maker::anyProgram));
      QCOMPARE(test.kept.thumbnail(test.file, 100)->size(), QSize(100, 50));
    });
  }

  void aFolderThatCantBeWrittenIsOnlySlower() {
    CacheTest test;
    (void)writeFile(test.disk.path("cache/thumbnails"), "a file in its place");
    QVERIFY(test.kept.thumbnail(test.file, 100));
    QVERIFY(test.store->finish(std::chrono::seconds(10)));
    QVERIFY(test.kept.thumbnail(test.file, 100));
    const QString broken = test.disk.path("broken.jpg");
    (void)writeFile(broken, "x");
    QVERIFY(!test.kept.thumbnail(broken, 100));  // nor is one kept of what can't be read
  }

  void postersAreOurOwn() {
    CacheTest test;
    KeptVideos kept(test.videos, *test.store);
    QVERIFY(test.kept.thumbnail(test.file, 512));
    QTRY_VERIFY(test.store->find(test.file, Size::xLarge, Maker::thisProgram));
    QVERIFY(kept.frame(test.file, posterSeconds, posterPixels));
    test.write("x-large", 200, SharedThumbnails::uriOf(test.file));
    QCOMPARE(test.store->find(test.file, Size::xLarge, Maker::anyProgram)->width(), 200);
    QCOMPARE(kept.frame(test.file, posterSeconds, posterPixels)->width(), posterPixels);
  }
};

QTEST_GUILESS_MAIN(TestSharedThumbnails)
#include "tst_sharedthumbnails.moc"

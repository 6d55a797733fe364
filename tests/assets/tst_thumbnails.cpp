#include "assets/ThumbnailLoader.h"
#include "testing/FakeMedia.h"

#include <QTest>

using namespace tarnloft;

namespace {

struct Loader {
  FakeImages images;
  BackgroundWork work{1};
  ThumbnailLoader thumbnails{images, work};
  QStringList got;  // "name" of each callback, with "!" for nothing

  Loader() { images.close(); }
  ~Loader() { images.open(); }

  ThumbnailLoader::Request ask(const char* name, int maxPixel = 64) {
    const QString path = QString::fromLatin1(name);
    return thumbnails.thumbnail(path, maxPixel, [this, path](const std::optional<QImage>& image) {
      got << (image ? path : path + QLatin1Char('!'));
    });
  }
  // Makes the one thread busy with another picture, so that what follows waits.
  ThumbnailLoader::Request occupy() {
    auto request = ask("busy");
    images.awaitBegun(int(images.begun().size()) + 1);
    return request;
  }
  void finish(int calls) {
    images.open(calls);
    const qsizetype expected = got.size() + calls;
    while (got.size() < expected) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
  }
};

}  // namespace

class TestThumbnails : public QObject {
  Q_OBJECT

 private slots:
  void decodesOnceForEachSizeOfAFile() {
    Loader loader;
    const auto first = loader.ask("a"), second = loader.ask("a"), large = loader.ask("a", 256);
    QVERIFY(loader.got.isEmpty());
    loader.images.open(2);
    QTRY_COMPARE(loader.got.size(), 3);
    const auto again = loader.ask("a"), largeAgain = loader.ask("a", 256);  // kept: at once
    QCOMPARE(loader.got.size(), 5);
    QCOMPARE(loader.images.begun().size(), 2);
    for (int i = 0; i < 2; ++i) {  // one that failed is tried again
      const auto failing = loader.ask("bad");
      loader.finish(1);
    }
    QCOMPARE(loader.images.begun().size(), 4);
  }

  void takesTheMostRecentlyAskedFirst() {
    Loader loader;
    const auto busy = loader.occupy();
    const auto a = loader.ask("a"), b = loader.ask("b"), c = loader.ask("c"),
               again = loader.ask("a");
    loader.images.open(4);
    QTRY_COMPARE(loader.got.size(), 5);
    QCOMPARE(loader.images.begun(), QStringList({"busy 64", "a 64", "c 64", "b 64"}));
  }

  void dropsWhatNobodyWantsAnyMore() {
    Loader loader;
    const auto busy = loader.occupy();
    auto a = loader.ask("a"), aAgain = loader.ask("a"), b = loader.ask("b"),
         bAgain = loader.ask("b");
    { const auto gone = loader.ask("c"); }
    aAgain.cancel();
    b.cancel();
    bAgain.cancel();
    loader.finish(2);
    QCOMPARE(loader.images.begun(), QStringList({"busy 64", "a 64"}));
    QCOMPARE(loader.got, QStringList({"busy", "a"}));
    b = loader.ask("b");  // dropped, not failed
    loader.finish(1);
    QCOMPARE(loader.got.last(), "b");
  }

  void forgetsTheLeastRecentlyUsed() {
    Loader loader;
    const auto askFor = [&](int i) { return loader.ask(QByteArray::number(i).constData()); };
    for (int i = 0; i < ThumbnailLoader::cacheLimit; ++i) {
      const auto request = askFor(i);
      loader.finish(1);
    }
    const auto used = askFor(0), one = loader.ask("one more");
    loader.finish(1);
    const qsizetype decoded = loader.images.begun().size();
    const auto kept = askFor(0), alsoKept = askFor(2);
    QCOMPARE(loader.images.begun().size(), decoded);
    const auto forgotten = askFor(1);
    loader.finish(1);
    QCOMPARE(loader.images.begun().size(), decoded + 1);
  }

  void callbacksMayAskAndCancel() {
    Loader loader;
    ThumbnailLoader::Request next, second;
    const auto first = loader.thumbnails.thumbnail("a", 64, [&](const auto&) {
      second.cancel();
      next = loader.ask("a");  // kept by now
    });
    second = loader.ask("a");
    loader.images.open(1);
    QTRY_COMPARE(loader.got, QStringList("a"));
    QCOMPARE(loader.images.begun().size(), 1);
  }

  void mayEndBeforeItsRequests() {
    FakeImages images;
    images.close();
    BackgroundWork work(1);
    auto loader = std::make_unique<ThumbnailLoader>(images, work);
    const auto fail = [](const std::optional<QImage>&) { QFAIL("called after the end"); };
    auto begun = loader->thumbnail("a", 64, fail);
    images.awaitBegun(1);
    auto waiting = loader->thumbnail("b", 64, fail);
    loader.reset();
    QVERIFY(!work.finish(std::chrono::milliseconds(10)));  // waits for what has begun
    images.open(2);
    QVERIFY(work.finish(std::chrono::seconds(20)));
    QCoreApplication::processEvents();
    QCOMPARE(images.begun().size(), 1);
    begun.cancel();
  }
};

QTEST_GUILESS_MAIN(TestThumbnails)
#include "tst_thumbnails.moc"

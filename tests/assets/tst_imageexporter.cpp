#include "assets/ExportEstimate.h"
#include "assets/ExportImageSize.h"
#include "assets/ImageExporter.h"
#include "testing/Cases.h"
#include "testing/FakeMedia.h"

#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;
using namespace std::chrono_literals;

namespace {

struct Estimate {
  FakeImages images;
  BackgroundWork work{1};
  ExportEstimate estimate;
  QSignalSpy changes{&estimate, &ExportEstimate::textChanged};

  explicit Estimate(const char* path = "a")
      : estimate(images, work, ExportTarget{{}, QString::fromLatin1(path), {}, {}}, 0ms) {
    images.close();
  }
  ~Estimate() { images.open(); }

  void choose(int width, double quality = 0.85) {
    estimate.setChoice({ExportFormat::jpeg, {width, 600}, quality});
  }
};

}  // namespace

class TestImageExporter : public QObject {
  Q_OBJECT

 private slots:
  void offersPresets() {
    const Cases<QSizeF, QString> cases{
        {"small", QSizeF(300, 200), "100% 50% 25%"},
        {"middle", QSizeF(1500, 900), "100% 50% 25% 1024px 512px"},
        {"strictly", QSizeF(100, 2048), "100% 50% 25% 1024px 512px"},
        {"large", QSizeF(2049, 1), "100% 50% 25% 2048px 1024px 512px"}};
    cases.check([&](const QSizeF& native, const QString& labels) {
      ExportImageSize size(native);
      QStringList found;
      for (const ExportPreset& preset : size.presets()) {
        found << preset.label;
        if (!preset.label.endsWith("px")) continue;
        size.applyScale(preset.scale);
        QCOMPARE(qMax(size.width(), size.height()), QStringView(preset.label).chopped(2).toInt());
      }
      QCOMPARE(found.join(' '), labels);
    });
  }

  void scalesFromTheNativeSize() {
    ExportImageSize size({101, 33});
    size.setWidth(7);
    size.applyScale(0.5);
    QCOMPARE(size.pixelSize(), QSize(51, 17));  // halves away from zero
    size.applyScale(0.0001);
    QCOMPARE(size.pixelSize(), QSize(1, 1));
    QCOMPARE(ExportImageSize({0.2, 99.6}).pixelSize(), QSize(1, 100));
  }

  void keepsTheAspectWhileLocked() {
    const Cases<QSizeF, int, QSize, int, QSize> cases{
        {"plain", QSizeF(1000, 500), 300, QSize(300, 150), 50, QSize(100, 50)},
        {"least", QSizeF(1000, 10), 1, QSize(1, 1), 1, QSize(100, 1)},
        {"none", QSizeF(100, 50), 0, QSize(1, 1), -7, QSize(2, 1)},
        {"beyond", QSizeF(1, 1000), 2'000'000'000, QSize(2'000'000'000, INT_MAX), 5, QSize(1, 5)}};
    cases.check([&](const QSizeF& native, int width, const QSize& byWidth, int height,
                    const QSize& byHeight) {
      ExportImageSize size(native);
      QVERIFY(size.lockAspect());
      size.setWidth(width);
      QCOMPARE(size.pixelSize(), byWidth);
      size.setHeight(height);
      QCOMPARE(size.pixelSize(), byHeight);
    });
  }

  void unlockedSidesAreFree() {
    ExportImageSize size({100, 50});
    size.setLockAspect(false);
    size.setWidth(30);
    size.setHeight(-1);
    QCOMPARE(size.pixelSize(), QSize(30, 1));
    size.setLockAspect(true);
    QCOMPARE(size.pixelSize(), QSize(30, 1));
    size.setWidth(40);
    QCOMPARE(size.pixelSize(), QSize(40, 20));
  }

  void estimatesOnceTheChoiceRests() {
    QCOMPARE((ExportChoice{ExportFormat::jpeg, {800, 600}, 0.859}).key(), "800x600-jpeg-85");
    Estimate it;
    it.choose(800);
    QVERIFY(!it.estimate.text());
    QVERIFY(it.images.begun().isEmpty());
    it.images.open(1);
    QTRY_COMPARE(it.estimate.text(), "800 KB");
    QCOMPARE(it.changes.size(), 1);
    it.choose(400);
    QVERIFY(!it.estimate.text());
    QCOMPARE(it.changes.size(), 2);
  }

  void aChoiceAnewThrowsAwayTheOldResult() {
    Estimate it;
    it.choose(800);
    QTRY_COMPARE(it.images.begun().size(), 1);
    it.choose(400);
    it.choose(200);  // before the other has rested
    it.images.open(2);
    QTRY_COMPARE(it.estimate.text(), "200 KB");
    QCOMPARE(it.changes.size(), 1);
    QCOMPARE(it.images.begun(), QStringList({"a jpeg 800x600 0.85", "a jpeg 200x600 0.85"}));
  }

  void mayEndWhileItConverts() {
    FakeImages images;
    images.close();
    BackgroundWork work(1);
    auto estimate =
        std::make_unique<ExportEstimate>(images, work, ExportTarget{{}, "a", {}, {}}, 0ms);
    estimate->setChoice({ExportFormat::png, {8, 6}, 1});
    QTRY_COMPARE(images.begun().size(), 1);
    estimate.reset();
    bool done = false;
    work.start([] {}, [&] { done = true; });
    images.open(1);
    QTRY_VERIFY(done);
  }
};

QTEST_GUILESS_MAIN(TestImageExporter)
#include "tst_imageexporter.moc"

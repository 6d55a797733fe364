#include "Stage.h"
#include "platform/controls/RoundedImage.h"
#include "platform/controls/ShadowProvider.h"

#include <QGuiApplication>
#include <QQuickAsyncImageProvider>
#include <QSignalSpy>
#include <QTemporaryDir>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)

using namespace tarnloft;

// What is drawn in C++: rounded pictures, checkerboards, dashes and shadows.
class TestPictures : public QObject {
  Q_OBJECT

 private slots:
  void roundedPicturesHaveClearCorners_data();
  void roundedPicturesHaveClearCorners();
  void aPictureComesFromAProvider();
  void aPictureThatIsGoneIsCancelled();
  void aBrokenPictureIsAnError();
  void theCheckerboardHasItsTwoGreys();
  void theShadowFadesFromItsCaster();
  void aShadowFitsSmallThings();
  void emojiAreInColor_data();
  void emojiAreInColor();
};

namespace {

QImage plain(const QSize& size, const QColor& color) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  return image;
}

// Answers when it is told to.
class HeldResponse : public QQuickImageResponse {
 public:
  QQuickTextureFactory* textureFactory() const override {
    return QQuickTextureFactory::textureFactoryForImage(plain({40, 20}, Qt::red));
  }
  void cancel() override {
    ++cancelled;
    emit finished();
  }
  static inline int cancelled = 0;
};

class HeldProvider : public QQuickAsyncImageProvider {
 public:
  QQuickImageResponse* requestImageResponse(const QString& id, const QSize&) override {
    asked << id;
    response = new HeldResponse;
    return response;
  }
  QStringList asked;
  QPointer<HeldResponse> response;
};

RoundedImage::Status statusOf(const Stage& stage) {
  return stage.find<RoundedImage>("picture")->status();
}

}  // namespace

void TestPictures::roundedPicturesHaveClearCorners_data() {
  QTest::addColumn<QString>("mode");
  QTest::addColumn<QPoint>("inside");
  QTest::addColumn<QPoint>("outside");
  QTest::newRow("fills, corner cut") << "Fill" << QPoint(50, 3) << QPoint(1, 1);
  QTest::newRow("fills, far corner cut") << "Fill" << QPoint(95, 50) << QPoint(98, 98);
  QTest::newRow("fits, nothing above") << "Fit" << QPoint(50, 50) << QPoint(50, 10);
  QTest::newRow("fits, its own corner cut") << "Fit" << QPoint(50, 28) << QPoint(1, 26);
}

void TestPictures::roundedPicturesHaveClearCorners() {
  QFETCH(QString, mode);
  QFETCH(QPoint, inside);
  QFETCH(QPoint, outside);
  QTemporaryDir folder;
  plain({200, 100}, Qt::red).save(folder.filePath(QStringLiteral("red.png")));
  Stage stage(QStringLiteral("Rectangle { anchors.fill: parent; color: 'blue'\n"
                             "RoundedImage { objectName: 'picture'; width: 100; height: 100\n"
                             "radius: 12; fillMode: RoundedImage.%1; source: 'file:%2/red.png' } }")
                  .arg(mode, folder.path()));
  QTRY_COMPARE(statusOf(stage), RoundedImage::Ready);
  const QImage shown = stage.window()->grabWindow();
  QCOMPARE(shown.pixelColor(inside), QColor(Qt::red));
  QCOMPARE(shown.pixelColor(outside), QColor(Qt::blue));
}

void TestPictures::aPictureComesFromAProvider() {
  Stage stage(QStringLiteral("RoundedImage { objectName: 'picture'; width: 40; height: 20 }"));
  auto* provider = new HeldProvider;
  stage.window()->engine()->addImageProvider(QStringLiteral("held"), provider);
  auto* picture = stage.find<RoundedImage>("picture");
  picture->setSource(QUrl(QStringLiteral("image://held/Some/Id.png")));
  QCOMPARE(picture->status(), RoundedImage::Loading);
  QCOMPARE(provider->asked, QStringList{QStringLiteral("Some/Id.png")});
  emit provider->response->finished();
  QTRY_COMPARE(picture->status(), RoundedImage::Ready);
  QCOMPARE(stage.window()->grabWindow().pixelColor(20, 10), QColor(Qt::red));
}

void TestPictures::aPictureThatIsGoneIsCancelled() {
  HeldResponse::cancelled = 0;
  Stage stage(QStringLiteral("RoundedImage { objectName: 'picture'; width: 40; height: 20 }"));
  auto* provider = new HeldProvider;
  stage.window()->engine()->addImageProvider(QStringLiteral("held"), provider);
  auto* picture = stage.find<RoundedImage>("picture");
  picture->setSource(QUrl(QStringLiteral("image://held/first")));
  picture->setSource(QUrl(QStringLiteral("image://held/second")));
  QCOMPARE(HeldResponse::cancelled, 1);
  QCOMPARE(picture->status(), RoundedImage::Loading);
  delete picture;
  QCOMPARE(HeldResponse::cancelled, 2);
}

void TestPictures::aBrokenPictureIsAnError() {
  for (const char* source : {"file:/nowhere/none.png", "image://nobody/x"}) {
    Stage stage(QStringLiteral("RoundedImage { objectName: 'picture'; width: 9; height: 9\n"
                               "source: '%1' }")
                    .arg(QLatin1String(source)));
    QTRY_COMPARE(statusOf(stage), RoundedImage::Error);
  }
}

void TestPictures::theCheckerboardHasItsTwoGreys() {
  Stage stage(QStringLiteral("Checkerboard { width: 64; height: 40; cell: 8 }"));
  const QImage shown = stage.window()->grabWindow();
  for (const QPoint cell : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(7, 4), QPoint(6, 3)}) {
    const int grey = qRound((cell.x() + cell.y()) % 2 == 0 ? 0.9 * 255 : 0.72 * 255);
    QCOMPARE(shown.pixelColor(cell * 8 + QPoint(4, 4)), QColor(grey, grey, grey));
  }
}

void TestPictures::theShadowFadesFromItsCaster() {
  QSize size;
  const QImage image = ShadowProvider().requestImage(QStringLiteral("10/12/50/0/0"), &size, {});
  QCOMPARE(image.size(), size);
  QCOMPARE(size.width(), ShadowProvider::stretchableSide(10, 12) + 2 * ShadowProvider::extent(12));
  const int middle = size.width() / 2;
  QVERIFY(std::abs(qAlpha(image.pixel(middle, middle)) - 127) <= 2);
  QVERIFY(qAlpha(image.pixel(middle, 0)) <= 2);
  for (int x = 1; x <= middle; ++x)
    QVERIFY(qAlpha(image.pixel(x, middle)) >= qAlpha(image.pixel(x - 1, middle)) - 1);
  const QImage turned = image.mirrored(true, true);
  for (int y = 0; y < size.height(); y += 7)
    for (int x = 0; x < size.width(); x += 5)
      QVERIFY(std::abs(qAlpha(image.pixel(x, y)) - qAlpha(turned.pixel(x, y))) <= 1);
}

void TestPictures::aShadowFitsSmallThings() {
  QSize size;
  ShadowProvider().requestImage(QStringLiteral("17/12/20/0/34"), &size, {});
  QCOMPARE(size.height(), 34 + 2 * ShadowProvider::extent(12));
}

void TestPictures::emojiAreInColor_data() {
  QTest::addColumn<QString>("font");
  QTest::addColumn<QString>("text");
  QTest::newRow("in a text") << "body" << QStringLiteral("R&D 🌿");
  QTest::newRow("in a large text") << "largeTitle" << QStringLiteral("R&D 🌿");
  QTest::newRow("in code") << "monospaced(12)" << QStringLiteral("R&D 🌿");
  QTest::newRow("alone") << "emoji(24)" << QStringLiteral("❤");
}

void TestPictures::emojiAreInColor() {
  QFETCH(QString, font);
  QFETCH(QString, text);
  Stage stage(QStringLiteral("Label { font: Theme.%1; text: '%2' }").arg(font, text));
  const QImage shown = stage.window()->grabWindow();
  int colored = 0;
  for (int y = 0; y < 60; ++y)
    for (int x = 0; x < 200; ++x) colored += shown.pixelColor(x, y).hsvSaturation() > 120 ? 1 : 0;
  QVERIFY2(colored > 20, qPrintable(QString::number(colored)));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"

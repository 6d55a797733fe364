#include "controls/theme/Contrast.h"
#include "controls/theme/Theme.h"
#include "pictures/EmblemView.h"
#include "pictures/ThumbnailView.h"
#include "testing/Cases.h"
#include "testing/FakeMedia.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)

using namespace tarnloft;

namespace {

using enum EmblemStyle::Ground;
using enum EmblemStyle::Mark;
using EmblemStyle::Ink;

struct Window {
  FakeImages images;
  BackgroundWork work{1};
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  QQuickView window;

  Window() {
    window.setColor(Qt::white);
    window.resize(400, 300);
    window.show();
  }
  ~Window() { images.open(); }

  // A view of that file, 100 by 60 points, at the window's corner.
  ThumbnailView* view(const QString& path, QSizeF size = {100, 60}) {
    return made<ThumbnailView>(
        "ThumbnailView {}", {{"path", path}, {"width", size.width()}, {"height", size.height()}});
  }
  // The same, with its picture.
  ThumbnailView* loaded(const QString& path, QSizeF size = {100, 60}) {
    ThumbnailView* const loaded = view(path, size);
    (void)window.grabWindow();
    (void)QTest::qWaitFor([&] { return loaded->loadState() == ThumbnailView::LoadState::Loaded; });
    return loaded;
  }
  // An emblem, 64 points across, at the window's corner.
  EmblemView* emblem(const EmblemLook& look) {
    return made<EmblemView>("EmblemView { size: 64 }", {{"look", QVariant::fromValue(look)}});
  }
  QColor shown(int x, int y) { return window.grabWindow().pixelColor(x, y); }

 private:
  template <class View>
  View* made(const char* type, QVariantMap properties) {
    QQmlComponent component(window.engine());
    component.setData(QByteArray("import TarnLoft.Pictures\n") + type, QUrl("qrc:/test.qml"));
    properties["thumbnails"] = QVariant::fromValue(&thumbnails);
    auto* view = qobject_cast<View*>(component.createWithInitialProperties(properties));
    view->setParent(&window);
    view->setParentItem(window.contentItem());
    return view;
  }
};

// Around the pixels of a 64 by 64 picture that are nearly of that colour.
QRect boundsOf(const QImage& image, const QColor& color) {
  QRect bounds;
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      const QColor found = image.pixelColor(x, y);
      const int off = std::abs(found.red() - color.red()) + std::abs(found.blue() - color.blue());
      if (off < 60) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

}  // namespace

class TestPictureViews : public QObject {
  Q_OBJECT

 private slots:
  void init() { QTest::failOnWarning(QRegularExpression(".")); }

  void asksForThePixelsOfTheScreen() {
    const Cases<QSizeF, int> cases{{"in steps of 64", QSizeF(100, 60), 128},
                                   {"by the longer side", QSizeF(30, 150), 192},
                                   {"just one", QSizeF(64, 64), 64},
                                   {"no more than told", QSizeF(900, 900), 512}};
    cases.check([&](const QSizeF& size, int pixels) {
      Window test;
      (void)test.loaded("red", size);
      QCOMPARE(test.images.begun(), QStringList(QString("red %1").arg(pixels)));
    });
  }

  void showsWhatIsKeptAtOnce() {
    Window test;
    const ThumbnailView* first = test.loaded("red");
    delete first;
    const ThumbnailView* second = test.view("red");
    QCOMPARE(test.shown(50, 30), QColor(Qt::red));  // in its first frame
    QCOMPARE(second->loadState(), ThumbnailView::LoadState::Loaded);
    QCOMPARE(test.images.begun().size(), 1);
  }

  void keepsThePictureForAnotherSizeAndNotForAnotherFile() {
    Window test;
    ThumbnailView* view = test.loaded("red");
    test.images.close();
    view->setSize({300, 200});
    QCOMPARE(test.shown(150, 100), QColor(Qt::red));
    QCOMPARE(view->loadState(), ThumbnailView::LoadState::Loaded);
    QTRY_COMPARE(test.images.begun(), QStringList({"red 128", "red 320"}));
    view->setPath("blue");
    QCOMPARE(test.shown(150, 100), QColor(Qt::white));
    QCOMPARE(view->loadState(), ThumbnailView::LoadState::Loading);
    test.images.open();
    QTRY_COMPARE(test.shown(150, 100), QColor(Qt::blue));
  }

  void aViewThatGoesWithdrawsItsRequest() {
    Window test;
    test.images.close();
    const ThumbnailView* running = test.view("red");
    const ThumbnailView* waiting = test.view("blue");
    (void)test.window.grabWindow();
    QTRY_COMPARE(test.images.begun().size(), 1);
    delete running;
    delete waiting;
    test.images.open();
    QTest::qWait(50);
    QCOMPARE(test.images.begun().size(), 1);  // the one that hadn't begun never will
  }

  void fitsOrFillsAndCutsCorners() {
    Window test;
    ThumbnailView* view = test.loaded("red", {80, 80});
    QCOMPARE(test.shown(40, 10), QColor(Qt::white));  // twice as wide as high, so it stands between
    QCOMPARE(test.shown(40, 40), QColor(Qt::red));
    view->setFillMode(PictureView::Fill);
    QCOMPARE(test.shown(40, 2), QColor(Qt::red));
    QCOMPARE(test.shown(1, 1), QColor(Qt::red));
    view->setRadius(40);
    QCOMPARE(test.shown(1, 1), QColor(Qt::white));
    QCOMPARE(test.shown(40, 2), QColor(Qt::red));
  }

  void standsOnWholePixels() {
    Window test;
    ThumbnailView* view = test.loaded("red");
    for (const double y : {0.0, 7.4, 7.5, 7.8}) {  // as items do at a scale of 1.25
      view->setPosition({3.3, y});
      const QImage shown = test.window.grabWindow();
      int red = 0, white = 0;
      for (int row = 0; row < 100; ++row) {
        const QColor color = shown.pixelColor(50, row);
        red += color == QColor(Qt::red);
        white += color == QColor(Qt::white);
      }
      QCOMPARE(red, 50);
      QCOMPARE(white, 50);
    }
  }

  void anEmblemsMarkStandsInTheMiddle() {
    // points that the mark is wide and high: least
    const Cases<EmblemLook, int> cases{
        {"letter", EmblemLook{Filled, Qt::blue, Monogram, "H", Ink::White}, 16},
        {"symbol", EmblemLook{Filled, Qt::blue, Symbol, "plus", Ink::White}, 20},
        {"bare symbol", EmblemLook{Filled, Qt::blue, Bare, "plus", Ink::White}, 30},
        {"emoji", EmblemLook{Filled, Qt::blue, Emoji, "🟥", Ink::Primary}, 24}};
    cases.check([&](const EmblemLook& look, int least) {
      Window test;
      (void)test.emblem(look);
      const QImage shown = test.window.grabWindow();
      QCOMPARE(shown.pixelColor(1, 1), QColor(Qt::white));
      QCOMPARE(shown.pixelColor(32, 1), QColor(Qt::blue));
      QCOMPARE(boundsOf(shown, Qt::blue), QRect(0, 0, 64, 64));
      QImage mark = shown.copy(10, 10, 44, 44);  // without the window around the circle
      mark = mark.copy(-10, -10, 64, 64);
      const QRect bounds = boundsOf(mark, shown.pixelColor(32, 32));
      QVERIFY(bounds.width() >= least && bounds.height() >= least);
      QVERIFY(bounds.width() < 44 && bounds.height() < 44);
      const QPointF off = QRectF(bounds).center() - QPointF(32, 32);
      QVERIFY2(std::abs(off.x()) <= 1.5 && std::abs(off.y()) <= 2.5,
               qPrintable(QString("%1, %2").arg(off.x()).arg(off.y())));
    });
  }

  void anEmblemOfTheGroundsColourHasARim() {
    for (const bool dark : {false, true}) {
      Window test;
      Theme& theme = Theme::of(*test.window.engine());
      theme.setDark(dark);
      const QColor ground = theme.palette().windowBackground;
      (void)test.emblem({Filled, ground, NoMark, {}, {}});
      QCOMPARE(test.shown(32, 32), ground);
      QVERIFY(contrastRatio(test.shown(32, 0), ground) > 1.3);
    }
  }

  void anEmblemShowsItsPicture() {
    Window test;
    EmblemView* emblem = test.emblem({Filled, Qt::blue, Picture, "red", {}});
    QCOMPARE(test.shown(32, 32), QColor(Qt::blue));
    QTRY_COMPARE(test.shown(32, 32), QColor(Qt::red));
    QCOMPARE(test.shown(2, 2), QColor(Qt::white));
    QCOMPARE(test.images.begun(), QStringList("red 64"));
    emblem->setLook({Filled, Qt::green, NoMark, {}, {}});
    QCOMPARE(test.shown(32, 32), QColor(Qt::green));
  }
};

QTEST_MAIN(TestPictureViews)
#include "tst_pictureviews.moc"

#include "controls/sheets/SheetHost.h"
#include "controls/theme/Theme.h"
#include "sheets/video/VideoPlayerSheet.h"
#include "testing/FakeMedia.h"
#include "testing/TestLibrary.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SheetsPlugin)

using namespace tarnloft;

namespace {

// The sheet for a video of a brand, in a window.
struct PlayerTest {
  TestLibrary library;
  std::unique_ptr<BrandDocument> document =
      *BrandDocument::create(library.disk.services(), library.disk.folder.path(), "Acme");
  Item item = Item::create(VideoPayload{{"0.mp4", "Spot.mp4"}, {}});
  FakeClips clips;
  QQuickView window;
  SheetHost host;
  VideoPlayerSheet* sheet = nullptr;

  PlayerTest() {
    QTest::failOnWarning(QRegularExpression("."));
    QAccessible::setActive(true);
    document->edit([&](Brand& brand) { brand.sections[0].items = {item}; });
    Theme::of(*window.engine());
    QQmlComponent component(window.engine());
    component.setData("import QtQuick\nimport TarnLoft.Controls\nSheetStage {}",
                      QUrl("qrc:/a.qml"));
    window.setContent(
        {}, nullptr, component.createWithInitialProperties({{"host", QVariant::fromValue(&host)}}));
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(1000, 760);
    window.show();
    sheet = host.show(std::make_unique<VideoPlayerSheet>(
        std::make_unique<ItemBinding>(*document, item.id), clips, library.preferences, "/a/clip"));
  }
  ~PlayerTest() { delete window.rootObject(); }

  FakeClips::Player& player() { return *clips.player; }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&window, key, modifiers);
    QCoreApplication::processEvents();
  }
  QString focused() {
    QQuickItem* const holder = window.activeFocusItem();
    QAccessibleInterface* const told =
        holder ? QAccessible::queryAccessibleInterface(holder) : nullptr;
    return told ? told->text(QAccessible::Name) : QString();
  }
  // Whether something with that name is seen.
  bool shows(const QString& name) const { return shows(window.contentItem(), name); }
  static bool shows(QQuickItem* in, const QString& name) {
    if (!in->isVisible()) return false;
    if (in->property("text").toString() == name) return true;
    return std::ranges::any_of(in->childItems(), [&](auto* child) { return shows(child, name); });
  }
};

}  // namespace

class TestVideoPlayer : public QObject {
  Q_OBJECT

 private slots:
  void playsAtOnceAndReleasesAllWhenItCloses() {
    PlayerTest test;
    QCOMPARE(test.clips.path, "/a/clip");
    QTRY_VERIFY(test.player().now.isPlaying);
    QTRY_COMPARE(test.focused(), "Video");
    test.press(Qt::Key_Escape);
    QTRY_VERIFY(!test.clips.player);
    QVERIFY(!test.host.current());
    for (const bool isBrand : {false, true}) {
      PlayerTest again;
      QTRY_COMPARE(again.focused(), "Video");
      isBrand ? again.document.reset() : again.document->removeItem(again.item.id);
      QTRY_VERIFY(!again.clips.player);
    }
    PlayerTest byReturn;
    QTRY_COMPARE(byReturn.focused(), "Video");
    byReturn.press(Qt::Key_Return);
    QTRY_VERIFY(!byReturn.clips.player);
  }

  void isCalledWhatItsItemIs() {
    PlayerTest test;
    QCOMPARE(test.sheet->title(), "Spot.mp4");
    for (const char* name : {"Spring", ""}) {
      test.document->updateItem(test.item.id, [&](Item& edited) {
        std::get<VideoPayload>(edited.payload).name = QString(name);
      });
      QTRY_COMPARE(test.sheet->title(), *name ? QString(name) : "Spot.mp4");
    }
    QTRY_VERIFY(test.shows("Spot.mp4"));
    QCOMPARE(VideoPlayerSheet::timeText(7), "0:07");
    QCOMPARE(VideoPlayerSheet::timeText(3727), "1:02:07");
    test.player().set([](ClipStatus& status) { status.position = 12.6; });
    QTRY_COMPARE(test.sheet->elapsed(), "0:12");
    QCOMPARE(test.sheet->remaining(), "−0:48");
    test.player().set([](ClipStatus& status) { status.position = status.duration = 2.96; });
    QTRY_COMPARE(test.sheet->elapsed() + test.sheet->remaining(), "0:03−0:00");
  }

  // From the first moment on.
  void isSteeredByKeys() {
    PlayerTest test;
    QTRY_COMPARE(test.focused(), "Video");
    // after the key: whether it plays, where it stands, steps made, how loud
    struct Step {
      Qt::Key key;
      Qt::KeyboardModifiers modifiers;
      bool isPlaying;
      double position;
      int steps;
      double volume;
    };
    for (const Step& step : QList<Step>{{Qt::Key_Space, {}, false, 0, 0, 1},
                                        {Qt::Key_Right, {}, false, 5, 0, 1},
                                        {Qt::Key_Right, Qt::ShiftModifier, false, 6, 0, 1},
                                        {Qt::Key_Left, Qt::ShiftModifier, false, 5, 0, 1},
                                        {Qt::Key_End, {}, false, 60, 0, 1},
                                        {Qt::Key_Home, {}, false, 0, 0, 1},
                                        {Qt::Key_Period, {}, false, 0, 1, 1},
                                        {Qt::Key_Comma, {}, false, 0, 0, 1},
                                        {Qt::Key_Space, {}, true, 0, 0, 1},
                                        {Qt::Key_Period, {}, true, 0, 0, 1},  // not while it plays
                                        {Qt::Key_Down, {}, true, 0, 0, 0.729},
                                        {Qt::Key_M, {}, true, 0, 0, 0},
                                        {Qt::Key_Up, {}, true, 0, 0, 1}}) {  // louder is heard
      test.press(step.key, step.modifiers);
      const FakeClips::Player& player = test.player();
      QCOMPARE(player.now.isPlaying, step.isPlaying);
      QCOMPARE(player.now.position, step.position);
      QCOMPARE(player.steps, step.steps);
      QCOMPARE(player.volume, step.volume);
    }
    QStringList names;
    for (int i = 0; i < 6; ++i) {
      names << test.focused();
      if (names.last() == "Position" || names.last() == "Volume") test.press(Qt::Key_Left);
      test.press(Qt::Key_Tab);
    }
    QCOMPARE(names, QStringList({"Video", "Pause", "Position", "Mute", "Volume", "Done"}));
    QCOMPARE(test.player().now.position, 0.0);
    QCOMPARE(test.library.preferences.number("playerVolume").value_or(0), 0.9);
    test.library.preferences.setNumber("playerVolume", 0.5);
    const VideoPlayerSheet again(std::make_unique<ItemBinding>(*test.document, test.item.id),
                                 test.clips, test.library.preferences, "/a/clip");
    QCOMPARE(test.player().volume, 0.125);
  }

  void showsThePictureOrWhyThereIsNone() {
    PlayerTest test;
    QTRY_VERIFY(!test.player().room.isEmpty() && test.shows("Done"));
    QVERIFY(test.player().room.width() >= 520 && test.player().room.height() >= 320);
    QTest::qWait(500);  // the sheet has grown to its size
    QImage red(test.player().room, QImage::Format_RGB32);
    red.fill(Qt::red);
    test.player().show(red);
    const auto middle = [&] { return test.window.grabWindow().pixelColor(500, 250); };
    QTRY_COMPARE(middle(), QColor(Qt::red));
    test.player().set([](ClipStatus& status) { status.state = ClipStatus::State::broken; });
    QTRY_VERIFY(test.shows("This clip can't be played"));
    QVERIFY(middle() != QColor(Qt::red));
    test.player().set([](ClipStatus& status) { status.position = 5; });
    QTRY_VERIFY(test.shows("The rest of this clip can't be played"));
    test.player().set([](ClipStatus& status) {
      status.state = ClipStatus::State::open;
      status.hasPictures = false;
    });
    QTRY_VERIFY(test.shows("Sound only"));
  }
};

QTEST_MAIN(TestVideoPlayer)
#include "tst_videoplayer.moc"

#include "pictures/GradientView.h"
#include "testing/Cases.h"
#include "workspace/Items.h"
#include "workspace/tiles/TileFacts.h"

#include <QTest>

using namespace tarnloft;

namespace {

using None = std::optional<QString>;

Item fontItem(const std::optional<AssetRef>& asset, const std::optional<QString>& weight) {
  return Item::create(FontPayload{{"Work Sans", weight, std::nullopt, asset, std::nullopt}});
}

Item logoItem(int variants, const std::optional<ImageBackground>& background = std::nullopt) {
  LogoValue logo{"Mark", {}};
  for (int i = 0; i < variants; ++i) {
    logo.variants << LogoVariant{QUuid::createUuid(),
                                 {QString("%1.png").arg(i), "x.png"},
                                 i == 1 ? LogoRole::primary : LogoRole::mono,
                                 background};
  }
  return Item::create(LogoPayload{logo});
}

GradientValue gradient(std::initializer_list<std::pair<QString, double>> stops, double angle) {
  GradientValue value{{}, angle, std::nullopt};
  for (const auto& [hex, location] : stops) {
    value.stops << GradientStop{QUuid::createUuid(), hex, location};
  }
  return value;
}

}  // namespace

class TestTileFacts : public QObject {
  Q_OBJECT

 private slots:
  void tellsWhatATileSays() {
    const AssetRef file{"a.ttf", "Work.ttf"};
    // null for none: subcaption
    const Cases<Item, QString, QString, QString> cases{
        {"named colour", colorItem("Sea", "#a1b2c3"), "#A1B2C3", "Click to copy #A1B2C3",
         "Color, Sea, hex #a1b2c3"},
        {"font with a file", fontItem(file, "Bold"), "Bold", "", "Type, Work Sans"},
        {"name-only font", fontItem({}, "Bold"), "Bold · name only", "", "Type, Work Sans"},
        {"logo set of one", logoItem(1), "1 variant", "", "Logo set, Mark, 1 variant"},
        {"logo set", logoItem(3), "3 variants", "", "Logo set, Mark, 3 variants"},
        {"heading", headerItem("Voice"), QString(), "", ""}};
    cases.check([&](const Item& item, const QString& subcaption, const QString& help,
                    const QString& description) {
      const None expected = subcaption.isNull() ? None() : None(subcaption);
      QCOMPARE(TileFacts::subcaption(item), expected);
      QCOMPARE(TileFacts::hasSubcaption(item), expected.has_value());
      QCOMPARE(TileFacts::helpText(item), help);
      QCOMPARE(TileFacts::accessibilityDescription(item), description);
    });
  }

  void drawsPicturesOfImagesAndPrimaryVariants() {
    QCOMPARE(TileFacts::picture(imageItem("Hero", "h.png"))->filename, "h.png");
    QCOMPARE(TileFacts::picture(logoItem(3))->filename, "1.png");
    QVERIFY(!TileFacts::picture(logoItem(0)));
    QVERIFY(!TileFacts::picture(videoItem("v")));
    QCOMPARE(TileFacts::backdrop(imageItem("Hero")), Backdrop::Default);
    QCOMPARE(TileFacts::backdrop(logoItem(2, ImageBackground::dark)), Backdrop::Dark);
    Item image = imageItem("Hero");
    image.imageBackground = ImageBackground::checkerboard;
    QCOMPARE(TileFacts::backdrop(image), Backdrop::Checkerboard);
    image.imageBackground = ImageBackground::white;
    QCOMPARE(TileFacts::backdrop(image), Backdrop::White);
  }

  void runsGradientsByTheirAngle() {
    const double reach = std::sqrt(0.5) / 2;
    const Cases<double, QPointF, QPointF> cases{
        {"to the right", 0.0, QPointF(0, 50), QPointF(200, 50)},
        {"down", 90.0, QPointF(100, 0), QPointF(100, 100)},
        {"to the left", 180.0, QPointF(200, 50), QPointF(0, 50)},
        {"in the proportions of the rectangle", 45.0, QPointF(100 - 200 * reach, 50 - 100 * reach),
         QPointF(100 + 200 * reach, 50 + 100 * reach)}};
    cases.check([&](double angle, const QPointF& start, const QPointF& end) {
      const auto line = linearGradient(gradient({{"#fff", 0}}, angle), {200, 100});
      const auto near = [](const QPointF& a, const QPointF& b) {
        return (a - b).manhattanLength() < 1e-9;
      };
      QVERIFY(near(line.start(), start));
      QVERIFY(near(line.finalStop(), end));
    });
  }

  void sortsStopsAndLeavesOutWhatDoesNotParse() {
    const auto stops =
        linearGradient(gradient({{"#00F", 1}, {"nope", 0.5}, {"#F00", 0}}, 0), {10, 10}).stops();
    QCOMPARE(stops, (QGradientStops{{0, Qt::red}, {1, Qt::blue}}));
    QCOMPARE(linearGradient(gradient({{"nope", 0.5}}, 0), {10, 10}).stops(),
             (QGradientStops{{0, Qt::transparent}}));
  }

  void keepsHardEdges() {
    for (const double place : {0.0, 0.5, 1.0}) {
      const auto stops =
          linearGradient(gradient({{"#F00", place}, {"#00F", place}, {"#0F0", place}}, 0), {10, 10})
              .stops();
      QCOMPARE(stops.size(), 3);
      QCOMPARE(stops.first().second, QColor(Qt::red));
      QCOMPARE(stops.last().second, QColor(Qt::green));
      QVERIFY(stops.first().first >= 0 && stops.last().first <= 1);
      QVERIFY(stops.last().first - stops.first().first < 1e-3);
    }
  }
};

QTEST_GUILESS_MAIN(TestTileFacts)
#include "tst_tilefacts.moc"

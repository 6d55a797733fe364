#include "document/Package.h"
#include "pictures/EmblemLook.h"
#include "pictures/MonogramColor.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

namespace {

using enum EmblemStyle::Ground;
using enum EmblemStyle::Mark;
using EmblemStyle::Ink;
using Kind = Emblem::Kind;

const QString fallbackSymbol = "tray";

}  // namespace

class TestEmblems : public QObject {
  Q_OBJECT

 private slots:
  void looksAsTold() {
    const EmblemLook symbol{NoGround, {}, Bare, fallbackSymbol, Ink::Fallback};
    const EmblemLook monogram{Filled, monogramColor(" acme"), Monogram, "A", Ink::White};
    const Cases<std::optional<Emblem>, QString, EmblemLook> cases{
        {"no emblem", {}, "", symbol},
        {"no emblem, a seed", {}, " acme", monogram},
        {"no icon wanted", Emblem{Kind::none, {}, {}, {}, {}}, " acme", monogram},
        {"a seed of several code points",
         {},
         "👩‍👩‍👧 family",
         EmblemLook{Filled, monogramColor("👩‍👩‍👧 family"), Monogram,
                    "👩‍👩‍👧", Ink::White}},
        {"symbol", Emblem{Kind::symbol, "leaf.fill", {}, {}, {}}, "x",
         EmblemLook{Quiet, {}, Symbol, "leaf.fill", Ink::Primary}},
        {"symbol on a light colour", Emblem{Kind::symbol, "leaf.fill", {}, "#FFFFFF", {}}, "x",
         EmblemLook{Filled, Qt::white, Symbol, "leaf.fill", Ink::Black}},
        {"symbol on a colour that doesn't parse", Emblem{Kind::symbol, "leaf.fill", {}, "nope", {}},
         "x", EmblemLook{Filled, QColor(0x8e, 0x8e, 0x93), Symbol, "leaf.fill", Ink::Primary}},
        {"emoji", Emblem{Kind::emoji, {}, "🌿", {}, {}}, "x",
         EmblemLook{NoGround, {}, Emoji, "🌿", Ink::Primary}},
        {"colour", Emblem{Kind::color, {}, {}, "#FF0000", {}}, "x",
         EmblemLook{Filled, Qt::red, NoMark, "", Ink::Primary}},
        {"image without a file", Emblem{Kind::image, {}, {}, {}, {}}, "", symbol},
        {"image of a name that leads out",
         Emblem{Kind::image, {}, {}, {}, AssetRef{"../secret.png", "x.png"}}, "", symbol}};
    cases.check(
        [&](const std::optional<Emblem>& emblem, const QString& seed, const EmblemLook& look) {
          TestServices disk;
          EmblemLook found = emblemLook(emblem, {fallbackSymbol, disk.folder.path(), seed, {}});
          if (look.ground != Filled) found.color = look.color;  // of no interest
          QCOMPARE(found.ground, look.ground);
          QCOMPARE(found.color.rgba(), look.color.rgba());
          QCOMPARE(found.mark, look.mark);
          QCOMPARE(found.text, look.text);
          QCOMPARE(found.ink, look.ink);
        });
  }

  void aPictureIsAFileOfThePackage() {
    TestServices disk;
    const Emblem emblem{Kind::image, {}, {}, {}, AssetRef{"mark.png", "Mark.png"}};
    const EmblemLook look = emblemLook(emblem, {fallbackSymbol, disk.folder.path(), "x", {}});
    QCOMPARE(look.mark, Picture);
    QCOMPARE(look.text, Package::assetsPath(disk.folder.path()) + "/mark.png");
    const EmblemLook own = emblemLook({}, {fallbackSymbol, {}, "x", QColor(Qt::red)});
    QCOMPARE(own.color, QColor(Qt::red));
  }

  void aMonogramsColourIsTheSameEverywhere() {
    const Cases<QString, int> cases{
        // Worked out apart: h = 5381, h = h * 33 + scalar for each, in 64 bits, its absolute value.
        {"empty", "", 5381 % 360},
        {"one letter", "A", (5381 * 33 + 65) % 360},
        {"word", "Acme", 35},
        {"beyond 64 bits", "Northlight Cycles", 285},
        {"one scalar of two code units", "🌿", (5381 * 33 + 0x1f33f) % 360}};
    cases.check([&](const QString& seed, int hue) {
      const QColor color = monogramColor(seed);
      QCOMPARE(color.hsvHue(), hue);
      QVERIFY(std::abs(color.hsvSaturationF() - 0.52F) < 0.01F);
      QVERIFY(std::abs(color.valueF() - 0.7F) < 0.01F);
    });
  }
};

QTEST_GUILESS_MAIN(TestEmblems)
#include "tst_emblems.moc"

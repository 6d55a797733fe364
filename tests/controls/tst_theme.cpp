#include "controls/motion/Spring.h"
#include "controls/theme/Contrast.h"
#include "controls/theme/Palette.h"
#include "testing/Cases.h"

#include <QTest>

#include <array>
#include <cmath>

using namespace tarnloft;

constexpr std::array springs{Spring{0.5, 0.85}, Spring{0.2, 0.85}, Spring{0.25, 1},
                             Spring{0.6, 0.4}};

// The figures of the look: what can be read, and how springs move.
class TestTheme : public QObject {
  Q_OBJECT

 private slots:
  void contrastIsThatOfTheStandard() {
    const Cases<QColor, QColor, double> cases{
        {"black on white", QColor("#000000"), QColor("#ffffff"), 21.0},
        {"known grey", QColor("#767676"), QColor("#ffffff"), 4.54},
        {"either way", QColor("#ffffff"), QColor("#767676"), 4.54},
        {"half black is mid grey", QColor(0, 0, 0, 128), QColor("#ffffff"), 4.0}};
    cases.check([&](const QColor& foreground, const QColor& background, double ratio) {
      QVERIFY2(std::abs(contrastRatio(foreground, background) - ratio) < 0.01,
               qPrintable(QString::number(contrastRatio(foreground, background))));
    });
  }

  void labelsAreReadable() {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
      const Palette p = Palette::make(scheme, QColor("#4C6FFF"));
      struct Text {
        const char* name;
        QColor color;
        double least;
      };
      const std::array texts{Text{"label", p.label, 10},
                             Text{"secondary", p.secondaryLabel, 4.5},
                             Text{"placeholder", p.placeholder, 4.5},
                             Text{"tertiary", p.tertiaryLabel, 3},
                             Text{"quaternary", p.quaternaryLabel, 1.4},
                             Text{"accent", p.accentText, 4.5},
                             Text{"destructive", p.destructive, 4.5},
                             Text{"positive", p.positive, 3},
                             Text{"warning", p.warning, 3},
                             Text{"informative", p.informative, 3},
                             Text{"focus ring", p.focusRing, 3}};
      const std::array backgrounds{p.windowBackground, p.sidebarBackground, p.controlBackground,
                                   p.textBackground,   p.sheetBackground,   p.menuBackground};
      for (const Text& text : texts)
        for (const QColor& background : backgrounds) {
          const double ratio = contrastRatio(text.color, background);
          QVERIFY2(ratio >= text.least,
                   qPrintable(QString("%1 on %2: %3")
                                  .arg(text.name, background.name(), QString::number(ratio))));
        }
      for (const QColor& background : {p.windowBackground, p.sidebarBackground}) {
        const QColor fill = over(p.warningFill, background);
        QVERIFY2(contrastRatio(p.label, fill) >= 10, qPrintable(fill.name()));
        QVERIFY2(contrastRatio(p.warning, fill) >= 3, qPrintable(fill.name()));
      }
    }
  }

  void anyAccentCarriesReadableText() {
    for (const char* hex : {"#4C6FFF", "#000000", "#FFFFFF", "#FFEE00", "#FF6B00", "#00C2A8",
                            "#7F7F7F", "#FF0000", "#0000FF", "#FF9EC7", "#1B1B3A"}) {
      for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
        const Palette p = Palette::make(scheme, QColor(hex));
        QCOMPARE(p.accent, QColor(hex));
        for (const QColor& fill : {p.accentFill, p.accentFillHovered, p.accentFillPressed})
          QVERIFY2(contrastRatio(p.onAccent, fill) >= 4.5, hex);
        for (const QColor& fill :
             {p.destructiveFill, p.destructiveFillHovered, p.destructiveFillPressed})
          QVERIFY2(contrastRatio(p.onDestructive, fill) >= 4.5, hex);
        for (const QColor& background : {p.windowBackground, p.sidebarBackground,
                                         p.controlBackground, p.sheetBackground, p.menuBackground})
          QVERIFY2(contrastRatio(p.accentText, background) >= 4.5, hex);
      }
    }
  }

  // Follows the spring's own equation in small steps, apart from the closed form.
  void springsObeyTheirEquation() {
    for (const Spring& spring : springs) {
      const double w = 2 * M_PI / spring.response, step = 1e-5;
      const double end = spring.settlingTime();
      double position = 0, rate = 0;
      for (int i = 1; i * step < end; ++i) {
        rate += step * (w * w * (1 - position) - 2 * spring.dampingFraction * w * rate);
        position += step * rate;
        if (i % 1000 != 0) continue;
        QVERIFY(std::abs(spring.position(i * step) - position) < 1e-3);
        QVERIFY(std::abs(spring.velocity(i * step) - rate) < 1e-3 * w);
      }
      QVERIFY(std::abs(position - 1) < 3e-3);
    }
  }
};

QTEST_GUILESS_MAIN(TestTheme)
#include "tst_theme.moc"

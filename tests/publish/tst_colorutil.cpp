#include "publish/ColorUtil.h"

#include <QTest>

using namespace tarnloft;

namespace {

QString str(const char* text) { return QString::fromUtf8(text); }

}  // namespace

class TestColorUtil : public QObject {
  Q_OBJECT

 private slots:
  void parsesAndWritesBack_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");  // with alpha; empty for a text that is refused
    const QList<QList<const char*>> rows{{"#4C6FFF", "#4C6FFFFF"},
                                         {"#FFF", "#FFFFFFFF"},
                                         {"4c6fff80", "#4C6FFF80"},
                                         {" #abc\n", "#AABBCCFF"},
                                         {"\u2003#abc\u00a0", "#AABBCCFF"},
                                         {"+FF", "#00FFFFFF"},
                                         {"-00", "#000000FF"},
                                         {"#+00000", "#000000FF"},
                                         {"-01", ""},
                                         {"", ""},
                                         {"#", ""},
                                         {"##FFF", ""},
                                         {"#1234", ""},
                                         {"nope", ""},
                                         {"#12 456", ""},
                                         {"+", ""},
                                         {"0x123456", ""},
                                         {"#FFFFFFFFF", ""},
                                         {"１２３", ""}};
    for (const auto& row : rows) QTest::newRow(row.first()) << str(row.first()) << str(row.last());
  }

  void parsesAndWritesBack() {
    QFETCH(QString, text);
    QFETCH(QString, written);
    const auto color = ColorUtil::nsColor(text);
    QCOMPARE(color ? ColorUtil::hex(*color, ColorUtil::Alpha::include) : QString(), written);
    if (color) QCOMPARE(ColorUtil::hex(*color), written.left(7));
  }

  void everyByteSurvives() {
    for (int value = 0; value < 256; ++value) {
      const QString text = QStringLiteral("#%1%2%3")
                               .arg(value, 2, 16, QLatin1Char('0'))
                               .arg(255 - value, 2, 16, QLatin1Char('0'))
                               .arg(value / 2, 2, 16, QLatin1Char('0'))
                               .toUpper();
      QCOMPARE(ColorUtil::hex(*ColorUtil::nsColor(text)), text);
    }
  }

  void notations_data() {
    QTest::addColumn<QString>("hex");
    QTest::addColumn<QStringList>("values");
    const auto row = [](const char* hex, const char* upper, const char* lower, const char* rgb,
                        const char* hsl, const char* cmyk) {
      QTest::newRow(hex) << str(hex)
                         << QStringList{str(upper), str(lower), str(rgb), str(hsl), str(cmyk)};
    };
    row("#FF0000", "#FF0000", "#ff0000", "rgb(255, 0, 0)", "hsl(0, 100%, 50%)",
        "cmyk(0%, 100%, 100%, 0%)");
    row("fff", "FFF", "fff", "rgb(255, 255, 255)", "hsl(0, 0%, 100%)", "cmyk(0%, 0%, 0%, 0%)");
    row("#000000", "#000000", "#000000", "rgb(0, 0, 0)", "hsl(0, 0%, 0%)",
        "cmyk(0%, 0%, 0%, 100%)");
    row(" #4c6fff ", " #4C6FFF ", " #4c6fff ", "rgb(76, 111, 255)", "hsl(228, 100%, 65%)",
        "cmyk(70%, 56%, 0%, 0%)");
    row("#FF0001", "#FF0001", "#ff0001", "rgb(255, 0, 1)", "hsl(360, 100%, 50%)",
        "cmyk(0%, 100%, 100%, 0%)");
  }

  void notations() {
    QFETCH(QString, hex);
    QFETCH(QStringList, values);
    const QStringList labels{str("HEX"), str("HEX (lower)"), str("RGB"), str("HSL"), str("CMYK")};
    QList<FormatVariant> expected;
    for (qsizetype i = 0; i < 5; ++i) expected << FormatVariant{labels.at(i), values.at(i)};
    QCOMPARE(ColorUtil::formatVariants(hex), expected);
    const auto formats = allCases<ColorCopyFormat>();
    for (size_t i = 0; i < formats.size(); ++i) {
      QCOMPARE(ColorUtil::formatted(hex, formats[i]), values.at(qsizetype(i)));
    }
  }

  void refusedTextsFallBack() {
    QCOMPARE(ColorUtil::formatVariants(str("nope")).size(), 1);
    QCOMPARE(ColorUtil::formatted(str("nope"), ColorCopyFormat::hex), str("nope"));
    for (const auto format : {ColorCopyFormat::hexLower, ColorCopyFormat::rgb, ColorCopyFormat::hsl,
                              ColorCopyFormat::cmyk}) {
      QCOMPARE(ColorUtil::formatted(str("nope"), format), str("NOPE"));
    }
    QVERIFY(!ColorUtil::cmyk(str("nope")) && !ColorUtil::relativeLuminance(str("nope")));
    QVERIFY(!ColorUtil::wcagBadge(str("nope")));
    QVERIFY(ColorUtil::contrastRows(str("nope")).isEmpty());
    QVERIFY(!fromRawValue<ColorCopyFormat>("lab"));
  }

  void gradesContrast_data() {
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("grade");
    QTest::newRow("7") << 7.0 << "AAA";
    QTest::newRow("6.99") << 6.99 << "AA";
    QTest::newRow("4.5") << 4.5 << "AA";
    QTest::newRow("3") << 3.0 << "AA Large";
    QTest::newRow("2.99") << 2.99 << "Fail";
  }

  void gradesContrast() {
    QFETCH(double, ratio);
    QTEST(ColorUtil::wcagGrade(ratio), "grade");
    QCOMPARE(ColorUtil::contrastRatio(0, 1), 21.0);
    // #767676 is the well-known lightest grey that passes AA on white.
    QCOMPARE(ColorUtil::contrastRows(str("#767676")),
             QStringList({str("On white  4.54:1 · AA"), str("On black  4.62:1 · AA")}));
    QCOMPARE(ColorUtil::wcagBadge(str("#000")), std::optional(str("AAA")));
  }

  void choosesTextColors() {
    QCOMPARE(ColorUtil::contrastingText(str("#999999")), TextColor::white);  // luma is 0.6 exactly
    QCOMPARE(ColorUtil::contrastingText(str("#9A9A9A")), TextColor::black);
    QCOMPARE(ColorUtil::contrastingText(str("#0000FF")), TextColor::white);
    QCOMPARE(ColorUtil::contrastingText(str("nope")), TextColor::primary);
  }

  void resolvesAccents() {
    using enum ColorUtil::Appearance;
    const QString d = str("#1"), dd = str("#2"), b = str("#3"), bd = str("#4");
    QCOMPARE(ColorUtil::effectiveAccent({}, bd, d, {}, dark), d);
    QCOMPARE(ColorUtil::effectiveAccent({}, bd, d, dd, dark), dd);
    QCOMPARE(ColorUtil::effectiveAccent({}, {}, d, dd, light), d);
    QCOMPARE(ColorUtil::effectiveAccent(b, {}, d, dd, dark), b);
    QCOMPARE(ColorUtil::effectiveAccent(b, bd, d, dd, dark), bd);
    QCOMPARE(ColorUtil::effectiveAccent(b, bd, d, dd, light), b);
  }
};

QTEST_APPLESS_MAIN(TestColorUtil)

#include "tst_colorutil.moc"

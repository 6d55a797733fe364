#include "publish/ColorUtil.h"
#include "publish/PaletteExport.h"
#include "testing/Cases.h"

#include <QTest>

using namespace tarnloft;
using PaletteExport::Entry;
using PaletteExport::Format;

class TestColors : public QObject {
  Q_OBJECT

 private slots:
  void parsesAndWritesBack() {
    QList<QPair<QString, QString>> colors{{"#4C6FFF", "#4C6FFFFF"},
                                          {"4c6fff80", "#4C6FFF80"},
                                          {"\u2003#abc\u00a0", "#AABBCCFF"},
                                          {"#+00000", "#000000FF"}};
    for (int value = 0; value < 256; ++value) {  // no byte is rounded to another one
      const QString text = QString("#%1%1%1FF").arg(value, 2, 16, QLatin1Char('0')).toUpper();
      colors.append({text, text});
    }
    for (const auto& [text, written] : colors) {
      const auto color = ColorUtil::nsColor(text);
      QVERIFY2(color, qPrintable(text));
      QCOMPARE(ColorUtil::hex(*color, ColorUtil::Alpha::include), written);
      QCOMPARE(ColorUtil::hex(*color), written.left(7));
    }
    for (const char* bad : {"-01", "", "##FFF", "#1234", "nope", "#12 456", "１２３"}) {
      QVERIFY2(!ColorUtil::nsColor(bad), bad);
    }
  }

  void notations() {
    const QList<QStringList> colors{
        {"#FF0000", "#FF0000", "#ff0000", "rgb(255, 0, 0)", "hsl(0, 100%, 50%)",
         "cmyk(0%, 100%, 100%, 0%)"},
        {"fff", "FFF", "fff", "rgb(255, 255, 255)", "hsl(0, 0%, 100%)", "cmyk(0%, 0%, 0%, 0%)"},
        {"#000000", "#000000", "#000000", "rgb(0, 0, 0)", "hsl(0, 0%, 0%)",
         "cmyk(0%, 0%, 0%, 100%)"},
        {" #4c6fff ", " #4C6FFF ", " #4c6fff ", "rgb(76, 111, 255)", "hsl(228, 100%, 65%)",
         "cmyk(70%, 56%, 0%, 0%)"},
        {"#FF0001", "#FF0001", "#ff0001", "rgb(255, 0, 1)", "hsl(360, 100%, 50%)",
         "cmyk(0%, 100%, 100%, 0%)"}};
    const QStringList labels{"HEX", "HEX (lower)", "RGB", "HSL", "CMYK"};
    const auto formats = allCases<ColorCopyFormat>();
    for (const QStringList& color : colors) {
      QList<FormatVariant> expected;
      for (qsizetype i = 0; i < 5; ++i) {
        expected << FormatVariant{labels.at(i), color.at(i + 1)};
        QCOMPARE(ColorUtil::formatted(color.first(), formats[size_t(i)]), color.at(i + 1));
      }
      QCOMPARE(ColorUtil::formatVariants(color.first()), expected);
    }
  }

  void gradesContrast() {
    const QList<QPair<double, QString>> grades{
        {7, "AAA"}, {6.99, "AA"}, {4.5, "AA"}, {3, "AA Large"}, {2.99, "Fail"}};
    for (const auto& [ratio, grade] : grades) QCOMPARE(ColorUtil::wcagGrade(ratio), grade);
    // #767676 is the well-known lightest grey that passes AA on white.
    QCOMPARE(ColorUtil::contrastRows("#767676"),
             QStringList({"On white  4.54:1 · AA", "On black  4.62:1 · AA"}));
    QCOMPARE(ColorUtil::wcagBadge("#000"), std::optional(QString("AAA")));
    QCOMPARE(ColorUtil::contrastingText("#999999"), TextColor::white);  // luma is 0.6 exactly
    QCOMPARE(ColorUtil::contrastingText("#9A9A9A"), TextColor::black);
  }

  void writesEachFormat() {
    const Cases<Format, QString, QString> cases{
        {"css", Format::cssVariables, ":root {\n  --brand-blue: #123456;\n  --abcdef: #ABCDEF;\n}",
         ":root {\n\n}"},
        {"scss", Format::scss, "$brand-blue: #123456;\n$abcdef: #ABCDEF;", ""},
        {"tailwind", Format::tailwind,
         "// tailwind.config.js\nmodule.exports = {\n  theme: {\n    extend: {\n      colors: {\n"
         "        'brand-blue': '#123456',\n        'abcdef': '#ABCDEF',\n      },\n    },\n  "
         "},\n}",
         "// tailwind.config.js\nmodule.exports = {\n  theme: {\n    extend: {\n      colors: "
         "{\n\n"
         "      },\n    },\n  },\n}"},
        {"swift", Format::swiftUI,
         "import SwiftUI\n\nextension Color {\n"
         "    static let brandBlue = Color(hex: \"#123456\")\n"
         "    static let abcdef = Color(hex: \"#ABCDEF\")\n}",
         "import SwiftUI\n\nextension Color {\n\n}"},
        {"json", Format::json,
         "[\n  { \"name\": \"Brand Blue\", \"hex\": \"#123456\", \"spot\": \"PMS \\\"021\\\" C\" "
         "},\n"
         "  { \"name\": \"#ABCDEF\", \"hex\": \"#ABCDEF\" }\n]",
         "[\n\n]"}};
    cases.check([&](const Format& format, const QString& full, const QString& empty) {
      const QList<Entry> colors{{"Brand Blue", "#123456", "PMS \"021\" C"},
                                {QString(), "#ABCDEF", {}}};
      QCOMPARE(PaletteExport::format(colors, format), full);
      QCOMPARE(PaletteExport::format({}, format), empty);
    });
  }

  void makesSlugs() {
    const Cases<QStringList, QStringList> cases{
        {"repeated", QStringList{"Blue", "blue", "BLUE"}, QStringList{"blue", "blue-2", "blue-3"}},
        {"collision stays", QStringList{"Blue", "Blue", "Blue 2"},
         QStringList{"blue", "blue-2", "blue-2"}},
        {"punctuation", QStringList{"a", "b", "***"}, QStringList{"a", "b", "color-3"}},
        {"runs and ends", QStringList{"--A  &  b!"}, QStringList{"a-b"}},
        {"accents and other digits", QStringList{"Éclair e\u0301 ٣½"},
         QStringList{"éclair-e\u0301-٣½"}}};
    cases.check([&](const QStringList& names, const QStringList& slugs) {
      QList<Entry> colors;
      for (const QString& name : names) colors << Entry{name, "#000", {}};
      QStringList expected;
      for (const QString& slug : slugs) expected << "$" + slug + ": #000;";
      QCOMPARE(PaletteExport::format(colors, Format::scss), expected.join('\n'));
    });
    QCOMPARE(PaletteExport::camelCase("bleu-été-2"), "bleuÉté2");
    QCOMPARE(PaletteExport::camelCase("123456"), "c123456");
    QCOMPARE(PaletteExport::camelCase("--"), "color");
  }
};

QTEST_APPLESS_MAIN(TestColors)
#include "tst_colors.moc"

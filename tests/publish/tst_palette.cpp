#include "publish/PaletteExport.h"
#include "testing/Cases.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tarnloft;
using PaletteExport::Entry;
using PaletteExport::Format;

namespace {

QString str(const char* text) { return QString::fromUtf8(text); }

}  // namespace

class TestPalette : public QObject {
  Q_OBJECT

 private slots:
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
         "[\n  { \"name\": \"Brand Blue\", \"hex\": \"#123456\", \"spot\": \"PMS 021 C\" },\n"
         "  { \"name\": \"#ABCDEF\", \"hex\": \"#ABCDEF\" }\n]",
         "[\n\n]"}};
    cases.check([&](const Format& format, const QString& full, const QString& empty) {
      const QList<Entry> colors{{str("Brand Blue"), str("#123456"), str("PMS 021 C")},
                                {QString(), str("#ABCDEF"), {}}};
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
      for (const QString& name : names) colors << Entry{name, str("#000"), {}};
      QStringList expected;
      for (const QString& slug : slugs) expected << str("$") + slug + str(": #000;");
      QCOMPARE(PaletteExport::format(colors, Format::scss), expected.join('\n'));
    });
  }

  void makesIdentifiers() {
    const Cases<QString, QString> cases{{"words", "brand-blue", "brandBlue"},
                                        {"number behind", "blue-2", "blue2"},
                                        {"number in front", "123456", "c123456"},
                                        {"nothing", "--", "color"},
                                        {"accents", "bleu-été", "bleuÉté"}};
    cases.check([&](const QString& slug, const QString& identifier) {
      QCOMPARE(PaletteExport::camelCase(slug), identifier);
    });
  }

  void jsonReads() {
    const QList<Entry> colors{{str("a\"b\\"), str("#123"), str("")}};
    const auto read =
        QJsonDocument::fromJson(PaletteExport::format(colors, Format::json).toUtf8()).array();
    QCOMPARE(read.at(0)[u"name"].toString(), str("a\"b\\"));
    QVERIFY(read.at(0).toObject().contains(u"spot"));
  }

  void takesTheColorsOfASection() {
    Section section = Section::create(str("Colors"));
    section.items = {Item::create(TextPayload{str("x")}),
                     Item::create(ColorPayload{{str("#abc"), {}, str("PMS 1")}}),
                     Item::create(ColorPayload{{str("#def"), str("Sky"), {}}})};
    QCOMPARE(PaletteExport::entries(section),
             QList<Entry>({{QString(), str("#ABC"), str("PMS 1")}, {str("Sky"), str("#DEF"), {}}}));
  }
};

QTEST_APPLESS_MAIN(TestPalette)
#include "tst_palette.moc"

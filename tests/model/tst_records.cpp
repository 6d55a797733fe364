#include "model/FileName.h"
#include "model/RecordHash.h"
#include "model/SearchText.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"

#include <QTest>

using namespace tarnloft;

namespace {

QString str(const char* text) { return QString::fromUtf8(text); }
AssetRef file(const char* name) { return {str("stored.bin"), str(name)}; }
Item color(const char* hex, std::optional<QString> name = {}, std::optional<QString> spot = {}) {
  return Item::create(ColorPayload{{str(hex), std::move(name), std::move(spot)}});
}
LogoVariant variant(const char* name, LogoRole role,
                    std::optional<ImageBackground> background = {}) {
  return {QUuid::createUuid(), file(name), role, background};
}
Item logo(const QList<LogoVariant>& variants) {
  return Item::create(LogoPayload{{str("Set"), variants}});
}

}  // namespace

class TestRecords : public QObject {
  Q_OBJECT

 private slots:
  void showsNames() {
    const Cases<Item, QString, QString> cases{
        {"header", Item::create(HeaderPayload{str("Basics"), 2}), "Basics", "Header"},
        {"text", Item::create(TextPayload{str("a\nb")}), "a\nb", "Text"},
        {"colour by hex", color("#123"), "#123", "Color"},
        {"empty name is a name", color("#123", str("")), "", "Color"},
        {"gradient", Item::create(GradientPayload{}), "Gradient", "Gradient"},
        {"image by file", Item::create(ImagePayload{file("a.b.png"), {}}), "a.b", "Image"},
        {"image without any", Item::create(ImagePayload{file(""), {}}), "Image", "Image"},
        {"video", Item::create(VideoPayload{file(""), {}}), "Video", "Video"},
        {"font", Item::create(FontPayload{{str("Inter"), {}, {}, {}, {}}}), "Inter", "Type"},
        {"code", Item::create(CodePayload{{str("css"), {}, {}}}), "css", "Code"},
        {"logo", logo({}), "Set", "Logo"}};
    cases.check([&](const Item& item, const QString& name, const QString& type) {
      QCOMPARE(item.displayName(), name);
      QCOMPARE(item.typeLabel(), type);
    });
  }

  void findsItems() {
    const Cases<QString, bool> cases{{"part of the hex", "#1234", true},
                                     {"type, any case", "cOLOR", true},
                                     {"spot", "pms 021", true},
                                     {"name, beyond ASCII", "ÜBER", true},
                                     {"composed and decomposed", "u\u0308berbl", true},
                                     {"blanks count", " 123456", false},
                                     {"nothing finds nothing", "", false}};
    cases.check([&](const QString& query, bool found) {
      QCOMPARE(color("#123456", str("Überblau"), str("PMS 021 C")).matchesSearch(query), found);
      QVERIFY(!logo({variant("m.svg", LogoRole::mono)}).matchesSearch(str("wordmark")));
      QVERIFY(logo({variant("m.svg", LogoRole::mono)}).matchesSearch(str("monochrome")));
    });
  }

  void foldsTextsInTheUsersLanguage() {
    const Cases<QString, QString, QString> cases{
        {"nothing", "", "", ""},
        {"ASCII", "AZ az @[`{ 09", "az az @[`{ 09", "az az @[`{ 09"},
        {"letter I", "ICON", "icon", "ıcon"},
        {"beyond ASCII", "Straße ÜBER", "straße über", "straße über"},
        {"decomposed", "U\u0308", "ü", "ü"},
        {"U+FEFF in front", "\uFEFFX", "\uFEFFx", "\uFEFFx"}};
    cases.check([](const QString& text, const QString& english, const QString& turkish) {
      for (const auto& [language, expected] :
           {std::pair(QLocale::English, english), std::pair(QLocale::Turkish, turkish)}) {
        QLocale::setDefault(QLocale(language));
        const SearchFolding folding;
        QLocale::setDefault(QLocale::system());
        std::string ofText, ofUtf8;
        folding.append(text, ofText);
        folding.append(text.toStdString(), ofUtf8);
        QCOMPARE(folding.folded(text), expected);
        QCOMPARE(ofText, expected.toStdString());
        QCOMPARE(ofUtf8, ofText);
      }
    });
  }

  void handsOutTheRightFile() {
    const LogoVariant mono = variant("m.svg", LogoRole::mono);
    const LogoVariant primary = variant("p.svg", LogoRole::primary);
    QCOMPARE(logo({mono, primary}).exportableAsset(), primary.asset);
    QCOMPARE(logo({mono}).exportableAsset(), mono.asset);
    QVERIFY(!logo({}).isExportable());
    QVERIFY(!Item::create(FontPayload{}).isExportable());
    QVERIFY(!color("#123").isExportable());
  }

  void keepsNoEmptyNotes() {
    Item item = color("#123");
    QVERIFY(item.usageNotes().isEmpty());
    item.setUsageNotes({UsageNote{}, UsageNote{}});
    QCOMPARE(item.notes->size(), 2);
    item.setUsageNotes({});
    QVERIFY(!item.notes);
  }

  void ungroupsLogoSets() {
    const LogoVariant first = variant("Image.png", LogoRole::primary, ImageBackground::white);
    const LogoVariant second = variant("Image.png", LogoRole::icon);
    const QList<Item> items = LogoValue{str("Set"), {first, second}}.ungroupedImageItems();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0).displayName(), str("Image · Primary"));
    QCOMPARE(items.at(1).displayName(), str("Image · Icon / Favicon"));
    QCOMPARE(items.at(0).imageBackground, first.background);
    QCOMPARE(items.at(1).exportableAsset(), second.asset);
    QVERIFY(items.at(0).id != items.at(1).id);
    const QList<Item> single = LogoValue{str("Set"), {first}}.ungroupedImageItems();
    QCOMPARE(single.at(0).displayName(), str("Image"));
  }

  void writesGradientsAsCss() {
    const auto stop = [](const char* hex, double at) { return GradientStop{{}, str(hex), at}; };
    const GradientValue value{
        {stop("#00ff00", 0.505), stop("#ff0000", 0), stop("#0000ff", 0.505)}, -0.5, {}};
    QCOMPARE(value.cssString(),
             str("linear-gradient(-1deg, #FF0000 0%, #00FF00 51%, #0000FF 51%)"));
    QCOMPARE(value.stops.first().hex, str("#00ff00"));
  }

  void splitsExtensions() {
    const Cases<QString, QString, QString> cases{{"plain", "Mark.PNG", "Mark", "PNG"},
                                                 {"two", "a.tar.gz", "a.tar", "gz"},
                                                 {"hidden", ".png", ".png", ""},
                                                 {"dot at the end", "Mark.", "Mark.", ""},
                                                 {"dot in a folder", "a.b/c", "a.b/c", ""}};
    cases.check([&](const QString& path, const QString& base, const QString& extension) {
      QCOMPARE(withoutPathExtension(path), base);
      QCOMPARE(pathExtension(path), extension);
      const std::string utf8 = path.toStdString();
      QCOMPARE(QString::fromStdString(std::string(withoutPathExtension(utf8))), base);
    });
  }

  void hashesAgreeWithEquality() {
    RandomBrand random(11);
    for (int i = 0; i < 50; ++i) {
      const Brand brand = random.brand(3, 20);
      Brand copy = brand;
      QCOMPARE(qHash(copy), qHash(brand));
      Item& item = copy.sections[random.below(3)].items[random.below(20)];
      item.setUsageNotes(item.usageNotes() << UsageNote{{}, UsageKind::note, str("new")});
      QVERIFY(!(copy == brand));
      QVERIFY(qHash(copy) != qHash(brand));
    }
  }
};

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"

#include "assets/FontManager.h"
#include "document/Package.h"
#include "platform/desktop/FreeTypeFonts.h"
#include "testing/DrawnText.h"
#include "testing/TestServices.h"

#include <QGuiApplication>
#include <QTest>

using namespace tarnloft;

namespace {

class ListedFonts : public Fonts {
 public:
  std::optional<FontNames> names(const QString&) override { return std::nullopt; }
  void registerForProcess(const QString& path) override { registered << path; }

  QStringList registered;
};

Item fontItem(const std::optional<AssetRef>& asset) {
  FontValue value;
  value.family = "x";
  value.asset = asset;
  return Item::create(FontPayload{value});
}

std::unique_ptr<BrandDocument> openBrand(TestServices& disk) {
  return std::move(*BrandDocument::create(disk.services(), disk.folder.path(), "Acme"));
}

// Two sections with the items.
void fill(BrandDocument& document, const QList<Item>& first, const QList<Item>& second) {
  for (const QList<Item>& items : {first, second}) {
    Section section = Section::create("s");
    for (const Item& item : items) section.items.append(item);
    document.edit([&](Brand& brand) { brand.sections.append(section); });
  }
}

}  // namespace

class TestFontManager : public QObject {
  Q_OBJECT

 private slots:
  void textDrawsInTheFontsOfABrand() {
    TestServices disk;
    const auto document = openBrand(disk);
    const auto import = [&](const char* name) {
      return fontItem(*document->importAsset(QStringLiteral(FONT_FIXTURES "/") + name));
    };
    fill(*document, {import("plain.ttf"), fontItem(std::nullopt), import("typographic.woff2")},
         {import("collection.ttc"), import("make.py"), import("plain.otf")});
    FreeTypeFonts fonts;
    QVERIFY(drawnBox("Tarn Test") != boxOfWidth(200));
    FontManager::registerAll(document->brand(), document->files(), fonts);
    FontManager::registerAll(document->brand(), document->files(), fonts);
    QCOMPARE(drawnBox("Tarn Test"), boxOfWidth(200));
    QCOMPARE(drawnBox("Tarn Woff Two Typo"), boxOfWidth(480));
    QCOMPARE(drawnBox("Tarn First"), boxOfWidth(800));
    QCOMPARE(drawnBox("Tarn Ink"), boxOfWidth(240));
  }

  // A package may come from anywhere: names that lead out of it are not followed.
  void registersOnlyFilesOfFontItems() {
    TestServices disk;
    const auto document = openBrand(disk);
    QVERIFY(writeFile(disk.path("outside.ttf"), "x"));
    const AssetRef font = *document->importAsset(disk.path("outside.ttf"));
    const QString folder = Package::assetsPath(document->packageURL());
    QVERIFY(QFile::link(disk.path("outside.ttf"), folder + "/link.ttf"));
    fill(*document,
         {fontItem(AssetRef{"../../outside.ttf", "a"}), fontItem(AssetRef{"link.ttf", "a"}),
          fontItem(AssetRef{"", "a"}), fontItem(std::nullopt)},
         {Item::create(ImagePayload{font, {}}), Item::create(TextPayload{"x"}), fontItem(font)});
    ListedFonts fonts;
    FontManager::registerAll(document->brand(), document->files(), fonts);
    QCOMPARE(fonts.registered, QStringList(folder + "/" + font.filename));
  }
};

int main(int argc, char** argv) {
  useNoDisplay();
  const QGuiApplication application(argc, argv);
  TestFontManager test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_fontmanager.moc"

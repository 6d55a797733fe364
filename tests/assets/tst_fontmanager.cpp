#include "assets/FontManager.h"
#include "document/Package.h"
#include "testing/FakeDrops.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestFontManager : public QObject {
  Q_OBJECT

 private slots:
  // A package may come from anywhere: names that lead out of it are not followed.
  void registersOnlyFilesOfFontItems() {
    TestServices disk;
    const auto document = *BrandDocument::create(disk.services(), disk.folder.path(), "Acme");
    QVERIFY(writeFile(disk.path("outside.ttf"), "x"));
    const AssetRef font = *document->importAsset(disk.path("outside.ttf"));
    const QString folder = Package::assetsPath(document->packageURL());
    QVERIFY(QFile::link(disk.path("outside.ttf"), folder + "/link.ttf"));
    const auto fontItem = [](const std::optional<AssetRef>& asset) {
      return Item::create(FontPayload{{"x", {}, {}, asset, {}}});
    };
    Section first = Section::create("s"), second = Section::create("s");
    first.items = {fontItem(AssetRef{"../../outside.ttf", "a"}),
                   fontItem(AssetRef{"link.ttf", "a"}), fontItem(AssetRef{"", "a"}),
                   fontItem(std::nullopt)};
    second.items = {Item::create(ImagePayload{font, {}}), Item::create(TextPayload{"x"}),
                    fontItem(font)};
    document->edit([&](Brand& brand) { brand.sections = {first, second}; });
    FakeFonts fonts;
    FontManager::registerAll(document->brand(), document->files(), fonts);
    QCOMPARE(fonts.registered, QStringList(folder + "/" + font.filename));
  }
};

QTEST_APPLESS_MAIN(TestFontManager)
#include "tst_fontmanager.moc"

#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "entry/selftest/Checks.h"
#include "publish/BrandPageExporter.h"

namespace tarnloft::SelfTest {
namespace {

// A new document whose one section holds the items. Null, with a failed line, if it can't be made.
std::unique_ptr<BrandDocument> pageDocument(Report& report, const DocumentServices& services,
                                            const ScratchFolder& folder, const QString& setupLabel,
                                            const QString& brandName, const QString& sectionName,
                                            const SharedList<Item>& items) {
  auto document = BrandDocument::create(services, folder.path(), brandName);
  if (!document) {
    report.check(setupLabel, false);
    return nullptr;
  }
  (*document)->edit([&](Brand& brand) {
    Section section = Section::create(sectionName);
    section.items = items;
    brand.sections = {section};
  });
  (*document)->saveNow();
  return std::move(*document);
}

bool writeAsset(FileStore& files, const BrandDocument& document, const QString& filename,
                const QByteArray& content) {
  const QString path = Package::assetsPath(document.packageURL()) + QLatin1Char('/') + filename;
  return writeAtomically(files, path, Durability::atomic,
                         [&](FileWriter& file) { return file.write(content); })
      .has_value();
}

}  // namespace

void checkBrandPage(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-page-"));
  const auto document = pageDocument(
      report, services, folder, QStringLiteral("page doc create"), QStringLiteral("PageBrand"),
      QStringLiteral("Colors"),
      {Item::create(ColorPayload{{QStringLiteral("#123456"), QStringLiteral("Brand Blue"), {}}})});
  if (!document) return;
  const QString page = BrandPageExporter::html(*document);
  report.check(QStringLiteral("brand page is valid html"),
               page.startsWith(QStringLiteral("<!DOCTYPE html>")));
  report.check(
      QStringLiteral("brand page embeds color + name"),
      page.contains(QStringLiteral("#123456")) && page.contains(QStringLiteral("Brand Blue")));
  report.check(QStringLiteral("brand page has copy-to-clipboard"),
               page.contains(QStringLiteral("copyHex(")));
}

void checkLogoPage(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-logo-"));
  const AssetRef file{QStringLiteral("wm.png"), QStringLiteral("wm.png")};
  const LogoValue logo{QStringLiteral("Wordmark"),
                       {{QUuid::createUuid(), file, LogoRole::wordmark, std::nullopt}}};
  const auto document = pageDocument(
      report, services, folder, QStringLiteral("logo page doc create"), QStringLiteral("LogoBrand"),
      QStringLiteral("Logos"), {Item::create(LogoPayload{logo})});
  if (!document) return;
  const QString page = BrandPageExporter::html(*document);
  report.check(
      QStringLiteral("brand page renders logo set"),
      page.contains(QStringLiteral("logo-set")) && page.contains(QStringLiteral("Wordmark")));
  report.check(
      QStringLiteral("brand page shows variant role"),
      page.contains(QStringLiteral("class=\"role\"")) && page.contains(QStringLiteral("Wordmark")));
}

void checkNotesPage(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-notes-"));
  Item color = Item::create(ColorPayload{
      {QStringLiteral("#123456"), QStringLiteral("Blue"), QStringLiteral("PMS 021 C")}});
  color.setUsageNotes(
      {{QUuid::createUuid(), UsageKind::doRule, QStringLiteral("Use on white only")}});
  const auto document =
      pageDocument(report, services, folder, QStringLiteral("notes page doc"),
                   QStringLiteral("NotesBrand"), QStringLiteral("Colors"), {color});
  if (!document) return;
  const QString page = BrandPageExporter::html(*document);
  report.check(QStringLiteral("page shows spot"), page.contains(QStringLiteral("PMS 021 C")));
  report.check(QStringLiteral("page shows usage note"),
               page.contains(QStringLiteral("Use on white only")) &&
                   page.contains(QStringLiteral("class=\"usage\"")));
}

void checkFonts(Report& report, const DocumentServices& services) {
  const Item withFile =
      Item::create(FontPayload{{QStringLiteral("F"),
                                {},
                                {},
                                AssetRef{QStringLiteral("f.otf"), QStringLiteral("f.otf")},
                                {}}});
  const Item nameOnly = Item::create(FontPayload{{QStringLiteral("NoFile"), {}, {}, {}, {}}});
  report.check(QStringLiteral("font with a file is exportable"), withFile.isExportable());
  report.check(QStringLiteral("name-only font is not exportable"), !nameOnly.isExportable());

  const ScratchFolder folder(QStringLiteral("tarnloft-font-"));
  const AssetRef file{QStringLiteral("demo.otf"), QStringLiteral("DemoSans.otf")};
  const FontValue demo{QStringLiteral("Demo Sans"), QStringLiteral("Bold"), {}, file, {}};
  const QString setup = QStringLiteral("font page doc");
  const auto document = pageDocument(report, services, folder, setup, QStringLiteral("FontBrand"),
                                     QStringLiteral("Type"), {Item::create(FontPayload{demo})});
  if (!document) return;
  if (!writeAsset(services.files, *document, file.filename, "not-a-real-font")) {
    return report.check(setup, false);
  }
  const QString page = BrandPageExporter::html(*document);
  document->edit([&](Brand& brand) { brand.sections.first().items = {nameOnly}; });
  report.check(QStringLiteral("page offers the font file for download"),
               page.contains(QStringLiteral("Download font")) &&
                   page.contains(QStringLiteral("DemoSans.otf")));
  report.check(QStringLiteral("name-only font has no download link"),
               !BrandPageExporter::html(*document).contains(QStringLiteral("Download font")));
}

}  // namespace tarnloft::SelfTest
